// Sessione.cpp - one component for one command.

#include "cli/Sessione.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/TestoErrato.hpp"
#include "persistenza/FileAlPosto.hpp"

#include <filesystem>
#include <system_error>

namespace ordavel::cli {

namespace fs = std::filesystem;

namespace {

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

bool ScriviAlPosto(PiattaformaCli& desktop, const std::string& sFile,
                   const std::function<bool(const std::string& sProvvisorio)>& scrivi)
{
    return ordavel::ScriviAlPosto(sFile, [&](const std::string& sProvvisorio) {
        desktop.ChiamaFile(sProvvisorio, sFile);
        return scrivi(sProvvisorio);
    });
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
