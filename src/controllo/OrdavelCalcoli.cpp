// OrdavelCalcoli.cpp - measures of a column, as a host asks for them.

#include "ordavel/CalcoliColonna.hpp"

#include "calcoli/ModForma.hpp"
#include "calcoli/ModSimmetria.hpp"

namespace ordavel {

std::int32_t CalcoliColonna::CalcolaBaricentro(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaBaricentro(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaPonte(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaPonte(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaAmpiezza(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaAmpiezza(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaDistanzaMinima(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaDistanzaMinima(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaDistanzaMassima(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaDistanzaMassima(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaConsecutivi(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaConsecutivi(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaInterruzioniPD(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaInterruzioniPD(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaVorticeDiretto(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaVorticeDiretto(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaVorticeInverso(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaVorticeInverso(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaSimmetrieDirette(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaSimmetrieDirette(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaSimmetrieInverse(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaSimmetrieInverse(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaParalleliDiretti(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaParalleliDiretti(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaParalleliInversi(std::int16_t nClasse, const Colonna& col)
{
    return ordavel::CalcolaParalleliInversi(nClasse, col);
}

std::int32_t CalcoliColonna::CalcolaSequenze(std::int16_t nClasse, const Colonna& col, std::string_view sSeq)
{
    return ordavel::CalcolaSequenze(nClasse, col, sSeq);
}

std::int32_t CalcoliColonna::CalcolaPuntiSequenze(std::int16_t nClasse, const Colonna& col,
                                                  std::string_view sSeq, std::int32_t& nRetConsec)
{
    return ordavel::CalcolaPuntiSequenze(nClasse, col, sSeq, nRetConsec);
}

} // namespace ordavel
