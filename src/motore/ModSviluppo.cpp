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
    m_aScelti = Scelti(aNumeri);
    m_nRighe = static_cast<std::size_t>(std::max(0, ContaNumeri(aNumeri) - nClasse + 1));
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

/// Whole blocks of columns at once.
/// Gives    false when it must not be: nothing was done
bool SviluppaBlocchi(const CorsaBlocchi& corsa, BufferColonne& buffer, StatoSviluppo& stato,
                     Avanzamento& avanzamento)
{
    if (!BlocchiPossibili(corsa.aScelti.size(), corsa.nClasse, stato)) {
        return false;
    }
    SviluppoBlocchi sviluppo(corsa, buffer, stato, avanzamento);
    if (sviluppo.Fallisce()) {
        return false;
    }
    sviluppo.Esegui();
    return true;
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
    if (!nucleo ||
        !SviluppaBlocchi({.aScelti = aScelti, .nClasse = nClasse, .nTotale = nTotale, .nucleo = *nucleo},
                         buffer, stato, avanzamento)) {
        SviluppaPiano(aNumeri, nClasse, buffer, nTotale, stato, avanzamento);
    }
    buffer.ScriviResto();
    avanzamento.Mostra(stato.nSviluppate, stato.nCondizionate,
                       PercentualeProgress(stato.nSviluppate, nTotale));
}

} // namespace ordavel
