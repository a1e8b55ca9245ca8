// CoperturaFette.cpp - rows of bits, verdicts for whole pieces, values kept up to date.

#include "riduzione/CoperturaFette.hpp"

#include <algorithm>
#include <bit>

namespace ordavel {

namespace {

constexpr std::size_t kBitParola = 64;
/// Pairs between two looks for a stop.
constexpr std::size_t kCoppieBlocco = 4'000'000'000;
/// Vertical counters pay when so many columns leave at once, each with one column in so many.
constexpr std::size_t kColonneFitte = 16;
constexpr double kDensitaFitte = 1.0 / 90;

std::size_t ParoleRiga(std::size_t nColonne)
{
    return (nColonne + kColonneFetta - 1) / kColonneFetta * kParoleFetta;
}

/// Calls azione(place) for each bit of a piece, places from nDa on.
template <typename Azione> void PerOgniBit(const Fetta& fetta, std::size_t nDa, const Azione& azione)
{
    for (std::size_t nParola = 0; nParola < kParoleFetta; ++nParola) {
        for (std::uint64_t nResto = fetta[nParola]; nResto != 0; nResto &= nResto - 1) {
            azione(nDa + nParola * kBitParola + static_cast<std::size_t>(std::countr_zero(nResto)));
        }
    }
}

/// Exchanges rows and columns of a square of 8 x 8 bits: bit j of byte c becomes bit c of byte j.
constexpr std::uint64_t Ribalta(std::uint64_t nQuadro) noexcept
{
    std::uint64_t nScambi = (nQuadro ^ (nQuadro >> 7)) & 0x00AA00AA00AA00AAU;
    nQuadro ^= nScambi ^ (nScambi << 7);
    nScambi = (nQuadro ^ (nQuadro >> 14)) & 0x0000CCCC0000CCCCU;
    nQuadro ^= nScambi ^ (nScambi << 14);
    nScambi = (nQuadro ^ (nQuadro >> 28)) & 0x00000000F0F0F0F0U;
    return nQuadro ^ nScambi ^ (nScambi << 28);
}

/// Adds the counts, each nSegno times, to as many values.
void Riversa(const ContatoriFetta& contatori, std::int32_t nSegno, std::int32_t* aValori)
{
    for (std::size_t nParola = 0; nParola < kParoleFetta; ++nParola) {
        for (std::size_t nByte = 0; nByte < sizeof(std::uint64_t); ++nByte) {
            std::uint64_t nQuadro = 0;
            for (std::size_t c = 0; c < kCifreContatori; ++c) {
                nQuadro |= ((contatori[c][nParola] >> (8 * nByte)) & 0xFFU) << (8 * c);
            }
            nQuadro = Ribalta(nQuadro);
            for (std::size_t j = 0; j < 8; ++j) {
                *aValori++ += nSegno * static_cast<std::int32_t>((nQuadro >> (8 * j)) & 0xFFU);
            }
        }
    }
}

} // namespace

CoperturaFette::CoperturaFette(const ProblemaRiduzione& problema, Continua continua, eNucleo nucleo)
    : Copertura(std::move(continua)),
      m_Problema(problema),
      m_Soglia(CreaSoglia(problema.nPunti)),
      m_Nuclei(ScegliNuclei(nucleo)),
      m_nCoppieRighe(std::max<std::size_t>(1, (static_cast<std::size_t>(problema.nClasse) + 1) / 2)),
      m_nParole(ParoleRiga(problema.aColonne.size())),
      m_aRighe((kNumeroMassimo + 1) * m_nParole),
      m_aScoperte(m_nParole),
      m_aValori(m_nParole * kBitParola),
      m_nScoperte(problema.aColonne.size())
{
    for (std::size_t i = 0; i < problema.aColonne.size(); ++i) {
        const std::uint64_t nBit = std::uint64_t{1} << (i % kBitParola);
        m_aScoperte[i / kBitParola] |= nBit;
        for (std::int16_t k = 1; k <= problema.nClasse; ++k) {
            const std::size_t nNumero = problema.aColonne[i][k];
            if (nNumero > 0 && nNumero <= kNumeroMassimo) {
                m_aRighe[nNumero * m_nParole + i / kBitParola] |= nBit;
            }
        }
    }
}

RigheFetta CoperturaFette::Righe(std::size_t i, std::size_t nParola) const noexcept
{
    RigheFetta aRighe{};
    for (std::size_t k = 0; k < 2 * m_nCoppieRighe; ++k) {
        const std::size_t nNumero =
            k < static_cast<std::size_t>(m_Problema.nClasse) ? m_Problema.aColonne[i].aNumeri[k] : 0;
        aRighe[k] = m_aRighe.data() + (nNumero > kNumeroMassimo ? 0 : nNumero) * m_nParole + nParola;
    }
    return aRighe;
}

void CoperturaFette::Giudica(std::size_t i, std::size_t nParola, Fetta& verdetti) const
{
    m_Nuclei.giudica[m_nCoppieRighe - 1](Righe(i, nParola), m_Soglia, verdetti);
    const std::size_t nPropria = i / kBitParola - nParola; // wraps around in front of the piece
    if (nPropria < kParoleFetta) {
        verdetti[nPropria] &= ~(std::uint64_t{1} << (i % kBitParola));
    }
}

std::size_t CoperturaFette::Blocco() const noexcept
{
    return std::clamp<std::size_t>(kCoppieBlocco / std::max<std::size_t>(1, m_Problema.aColonne.size()), 64,
                                   65536);
}

void CoperturaFette::ValoriIniziali(std::size_t nDa, std::span<std::int32_t> aValori)
{
    if (m_Problema.nPunti > 0 && m_Problema.nPunti <= m_Problema.nClasse) {
        ContaIniziali(nDa, aValori.size());
    } else { // every column covers all others, or none another
        const std::size_t nAltre = m_Problema.aColonne.size() - 1;
        std::fill_n(m_aValori.begin() + static_cast<std::ptrdiff_t>(nDa), aValori.size(),
                    m_Problema.nPunti > 0 ? 0 : static_cast<std::int32_t>(nAltre));
    }
    for (std::size_t i = 0; i < aValori.size(); ++i) {
        aValori[i] = m_aValori[nDa + i];
        m_nCoppie += aValori[i];
    }
}

void CoperturaFette::ContaIniziali(std::size_t nDa, std::size_t nQuante)
{
    Fetta verdetti;
    Fetta scoperte;
    for (std::size_t nParola = 0; nParola < m_nParole && Avanti(); nParola += kParoleFetta) {
        std::copy_n(m_aScoperte.begin() + static_cast<std::ptrdiff_t>(nParola), kParoleFetta,
                    scoperte.begin());
        for (std::size_t i = nDa; i < nDa + nQuante; ++i) {
            Giudica(i, nParola, verdetti);
            m_aValori[i] += m_Nuclei.conta(verdetti, scoperte);
        }
    }
}

bool CoperturaFette::Coperta(std::size_t i) const
{
    return ((m_aScoperte[i / kBitParola] >> (i % kBitParola)) & 1U) == 0;
}

void CoperturaFette::Copri(std::size_t i)
{
    m_aTolte.clear();
    if (!Coperta(i)) {
        m_aTolte.push_back(static_cast<std::uint32_t>(i));
        m_aScoperte[i / kBitParola] ^= std::uint64_t{1} << (i % kBitParola);
    }
    Fetta verdetti;
    for (std::size_t nParola = 0; nParola < m_nParole; nParola += kParoleFetta) {
        Giudica(i, nParola, verdetti);
        for (std::size_t n = 0; n < kParoleFetta; ++n) {
            verdetti[n] &= m_aScoperte[nParola + n];
            m_aScoperte[nParola + n] ^= verdetti[n];
        }
        PerOgniBit(verdetti, nParola * kBitParola,
                   [&](std::size_t m) { m_aTolte.push_back(static_cast<std::uint32_t>(m)); });
    }
}

bool CoperturaFette::Fitte(std::size_t nQuante) const noexcept
{
    const auto nColonne = static_cast<double>(m_Problema.aColonne.size());
    return nQuante >= kColonneFitte && m_nCoppie > kDensitaFitte * nColonne * nColonne;
}

void CoperturaFette::ContaRade(std::span<const std::uint32_t> aColonne, std::int32_t nSegno,
                               std::size_t nParola)
{
    Fetta verdetti;
    for (const std::uint32_t m : aColonne) {
        Giudica(m, nParola, verdetti);
        PerOgniBit(verdetti, nParola * kBitParola, [&](std::size_t j) { m_aValori[j] += nSegno; });
    }
}

void CoperturaFette::ContaFitte(std::span<const std::uint32_t> aColonne, std::int32_t nSegno,
                                std::size_t nParola)
{
    Fetta verdetti;
    ContatoriFetta contatori{};
    for (const std::uint32_t m : aColonne) {
        Giudica(m, nParola, verdetti);
        m_Nuclei.accumula(verdetti, contatori);
    }
    Riversa(contatori, nSegno, m_aValori.data() + nParola * kBitParola);
}

void CoperturaFette::ContaTutte(std::span<const std::uint32_t> aColonne, std::int32_t nSegno)
{
    const bool bFitte = Fitte(aColonne.size());
    for (std::size_t nParola = 0; nParola < m_nParole; nParola += kParoleFetta) {
        for (auto aResto = aColonne; !aResto.empty();) {
            if (!Avanti()) {
                return;
            }
            const auto aParte = aResto.first(std::min(kContatoreMassimo, aResto.size()));
            bFitte ? ContaFitte(aParte, nSegno, nParola) : ContaRade(aParte, nSegno, nParola);
            aResto = aResto.subspan(aParte.size());
        }
    }
}

std::vector<std::uint32_t> CoperturaFette::Scoperte() const
{
    std::vector<std::uint32_t> aScoperte;
    aScoperte.reserve(m_nScoperte);
    for (std::size_t i = 0; i < m_Problema.aColonne.size(); ++i) {
        if (!Coperta(i)) {
            aScoperte.push_back(static_cast<std::uint32_t>(i));
        }
    }
    return aScoperte;
}

void CoperturaFette::Scegli(std::size_t i)
{
    Copri(i);
    m_nScoperte -= m_aTolte.size();
    if (m_aTolte.size() <= m_nScoperte) {
        ContaTutte(m_aTolte, -1);
    } else { // fewer stay than go: the values are made anew
        std::ranges::fill(m_aValori, 0);
        ContaTutte(Scoperte(), 1);
    }
}

} // namespace ordavel
