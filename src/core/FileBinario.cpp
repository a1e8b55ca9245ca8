// FileBinario.cpp - a file as raw bytes.

#include "core/FileBinario.hpp"

#include "core/ModFunzGeneriche.hpp"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <vector>

namespace ordavel {

namespace {

constexpr std::int64_t kByteBlocco = 0xA00000;

/// A missing file is 53 when its folder is there, 76 when it is not.
[[noreturn]] void SollevaMancante(const std::string& sPath)
{
    std::error_code ignorato;
    const std::string sCartella = CartellaDi(sPath);
    const bool bCartella = sCartella.empty() || std::filesystem::is_directory(sCartella, ignorato);
    throw Errore(bCartella ? eErrore::fileNonTrovato : eErrore::percorsoNonTrovato, sPath);
}

void RifiutaSeNonRegolare(const std::string& sPath)
{
    std::error_code ignorato;
    const auto stato = std::filesystem::status(sPath, ignorato);
    if (std::filesystem::exists(stato) && !std::filesystem::is_regular_file(stato)) {
        throw Errore(eErrore::accessoPercorso, sPath);
    }
}

std::ios::openmode ModoApertura(const std::string& sPath, eApertura apertura)
{
    if (apertura == eApertura::lettura) {
        return std::ios::binary | std::ios::in;
    }
    const auto modo = std::ios::binary | std::ios::in | std::ios::out;
    return FileEsiste(sPath) ? modo : modo | std::ios::trunc;
}

} // namespace

FileBinario::FileBinario(std::string sPath, eApertura apertura) : m_sPath(std::move(sPath))
{
    RifiutaSeNonRegolare(m_sPath);
    errno = 0;
    if (m_File.open(m_sPath, ModoApertura(m_sPath, apertura)) == nullptr) {
        if (errno == ENOENT) {
            SollevaMancante(m_sPath);
        }
        throw ErroreDiSistema(errno, m_sPath);
    }
}

std::int64_t FileBinario::Lunghezza()
{
    const std::streamoff nFine = m_File.pubseekoff(0, std::ios::end);
    if (nFine < 0) {
        throw ErroreDiSistema(errno, m_sPath);
    }
    return nFine;
}

std::size_t FileBinario::Leggi(std::int64_t nPosizione, std::span<std::byte> aByte)
{
    errno = 0;
    if (nPosizione < 1 || m_File.pubseekoff(nPosizione - 1, std::ios::beg) < 0) {
        throw Errore(eErrore::dispositivo, m_sPath);
    }
    try {
        // The bytes of a file are read as such: char is the type that a stream buffer speaks in.
        const std::streamsize nLetti =
            m_File.sgetn(reinterpret_cast<char*>(aByte.data()), static_cast<std::streamsize>(aByte.size()));
        return static_cast<std::size_t>(std::max<std::streamsize>(nLetti, 0));
    } catch (const std::ios::failure&) {
        throw ErroreDiSistema(errno, m_sPath);
    }
}

void FileBinario::Scrivi(std::int64_t nPosizione, std::span<const std::byte> aByte)
{
    errno = 0;
    const auto nQuanti = static_cast<std::streamsize>(aByte.size());
    const bool bPosto = nPosizione >= 1 && m_File.pubseekoff(nPosizione - 1, std::ios::beg) >= 0;
    if (!bPosto || m_File.sputn(reinterpret_cast<const char*>(aByte.data()), nQuanti) != nQuanti) {
        throw ErroreDiSistema(errno, m_sPath);
    }
}

void FileBinario::Accoda(std::span<const std::byte> aByte)
{
    Scrivi(Lunghezza() + 1, aByte);
}

void FileBinario::Chiudi()
{
    errno = 0;
    if (m_File.is_open() && m_File.close() == nullptr) {
        throw ErroreDiSistema(errno, m_sPath);
    }
}

void CopiaBlocco(FileBinario& origine, std::int64_t nDa, std::int64_t nByte, FileBinario& destinazione)
{
    std::vector<std::byte> aBlocco(static_cast<std::size_t>(std::clamp<std::int64_t>(nByte, 0, kByteBlocco)));
    while (nByte > 0) {
        const auto nQuanti = static_cast<std::size_t>(std::min(nByte, kByteBlocco));
        const auto aParte = std::span(aBlocco).first(nQuanti);
        if (origine.Leggi(nDa, aParte) != nQuanti) {
            Solleva(eErrore::dispositivo);
        }
        destinazione.Accoda(aParte);
        nDa += static_cast<std::int64_t>(nQuanti);
        nByte -= static_cast<std::int64_t>(nQuanti);
    }
}

} // namespace ordavel
