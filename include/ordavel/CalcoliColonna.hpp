// CalcoliColonna.hpp - the measures of a column, as a host asks the component for them.

#pragma once

#include "ordavel/esporta.hpp"
#include "ordavel/records.hpp"

#include <cstdint>
#include <string_view>

namespace ordavel {

class ORDAVEL_EXPORT CalcoliColonna {
public:
    // Takes    nClasse   numbers of the column, 0..20
    //          col       the column; its first nClasse numbers count
    // Fails    9: nClasse above 20; and as each says

    [[nodiscard]] static std::int32_t CalcolaBaricentro(std::int16_t nClasse,
                                                        const Colonna& col); ///< 11: class 0
    [[nodiscard]] static std::int32_t CalcolaPonte(std::int16_t nClasse, const Colonna& col);
    [[nodiscard]] static std::int32_t CalcolaAmpiezza(std::int16_t nClasse,
                                                      const Colonna& col); ///< 6: not ascending
    [[nodiscard]] static std::int32_t CalcolaDistanzaMinima(std::int16_t nClasse,
                                                            const Colonna& col); ///< 6 as well
    [[nodiscard]] static std::int32_t CalcolaDistanzaMassima(std::int16_t nClasse,
                                                             const Colonna& col); ///< 6 as well
    [[nodiscard]] static std::int32_t CalcolaConsecutivi(std::int16_t nClasse, const Colonna& col);
    [[nodiscard]] static std::int32_t CalcolaInterruzioniPD(std::int16_t nClasse, const Colonna& col);
    [[nodiscard]] static std::int32_t CalcolaVorticeDiretto(std::int16_t nClasse, const Colonna& col);
    [[nodiscard]] static std::int32_t CalcolaVorticeInverso(std::int16_t nClasse, const Colonna& col);
    [[nodiscard]] static std::int32_t CalcolaSimmetrieDirette(std::int16_t nClasse, const Colonna& col);
    [[nodiscard]] static std::int32_t CalcolaSimmetrieInverse(std::int16_t nClasse, const Colonna& col);
    [[nodiscard]] static std::int32_t CalcolaParalleliDiretti(std::int16_t nClasse, const Colonna& col);
    [[nodiscard]] static std::int32_t CalcolaParalleliInversi(std::int16_t nClasse, const Colonna& col);
    /// Matches of a parity pattern of letters "P" and "D"; the first place is compared with an even number and the
    /// last letter has no say. The second form also gives the longest chain.
    /// Fails    9: more than 90 letters
    [[nodiscard]] static std::int32_t CalcolaSequenze(std::int16_t nClasse, const Colonna& col,
                                                      std::string_view sSeq);
    [[nodiscard]] static std::int32_t CalcolaPuntiSequenze(std::int16_t nClasse, const Colonna& col,
                                                           std::string_view sSeq, std::int32_t& nRetConsec);
};

} // namespace ordavel
