// CamminataTratto.cpp - down to the first block of a stretch, and on from there.

#include "motore/CamminataTratto.hpp"

#include "motore/RangoColonne.hpp"

#include <algorithm>
#include <bit>
#include <utility>

namespace ordavel {

CamminataTratto::CamminataTratto(const CorsaBlocchi& corsa, StatoSviluppo& stato, const LimitiTratto& limiti,
                                 const std::atomic<bool>& bFerma, const CamminataTratto* modello)
    : m_aScelti(corsa.aScelti.begin(), corsa.aScelti.end()),
      m_nClasse(static_cast<std::size_t>(corsa.nClasse)),
      m_Limiti(limiti),
      m_bFerma(bFerma),
      m_Condizioni(
          corsa.aScelti, corsa.nClasse, stato, corsa.nucleo, corsa.nByteAutomi,
          [&bFerma] { return !bFerma.load(std::memory_order_relaxed); },
          modello != nullptr ? &modello->m_Condizioni : nullptr)
{
    for (std::size_t y = 0; y < m_aScelti.size(); ++y) {
        m_Tutte.Poni(y, PostiSopra(m_aScelti.size(), y));
        m_aPerBit[m_aScelti.size() - 1 - y] = m_aScelti[y];
    }
}

TrattoFatto CamminataTratto::Cammina(std::int64_t nDa, std::int64_t nA)
{
    m_Partenza = Orologio::now();
    m_bRiprendi = m_bRiprendi || m_nRango != nDa;
    m_nInizio = m_nRango = nDa;
    m_nFine = nA;
    m_Fatto = {};
    static_cast<void>(Scendi(0, 0, 0, {.bVuoto = m_Condizioni.Vuote()}));
    m_Fatto.nFine = m_nRango;
    m_Fatto.aConti = m_Condizioni.PrendiConti();
    m_Fatto.bLungo = Orologio::now() - m_Partenza > m_Limiti.durata / 4;
    return std::move(m_Fatto);
}

bool CamminataTratto::Basta()
{
    constexpr std::size_t kPassiInsieme = 8; // between two looks at the clock
    if (m_nRango >= m_nFine || m_bFerma.load(std::memory_order_relaxed)) {
        return true;
    }
    if (m_nRango == m_nInizio) {
        return false;
    }
    return m_Fatto.aTenute.size() >= m_Limiti.nTenute ||
           (++m_nPassi % kPassiInsieme == 0 && Orologio::now() - m_Partenza >= m_Limiti.durata);
}

/// Takes    nInizio   number of the first column behind the beginning
/// Gives    false when the stretch is at its end
bool CamminataTratto::Scendi(std::size_t nDati, std::size_t nDa, std::int64_t nInizio, Seguito seguito)
{
    if (nDati == m_nClasse - 2) {
        return GuardaBlocco(nDa, nInizio, seguito);
    }
    for (std::size_t i = nDa; i + m_nClasse - nDati <= m_aScelti.size(); ++i) {
        const std::int64_t nDopo = nInizio + QuanteColonne(m_aScelti.size(), m_nClasse, nDati + 1, i + 1);
        if (nDopo > m_nRango) {
            if (Basta()) {
                return false;
            }
            m_Inizio.aNumeri[nDati] = m_aScelti[i];
            const Seguito dopo = m_Condizioni.Passo(nDati, i, seguito);
            if (dopo.bVuoto && !m_Condizioni.OgniBlocco()) {
                m_nRango = std::min(nDopo, m_nFine);
                m_bRiprendi = true;
            } else if (!Scendi(nDati + 1, i + 1, nInizio, dopo)) {
                return false;
            }
        }
        nInizio = nDopo;
    }
    return true;
}

/// The columns of a block from the present one on.
bool CamminataTratto::GuardaBlocco(std::size_t nPrimo, std::int64_t nInizio, Seguito seguito)
{
    if (Basta()) {
        return false;
    }
    const std::size_t nScelti = m_aScelti.size();
    const std::int64_t nColonne = QuanteColonne(nScelti, m_nClasse, m_nClasse - 2, nPrimo);
    const std::int64_t nDa = m_nRango - nInizio;
    const std::int64_t nA = std::min(m_nFine - nInizio, nColonne);
    if (m_bRiprendi && m_Condizioni.DaRiprendere()) {
        m_Condizioni.RiprendiDa(static_cast<std::uint64_t>(m_nRango),
                                m_nRango == 0 ? PostiColonna{} : PostiDi(nScelti, m_nClasse, m_nRango - 1));
    }
    m_bRiprendi = false;
    if (!m_Condizioni.PrendiRighe(m_Inizio, nPrimo)) {
        m_Fatto.bFallisce = true;
        return false;
    }
    const bool bTenute = !seguito.bVuoto && m_Condizioni.Giudica(nPrimo, m_Tenute);
    const bool bTutte = nDa == 0 && nA == nColonne;
    if (!bTutte) {
        SegnaColonne(nScelti, nPrimo, nDa, nA, m_Alcune);
    }
    m_Condizioni.ContaBlocco(nPrimo, bTutte ? m_Tutte : m_Alcune);
    if (bTenute) {
        Tieni(nPrimo, bTutte ? m_Tutte : m_Alcune);
    }
    m_Fatto.nGuardate += nA - nDa;
    m_nRango = nInizio + nA;
    return true;
}

void CamminataTratto::Tieni(std::size_t nPrimo, const MaschereRiga& attive)
{
    Colonna colonna = m_Inizio;
    for (std::size_t y = nPrimo; y + 1 < m_aScelti.size(); ++y) {
        const Maschera parole = m_Tenute[y] & attive[y];
        if (!parole.Vuota()) {
            colonna.aNumeri[m_nClasse - 2] = m_aScelti[y];
            TieniParola(colonna, parole.nAlta, m_aPerBit.data() + 64);
            TieniParola(colonna, parole.nBassa, m_aPerBit.data());
        }
    }
}

/// Keeps the columns of a word, the highest bit first.
void CamminataTratto::TieniParola(Colonna& colonna, std::uint64_t nParola, const std::uint8_t* aNumeri)
{
    while (nParola != 0) {
        const int nBit = 63 - std::countl_zero(nParola);
        nParola ^= std::uint64_t{1} << nBit;
        colonna.aNumeri[m_nClasse - 1] = aNumeri[nBit];
        m_Fatto.aTenute.push_back(colonna);
    }
}

} // namespace ordavel
