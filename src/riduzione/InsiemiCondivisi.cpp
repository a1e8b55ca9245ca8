// InsiemiCondivisi.cpp - sets are ranked, numbered, and put into lists both ways.

#include "riduzione/InsiemiCondivisi.hpp"

#include <algorithm>
#include <numeric>

namespace ordavel {

namespace {

constexpr double kMemoriaMassima = 2.0 * (1 << 30);
/// Columns between two questions whether to go on.
constexpr std::size_t kColonneGiro = 4096;

/// Which numbers occur, by number; 0 and what is above 90 do not count.
std::array<bool, kNumeroMassimo + 1> NumeriPresenti(const ProblemaRiduzione& problema)
{
    std::array<bool, 256> aPresenti{};
    for (const Colonna& colonna : problema.aColonne) {
        for (std::int16_t k = 1; k <= problema.nClasse; ++k) {
            aPresenti[colonna[k]] = true;
        }
    }
    aPresenti[0] = false;
    std::array<bool, kNumeroMassimo + 1> aFin{};
    std::copy_n(aPresenti.begin(), aFin.size(), aFin.begin());
    return aFin;
}

/// Bytes for sets of one size: each stands in the list of its column, and the least ones in that of their set too; a
/// shared one has a start of its list and a counter.
double MemoriaElenchi(std::uint64_t nInsiemi, std::uint64_t nCondivisi, bool bMinimi)
{
    constexpr std::size_t nNumero = sizeof(std::uint32_t);
    const std::uint64_t nElenchi = bMinimi ? nInsiemi * nNumero + nCondivisi * sizeof(std::size_t) : 0;
    return static_cast<double>((nInsiemi + nCondivisi) * nNumero + nElenchi);
}

} // namespace

InsiemiCondivisi::Misura InsiemiCondivisi::Misurata(const ProblemaRiduzione& problema)
{
    const auto aPresenti = NumeriPresenti(problema);
    const auto nPosti = static_cast<std::size_t>(std::ranges::count(aPresenti, true));
    Misura misura;
    for (std::int32_t s = problema.nPunti; s <= problema.nClasse; ++s) {
        const auto nGrandezza = static_cast<std::size_t>(s);
        const std::uint64_t nRanghi = NumeroSottoinsiemi(nPosti, nGrandezza);
        const std::uint64_t nInsiemi =
            NumeroSottoinsiemi(static_cast<std::size_t>(problema.nClasse), nGrandezza) *
            problema.aColonne.size();
        misura.nRanghi += nRanghi <= TavolaInsiemi::kDiretti ? static_cast<double>(nRanghi) : 0;
        misura.nInsiemi += static_cast<double>(nInsiemi);
        const bool bMinimi = s == problema.nPunti;
        misura.nMemoria += TavolaInsiemi::Memoria(nRanghi, nInsiemi) +
                           MemoriaElenchi(nInsiemi, std::min(nRanghi, nInsiemi / 2), bMinimi);
    }
    return misura;
}

bool InsiemiCondivisi::Ammesso(const ProblemaRiduzione& problema)
{
    return problema.nPunti >= 1 && problema.nPunti <= problema.nClasse &&
           problema.nClasse <= static_cast<std::int16_t>(kSottoinsiemeMassimo) &&
           SenzaRipetizioni(problema.aColonne, problema.nClasse) &&
           Misurata(problema).nMemoria <= kMemoriaMassima;
}

InsiemiCondivisi::InsiemiCondivisi(const ProblemaRiduzione& problema, Continua continua)
    : m_Problema(problema), m_Continua(std::move(continua))
{
    const auto aPresenti = NumeriPresenti(problema);
    for (std::size_t n = 1; n < aPresenti.size(); ++n) {
        m_aPosto[n] = static_cast<std::uint8_t>(m_nPosti);
        m_nPosti += aPresenti[n] ? 1U : 0U;
    }
    std::vector<TavolaInsiemi> aTavole;
    for (std::int32_t s = problema.nPunti; s <= problema.nClasse; ++s) {
        aTavole.push_back(CreaTavola(static_cast<std::size_t>(s)));
        m_nMinimi = s == problema.nPunti ? m_nQuanti : m_nMinimi;
    }
    if (m_nQuanti >= std::uint32_t{1} << kBitNumero) {
        Solleva(eErrore::memoria);
    }
    RiempiVoci(aTavole);
    if (m_bCompleti) {
        RiempiElenchi();
    }
}

bool InsiemiCondivisi::Avanti(std::size_t i)
{
    if (m_bCompleti && i % kColonneGiro == 0 && m_Continua) {
        m_bCompleti = m_Continua();
    }
    return m_bCompleti;
}

InsiemiCondivisi::Posti InsiemiCondivisi::PostiDi(const Colonna& colonna) const
{
    Posti posti;
    for (std::int16_t k = 1; k <= m_Problema.nClasse; ++k) {
        if (colonna[k] > 0 && colonna[k] <= kNumeroMassimo) {
            posti.first[posti.second++] = m_aPosto[colonna[k]];
        }
    }
    // Columns of the system are in order; those of others need not be.
    std::sort(posti.first.begin(), posti.first.begin() + static_cast<std::ptrdiff_t>(posti.second));
    return posti;
}

template <typename Azione> void InsiemiCondivisi::PerOgniInsieme(std::size_t nGrandezza, const Azione& azione)
{
    for (std::size_t i = 0; i < m_Problema.aColonne.size() && Avanti(i); ++i) {
        const auto [aPosti, nQuanti] = PostiDi(m_Problema.aColonne[i]);
        PerOgniSottoinsieme(std::span(aPosti).first(nQuanti), nGrandezza, azione);
    }
}

TavolaInsiemi InsiemiCondivisi::CreaTavola(std::size_t nGrandezza)
{
    const auto nClasse = static_cast<std::size_t>(m_Problema.nClasse);
    TavolaInsiemi tavola(NumeroSottoinsiemi(m_nPosti, nGrandezza),
                         NumeroSottoinsiemi(nClasse, nGrandezza) * m_Problema.aColonne.size());
    PerOgniInsieme(nGrandezza, [&](std::uint64_t nRango) { tavola.Vedi(nRango); });
    if (tavola.Rivedere()) {
        tavola.PreparaRivedere();
        PerOgniInsieme(nGrandezza, [&](std::uint64_t nRango) { tavola.Rivedi(nRango); });
    }
    m_nQuanti = tavola.Numera(m_nQuanti);
    return tavola;
}

void InsiemiCondivisi::RiempiVoci(std::span<const TavolaInsiemi> aTavole)
{
    m_aInizi.reserve(m_Problema.aColonne.size() + 1);
    m_aInizi.push_back(0);
    m_aVoci.reserve(static_cast<std::size_t>(Misurata(m_Problema).nInsiemi));
    for (std::size_t i = 0; i < m_Problema.aColonne.size() && Avanti(i); ++i) {
        AccodaVoci(PostiDi(m_Problema.aColonne[i]), aTavole);
        m_aInizi.push_back(m_aVoci.size());
    }
}

void InsiemiCondivisi::AccodaVoci(const Posti& posti, std::span<const TavolaInsiemi> aTavole)
{
    auto s = static_cast<std::uint32_t>(m_Problema.nPunti);
    for (const TavolaInsiemi& tavola : aTavole) {
        PerOgniSottoinsieme(std::span(posti.first).first(posti.second), s, [&](std::uint64_t nRango) {
            if (const std::uint32_t nNumero = tavola.Numero(nRango); nNumero != TavolaInsiemi::kNessuno) {
                m_aVoci.push_back(s << kBitNumero | nNumero);
            }
        });
        ++s;
    }
}

std::span<const std::uint32_t> InsiemiCondivisi::MinimiDi(std::size_t i) const noexcept
{
    const auto aTutti = Di(i);
    const auto fine =
        std::ranges::find_if(aTutti, [this](std::uint32_t n) { return Numero(n) >= m_nMinimi; });
    return aTutti.first(static_cast<std::size_t>(fine - aTutti.begin()));
}

void InsiemiCondivisi::RiempiElenchi()
{
    m_aElenchi.resize(m_nMinimi + std::size_t{1});
    for (const std::uint32_t nVoce : m_aVoci) {
        if (Numero(nVoce) < m_nMinimi) {
            ++m_aElenchi[Numero(nVoce)];
        }
    }
    std::inclusive_scan(m_aElenchi.begin(), m_aElenchi.end(), m_aElenchi.begin());
    m_aColonne.resize(m_aElenchi.back());
    // Filled from behind, so that each start comes to stand where it belongs.
    for (std::size_t i = m_Problema.aColonne.size(); i-- > 0 && Avanti(i);) {
        for (const std::uint32_t nVoce : MinimiDi(i)) {
            m_aColonne[--m_aElenchi[Numero(nVoce)]] = static_cast<std::uint32_t>(i);
        }
    }
}

} // namespace ordavel
