// ContiCompagni.cpp - columns by their pairs of partners, behind a beginning.

#include "motore/ContiCompagni.hpp"

#include "core/ModBinomiali.hpp"

#include <algorithm>

namespace ordavel {

namespace {

int CompagnoDi(TipoCondizione tipo, int nNumero) noexcept
{
    constexpr int kMeta = kNumeroMassimo / 2;
    if (tipo == TipoCondizione::simmetrieNum) {
        return kNumeroMassimo + 1 - nNumero;
    }
    return nNumero > kMeta ? nNumero - kMeta : nNumero + kMeta;
}

/// Sets of nQuanti numbers by pairs among them: so many whole pairs, the others single ones or halves of a pair.
std::uint64_t ConCoppie(std::size_t nCoppie, std::size_t nSoli, std::size_t nQuanti, std::size_t nIntere)
{
    if (2 * nIntere > nQuanti || nIntere > nCoppie) {
        return 0;
    }
    const std::size_t nRestano = nQuanti - 2 * nIntere;
    std::uint64_t nInsiemi = 0;
    for (std::size_t nMezze = 0; nMezze <= std::min(nCoppie - nIntere, nRestano); ++nMezze) {
        nInsiemi += (kBinomiali[nCoppie - nIntere][nMezze] << nMezze) * kBinomiali[nSoli][nRestano - nMezze];
    }
    return nInsiemi * kBinomiali[nCoppie][nIntere];
}

} // namespace

bool ContiCompagni::Adatta(TipoCondizione tipo) noexcept
{
    return tipo == TipoCondizione::simmetrieNum || tipo == TipoCondizione::paralleliNum;
}

ContiCompagni::ContiCompagni(const RecordCondizione& record, std::int16_t nClasse,
                             std::span<const std::uint8_t> aScelti)
    : m_nClasse(static_cast<std::size_t>(nClasse)), m_aOk(record.PuntiOk), m_aRec(record.PuntiRec)
{
    for (const std::uint8_t nNumero : aScelti) {
        const auto compagno = std::ranges::find(aScelti, CompagnoDi(record.Tipo, nNumero));
        m_aCompagni.push_back(static_cast<std::size_t>(compagno - aScelti.begin()));
    }
}

Conti ContiCompagni::FinoA(const PostiColonna& aPosti) const
{
    Conti conti;
    PostiColonna aInizio{};
    for (std::size_t k = 0; k < m_nClasse; ++k) {
        // The last position goes up to the column itself.
        const std::size_t nFine = aPosti[k] + (k + 1 == m_nClasse ? 1 : 0);
        for (std::size_t p = k == 0 ? 0 : aPosti[k - 1] + 1; p < nFine; ++p) {
            aInizio[k] = p;
            conti = conti + Dietro(std::span(aInizio).first(k + 1));
        }
        aInizio[k] = aPosti[k];
    }
    return conti;
}

/// All columns behind a beginning, whose last place is in front of theirs.
Conti ContiCompagni::Dietro(std::span<const std::size_t> aInizio) const
{
    const auto bDentro = [&](std::size_t nPosto) {
        return std::ranges::find(aInizio, nPosto) != aInizio.end();
    };
    const std::size_t nPrimo = aInizio.back() + 1;
    const auto nGia = static_cast<std::size_t>(
        std::ranges::count_if(aInizio, [&](std::size_t p) { return bDentro(m_aCompagni[p]); }) / 2);
    std::size_t nAttesi = 0; // their partner is in the beginning
    std::size_t nInCoppia = 0;
    for (std::size_t p = nPrimo; p < m_aCompagni.size(); ++p) {
        nAttesi += bDentro(m_aCompagni[p]) ? 1U : 0U;
        nInCoppia += m_aCompagni[p] >= nPrimo && m_aCompagni[p] < m_aCompagni.size() ? 1U : 0U;
    }
    const std::size_t nSoli = m_aCompagni.size() - nPrimo - nAttesi - nInCoppia;
    const std::size_t nMancano = m_nClasse - aInizio.size();
    Conti conti;
    for (std::size_t nPresi = 0; nPresi <= std::min(nAttesi, nMancano); ++nPresi) {
        for (std::size_t nIntere = 0; 2 * nIntere <= nMancano - nPresi; ++nIntere) {
            conti = conti + Quante(nGia + nPresi + nIntere,
                                   kBinomiali[nAttesi][nPresi] *
                                       ConCoppie(nInCoppia / 2, nSoli, nMancano - nPresi, nIntere));
        }
    }
    return conti;
}

Conti ContiCompagni::Quante(std::size_t nCoppie, std::uint64_t nColonne) const
{
    const auto nValore = static_cast<std::int64_t>(nCoppie);
    return {.nOk = m_aOk[nValore] != 0 ? nColonne : 0, .nRec = m_aRec[nValore] != 0 ? nColonne : 0};
}

} // namespace ordavel
