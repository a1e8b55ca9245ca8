// Sviluppatore.cpp - the system file, the columns, the counters, and the reason when something fails.

#include "Sviluppatore.hpp"

#include "condizioni/ModCompila.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "emulatore/ModEmulatore.hpp"
#include "persistenza/CampiRecord.hpp"
#include "persistenza/ModFileSistema.hpp"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <new>
#include <string_view>
#include <thread>

namespace ordavel::torvansvilsist {

namespace fs = std::filesystem;

namespace {

/// What a run leaves in a record, taken from another.
void PoniRisultati(const RecordCondizione& da, RecordCondizione& a)
{
    a.Valore = da.Valore;
    a.Valore2 = da.Valore2;
    a.ContaKo = da.ContaKo;
    a.ContaOk = da.ContaOk;
    a.ContaRec = da.ContaRec;
    a.Esito = da.Esito;
    a.EsitoRec = da.EsitoRec;
    a.EsitoLink = da.EsitoLink;
}

/// The system file, and the state that a run over it begins with.
class Sistema {
public:
    explicit Sistema(const std::string& sPath) : m_File(ApriEsistente(sPath))
    {
        std::optional<ParteSistema> parte = LeggiParteSistema(m_File);
        if (!parte) {
            throw Errore(eErrore::indice, sPath);
        }
        m_Parte = std::move(*parte);
        stato.aQuadroRec = m_Parte.aQuadroRec;
        stato.aCondizioni = m_Parte.aCondizioni;
        stato.aCondizioni.resize(std::max<std::size_t>(stato.aCondizioni.size(), 1));
        for (RecordCondizione& record : stato.aCondizioni) {
            PoniRisultati({}, record);
        }
        stato.nCondizioni = static_cast<std::int32_t>(stato.aCondizioni.size());
        EstendiRecuperiSequenze(stato.aCondizioni);
    }

    [[nodiscard]] std::int16_t Classe() const noexcept { return m_Parte.nClasse; }
    [[nodiscard]] std::int16_t Limite() const noexcept
    {
        const int nLimite = m_Parte.nClasse - m_Parte.nRiduzione;
        return static_cast<std::int16_t>(std::clamp(nLimite, 0, kNumeriColonna + 1));
    }

    /// The picks, compact.
    [[nodiscard]] NumeriScelti Numeri() const
    {
        NumeriScelti aNumeri;
        std::int16_t nPosto = 0;
        for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
            if (m_Parte.aNumeri[n] != 0) {
                aNumeri[++nPosto] = n;
            }
        }
        return aNumeri;
    }

    /// Writes the results back, over as many bytes as there were.
    void Riscrivi()
    {
        for (std::size_t i = 0; i < m_Parte.aCondizioni.size(); ++i) {
            PoniRisultati(stato.aCondizioni[i], m_Parte.aCondizioni[i]);
        }
        const std::vector<std::byte> aByte = ComponiParteSistema(m_Parte, m_Parte.aCondizioni);
        m_File.Scrivi(kByteParteFissa + 1, std::span(aByte).subspan(kByteParteFissa));
        m_File.Chiudi();
    }

    StatoSviluppo stato;

private:
    /// For writing as well, so that a file that takes no results is known of at once.
    [[nodiscard]] static FileBinario ApriEsistente(const std::string& sPath)
    {
        FileBinario(sPath, eApertura::lettura).Chiudi();
        return {sPath, eApertura::scrittura};
    }

    FileBinario m_File;
    ParteSistema m_Parte;
};

void CaricaEmulatore(const std::string& sFile, StatoSviluppo& stato)
{
    std::vector<RigaEmulatore> aRighe(1);
    if (sFile != "-") {
        LeggiFileEmulatore(sFile, aRighe);
    }
    stato.aEmulatore = RigheEmulatore(std::move(aRighe));
    stato.bEmulatoreCaricato = true;
}

/// The column file of a run, which holds whole columns whatever happens.
class FileColonne {
public:
    explicit FileColonne(std::string sPath)
        : m_sPath(std::move(sPath)), m_File(m_sPath, eApertura::scrittura), m_nInizio(m_File.Lunghezza())
    {}

    [[nodiscard]] FileBinario& File() noexcept { return m_File; }

