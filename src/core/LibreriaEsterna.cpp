// LibreriaEsterna.cpp - libraries by the platform's loader.

#include "core/LibreriaEsterna.hpp"

#include "ordavel/errore.hpp"

#include "core/ModFunzGeneriche.hpp"

#include <chrono>
#include <dlfcn.h>
#include <filesystem>
#include <future>
#include <link.h>
#include <system_error>
#include <vector>

namespace ordavel {

namespace {

/// Between two rounds of events.
constexpr std::chrono::milliseconds kPausa{10};

/// The folder of the library or program that this code is part of; empty when it cannot be told.
std::string CartellaPropria()
{
    Dl_info informazioni{};
    void* mappa = nullptr;
    // NOLINTNEXTLINE(*-reinterpret-cast): the loader speaks of addresses
    if (dladdr1(reinterpret_cast<void*>(&CartellaPropria), &informazioni, &mappa, RTLD_DL_LINKMAP) == 0) {
        return {};
    }
    const std::string sNome = static_cast<const link_map*>(mappa)->l_name;
    // The loader has no name for a program. The word that it was called by is none either: found by the shell, it
    // has no folder, which would be the working one.
    std::error_code ignorato;
    return CartellaDi(sNome.empty() ? std::filesystem::read_symlink("/proc/self/exe", ignorato).string()
                                    : sNome);
}

/// Where a library is looked for, in this order.
std::vector<std::string> Percorsi(const std::string& sFile)
{
    const std::string sPropria = CartellaPropria();
    if (sPropria.empty()) {
        return {sFile};
    }
    // A name with a separator in it is taken as it is; one without is looked for by the platform.
    return {sPropria + sFile, sPropria + ORDAVEL_CARTELLA_LIBRERIE "/" + sFile, sFile};
}

} // namespace

void LibreriaEsterna::Carica()
{
    for (const std::string& sPercorso : Percorsi(m_sNome + ".so")) {
        m_Libreria = dlopen(sPercorso.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (m_Libreria != nullptr) {
            return;
        }
    }
    throw Errore(eErrore::fileNonTrovato, m_sNome);
}

void* LibreriaEsterna::Simbolo(const char* sFunzione)
{
    if (m_Libreria == nullptr) {
        Carica();
    }
    void* simbolo = dlsym(m_Libreria, sFunzione);
    if (simbolo == nullptr) {
        throw Errore(eErrore::membro, m_sNome + "." + sFunzione);
    }
    return simbolo;
}

void ChiamaConEventi(const std::function<void()>& chiamata, const std::function<void()>& eventi)
{
    // The end of the future waits for the thread, also when events throw.
    const std::future<void> finita = std::async(std::launch::async, chiamata);
    do {
        eventi();
    } while (finita.wait_for(kPausa) != std::future_status::ready);
}

} // namespace ordavel
