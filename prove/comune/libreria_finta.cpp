// libreria_finta.cpp - a library that plays the external reduction engine: it keeps the first column of a file.

#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <string>
#include <thread>

namespace {

std::atomic<bool> g_bFermata{false};
std::atomic<int> g_nChieste{0};

} // namespace

// The loader looks for these names as they stand.
extern "C" {

[[gnu::visibility("default")]] std::int16_t GetPercProgRiduzione()
{
    ++g_nChieste;
    return 42;
}

[[gnu::visibility("default")]] void StopRiduzioneDll()
{
    g_bFermata = true;
}

/// Points below 0: works until it is stopped. Points above 20: fails, which nobody is told.
[[gnu::visibility("default")]] int RiduzioneColonneDll(char** psFile, char** psRidotto, std::int32_t* pnPunti)
{
    g_bFermata = false;
    while (*pnPunti < 0 && !g_bFermata) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    if (*pnPunti > 20) {
        return 5;
    }
    std::string sColonna(20, '\0');
    std::ifstream(*psFile, std::ios::binary).read(sColonna.data(), 20);
    std::ofstream(*psRidotto, std::ios::binary).write(sColonna.data(), 20);
    std::memset(*psFile, 'x', std::strlen(*psFile)); // the texts are the library's to write into
    std::memset(*psRidotto, 'x', std::strlen(*psRidotto));
    *pnPunti = 0;
    return 0;
}

/// How often the progress was asked for.
[[gnu::visibility("default")]] int QuanteChieste()
{
    return g_nChieste;
}
}
