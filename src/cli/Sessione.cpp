// Sessione.cpp - one component for one command.

#include "cli/Sessione.hpp"

#include "cli/TestoErrato.hpp"
#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"

#include <filesystem>
#include <random>
#include <system_error>
#include <unistd.h>

namespace ordavel::cli {

namespace fs = std::filesystem;

namespace {

std::string NomeUnico(const std::string& sInizio)
{
    static std::random_device sorte;
    return sInizio + std::to_string(sorte()) + std::to_string(sorte());
}

/// Not made of the file's own name, which may be as long as a name can be.
std::string Provvisorio(const std::string& sFile)
{
    return NomeUnico(CartellaDi(sFile) + ".ordavel-") + ".tmp";
}

/// The file behind a link; any other as it is.
std::string Bersaglio(const std::string& sFile)
{
    std::error_code codice;
    const fs::path vero = fs::is_symlink(sFile, codice) ? fs::canonical(sFile, codice) : fs::path(sFile);
    return codice ? sFile : vero.string();
}

void Controlla(const std::error_code& codice, const std::string& sFile)
{
    if (codice) {
        throw ErroreDiSistema(codice.value(), sFile);
    }
}

fs::path CartellaTemporanea()
{
    std::error_code codice;
    fs::path cartella = fs::temp_directory_path(codice);
    if (codice) {
        throw Errore(eErrore::percorsoNonTrovato, "la cartella temporanea (TMPDIR)");
    }
    return cartella;
}

/// What stands at the path of an output must be a file that may be replaced, if anything.
void ControllaEsistente(const std::string& sFile, const std::string& sIngresso)
{
    std::error_code codice;
    const auto stato = fs::status(sFile, codice);
    if (stato.type() == fs::file_type::not_found) {
        return;
    }
    Controlla(codice, sFile);
    if (!fs::is_regular_file(stato)) {
        throw Errore(eErrore::accessoPercorso, sFile);
    }
    if (fs::equivalent(sFile, sIngresso, codice)) {
        throw Errore(eErrore::argomento, sFile + " è il file da leggere");
    }
    if (access(sFile.c_str(), W_OK) != 0) {
        throw Errore(eErrore::permesso, sFile);
    }
}

void Cancella(const std::string& sFile)
{
    std::error_code ignorato;
    fs::remove(sFile, ignorato);
}

/// Removes a provisional file, whatever happens, unless it has taken its place.
class Pulizia {
public:
    explicit Pulizia(const std::string& sFile) : m_sFile(sFile) {}
    Pulizia(const Pulizia&) = delete;
    Pulizia& operator=(const Pulizia&) = delete;
    ~Pulizia() { Cancella(m_sFile); }

private:
    const std::string& m_sFile;
};

} // namespace

CartellaPrivata::CartellaPrivata(const std::string& sBase)
{
    const fs::path base = sBase.empty() ? CartellaTemporanea() : fs::path(sBase);
    std::error_code codice;
    fs::create_directories(base, codice);
    Controlla(codice, base.string());
    const std::string sPath = NomeUnico((base / "ordavel-").string());
    fs::create_directory(sPath, codice);
    Controlla(codice, base.string());
    m_sPath = ConSeparatore(sPath);
    fs::permissions(m_sPath, fs::perms::owner_all, codice);
}

CartellaPrivata::~CartellaPrivata()
{
    std::error_code ignorato;
    fs::remove_all(m_sPath, ignorato);
}

Sessione::Sessione(bool bBarra) : m_Piattaforma(bBarra), m_Ordavel(m_Piattaforma) {}

bool Sessione::Apri(const std::string& sFile, const std::string& sTemp)
{
    const std::string sEmulate = ConSeparatore(sTemp) + "Emulatore.dat";
    m_Cartella.emplace(sTemp);
    m_Ordavel.PoniPercorsoTemp(m_Cartella->Path());
    if (!sTemp.empty() && FileEsiste(sEmulate)) {
        std::error_code codice;
        fs::copy_file(sEmulate, m_Cartella->Path() + "Emulatore.dat", codice);
        Controlla(codice, sEmulate);
    }
    m_Piattaforma.RispondiApri(sFile);
    return m_Ordavel.Apri() && !m_Piattaforma.Critico();
}

void Sessione::UsaCartellaPropria()
{
    m_Cartella.emplace("");
    m_Ordavel.PoniPercorsoTemp(m_Cartella->Path());
}

void Sessione::UsaColonne(const std::string& sFile)
{
    FileBinario(sFile, eApertura::lettura).Chiudi();
    UsaCartellaPropria();
    std::error_code codice;
    fs::create_symlink(fs::absolute(sFile), m_Ordavel.FileColonne(), codice);
    Controlla(codice, m_Ordavel.FileColonne());
}

void ControllaUscita(const std::string& sFile, const std::string& sIngresso)
{
    if (sFile.empty()) {
        throw Errore(eErrore::argomento, "manca il nome del file da scrivere");
    }
    ControllaEsistente(sFile, sIngresso);
    const std::string sProvvisorio = Provvisorio(Bersaglio(sFile));
    const Pulizia pulizia(sProvvisorio);
    try {
        FileBinario(sProvvisorio, eApertura::scrittura).Chiudi();
    } catch (const Errore& errore) {
        // The user knows nothing of the provisional name.
        throw Errore(errore.Numero(), sFile);
    }
}

bool ScriviAlPosto(PiattaformaCli& desktop, const std::string& sFile,
                   const std::function<bool(const std::string& sProvvisorio)>& scrivi)
{
    const std::string sVero = Bersaglio(sFile);
    const std::string sProvvisorio = Provvisorio(sVero);
    const Pulizia pulizia(sProvvisorio);
    desktop.ChiamaFile(sProvvisorio, sFile);
    if (!scrivi(sProvvisorio)) {
        return false;
    }
    std::error_code codice;
    fs::rename(sProvvisorio, sVero, codice);
    Controlla(codice, sFile);
    return true;
}

bool SalvaAlPosto(Sessione& sessione, const std::string& sSistema)
{
    return ScriviAlPosto(sessione.Desktop(), sSistema, [&](const std::string& sProvvisorio) {
        std::string sFile = sProvvisorio;
        return sessione.Sistema().Salva(sFile, true) && !sessione.Desktop().Critico();
    });
}

bool Protetto(Sessione& sessione, const std::string& sTitolo, const std::function<bool()>& lavoro)
{
    bool bFatto = false;
    ConGestore(sessione.Desktop(), sTitolo, [&] {
        try {
            bFatto = lavoro();
        } catch (const TestoErrato& errore) {
            sessione.Desktop().Errata(sTitolo, errore.what());
        }
    });
    return bFatto;
}

} // namespace ordavel::cli
