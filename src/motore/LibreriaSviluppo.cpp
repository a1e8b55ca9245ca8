// LibreriaSviluppo.cpp - the four functions of TorvanSvilSist.

#include "motore/LibreriaSviluppo.hpp"

#include "ordavel/errore.hpp"

#include <cstdint>

namespace ordavel {

namespace {

using Inizia = std::int32_t(char*, char*, char*);
using Conta = double();
using Chiama = void();

constexpr const char* kInit = "InitSviluppo";
constexpr const char* kSviluppate = "GetSviluppate";
constexpr const char* kCondizionate = "GetCondizionate";
constexpr const char* kStop = "StopSviluppo";

} // namespace

void LibreriaSviluppo::Controlla()
{
    static_cast<void>(m_Libreria.Funzione<Inizia>(kInit));
    static_cast<void>(m_Libreria.Funzione<Conta>(kSviluppate));
    static_cast<void>(m_Libreria.Funzione<Conta>(kCondizionate));
    static_cast<void>(m_Libreria.Funzione<Chiama>(kStop));
}

void LibreriaSviluppo::InitSviluppo(const std::string& sPercorsoTemp, const std::string& sFileSistema,
                                    const std::string& sFileEmulatore, const std::function<void()>& eventi)
{
    auto* const inizia = m_Libreria.Funzione<Inizia>(kInit);
    std::string sPercorso = sPercorsoTemp;
    std::string sSistema = sFileSistema;
    std::string sEmulatore = sFileEmulatore;
    ChiamaConEventi(
        // What it gives says nothing.
        [&] { static_cast<void>(inizia(sPercorso.data(), sSistema.data(), sEmulatore.data())); },
        [&] {
            try {
                eventi();
            } catch (...) {
                Ferma(); // nobody waits for the columns any more
                throw;
            }
        });
}

double LibreriaSviluppo::GetSviluppate()
{
    return m_Libreria.Funzione<Conta>(kSviluppate)();
}

double LibreriaSviluppo::GetCondizionate()
{
    return m_Libreria.Funzione<Conta>(kCondizionate)();
}

void LibreriaSviluppo::StopSviluppo()
{
    m_Libreria.Funzione<Chiama>(kStop)();
}

/// A stop that may fail: the run then goes on to its end.
void LibreriaSviluppo::Ferma() noexcept
{
    try {
        StopSviluppo();
    } catch (const Errore&) { // NOLINT(bugprone-empty-catch)
    }
}

} // namespace ordavel
