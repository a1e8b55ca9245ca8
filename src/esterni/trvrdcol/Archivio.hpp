// Archivio.hpp - column files: read whole, and replaced only when all is written.

#pragma once

#include "Problema.hpp"

#include <cstdio>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace ordavel::trvrdcol {

/// The numbers of failures that a caller is told.
enum class eGuasto : int {
    argomento = 5,
    memoria = 7,
    fileNonTrovato = 53,
    dispositivo = 57,
    discoPieno = 61,
    permesso = 70,
    accessoPercorso = 75,
    percorsoNonTrovato = 76,
};

/// A failure; it is thrown.
struct Guasto {
    eGuasto nNumero;
};

/// Closes a file of the C library.
struct ChiudeFile {
    void operator()(std::FILE* file) const noexcept { static_cast<void>(std::fclose(file)); }
};
using FileAperto = std::unique_ptr<std::FILE, ChiudeFile>;

/// The records of a file. How many they are is its length divided by 20, rounded to nearest with ties to even; what the
/// last one lacks reads as 0.
/// Fails    53, 57, 70, 75
[[nodiscard]] std::vector<Record> LeggiRecord(const std::string& sPath);

/// A file in the making, under a name of its own beside the one that it will have. What bore that name stays untouched
/// until Conferma(); without it the new file vanishes.
class Uscita {
public:
    /// Fails    57, 61, 70, 75, 76: now rather than at the end, since much work stands between
    explicit Uscita(const std::string& sPath);
    Uscita(const Uscita&) = delete;
    Uscita& operator=(const Uscita&) = delete;
    ~Uscita();

    /// Fails    57, 61
    void Scrivi(std::span<const Record> aRecord);

    /// Puts the file in its place.
    /// Fails    57, 61, 70
    void Conferma();

private:
    std::string m_sPath;
    std::string m_sProvvisorio;
    FileAperto m_File;
};

} // namespace ordavel::trvrdcol
