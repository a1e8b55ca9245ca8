// SviluppoBlocchi.cpp - beginnings, blocks, runs of columns, and what is kept of them.

#include "motore/SviluppoBlocchi.hpp"

#include "motore/ModVerifica.hpp"
#include "motore/RangoColonne.hpp"

#include <algorithm>
#include <bit>
#include <limits>

namespace ordavel {

namespace {

/// With more of them the room for states would be too small for each, and the plain form is faster.
constexpr std::size_t kCondizioniBlocchi = 400;

} // namespace

bool BlocchiPossibili(std::size_t nScelti, std::int16_t nClasse, const StatoSviluppo& stato)
{
    return nClasse >= kClasseMinima && nClasse <= kClasseMassima &&
           nScelti >= static_cast<std::size_t>(nClasse) &&
           nScelti <= static_cast<std::size_t>(kNumeroMassimo) &&
           stato.aCondizioni.size() <= kCondizioniBlocchi && !VerdettoPuoFallire(stato);
}

SviluppoBlocchi::SviluppoBlocchi(const CorsaBlocchi& corsa, BufferColonne& buffer, StatoSviluppo& stato,
                                 Avanzamento& avanzamento)
    : m_aScelti(corsa.aScelti.begin(), corsa.aScelti.end()),
      m_nClasse(static_cast<std::size_t>(corsa.nClasse)),
      m_Buffer(buffer),
      m_nTotale(corsa.nTotale),
      m_Stato(stato),
      m_Avanzamento(avanzamento),
      m_Condizioni(corsa.aScelti, corsa.nClasse, stato, corsa.nucleo, corsa.nByteAutomi, [] { return true; })
{
    for (std::size_t y = 0; y < m_aScelti.size(); ++y) {
        m_Tutte.Poni(y, PostiSopra(m_aScelti.size(), y));
        m_aPerBit[m_aScelti.size() - 1 - y] = m_aScelti[y];
    }
    if constexpr (kDoppioControllo) {
        NumeriScelti aNumeri;
        std::ranges::copy(m_aScelti, aNumeri.aElementi.begin());
        m_Doppio = std::make_unique<DoppioControllo>(aNumeri, corsa.nClasse, stato);
    }
}

void SviluppoBlocchi::Esegui()
{
    const bool bFinita = Scendi(0, 0, {.bVuoto = m_Condizioni.Vuote()});
    if (!m_bPosti) {
        PoniUltimiValori();
    }
    ConfrontaFine(bFinita);
}

/// Takes    bFinita   nobody has stopped the run
void SviluppoBlocchi::ConfrontaFine([[maybe_unused]] bool bFinita)
{
    if constexpr (kDoppioControllo) {
        bFinita ? m_Doppio->Concludi(m_Stato, m_nEsaminate) : m_Doppio->Confronta(m_Stato, m_nEsaminate);
    }
}

bool SviluppoBlocchi::Scendi(std::size_t nDati, std::size_t nDa, Seguito seguito)
{
    if (nDati == m_nClasse - 2) {
        return EseguiInizio(nDa, seguito);
    }
    for (std::size_t i = nDa; i + m_nClasse - nDati <= m_aScelti.size(); ++i) {
        m_Inizio[static_cast<std::int64_t>(nDati) + 1] = m_aScelti[i];
        const Seguito dopo = m_Condizioni.Passo(nDati, i, seguito);
        if (!Salta(nDati + 1, i + 1, dopo) && !Scendi(nDati + 1, i + 1, dopo)) {
            return false;
        }
    }
    return true;
}

/// Passes over all that follows a beginning, when nothing of it needs to be looked at.
bool SviluppoBlocchi::Salta(std::size_t nDati, std::size_t nDa, Seguito seguito)
{
    if (!seguito.bVuoto || m_Condizioni.OgniBlocco()) {
        return false;
    }
    const std::int64_t nColonne = QuanteColonne(m_aScelti.size(), m_nClasse, nDati, nDa);
    if (nColonne >= FinoAdAggiornamento() || Trabocca(nColonne)) {
        return false;
    }
    SegnaEsaminate(nColonne);
    return true;
}

void SviluppoBlocchi::SegnaEsaminate(std::int64_t nColonne) noexcept
{
    m_nEsaminate += nColonne;
    m_Stato.nSviluppate += static_cast<std::int32_t>(nColonne);
}

std::int64_t SviluppoBlocchi::FinoAdAggiornamento() const noexcept
{
    return kColonneAggiornamento - m_Stato.nSviluppate % kColonneAggiornamento;
}

/// May one of the counters of the run pass its end? Then it must fail at the very column.
bool SviluppoBlocchi::Trabocca(std::int64_t nColonne) const noexcept
{
    constexpr std::int64_t kMassimo = std::numeric_limits<std::int32_t>::max();
    return std::max(m_Stato.nSviluppate, m_Stato.nCondizionate) > kMassimo - nColonne;
}

/// A block is shorter than what lies between two refreshes, but one may fall behind any of its columns.
bool SviluppoBlocchi::EseguiInizio(std::size_t nPrimo, Seguito seguito)
{
    const std::int64_t nColonne = QuanteColonne(m_aScelti.size(), m_nClasse, m_nClasse - 2, nPrimo);
    if (!m_Condizioni.PrendiRighe(m_Inizio, nPrimo) || Trabocca(nColonne)) {
        return EseguiPiano(nPrimo, 0);
    }
    const bool bTenute = !seguito.bVuoto && m_Condizioni.Giudica(nPrimo, m_Tenute);
    const std::int64_t nFinoA = FinoAdAggiornamento();
    if (nColonne < nFinoA) {
        PassaIntero(nPrimo, nColonne, bTenute);
        return true;
    }
    Passa(nPrimo, 0, nFinoA, bTenute);
    if (!Aggiornata()) {
        return false;
    }
    if (Trabocca(nColonne - nFinoA)) {
        return EseguiPiano(nPrimo, nFinoA);
    }
    Passa(nPrimo, nFinoA, nColonne, bTenute);
    return true;
}

bool SviluppoBlocchi::Aggiornata()
{
    PoniConti();
    if constexpr (kDoppioControllo) {
        m_Doppio->Confronta(m_Stato, m_nEsaminate, eConfronto::soliConti);
    }
    return Aggiorna(m_nTotale, m_Stato, m_Avanzamento);
}

void SviluppoBlocchi::PassaIntero(std::size_t nPrimo, std::int64_t nColonne, bool bTenute)
{
    m_Condizioni.ContaBlocco(nPrimo, m_Tutte);
    SegnaEsaminate(nColonne);
    if (bTenute) {
        Tieni(nPrimo, m_Tenute);
    }
}

/// The columns nDa to nA - 1 of a block, in order.
void SviluppoBlocchi::Passa(std::size_t nPrimo, std::int64_t nDa, std::int64_t nA, bool bTenute)
{
    SegnaColonne(m_aScelti.size(), nPrimo, nDa, nA, m_Alcune);
    m_Condizioni.ContaBlocco(nPrimo, m_Alcune);
    SegnaEsaminate(nA - nDa);
    if (bTenute) {
        for (std::size_t y = nPrimo; y < m_aScelti.size(); ++y) {
            m_Alcune.Poni(y, m_Alcune[y] & m_Tenute[y]);
        }
        Tieni(nPrimo, m_Alcune);
    }
}

void SviluppoBlocchi::Tieni(std::size_t nPrimo, const MaschereRiga& tenute)
{
    Colonna colonna = m_Inizio;
    for (std::size_t y = nPrimo; y + 1 < m_aScelti.size(); ++y) {
        const Maschera parole = tenute[y];
        if (parole.Vuota()) {
            continue;
        }
        colonna.aNumeri[m_nClasse - 2] = m_aScelti[y];
        TieniParola(colonna, parole.nAlta, m_aPerBit.data() + 64);
        TieniParola(colonna, parole.nBassa, m_aPerBit.data());
    }
}

/// Keeps the columns of a word, the highest bit first.
/// Takes    aNumeri   the number of each bit
void SviluppoBlocchi::TieniParola(Colonna& colonna, std::uint64_t nParola, const std::uint8_t* aNumeri)
{
    const auto nQuante = static_cast<std::size_t>(std::popcount(nParola));
    const std::span<Colonna> aLiberi = m_Buffer.Liberi();
    const bool bInsieme = aLiberi.size() >= nQuante && !m_Buffer.Riduce();
    for (std::size_t n = 0; nParola != 0; ++n) {
        const int nBit = 63 - std::countl_zero(nParola);
        nParola ^= std::uint64_t{1} << nBit;
        colonna.aNumeri[m_nClasse - 1] = aNumeri[nBit];
        SegnaPassata(colonna);
        if (bInsieme) {
            aLiberi[n] = colonna;
        } else {
            TieniUna(colonna);
        }
    }
    if (bInsieme) {
        m_Buffer.TieniLiberi(nQuante);
        m_Stato.nCondizionate += static_cast<std::int32_t>(nQuante);
    }
}

void SviluppoBlocchi::TieniUna(const Colonna& colonna)
{
    m_Buffer.Candidata() = colonna;
    if (m_Buffer.SuperaRiduzione()) {
        ++m_Stato.nCondizionate;
        m_Buffer.Tieni(kColonneBuffer);
    }
}

/// The counters up to the last column, in every record.
void SviluppoBlocchi::PoniConti()
{
    m_Condizioni.PoniConti(static_cast<std::uint64_t>(m_nEsaminate), UltimiPosti());
}

/// The places of the last column examined.
PostiColonna SviluppoBlocchi::UltimiPosti() const
{
    return PostiDi(m_aScelti.size(), m_nClasse, m_nEsaminate - 1);
}

void SviluppoBlocchi::PoniUltimiValori()
{
    if (m_nEsaminate == 0) {
        return;
    }
    PoniConti();
    Colonna ultima;
    const PostiColonna aPosti = UltimiPosti();
    for (std::size_t k = 0; k < m_nClasse; ++k) {
        ultima.aNumeri[k] = m_aScelti[aPosti[k]];
    }
    m_Condizioni.PoniUltimiValori(ultima);
}

/// The columns of a block from nDa on through the plain form, which goes on from what the blocks left and hands back.
bool SviluppoBlocchi::EseguiPiano(std::size_t nPrimo, std::int64_t nDa)
{
    PoniUltimiValori();
    std::int64_t nColonna = 0;
    for (std::size_t y = nPrimo; y < m_aScelti.size(); ++y) {
        for (std::size_t x = y + 1; x < m_aScelti.size(); ++x) {
            if (nColonna++ >= nDa && !EseguiColonna(y, x)) {
                m_bPosti = true;
                return false;
            }
        }
    }
    m_Condizioni.RiprendiConti();
    return true;
}

bool SviluppoBlocchi::EseguiColonna(std::size_t nPosto, std::size_t nUltimo)
{
    Colonna& colonna = m_Buffer.Candidata();
    colonna = m_Inizio;
    colonna.aNumeri[m_nClasse - 2] = m_aScelti[nPosto];
    colonna.aNumeri[m_nClasse - 1] = m_aScelti[nUltimo];
    if (VerificaColonna(static_cast<std::int16_t>(m_nClasse), colonna, m_Stato)) {
        SegnaPassata(colonna);
        if (m_Buffer.SuperaRiduzione()) {
            Aumenta(m_Stato.nCondizionate, 1);
            m_Buffer.Tieni(kColonneBuffer);
        }
    }
    ++m_nEsaminate;
    return ContaEsaminata(m_nTotale, m_Stato, m_Avanzamento);
}

} // namespace ordavel
