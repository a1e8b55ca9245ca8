// FileBinario.hpp - a file as raw bytes, with positions that count from 1.

#pragma once

#include "ordavel/esporta.hpp"

#include <cstdint>
#include <fstream>
#include <span>
#include <string>

namespace ordavel {

/// How a file is opened.
enum class eApertura : std::uint8_t {
    lettura,   ///< an existing file, to read
    scrittura, ///< read and write; made when it is missing, kept when it is there
};

/// An open file. It is closed at the end of its life; Chiudi() tells whether the last bytes were taken.
///
/// All failures name the path: 53 not found, 57 read or write failed, 61 disk full, 70 no permission,
/// 75 not a regular file, 76 its folder does not exist.
class ORDAVEL_EXPORT FileBinario {
public:
    /// Opens sPath (UTF-8).
    /// Fails    53, 70, 75, 76. Folders, devices and pipes are refused with 75.
    FileBinario(std::string sPath, eApertura apertura);

    /// Bytes in the file.
    [[nodiscard]] std::int64_t Lunghezza();

    /// Reads from nPosizione, 1 the first byte, until aByte is full or the file ends.
    /// Gives    how many bytes were read; the others of aByte stay as they were
    /// Fails    57
    std::size_t Leggi(std::int64_t nPosizione, std::span<std::byte> aByte);

    /// Writes all of aByte at nPosizione, 1 the first byte.
    /// Fails    57, 61
    void Scrivi(std::int64_t nPosizione, std::span<const std::byte> aByte);

    /// Writes all of aByte behind the last byte.
    /// Fails    57, 61
    void Accoda(std::span<const std::byte> aByte);

    /// Hands the last bytes to the system and closes.
    /// Fails    57, 61
    void Chiudi();

private:
    std::string m_sPath;
    std::filebuf m_File;
};

/// Copies nByte bytes from nDa of one file to the end of another, at most 10485760 at a time.
/// Takes    origine   read from position nDa on, 1 the first byte
/// Fails    57, 61; 57 also when the origin ends before nByte bytes were read
void CopiaBlocco(FileBinario& origine, std::int64_t nDa, std::int64_t nByte, FileBinario& destinazione);

} // namespace ordavel
