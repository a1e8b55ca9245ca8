// FileAlPosto.cpp - a file that takes the place of an older one in one step.

#include "persistenza/FileAlPosto.hpp"

#include "ordavel/errore.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"

#include <filesystem>
#include <random>
#include <system_error>
#include <unistd.h>

namespace ordavel {

namespace fs = std::filesystem;

namespace {

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

/// Removes a provisional file, whatever happens, unless it has taken its place.
class Pulizia {
public:
    explicit Pulizia(const std::string& sFile) : m_sFile(sFile) {}
    Pulizia(const Pulizia&) = delete;
    Pulizia& operator=(const Pulizia&) = delete;
    ~Pulizia()
    {
        std::error_code ignorato;
        fs::remove(m_sFile, ignorato);
    }

private:
    const std::string& m_sFile;
};

/// The user knows nothing of the provisional name.
[[noreturn]] void Rilancia(const Errore& errore, const std::string& sProvvisorio, const std::string& sFile)
{
    if (errore.Descrizione().find(sProvvisorio) == std::string::npos) {
        throw errore;
    }
    throw Errore(errore.Numero(), sFile, errore.Linea());
}

} // namespace

std::string NomeUnico(const std::string& sInizio)
{
    static std::random_device sorte;
    return sInizio + std::to_string(sorte()) + std::to_string(sorte());
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
        throw Errore(errore.Numero(), sFile);
    }
}

bool ScriviAlPosto(const std::string& sFile,
                   const std::function<bool(const std::string& sProvvisorio)>& scrivi)
{
    const std::string sVero = Bersaglio(sFile);
    const std::string sProvvisorio = Provvisorio(sVero);
    const Pulizia pulizia(sProvvisorio);
    try {
        if (!scrivi(sProvvisorio)) {
            return false;
        }
    } catch (const Errore& errore) {
        Rilancia(errore, sProvvisorio, sFile);
    }
    std::error_code codice;
    fs::rename(sProvvisorio, sVero, codice);
    Controlla(codice, sFile);
    return true;
}

} // namespace ordavel
