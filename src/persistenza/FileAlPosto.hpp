// FileAlPosto.hpp - a file that takes the place of an older one in one step, and only when it is whole.

#pragma once

#include <functional>
#include <string>

namespace ordavel {

/// A name that no other process makes: sInizio and digits of chance.
[[nodiscard]] std::string NomeUnico(const std::string& sInizio);

/// Can a file be written at that path? Looked at before the work is done, so that an hour of it is not lost.
/// Takes    sIngresso   a file that the work reads and that must not be lost to it
/// Fails    5: no name, or the file to be read; 75: the path is no regular file; 70: it may not be written;
///          70, 76, 61: no file can be made in its folder
void ControllaUscita(const std::string& sFile, const std::string& sIngresso);

/// Has `scrivi` write a new file beside sFile and, when it says that it did, puts it in the place of the old one
/// in one step. Otherwise the old one stays as it was. A link stays one: the file behind it is replaced.
/// Gives    whether the new file is in place
/// Fails    as renaming does; what `scrivi` fails with speaks of sFile, not of the name beside it
bool ScriviAlPosto(const std::string& sFile,
                   const std::function<bool(const std::string& sProvvisorio)>& scrivi);

} // namespace ordavel
