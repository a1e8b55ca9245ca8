// SerieSpunte.cpp - a control array of check boxes.

#include "editor/SerieSpunte.hpp"

#include <algorithm>

namespace ordavel {

void SerieSpunte::Estendi(std::int32_t nUltimo)
{
    while (m_nUltimo < nUltimo) {
        const std::int32_t nValore = ++m_nUltimo;
        m_aSpunte.emplace_back().Segnata.AlCambio([this, nValore] {
            if (m_Regola) {
                m_Regola(nValore);
            }
        });
    }
    AvvisaVista();
}

void SerieSpunte::Taglia(std::int32_t nDa)
{
    while (m_nUltimo >= std::max(nDa, m_nPrimo)) {
        m_aSpunte.pop_back();
        --m_nUltimo;
    }
    AvvisaVista();
}

Spunta& SerieSpunte::operator()(std::int64_t nValore)
{
    if (nValore < m_nPrimo || nValore > m_nUltimo) {
        Solleva(eErrore::indice);
    }
    return m_aSpunte[static_cast<std::size_t>(nValore - m_nPrimo)];
}

const Spunta& SerieSpunte::operator()(std::int64_t nValore) const
{
    if (nValore < m_nPrimo || nValore > m_nUltimo) {
        Solleva(eErrore::indice);
    }
    return m_aSpunte[static_cast<std::size_t>(nValore - m_nPrimo)];
}

void SerieSpunte::AlClick(std::function<void(std::int32_t)> regola)
{
    m_Regola = std::move(regola);
}

void SerieSpunte::Ascolta(std::function<void()> vista)
{
    m_Vista = std::move(vista);
}

void SerieSpunte::AvvisaVista() const
{
    if (m_Vista) {
        m_Vista();
    }
}

bool SerieSpunte::Qualcuna() const noexcept
{
    return std::any_of(m_aSpunte.begin(), m_aSpunte.end(),
                       [](const Spunta& s) { return s.Segnata.Valore(); });
}

FlagNumeri SerieSpunte::Flag(std::int32_t nUltimo) const
{
    FlagNumeri aFlag;
    for (std::int32_t n = m_nPrimo; n <= std::min(nUltimo, m_nUltimo); ++n) {
        if ((*this)(n).Segnata.Valore()) {
            aFlag(n) = kVero;
        }
    }
    return aFlag;
}

} // namespace ordavel
