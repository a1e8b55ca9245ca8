// LibreriaRiduzione.hpp - the external reduction engine, trvrdcol.
//
// Every operation fails with 53 when the library is missing, and with 438 when it lacks the function.

#pragma once

#include "core/LibreriaEsterna.hpp"

#include <cstdint>
#include <functional>
#include <string>

namespace ordavel {

class LibreriaRiduzione {
public:
    /// Reduces a column file into another one and returns when that is done; events run meanwhile. What went wrong is
    /// not told: then the output is missing, or as it was.
    /// Takes    sFileCol, sFileRidotto   the library may rewrite its own copies of them
    ///          nPuntiRichiesti          numbers that every column has in common with one that stays
    void RiduzioneColonneDll(const std::string& sFileCol, const std::string& sFileRidotto,
                             std::int32_t nPuntiRichiesti, const std::function<void()>& eventi);

    /// How far a reduction has come, 0 to 100.
    [[nodiscard]] std::int16_t GetPercProgRiduzione();

    /// Asks a reduction on its way to stop.
    void StopRiduzioneDll();

private:
    LibreriaEsterna m_Libreria{"trvrdcol"};
};

} // namespace ordavel
