// sviluppo_finto.cpp - a library that plays the external engine of developments, well or badly.
//
// Whatever system it is given, it keeps the columns of neighbouring picks (1 2 3, 2 3 4 ...), says that it examined
// ten for each, and writes fixed counters. ORDAVEL_FINTO says how it plays:
//
//     (nothing)   as it should         lento     counts up to 8 until it is stopped, then writes the first column
//     rinuncia    writes nothing       rompe     leaves a system file that nobody can read
//     togli       takes the system file away     errore   says in "Sviluppo.err" what went wrong
//
// ORDAVEL_FINTO_REGISTRO names a file to which it adds its arguments, a line each. Built with SENZA_FUNZIONE it lacks
// GetCondizionate.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr std::size_t kClasse = 7; // places in a system file
constexpr std::size_t kNumeri = 11;
constexpr std::size_t kCondizioni = 317;
constexpr std::size_t kByteCondizione = 334;
constexpr std::size_t kConti = 304;
constexpr std::size_t kByteColonna = 20;

std::atomic<bool> g_bFermata{false};
std::atomic<int> g_nFermate{0};
std::atomic<double> g_nSviluppate{0};
std::atomic<double> g_nCondizionate{0};

std::string Ambiente(const char* sNome)
{
    const char* sValore = std::getenv(sNome); // NOLINT(concurrency-mt-unsafe)
    return sValore == nullptr ? "" : sValore;
}

std::string Leggi(const std::string& sFile)
{
    std::ifstream file(sFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Scrivi(const std::string& sFile, const std::string& sByte, std::ios::openmode modo)
{
    std::ofstream(sFile, std::ios::binary | modo)
        .write(sByte.data(), static_cast<std::streamsize>(sByte.size()));
}

std::vector<std::string> Colonne(const std::string& sSistema)
{
    const auto nClasse = static_cast<std::size_t>(sSistema.at(kClasse));
    std::string sNumeri;
    for (std::size_t n = 1; n <= 90; ++n) {
        if (sSistema.at(kNumeri + 2 * (n - 1)) != 0) {
            sNumeri += static_cast<char>(n);
        }
    }
    std::vector<std::string> aColonne;
    for (std::size_t i = 0; i + nClasse <= sNumeri.size(); ++i) {
        aColonne.push_back(sNumeri.substr(i, nClasse) + std::string(kByteColonna - nClasse, '\0'));
    }
    return aColonne;
}

/// ContaKo, ContaOk and ContaRec of condition i, from 1: 100 i + 1, 100 i + 2, 100 i + 3.
void Conta(std::string& sSistema)
{
    for (std::size_t i = 0; kCondizioni + i * kByteCondizione < sSistema.size(); ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            const auto nConto = static_cast<double>(100 * (i + 1) + k + 1);
            std::memcpy(&sSistema.at(kCondizioni + i * kByteCondizione + kConti + 8 * k), &nConto, 8);
        }
    }
}

/// Counts until it is stopped.
void Aspetta()
{
    while (!g_bFermata) {
        g_nSviluppate = std::min(g_nSviluppate + 1, 8.0);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

void Sviluppa(const std::string& sCartella, const std::string& sFile, const std::string& sModo)
{
    std::string sSistema = Leggi(sFile);
    std::vector<std::string> aColonne = Colonne(sSistema);
    if (sModo == "lento") {
        Aspetta();
        aColonne.resize(1);
    }
    for (const std::string& sColonna : aColonne) {
        Scrivi(sCartella + "Sviluppo.col", sColonna, std::ios::app);
        g_nSviluppate = g_nSviluppate + 10;
        g_nCondizionate = g_nCondizionate + 1;
    }
    Conta(sSistema);
    Scrivi(sFile, sModo == "rompe" ? sSistema.substr(0, kCondizioni - 1) : sSistema, std::ios::trunc);
    if (sModo == "togli") {
        std::filesystem::remove(sFile);
    }
}

} // namespace

// The loader looks for these names as they stand.
extern "C" {

[[gnu::visibility("default")]] double GetSviluppate()
{
    return g_nSviluppate;
}

#ifndef SENZA_FUNZIONE
[[gnu::visibility("default")]] double GetCondizionate()
{
    return g_nCondizionate;
}
#endif

[[gnu::visibility("default")]] void StopSviluppo()
{
    ++g_nFermate;
    g_bFermata = true;
}

[[gnu::visibility("default")]] std::int32_t InitSviluppo(char* sPercorsoTemp, char* sFileSistema,
                                                         char* sFileEmulatore)
{
    const std::string sCartella = sPercorsoTemp;
    const std::string sFile = sFileSistema;
    const std::string sEmulatore = sFileEmulatore;
    for (char* const sTesto : {sPercorsoTemp, sFileSistema, sFileEmulatore}) {
        std::memset(sTesto, 'x', std::strlen(sTesto)); // they are the library's to write into
    }
    g_bFermata = false;
    g_nSviluppate = 0;
    g_nCondizionate = 0;
    if (const std::string sRegistro = Ambiente("ORDAVEL_FINTO_REGISTRO"); !sRegistro.empty()) {
        Scrivi(sRegistro, sCartella + "\n" + sFile + "\n" + sEmulatore + "\n", std::ios::app);
    }
    const std::string sModo = Ambiente("ORDAVEL_FINTO");
    if (sModo == "errore") {
        Scrivi(sCartella + "Sviluppo.err", "Memoria insufficiente\r\nalla condizione 3\n", std::ios::trunc);
    }
    if (sModo != "rinuncia" && sModo != "errore") {
        Sviluppa(sCartella, sFile, sModo);
    }
    return 77;
}

/// How often it was told to stop.
[[gnu::visibility("default")]] int QuanteFermate()
{
    return g_nFermate;
}
}
