// Problema.cpp - records to sets.

#include "Problema.hpp"

#include "riduzione/Sottoinsiemi.hpp"

#include <algorithm>
#include <numeric>

namespace ordavel::trvrdcol {

namespace {

using PostoDi = std::array<std::uint8_t, kPostiMassimi + 1>;

constexpr bool Numero(std::uint8_t nByte) noexcept
{
    return nByte >= 1 && nByte <= kPostiMassimi;
}

/// The numbers of a record; bit n is number n.
Maschera Numeri(const Record& record, std::size_t nClasse) noexcept
{
    Maschera numeri;
    for (std::size_t k = 0; k < nClasse; ++k) {
        if (Numero(record[k])) {
            numeri.Metti(record[k]);
        }
    }
    return numeri;
}

/// The numbers that occur, the rarest first: sets that share rare numbers are few, and the lists of an index over
/// the first places of each set stay short.
std::vector<std::uint8_t> InOrdine(std::span<const Maschera> aNumeri)
{
    std::array<std::size_t, kPostiMassimi + 1> aQuante{};
    for (const Maschera& numeri : aNumeri) {
        const Posti posti(numeri);
        for (std::size_t k = 0; k < posti.nPosti; ++k) {
            ++aQuante[posti.aPosti[k]];
        }
    }
    std::vector<std::uint8_t> aOrdine;
    for (std::uint8_t n = 1; n <= kPostiMassimi; ++n) {
        if (aQuante[n] != 0) {
            aOrdine.push_back(n);
        }
    }
    std::ranges::stable_sort(aOrdine, {}, [&](std::uint8_t n) { return aQuante[n]; });
    return aOrdine;
}

Maschera Tradotta(const Maschera& numeri, const PostoDi& aPostoDi) noexcept
{
    Maschera insieme;
    const Posti posti(numeri);
    for (std::size_t k = 0; k < posti.nPosti; ++k) {
        insieme.Metti(aPostoDi[posti.aPosti[k]]);
    }
    return insieme;
}

/// Steps to the next set of as many places, in lexicographic order of the lists of places.
/// Gives    false when there was none left
bool Avanza(std::vector<unsigned>& aPosti, unsigned nPosti) noexcept
{
    const std::size_t nQuanti = aPosti.size();
    for (std::size_t k = nQuanti; k-- > 0;) {
        if (aPosti[k] + (nQuanti - k) < nPosti) {
            std::iota(aPosti.begin() + static_cast<std::ptrdiff_t>(k), aPosti.end(), aPosti[k] + 1);
            return true;
        }
    }
    return false;
}

} // namespace

std::size_t ClasseRecord(std::span<const Record> aRecord) noexcept
{
    std::size_t nClasse = aRecord.empty() ? 0 : kByteRecord;
    while (nClasse > 0 && aRecord.front()[nClasse - 1] == 0) {
        --nClasse;
    }
    return nClasse;
}

int NumeriComuni(const Record& a, const Record& b, std::size_t nClasse) noexcept
{
    int nComuni = 0;
    const auto fine = b.begin() + static_cast<std::ptrdiff_t>(nClasse);
    for (std::size_t k = 0; k < nClasse; ++k) {
        const auto qui = a.begin() + static_cast<std::ptrdiff_t>(k);
        const bool bRipetuto = std::find(a.begin(), qui, *qui) != qui;
        nComuni += Numero(*qui) && !bRipetuto && std::find(b.begin(), fine, *qui) != fine ? 1 : 0;
    }
    return nComuni;
}

Dizionario::Dizionario(std::size_t nQuanti) : m_aCelle(std::bit_ceil(2 * nQuanti + 2), kNessuno) {}

std::size_t Dizionario::Cella(std::span<const Maschera> aInsiemi, const Maschera& insieme) const noexcept
{
    // Multiplying spreads what few bits are set; the upper half of the product is the better one.
    std::uint64_t nSpargi = (insieme.nBassa + 1) * 0x9E3779B97F4A7C15U;
    nSpargi = (nSpargi ^ (nSpargi >> 29U) ^ insieme.nAlta) * 0xBF58476D1CE4E5B9U;
    std::size_t nCella = (nSpargi >> 32U) & (m_aCelle.size() - 1);
    while (m_aCelle[nCella] != kNessuno && aInsiemi[m_aCelle[nCella]] != insieme) {
        nCella = (nCella + 1) & (m_aCelle.size() - 1);
    }
    return nCella;
}

Indice Dizionario::Aggiungi(std::span<const Maschera> aInsiemi, Indice nIndice) noexcept
{
    Indice& nCella = m_aCelle[Cella(aInsiemi, aInsiemi[nIndice])];
    if (nCella == kNessuno) {
        nCella = nIndice;
    }
    return nCella;
}

Problema::Problema(std::span<const Record> aRecord, int nPuntiRichiesti, std::size_t nClasse)
    : nPunti(nPuntiRichiesti)
{
    std::vector<Maschera> aNumeri(aRecord.size());
    std::ranges::transform(aRecord, aNumeri.begin(), [&](const Record& r) { return Numeri(r, nClasse); });
    const std::vector<std::uint8_t> aOrdine = InOrdine(aNumeri);
    nPosti = static_cast<unsigned>(aOrdine.size());
    PostoDi aPostoDi{};
    for (std::size_t p = 0; p < aOrdine.size(); ++p) {
        aPostoDi[aOrdine[p]] = static_cast<std::uint8_t>(p);
    }
    Dizionario dizionario(aRecord.size());
    aInsiemeDi.assign(aRecord.size(), kNessuno);
    for (Indice r = 0; r < aRecord.size(); ++r) {
        const int nQuanti = aNumeri[r].Quanti();
        if (nQuanti < nPunti) {
            aFissi.push_back(r);
            continue;
        }
        aInsiemi.push_back(Tradotta(aNumeri[r], aPostoDi));
        const auto nUltimo = static_cast<Indice>(aInsiemi.size() - 1);
        const Indice nInsieme = dizionario.Aggiungi(aInsiemi, nUltimo);
        aInsiemeDi[r] = nInsieme;
        if (nInsieme != nUltimo) {
            aInsiemi.pop_back();
            ++aMolteplicita[nInsieme];
            continue;
        }
        bStessaGrandezza = bStessaGrandezza && (nUltimo == 0 || nQuanti == nGrandezza);
        nGrandezza = std::max(nGrandezza, nQuanti);
        aMolteplicita.push_back(1);
        aRecordDi.push_back(r);
    }
}

bool Problema::Completa()
{
    const auto nGrande = static_cast<std::size_t>(nGrandezza);
    if (!bStessaGrandezza || Quanti() == 0 || nGrande > kSottoinsiemeMassimo) {
        return false;
    }
    const std::uint64_t nTutti = NumeroSottoinsiemi(nPosti, nGrande);
    if (nTutti == Quanti() || nTutti - Quanti() > Quanti() / 4) {
        return false;
    }
    Dizionario dizionario(nTutti);
    for (Indice i = 0; i < Quanti(); ++i) {
        dizionario.Aggiungi(aInsiemi, i);
    }
    std::vector<unsigned> aPosti(nGrande);
    std::iota(aPosti.begin(), aPosti.end(), 0U);
    do {
        Maschera insieme;
        std::ranges::for_each(aPosti, [&](unsigned p) { insieme.Metti(p); });
        if (dizionario.Trova(aInsiemi, insieme) == kNessuno) {
            aInsiemi.push_back(insieme);
        }
    } while (Avanza(aPosti, nPosti));
    aMolteplicita.resize(Quanti(), 1);
    aRecordDi.resize(Quanti(), kNessuno);
    return true;
}

} // namespace ordavel::trvrdcol
