// Controlli.cpp - the state of controls.

#include "ordavel/Controlli.hpp"

#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

void Combo::Svuota()
{
    Indice.PoniSenzaRegola(-1);
    Voci.Poni({});
}

void Combo::Aggiungi(std::string_view sVoce)
{
    auto aVoci = Voci.Valore();
    aVoci.emplace_back(sVoce);
    Voci.Poni(std::move(aVoci));
}

std::string Combo::Testo() const
{
    const auto& aVoci = Voci.Valore();
    const auto nIndice = static_cast<std::size_t>(Indice.Valore());
    return Indice.Valore() >= 0 && nIndice < aVoci.size() ? aVoci[nIndice] : std::string();
}

bool Combo::Contiene(std::string_view sVoce) const
{
    const auto& aVoci = Voci.Valore();
    return std::find(aVoci.begin(), aVoci.end(), sVoce) != aVoci.end();
}

bool SelezionaCombo(std::string_view sTesto, Combo& combo)
{
    const auto& aVoci = combo.Voci.Valore();
    auto voce = std::find(aVoci.begin(), aVoci.end(), sTesto);
    const bool bEsatta = voce != aVoci.end();
    if (!bEsatta) {
        voce = std::find_if(aVoci.begin(), aVoci.end(),
                            [sTesto](const std::string& sVoce) { return IniziaSenzaCaso(sVoce, sTesto); });
    }
    combo.Indice.Poni(voce == aVoci.end() ? -1 : static_cast<std::int32_t>(voce - aVoci.begin()));
    return bEsatta;
}

PulsanteStrumento& BarraStrumenti::Pulsante(std::string_view sChiave)
{
    const auto pulsante =
        std::find_if(aPulsanti.begin(), aPulsanti.end(),
                     [sChiave](const PulsanteStrumento& p) { return UgualiSenzaCaso(p.sChiave, sChiave); });
    if (pulsante == aPulsanti.end()) {
        throw Errore(eErrore::membro, sChiave);
    }
    return *pulsante;
}

VoceMenu& BarraStrumenti::Voce(std::string_view sChiave)
{
    for (PulsanteStrumento& pulsante : aPulsanti) {
        for (VoceMenu& voce : pulsante.aMenu) {
            if (UgualiSenzaCaso(voce.sChiave, sChiave)) {
                return voce;
            }
        }
    }
    throw Errore(eErrore::membro, sChiave);
}

bool SelettoreNumeri::Scelto(std::int32_t nNumero) const
{
    return Scelti.Valore()(nNumero) != 0;
}

void SelettoreNumeri::Seleziona(std::int32_t nNumero, bool bScelto)
{
    auto aScelti = Scelti.Valore();
    aScelti(nNumero) = bScelto ? 1 : 0;
    Scelti.Poni(aScelti);
}

std::int32_t SelettoreNumeri::Conta() const noexcept
{
    const auto& aScelti = Scelti.Valore().aElementi;
    return static_cast<std::int32_t>(std::count(aScelti.begin(), aScelti.end(), std::uint8_t{1}));
}

void SelettoreNumeri::Svuota()
{
    Scelti.Poni({});
}

} // namespace ordavel
