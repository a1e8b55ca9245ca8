// PiattaformaCli.cpp - the desktop of the command line.

#include "cli/PiattaformaCli.hpp"

#include "core/ModTesti.hpp"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <ctime>
#include <iostream>

namespace ordavel::cli {

namespace {

volatile std::sig_atomic_t bStopChiesto = 0;
volatile std::sig_atomic_t bSenzaLettore = 0;
volatile std::time_t nOraStop = 0;

extern "C" void ChiediStop(int nSegnale)
{
    const std::time_t nAdesso = std::time(nullptr);
    if (bStopChiesto == 0) {
        bStopChiesto = 1;
        nOraStop = nAdesso;
    } else if (nAdesso > nOraStop + 1) {
        // Whoever asks again does not want to wait; some callers send the first request twice at once.
        std::signal(nSegnale, SIG_DFL);
        std::raise(nSegnale);
    }
}

extern "C" void SegnaSenzaLettore(int /*nSegnale*/)
{
    bSenzaLettore = 1;
}

std::string SuUnaRiga(const std::string& sTesto)
{
    return Sostituisci(sTesto, kCrLf, " ");
}

} // namespace

void PreparaSegnali()
{
    std::signal(SIGINT, ChiediStop);
    std::signal(SIGTERM, ChiediStop);
    std::signal(SIGPIPE, SegnaSenzaLettore);
    std::signal(SIGXFSZ, SIG_IGN);
}

void MuoriSenzaLettore()
{
    if (bSenzaLettore != 0) {
        std::signal(SIGPIPE, SIG_DFL);
        std::raise(SIGPIPE);
    }
}

void PiattaformaCli::ChiamaFile(std::string sProvvisorio, std::string sFile)
{
    m_sProvvisorio = std::move(sProvvisorio);
    m_sFile = std::move(sFile);
}

eRisposta PiattaformaCli::MostraMessaggio(const Messaggio& messaggio)
{
    m_Barra.Cancella();
    Messaggio mostrato = messaggio;
    if (!m_sProvvisorio.empty()) {
        mostrato.sTesto = Sostituisci(mostrato.sTesto, m_sProvvisorio, m_sFile);
    }
    if (mostrato.icona == eIcona::critico) {
        std::cerr << "errore: " << mostrato.sTitolo << ": " << SuUnaRiga(mostrato.sTesto) << std::endl;
    } else if (mostrato.icona == eIcona::avviso || mostrato.icona == eIcona::nessuna) {
        std::cerr << "avviso: " << SuUnaRiga(mostrato.sTesto) << std::endl;
    }
    m_aMessaggi.push_back(std::move(mostrato));
    return messaggio.pulsanti == ePulsanti::siNo ? eRisposta::si : eRisposta::ok;
}

std::string PiattaformaCli::DialogoApri(const RichiestaFile& /*richiesta*/)
{
    return m_sApri;
}

std::string PiattaformaCli::DialogoSalva(const RichiestaFile& /*richiesta*/)
{
    return m_sSalva;
}

void PiattaformaCli::MostraModale(Dialogo& dialogo)
{
    dialogo.Mostra();
    if (m_Dialogo) {
        m_Dialogo(dialogo);
    }
    dialogo.Visibile.Poni(false);
}

void PiattaformaCli::LasciaEventi()
{
    if (m_Evento) {
        m_Evento();
    }
}

float PiattaformaCli::SecondiDaMezzanotte()
{
    const auto adesso = std::chrono::system_clock::now();
    const std::time_t nOra = std::chrono::system_clock::to_time_t(adesso);
    std::tm locale{};
    localtime_r(&nOra, &locale);
    const auto nFrazione = adesso - std::chrono::system_clock::from_time_t(nOra);
    const int nIntero = (locale.tm_hour * 60 + locale.tm_min) * 60 + locale.tm_sec;
    return static_cast<float>(nIntero) + std::chrono::duration<float>(nFrazione).count();
}

bool PiattaformaCli::StopChiesto() noexcept
{
    return bStopChiesto != 0;
}

void PiattaformaCli::Avvisa(const std::string& sTesto)
{
    MostraMessaggio({.icona = eIcona::avviso, .sTitolo = {}, .sTesto = sTesto, .pulsanti = ePulsanti::ok});
}

void PiattaformaCli::Errata(const std::string& sTitolo, const std::string& sTesto)
{
    MostraMessaggio(
        {.icona = eIcona::critico, .sTitolo = sTitolo, .sTesto = sTesto, .pulsanti = ePulsanti::ok});
}

bool PiattaformaCli::Critico() const noexcept
{
    return std::any_of(m_aMessaggi.begin(), m_aMessaggi.end(),
                       [](const Messaggio& m) { return m.icona == eIcona::critico; });
}

} // namespace ordavel::cli
