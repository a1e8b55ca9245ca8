// LibreriaSviluppo.hpp - the external engine of developments, TorvanSvilSist.
//
// It reads a system file, writes "Sviluppo.col" into a folder, and gives the counters of the conditions back in the
// system file. Every operation fails with 53 when the library is missing, and with 438 when it lacks the function.

#pragma once

#include "core/LibreriaEsterna.hpp"

#include <functional>
#include <string>

namespace ordavel {

class LibreriaSviluppo {
public:
    /// Looks for the library and all its functions, and calls none.
    void Controlla();

    /// Develops a system file and returns when that is done; events run meanwhile. What went wrong is not told: then
    /// the columns are missing, or none.
    /// Takes    sPercorsoTemp    folder, with its separator, that "Sviluppo.col" goes to
    ///          sFileSistema     path of the system file
    ///          sFileEmulatore   path of the emulated draws; "-" without an emulator
    ///          eventi           when it throws, the run is asked to stop, and that is passed on at its end
    /// The library gets copies of the texts and may write into them, within their length; they go no further.
    void InitSviluppo(const std::string& sPercorsoTemp, const std::string& sFileSistema,
                      const std::string& sFileEmulatore, const std::function<void()>& eventi);

    /// Columns examined so far, by the run on its way or by the last one.
    [[nodiscard]] double GetSviluppate();

    /// Columns kept so far.
    [[nodiscard]] double GetCondizionate();

    /// Asks a run on its way to stop; what it has kept stays.
    void StopSviluppo();

private:
    void Ferma() noexcept;

    LibreriaEsterna m_Libreria{"TorvanSvilSist"};
};

} // namespace ordavel
