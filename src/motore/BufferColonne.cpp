// BufferColonne.cpp - columns kept and not yet written.

#include "motore/BufferColonne.hpp"

#include "persistenza/ModFileColonne.hpp"

#include <span>

namespace ordavel {

BufferColonne::BufferColonne(FileBinario& file, std::int16_t nClasse, std::int16_t nLimite)
    : m_File(file),
      m_nClasse(nClasse),
      m_nLimite(nLimite),
      m_aColonne(static_cast<std::size_t>(kColonneBuffer))
{}

void BufferColonne::ScriviResto()
{
    if (m_nInAttesa > 0) {
        Scrivi(m_nInAttesa);
    }
}

void BufferColonne::Scrivi(std::int32_t nQuante)
{
    AccodaColonne(m_File, std::span(m_aColonne).first(static_cast<std::size_t>(nQuante)));
}

} // namespace ordavel
