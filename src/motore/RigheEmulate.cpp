// RigheEmulate.cpp - draws, bounds and stages of a beginning.

#include "motore/RigheEmulate.hpp"

#include <algorithm>
#include <bit>
#include <limits>
#include <numeric>

namespace ordavel {

namespace {

/// Adds up what the draws of two sets have.
void SommaEstrazioni(const EstrazioniPerPosto& estrazioni, const std::uint64_t* aUno,
                     const std::uint64_t* aAltro, Fila& somma)
{
    for (std::size_t p = 0; p < estrazioni.nParole; ++p) {
        for (std::uint64_t nBit = aUno[p] & aAltro[p]; nBit != 0; nBit &= nBit - 1) {
            const Fila& fila =
                estrazioni.aEstrazioni[p * 64 + static_cast<std::size_t>(std::countr_zero(nBit))];
            for (std::size_t b = 0; b < Fila::kCorsie; ++b) {
                somma.aConti[b] = static_cast<std::uint16_t>(somma.aConti[b] + fila.aConti[b]);
            }
        }
    }
}

} // namespace

bool RigheEmulate::Adatte(const RigheEmulatore& righe) noexcept
{
    return righe.Righe().size() <= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max());
}

RigheEmulate::RigheEmulate(const RecordCondizione& record, std::int16_t nClasse,
                           std::span<const std::uint8_t> aScelti, const RigheEmulatore& righe, eNucleo nucleo)
    : m_nEstrazioni(righe.Righe().size()),
      m_nTronco(static_cast<std::size_t>(std::max(nClasse - 3, 0))),
      m_Nucleo(&ScegliNucleoEmulate(nucleo)),
      m_nClasse(nClasse)
{
    LeggiSoglie(record);
    LeggiEstrazioni(righe, aScelti);
    ContaCoppie();
    ContaTerne();
    CreaTappe();
}

/// A count is 0 to the number of draws: bounds beyond are as good as these.
void RigheEmulate::LeggiSoglie(const RecordCondizione& record)
{
    const auto nEstrazioni = static_cast<std::int32_t>(m_nEstrazioni);
    for (std::int16_t k = 0; k <= m_nClasse; ++k) {
        const auto nMinimo = std::max<std::int32_t>(record.PuntiOk[k], 0);
        const auto nMassimo = std::min<std::int32_t>(record.PuntiRec[k], nEstrazioni);
        m_bMai = m_bMai || nMinimo > nMassimo;
        if (nMinimo > 0 || nMassimo < nEstrazioni) {
            m_aSoglie.push_back({static_cast<std::size_t>(k), static_cast<std::uint16_t>(nMinimo),
                                 static_cast<std::uint16_t>(nMassimo - nMinimo)});
        }
    }
}

void RigheEmulate::LeggiEstrazioni(const RigheEmulatore& righe, std::span<const std::uint8_t> aScelti)
{
    const std::size_t nScelti = aScelti.size();
    EstrazioniPerPosto& estrazioni = m_Estrazioni;
    estrazioni.nScelti = nScelti;
    estrazioni.nParole = (m_nEstrazioni + 63) / 64;
    estrazioni.aEstrazioni.resize(m_nEstrazioni);
    for (std::size_t y = 0; y < nScelti; ++y) {
        m_aPosti[aScelti[y]] = static_cast<std::uint8_t>(y);
        const std::uint64_t* aInsieme = righe.Estrazioni(aScelti[y]);
        estrazioni.aInsiemi.insert(estrazioni.aInsiemi.end(), aInsieme, aInsieme + estrazioni.nParole);
        for (std::size_t r = 0; r < m_nEstrazioni; ++r) {
            estrazioni.aEstrazioni[r].aConti[nScelti - 1 - y] = (aInsieme[r / 64] >> (r % 64)) & 1U;
        }
    }
}

void RigheEmulate::ContaCoppie()
{
    const std::size_t nScelti = m_Estrazioni.nScelti;
    m_Estrazioni.aCoppie.resize(nScelti);
    for (std::size_t y = 0; y < nScelti; ++y) {
        SommaEstrazioni(m_Estrazioni, m_Estrazioni.Insieme(y), m_Estrazioni.Insieme(y),
                        m_Estrazioni.aCoppie[y]);
        m_Estrazioni.aPresenze.push_back(m_Estrazioni.aCoppie[y].aConti[nScelti - 1 - y]);
    }
}

void RigheEmulate::ContaTerne()
{
    const std::size_t nScelti = m_Estrazioni.nScelti;
    m_Estrazioni.aTerne.resize(m_nClasse > 2 ? nScelti * (nScelti - 1) / 2 : 0);
    auto terne = m_Estrazioni.aTerne.begin();
    for (std::size_t z = 0; z < nScelti && m_nClasse > 2; ++z) {
        for (std::size_t y = z + 1; y < nScelti; ++y) {
            SommaEstrazioni(m_Estrazioni, m_Estrazioni.Insieme(z), m_Estrazioni.Insieme(y), *terne++);
        }
    }
}

