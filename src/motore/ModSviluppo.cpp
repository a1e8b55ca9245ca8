// ModSviluppo.cpp - the enumeration of the columns.

#include "motore/ModSviluppo.hpp"

#include "motore/BufferColonne.hpp"
#include "motore/ModIntegrali.hpp"
#include "motore/ModVerifica.hpp"
#include "motore/SviluppoBlocchi.hpp"

#include <algorithm>

namespace ordavel {

Enumeratore::Enumeratore(const NumeriScelti& aNumeri, std::int16_t nClasse)
{
    if (nClasse < 1 || nClasse > kNumeriColonna) {
        Solleva(eErrore::indice);
    }
    m_aPosizioni.assign(static_cast<std::size_t>(nClasse), 0);
    const std::int16_t nScelti = ContaNumeri(aNumeri);
    m_nRighe = static_cast<std::size_t>(std::max(0, nScelti - nClasse + 1));
    m_aScelti.reserve(static_cast<std::size_t>(nScelti));
    for (std::int16_t k = 1; k <= nScelti; ++k) {
        m_aScelti.push_back(static_cast<std::uint8_t>(aNumeri[k]));
    }
}

bool Enumeratore::Riporta() noexcept
{
    // Invariant: the rows never fall from left to right. The rightmost one that can still rise does so, and all
    // to its right start again from there.
    std::size_t j = m_aPosizioni.size();
    while (j > 0 && m_aPosizioni[j - 1] + 1 >= m_nRighe) {
        --j;
    }
    if (j == 0) {
        return false;
    }
    const std::size_t nRiga = m_aPosizioni[j - 1] + 1;
    for (std::size_t k = j - 1; k < m_aPosizioni.size(); ++k) {
        m_aPosizioni[k] = nRiga;
    }
    return true;
}

bool Aggiorna(double nTotale, StatoSviluppo& stato, Avanzamento& avanzamento)
{
    avanzamento.Mostra(stato.nSviluppate, stato.nCondizionate,
                       PercentualeProgress(stato.nSviluppate, nTotale));
    if (stato.bStopSviluppo) {
        return false;
    }
    avanzamento.LasciaEventi();
    return true;
}

namespace {

std::vector<std::uint8_t> Scelti(const NumeriScelti& aNumeri)
{
    const std::int16_t nScelti = ContaNumeri(aNumeri);
    std::vector<std::uint8_t> aScelti;
    aScelti.reserve(static_cast<std::size_t>(nScelti));
    for (std::int16_t k = 1; k <= nScelti; ++k) {
        aScelti.push_back(static_cast<std::uint8_t>(aNumeri[k]));
    }
    return aScelti;
}

/// Column by column: the definition.
void SviluppaPiano(const NumeriScelti& aNumeri, std::int16_t nClasse, BufferColonne& buffer, double nTotale,
                   StatoSviluppo& stato, Avanzamento& avanzamento)
{
    Enumeratore enumeratore(aNumeri, nClasse);
    bool bAvanti = enumeratore.Presente();
    while (bAvanti) {
        Colonna& colonna = buffer.Candidata();
        enumeratore.Componi(colonna);
        if (VerificaColonna(nClasse, colonna, stato) && buffer.SuperaRiduzione()) {
            Aumenta(stato.nCondizionate, 1);
            buffer.Tieni(kColonneBuffer);
        }
        bAvanti = ContaEsaminata(nTotale, stato, avanzamento) && enumeratore.Avanza();
    }
}

} // namespace

void SviluppaColonne(const NumeriScelti& aNumeri, std::int16_t nClasse, std::int16_t nLimite,
                     FileBinario& file, StatoSviluppo& stato, Avanzamento& avanzamento,
                     std::optional<eNucleo> nucleo)
{
    if (nClasse < 1 || nClasse > kNumeriColonna) {
        Solleva(eErrore::indice);
    }
    // Two different columns share less than the class, so that a limit from there on thins nothing.
    BufferColonne buffer(file, nClasse, nLimite < nClasse ? nLimite : std::int16_t{0});
    const double nTotale = CalcolaIntegrali(ContaNumeri(aNumeri), nClasse);
    stato.nSviluppate = 0;
    stato.nCondizionate = 0;
    const std::vector<std::uint8_t> aScelti = Scelti(aNumeri);
    if (nucleo && SviluppoBlocchi::Possibile(aScelti.size(), nClasse, stato)) {
        const CorsaBlocchi corsa{
            .aScelti = aScelti, .nClasse = nClasse, .nTotale = nTotale, .nucleo = *nucleo};
        SviluppoBlocchi(corsa, buffer, stato, avanzamento).Esegui();
    } else {
        SviluppaPiano(aNumeri, nClasse, buffer, nTotale, stato, avanzamento);
    }
    buffer.ScriviResto();
    avanzamento.Mostra(stato.nSviluppate, stato.nCondizionate,
                       PercentualeProgress(stato.nSviluppate, nTotale));
}

} // namespace ordavel
