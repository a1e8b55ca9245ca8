// Archivio.cpp - column files on disk.

#include "Archivio.hpp"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace ordavel::trvrdcol {

namespace fs = std::filesystem;

namespace {

/// Takes    nMancante   what a missing name means here
[[noreturn]] void Solleva(int nErrore, eGuasto nMancante)
{
    switch (nErrore) {
    case ENOENT:
    case ENOTDIR:
        throw Guasto{nMancante};
    case EACCES:
    case EPERM:
    case EROFS:
        throw Guasto{eGuasto::permesso};
    case ENOSPC:
    case EDQUOT:
        throw Guasto{eGuasto::discoPieno};
    case EISDIR:
        throw Guasto{eGuasto::accessoPercorso};
    default:
        throw Guasto{eGuasto::dispositivo};
    }
}

/// The file that a name means, behind whatever links.
std::string Vero(const std::string& sPath)
{
    std::error_code codice;
    const fs::path vero = fs::canonical(sPath, codice);
    return codice ? sPath : vero.string();
}

/// A file that may be replaced, or none.
void ControllaSostituibile(const std::string& sPath)
{
    std::error_code codice;
    const fs::file_status stato = fs::status(sPath, codice);
    if (fs::exists(stato) && !fs::is_regular_file(stato)) {
        throw Guasto{eGuasto::accessoPercorso};
    }
    if (fs::exists(stato) && access(sPath.c_str(), W_OK) != 0) {
        Solleva(errno, eGuasto::percorsoNonTrovato);
    }
}

} // namespace

std::vector<Record> LeggiRecord(const std::string& sPath)
{
    std::error_code codice;
    const fs::file_status stato = fs::status(sPath, codice);
    if (fs::exists(stato) && !fs::is_regular_file(stato)) {
        throw Guasto{eGuasto::accessoPercorso};
    }
    const FileAperto file(std::fopen(sPath.c_str(), "rb"));
    if (!file) {
        Solleva(errno, eGuasto::fileNonTrovato);
    }
    const std::uintmax_t nByte = fs::file_size(sPath, codice);
    if (codice) {
        throw Guasto{eGuasto::dispositivo};
    }
    const std::uintmax_t nInteri = nByte / kByteRecord;
    const std::uintmax_t nDoppioResto = 2 * (nByte % kByteRecord);
    const bool bUnoInPiu = nDoppioResto > kByteRecord || (nDoppioResto == kByteRecord && nInteri % 2 != 0);
    const std::uintmax_t nQuanti = nInteri + (bUnoInPiu ? 1 : 0);
    if (nQuanti >= kNessuno) {
        throw Guasto{eGuasto::memoria};
    }
    std::vector<Record> aRecord(nQuanti, Record{});
    const std::size_t nAttesi = std::min<std::uintmax_t>(nByte, nQuanti * kByteRecord);
    if (nAttesi != 0 && std::fread(aRecord.data(), 1, nAttesi, file.get()) != nAttesi) {
        throw Guasto{eGuasto::dispositivo};
    }
    return aRecord;
}

Uscita::Uscita(const std::string& sPath)
    : m_sPath(Vero(sPath)), m_sProvvisorio(m_sPath + "." + std::to_string(getpid()) + ".rid")
{
    ControllaSostituibile(m_sPath);
    m_File.reset(std::fopen(m_sProvvisorio.c_str(), "wb"));
    if (!m_File) {
        Solleva(errno, eGuasto::percorsoNonTrovato);
    }
}

Uscita::~Uscita()
{
    if (m_File) {
        m_File.reset();
        std::error_code ignorato;
        fs::remove(m_sProvvisorio, ignorato);
    }
}

void Uscita::Scrivi(std::span<const Record> aRecord)
{
    if (aRecord.empty()) {
        return;
    }
    if (std::fwrite(aRecord.data(), kByteRecord, aRecord.size(), m_File.get()) != aRecord.size() ||
        std::fflush(m_File.get()) != 0) {
        Solleva(errno, eGuasto::dispositivo);
    }
}

void Uscita::Conferma()
{
    std::error_code codice;
    if (const fs::file_status vecchio = fs::status(m_sPath, codice); fs::exists(vecchio)) {
        fs::permissions(m_sProvvisorio, vecchio.permissions(), codice);
    }
    fs::rename(m_sProvvisorio, m_sPath, codice);
    if (codice) {
        Solleva(codice.value(), eGuasto::percorsoNonTrovato);
    }
    m_File.reset();
}

} // namespace ordavel::trvrdcol
