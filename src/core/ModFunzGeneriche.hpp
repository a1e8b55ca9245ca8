// ModFunzGeneriche.hpp - files, folders and paths.
//
// Paths are UTF-8. The separator is the platform's; where it is "\", "/" is taken as well.

#pragma once

#include "ordavel/errore.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace ordavel {

/// The failure that stands for an error number of the system (errno), about a path.
[[nodiscard]] ORDAVEL_EXPORT Errore ErroreDiSistema(int nErrno, const std::string& sPath);

/// Does a file or folder of that path exist?
[[nodiscard]] bool FileEsiste(const std::string& sPath);

/// Length of a file in bytes, without keeping it open; 0 when it is missing.
[[nodiscard]] std::int64_t DimensioneFile(const std::string& sPath);

/// Deletes a file, or with a "*" in its name all files that match it ("*" any run, "?" any one character).
/// Gives    true also when there was nothing to delete; false after a failure, which it shows under
///          "ModFunzGeneriche.KillFile". A folder or a device is never deleted (75).
bool KillFile(const std::string& sPath, Segnalatore& segnalatore);

/// Creates the folders of a path from the top down, passing over those that are there.
/// Gives    whether the whole path is a folder now
[[nodiscard]] bool CreaPercorso(const std::string& sPath);

/// The path with a separator at its end; an empty path stays empty.
[[nodiscard]] std::string ConSeparatore(std::string sPath);

/// Folder part: up to and with the last separator; empty when there is none.
[[nodiscard]] std::string CartellaDi(std::string_view sPath);

/// Name part: what stands behind the last separator.
[[nodiscard]] std::string NomeDi(std::string_view sPath);

/// A name without its extension, which is cut at the last ".".
[[nodiscard]] std::string SenzaEstensione(std::string_view sNome);

} // namespace ordavel
