// OrdavelCalcoli.cpp - measures of a column, as a host asks for them.

#include "ordavel/Ordavel.hpp"

#include "calcoli/ModForma.hpp"
#include "calcoli/ModSimmetria.hpp"

namespace ordavel {

std::int32_t Ordavel::CalcolaBaricentro(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaBaricentro(nClasse, col);
}

std::int32_t Ordavel::CalcolaPonte(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaPonte(nClasse, col);
}

std::int32_t Ordavel::CalcolaAmpiezza(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaAmpiezza(nClasse, col);
}

std::int32_t Ordavel::CalcolaDistanzaMinima(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaDistanzaMinima(nClasse, col);
}

std::int32_t Ordavel::CalcolaDistanzaMassima(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaDistanzaMassima(nClasse, col);
}

std::int32_t Ordavel::CalcolaConsecutivi(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaConsecutivi(nClasse, col);
}

std::int32_t Ordavel::CalcolaInterruzioniPD(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaInterruzioniPD(nClasse, col);
}

std::int32_t Ordavel::CalcolaVorticeDiretto(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaVorticeDiretto(nClasse, col);
}

std::int32_t Ordavel::CalcolaVorticeInverso(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaVorticeInverso(nClasse, col);
}

std::int32_t Ordavel::CalcolaSimmetrieDirette(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaSimmetrieDirette(nClasse, col);
}

std::int32_t Ordavel::CalcolaSimmetrieInverse(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaSimmetrieInverse(nClasse, col);
}

std::int32_t Ordavel::CalcolaParalleliDiretti(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaParalleliDiretti(nClasse, col);
}

std::int32_t Ordavel::CalcolaParalleliInversi(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaParalleliInversi(nClasse, col);
}

std::int32_t Ordavel::CalcolaSequenze(std::int16_t nClasse, const Colonna& col, std::string_view sSeq)
{
    return ordavel::CalcolaSequenze(nClasse, col, sSeq);
}

std::int32_t Ordavel::CalcolaPuntiSequenze(std::int16_t nClasse, const Colonna& col, std::string_view sSeq,
                                           std::int32_t& nRetConsec)
{
    return ordavel::CalcolaPuntiSequenze(nClasse, col, sSeq, nRetConsec);
}

} // namespace ordavel
