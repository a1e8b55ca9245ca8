// OrdavelCalcoli.cpp - measures of a column, as a host asks for them.

#include "ordavel/Ordavel.hpp"

#include "calcoli/ModForma.hpp"
#include "calcoli/ModSimmetria.hpp"

namespace ordavel {

std::int32_t Ordavel::CalcolaBaricentro(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaBaricentro(nClasse, col);
}

std::int32_t Ordavel::CalcolaPonte(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaPonte(nClasse, col);
}

std::int32_t Ordavel::CalcolaAmpiezza(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaAmpiezza(nClasse, col);
}

std::int32_t Ordavel::CalcolaDistanzaMinima(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaDistanzaMinima(nClasse, col);
}

std::int32_t Ordavel::CalcolaDistanzaMassima(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaDistanzaMassima(nClasse, col);
}

std::int32_t Ordavel::CalcolaConsecutivi(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaConsecutivi(nClasse, col);
}

std::int32_t Ordavel::CalcolaInterruzioniPD(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaInterruzioniPD(nClasse, col);
}

std::int32_t Ordavel::CalcolaVorticeDiretto(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaVorticeDiretto(nClasse, col);
}

std::int32_t Ordavel::CalcolaVorticeInverso(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaVorticeInverso(nClasse, col);
}

std::int32_t Ordavel::CalcolaSimmetrieDirette(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaSimmetrieDirette(nClasse, col);
}

std::int32_t Ordavel::CalcolaSimmetrieInverse(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaSimmetrieInverse(nClasse, col);
}

std::int32_t Ordavel::CalcolaParalleliDiretti(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaParalleliDiretti(nClasse, col);
}

std::int32_t Ordavel::CalcolaParalleliInversi(std::int16_t nClasse, const Colonna& col) const
{
    return ordavel::CalcolaParalleliInversi(nClasse, col);
}

std::int32_t Ordavel::CalcolaSequenze(std::int16_t nClasse, const Colonna& col, std::string_view sSeq) const
{
    return ordavel::CalcolaSequenze(nClasse, col, sSeq);
}

std::int32_t Ordavel::CalcolaPuntiSequenze(std::int16_t nClasse, const Colonna& col, std::string_view sSeq,
                                           std::int32_t& nRetConsec) const
{
    return ordavel::CalcolaPuntiSequenze(nClasse, col, sSeq, nRetConsec);
}

} // namespace ordavel