/// Behind no number every draw has no hit.
void RigheEmulate::CreaTappe()
{
    m_Lavoro.aElenco.resize(m_nEstrazioni);
    m_aTappe.resize(m_nTronco + 1);
    for (std::size_t nDati = 0; nDati < m_aTappe.size(); ++nDati) {
        m_aTappe[nDati].nDati = nDati;
        m_aTappe[nDati].aInsiemi.resize((nDati + 1) * m_Estrazioni.nParole);
        m_aTappe[nDati].aConti.resize(nDati + 1);
    }
    Tappa& prima = m_aTappe.front();
    for (std::size_t r = 0; r < m_nEstrazioni; ++r) {
        prima.aInsiemi[r / 64] |= std::uint64_t{1} << (r % 64);
    }
    prima.aQuante[0] = static_cast<std::uint16_t>(m_nEstrazioni);
    for (std::size_t y = 0; y < m_Estrazioni.nScelti; ++y) {
        prima.aConti[0].aConti[m_Estrazioni.nScelti - 1 - y] = m_Estrazioni.aPresenze[y];
    }
}

/// The stages of a stem, from the first number on that is another than before.
void RigheEmulate::Segui(const Colonna& inizio)
{
    std::size_t i = 0;
    while (i < m_nFatti && inizio.aNumeri[i] == m_Inizio.aNumeri[i]) {
        ++i;
    }
    m_bTronco = m_bTronco && i == m_nTronco;
    for (; i < m_nTronco; ++i) {
        m_Nucleo->avanza(m_Estrazioni, m_aTappe[i], m_aPosti[inizio.aNumeri[i]], m_Lavoro, m_aTappe[i + 1]);
    }
    m_nFatti = m_nTronco;
    m_Inizio = inizio;
    if (!m_bTronco) {
        CreaTronco(m_nTronco > 0 ? m_aPosti[inizio.aNumeri[m_nTronco - 1]] + std::size_t{1} : 0);
    }
}

void RigheEmulate::CreaTronco(std::size_t nPrimo)
{
    m_File.aConti.resize(m_aSoglie.size());
    m_File.aIntrecci.resize(m_aSoglie.size() * m_Estrazioni.nScelti);
    m_Lavoro.aConti.resize(2 * m_aSoglie.size());
    m_Nucleo->tronco(m_Estrazioni, m_aTappe.back(), m_aSoglie, nPrimo, m_Lavoro, m_File);
    m_bTronco = true;
}

/// The draws by hits behind the stem and a place.
QuanteEstrazioni RigheEmulate::QuanteDietro(std::size_t nPosto) const
{
    const Tappa& tappa = m_aTappe.back();
    const std::size_t nCorsia = m_Estrazioni.nScelti - 1 - nPosto;
    QuanteEstrazioni aQuante = tappa.aQuante;
    for (std::size_t j = 0; j <= tappa.nDati; ++j) {
        const std::uint16_t nSalgono = tappa.aConti[j].aConti[nCorsia];
        aQuante[j] = static_cast<std::uint16_t>(aQuante[j] - nSalgono);
        aQuante[j + 1] = static_cast<std::uint16_t>(aQuante[j + 1] + nSalgono);
    }
    return aQuante;
}

/// Two more numbers reach a count from at most two hits below it.
/// Takes    aQuante   draws by hits behind the beginning
/// Gives    false when a count does not reach its lower bound, whatever the two numbers
bool RigheEmulate::ScegliSoglie(const QuanteEstrazioni& aQuante)
{
    m_aSoglieInizio.clear();
    for (std::size_t s = 0; s < m_aSoglie.size(); ++s) {
        const Soglia& soglia = m_aSoglie[s];
        const std::size_t nDa = soglia.nColpi - std::min<std::size_t>(soglia.nColpi, 2);
        const std::uint32_t nMassime =
            std::accumulate(aQuante.data() + nDa, aQuante.data() + soglia.nColpi + 1, std::uint32_t{0});
        if (nMassime < soglia.nMinimo) {
            return false;
        }
        if (soglia.nMinimo > 0 || nMassime > soglia.nAmpiezza) {
            m_aSoglieInizio.push_back(s);
        }
    }
    return true;
}

/// All columns, or none.
void RigheEmulate::Riempi(std::size_t nPrimo, bool bTutte)
{
    for (std::size_t y = nPrimo; y + 1 < m_Estrazioni.nScelti; ++y) {
        m_Riga.ok.Poni(y, bTutte ? PostiSopra(m_Estrazioni.nScelti, y) : Maschera{});
    }
}

const RigaAutoma& RigheEmulate::Riga(const Colonna& inizio, std::size_t nPrimo)
{
    if (m_bMai || m_aSoglie.empty()) {
        Riempi(nPrimo, !m_bMai);
        return m_Riga;
    }
    Segui(inizio);
    const bool bConZeta = m_nClasse > 2;
    const std::size_t nZeta = bConZeta ? m_aPosti[inizio.aNumeri[m_nTronco]] : 0;
    const bool bForse = ScegliSoglie(bConZeta ? QuanteDietro(nZeta) : m_aTappe.back().aQuante);
    if (!bForse || m_aSoglieInizio.empty()) {
        Riempi(nPrimo, bForse);
        return m_Riga;
    }
    m_Nucleo->riga(m_Estrazioni, m_aTappe.back(), m_aSoglie, m_File,
                   {m_aSoglieInizio, nPrimo, bConZeta, nZeta}, m_Lavoro, m_Riga.ok);
    return m_Riga;
}

} // namespace ordavel
