// ModFunzGeneriche.cpp - files, folders and paths.

#include "core/ModFunzGeneriche.hpp"

#include "core/ModGestore.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <vector>

namespace ordavel {

namespace fs = std::filesystem;

namespace {

struct RigaErrno {
    int nErrno;
    eErrore nNumero;
};

constexpr std::array kErrno = std::to_array<RigaErrno>({
    {ENOENT, eErrore::fileNonTrovato},
    {ENOTDIR, eErrore::percorsoNonTrovato},
    {ENAMETOOLONG, eErrore::percorsoNonTrovato},
    {ENOSPC, eErrore::discoPieno},
    {EFBIG, eErrore::discoPieno},
    {EACCES, eErrore::permesso},
    {EPERM, eErrore::permesso},
    {EROFS, eErrore::permesso},
    {EISDIR, eErrore::accessoPercorso},
    {ENOMEM, eErrore::memoria},
});

bool Separatore(char c)
{
    // Two tests only where the preferred one is "\".
    // NOLINTNEXTLINE(misc-redundant-expression)
    return c == '/' || c == static_cast<char>(fs::path::preferred_separator);
}

std::size_t InizioNome(std::string_view sPath)
{
    std::size_t nInizio = sPath.size();
    while (nInizio > 0 && !Separatore(sPath[nInizio - 1])) {
        --nInizio;
    }
    return nInizio;
}

/// Does a name match a pattern of "*" and "?"? The last "*" met is the only one worth going back to.
bool Corrisponde(std::string_view sNome, std::string_view sModello)
{
    std::size_t n = 0;
    std::size_t m = 0;
    std::size_t nRipresa = 0;
    std::size_t mStella = std::string_view::npos;
    while (n < sNome.size()) {
        if (m < sModello.size() && sModello[m] == '*') {
            mStella = m++;
            nRipresa = n;
        } else if (m < sModello.size() && (sModello[m] == '?' || sModello[m] == sNome[n])) {
            ++m;
            ++n;
        } else if (mStella != std::string_view::npos) {
            m = mStella + 1;
            n = ++nRipresa;
        } else {
            return false;
        }
    }
    return sModello.find_first_not_of('*', m) == std::string_view::npos;
}

void Controlla(const std::error_code& codice, const std::string& sPath)
{
    if (codice) {
        throw ErroreDiSistema(codice.value(), sPath);
    }
}

void CancellaUno(const fs::path& path)
{
    std::error_code codice;
    const auto stato = fs::symlink_status(path, codice);
    if (!fs::exists(stato)) {
        return;
    }
    if (!fs::is_regular_file(stato) && !fs::is_symlink(stato)) {
        throw Errore(eErrore::accessoPercorso, path.string());
    }
    // Only a regular file has attributes of its own to clear; those of a link are its target's.
    if (fs::is_regular_file(stato)) {
        fs::permissions(path, fs::perms::owner_write, fs::perm_options::add, codice);
    }
    fs::remove(path, codice);
    if (codice != std::errc::no_such_file_or_directory) {
        Controlla(codice, path.string());
    }
}

void CancellaModello(const std::string& sPath)
{
    const std::string sCartella = CartellaDi(sPath);
    const std::string sModello = NomeDi(sPath);
    std::error_code codice;
    fs::directory_iterator voci(sCartella.empty() ? fs::path(".") : fs::path(sCartella), codice);
    if (codice == std::errc::no_such_file_or_directory || codice == std::errc::not_a_directory) {
        return;
    }
    std::vector<fs::path> aDaCancellare;
    std::error_code ignorato;
    for (; !codice && voci != fs::directory_iterator(); voci.increment(codice)) {
        if (Corrisponde(voci->path().filename().string(), sModello) && !voci->is_directory(ignorato)) {
            aDaCancellare.push_back(voci->path());
        }
    }
    Controlla(codice, sPath);
    std::for_each(aDaCancellare.begin(), aDaCancellare.end(), CancellaUno);
}

} // namespace

Errore ErroreDiSistema(int nErrno, const std::string& sPath)
{
    const auto* riga = std::find_if(kErrno.begin(), kErrno.end(),
                                    [nErrno](const RigaErrno& r) { return r.nErrno == nErrno; });
    return {riga == kErrno.end() ? eErrore::dispositivo : riga->nNumero, sPath};
}

bool FileEsiste(const std::string& sPath)
{
    std::error_code ignorato;
    return fs::exists(sPath, ignorato);
}

std::int64_t DimensioneFile(const std::string& sPath)
{
    std::error_code codice;
    const auto nByte = fs::file_size(sPath, codice);
    return codice ? 0 : static_cast<std::int64_t>(nByte);
}

bool KillFile(const std::string& sPath, Segnalatore& segnalatore)
{
    return ConGestore(segnalatore, "ModFunzGeneriche.KillFile", [&sPath] {
        if (sPath.find('*') != std::string::npos) {
            CancellaModello(sPath);
        } else {
            CancellaUno(sPath);
        }
    });
}

bool CreaPercorso(const std::string& sPath)
{
    std::error_code codice;
    fs::create_directories(sPath, codice);
    return fs::is_directory(sPath, codice);
}

std::string ConSeparatore(std::string sPath)
{
    if (!sPath.empty() && !Separatore(sPath.back())) {
        sPath += static_cast<char>(fs::path::preferred_separator);
    }
    return sPath;
}

std::string CartellaDi(std::string_view sPath)
{
    return std::string(sPath.substr(0, InizioNome(sPath)));
}

std::string NomeDi(std::string_view sPath)
{
    return std::string(sPath.substr(InizioNome(sPath)));
}

std::string SenzaEstensione(std::string_view sNome)
{
    return std::string(sNome.substr(0, sNome.rfind('.')));
}

} // namespace ordavel
