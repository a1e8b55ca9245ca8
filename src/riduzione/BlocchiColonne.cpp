// BlocchiColonne.cpp - blocks of columns.

#include "riduzione/BlocchiColonne.hpp"

#include "core/ModNumeri.hpp"

#include <algorithm>

namespace ordavel {

namespace {

std::int64_t Colonne(std::int64_t nByte)
{
    return static_cast<std::int64_t>(
        ArrotondaPari(static_cast<double>(nByte) / static_cast<double>(kByteColonna)));
}

} // namespace

std::int64_t ColonneArrotondate(FileBinario& file)
{
    return Colonne(file.Lunghezza());
}

BlocchiColonne::BlocchiColonne(FileBinario& file, std::int64_t nInizio, std::int64_t nFine)
    : m_File(file),
      m_nInizio(nInizio),
      m_nLette(nInizio),
      m_nFine(nFine),
      m_aBlocco(std::min(static_cast<std::size_t>(nFine - nInizio), kColonneBlocco))
{}

std::span<const Colonna> BlocchiColonne::Prossimo()
{
    const auto nQuante = std::min(static_cast<std::size_t>(m_nFine - m_nLette), kColonneBlocco);
    const auto aByte = std::as_writable_bytes(std::span(m_aBlocco).first(nQuante));
    const std::size_t nLetti = nQuante > 0 ? m_File.Leggi(m_nLette * kByteColonna + 1, aByte) : 0;
    std::fill(aByte.begin() + static_cast<std::ptrdiff_t>(nLetti), aByte.end(), std::byte{0});
    const std::int64_t nColonne = Colonne(static_cast<std::int64_t>(nLetti));
    m_nLette += nColonne;
    return std::span(m_aBlocco).first(static_cast<std::size_t>(nColonne));
}

ColonneRidotte::ColonneRidotte(FileBinario& file, std::size_t nBuffer) : m_File(file), m_nBuffer(nBuffer)
{
    m_aBuffer.reserve(nBuffer);
}

void ColonneRidotte::ScriviResto()
{
    m_File.Scrivi(m_nScritte * kByteColonna + 1, std::as_bytes(std::span(m_aBuffer)));
    m_nScritte += static_cast<std::int64_t>(m_aBuffer.size());
    m_aBuffer.clear();
}

} // namespace ordavel