    /// Cuts off what a failed write has left of a column.
    void TogliResto() noexcept
    {
        std::error_code codice;
        const auto nLunghezza = static_cast<std::int64_t>(fs::file_size(m_sPath, codice));
        if (!codice && nLunghezza > m_nInizio) {
            const std::int64_t nResto = (nLunghezza - m_nInizio) % kByteColonna;
            fs::resize_file(m_sPath, static_cast<std::uintmax_t>(nLunghezza - nResto), codice);
        }
    }

private:
    std::string m_sPath;
    FileBinario m_File;
    std::int64_t m_nInizio;
};

FineTratti Sviluppa(const Richiesta& richiesta, Sistema& sistema, ComandiTratti& comandi)
{
    CaricaEmulatore(richiesta.sEmulatore, sistema.stato);
    FileColonne colonne(richiesta.sCartella + "Sviluppo.col");
    try {
        const FineTratti fine =
            SviluppaTratti(sistema.Numeri(), sistema.Classe(), sistema.Limite(), colonne.File(),
                           sistema.stato, comandi, {.nFili = FiliConcessi()});
        colonne.File().Chiudi();
        return fine;
    } catch (...) {
        colonne.TogliResto();
        throw;
    }
}

FineTratti Esegui(const Richiesta& richiesta, ComandiTratti& comandi)
{
    Sistema sistema(richiesta.sSistema);
    try {
        const FineTratti fine = Sviluppa(richiesta, sistema, comandi);
        sistema.Riscrivi();
        return fine;
    } catch (...) {
        const std::exception_ptr fallimento = std::current_exception();
        try {
            sistema.Riscrivi();
        } catch (const std::exception&) {
            // The first failure is the one to be told.
        }
        std::rethrow_exception(fallimento);
    }
}

std::string FileErrore(const Richiesta& richiesta)
{
    return richiesta.sCartella + "Sviluppo.err";
}

/// Tells why a run has failed: in a file beside the others, and on the error stream.
void Racconta(const Richiesta& richiesta, std::string_view sMotivo) noexcept
{
    try {
        std::fprintf(stderr, "errore: TorvanSvilSist: %.*s\n", static_cast<int>(sMotivo.size()),
                     sMotivo.data());
        std::ofstream(FileErrore(richiesta), std::ios::binary | std::ios::trunc) << sMotivo << '\n';
    } catch (const std::exception&) {
        // Nothing is left to be told to.
    }
}

int Fallito(const Richiesta& richiesta, const Errore& errore) noexcept
{
    Racconta(richiesta, TestoFallimento(errore));
    return static_cast<int>(errore.Numero());
}

} // namespace

unsigned FiliConcessi()
{
    constexpr unsigned kFiliMassimi = 256;
    const unsigned nMacchina = std::clamp(std::thread::hardware_concurrency(), 1U, kFiliMassimi);
    const char* sValore = std::getenv("ORDAVEL_THREADS");
    if (sValore == nullptr || *sValore == '\0') {
        return nMacchina;
    }
    const std::string_view sTesto(sValore);
    unsigned nFili = 0;
    const auto [sFine, codice] = std::from_chars(sTesto.data(), sTesto.data() + sTesto.size(), nFili);
    if (codice == std::errc{} && sFine == sTesto.data() + sTesto.size() && nFili >= 1 &&
        nFili <= kFiliMassimi) {
        return nFili;
    }
    std::fprintf(stderr, "avviso: TorvanSvilSist: ORDAVEL_THREADS=%s non è un numero da 1 a %u, uso %u\n",
                 sValore, kFiliMassimi, nMacchina);
    return nMacchina;
}

int SviluppaFile(const Richiesta& richiesta, ComandiTratti& comandi) noexcept
{
    try {
        std::error_code ignorato;
        fs::remove(FileErrore(richiesta), ignorato);
        if (!Esegui(richiesta, comandi).bContatori) {
            std::fputs("avviso: TorvanSvilSist: i contatori delle condizioni senza stati valgono per le sole "
                       "colonne "
                       "guardate una per una\n",
                       stderr);
        }
        return 0;
    } catch (const Errore& errore) {
        return Fallito(richiesta, errore);
    } catch (const std::bad_alloc&) {
        return Fallito(richiesta, Errore(eErrore::memoria));
    } catch (...) {
        return Fallito(richiesta, Errore(eErrore::dispositivo));
    }
}

} // namespace ordavel::torvansvilsist
