// Sessione_prova.cpp - private folders and files written in one step.

#include "cli/Sessione.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/SenzaPrivilegi.hpp"

#include <gtest/gtest.h>

#include <iterator>
#include <optional>

namespace ordavel::cli {
namespace {

namespace fs = std::filesystem;

std::ptrdiff_t Voci(const std::string& sCartella)
{
    return std::distance(fs::directory_iterator(sCartella), fs::directory_iterator());
}

/// The number of the failure of looking at an output; nothing when it may be written.
std::optional<eErrore> ErroreUscita(const std::string& sFile, const std::string& sIngresso)
{
    try {
        ControllaUscita(sFile, sIngresso);
        return std::nullopt;
    } catch (const Errore& errore) {
        return errore.Numero();
    }
}

TEST(CartellaPrivata, NasceDentroUnAltraESparisceConTutto)
{
    const prove::CartellaProva cartella;
    const std::string sBase = cartella / "nuova/base";
    {
        const CartellaPrivata privata(sBase);
        EXPECT_EQ(privata.Path().find(sBase + "/"), 0U);
        EXPECT_TRUE(privata.Path().ends_with('/'));
        EXPECT_EQ(fs::status(privata.Path()).permissions(), fs::perms::owner_all);
        prove::ScriviFile(privata.Path() + "file", "x");
        EXPECT_EQ(Voci(sBase), 1);
    }
    EXPECT_EQ(Voci(sBase), 0);
}

TEST(CartellaPrivata, DueNonSiIncontrano)
{
    const prove::CartellaProva cartella;
    const CartellaPrivata una(cartella / "");
    const CartellaPrivata altra(cartella / "");
    EXPECT_NE(una.Path(), altra.Path());
}

TEST(CartellaPrivata, NonNasceDentroUnFile)
{
    const prove::CartellaProva cartella;
    prove::ScriviFile(cartella / "file", "x");
    EXPECT_THROW(CartellaPrivata(cartella / "file"), Errore);
    EXPECT_EQ(prove::LeggiFile(cartella / "file"), "x");
}

TEST(ControllaUscita, UnFileNuovoOVecchioVaBeneENonCambia)
{
    const prove::CartellaProva cartella;
    prove::ScriviFile(cartella / "vecchio", "x");
    EXPECT_EQ(ErroreUscita(cartella / "nuovo", cartella / "vecchio"), std::nullopt);
    EXPECT_EQ(ErroreUscita(cartella / "vecchio", cartella / "altro"), std::nullopt);
    EXPECT_EQ(Voci(cartella / ""), 1);
    EXPECT_EQ(prove::LeggiFile(cartella / "vecchio"), "x");
}

TEST(ControllaUscita, SenzaNomeOSulFileDaLeggereNo)
{
    const prove::CartellaProva cartella;
    prove::ScriviFile(cartella / "testo", "x");
    EXPECT_EQ(ErroreUscita("", {}), eErrore::argomento);
    EXPECT_EQ(
        ErroreUscita(cartella / "../" + fs::path(cartella / "").parent_path().filename().string() + "/testo",
                     cartella / "testo"),
        eErrore::argomento);
}

TEST(ControllaUscita, NonTuttoEUnFile)
{
    const prove::CartellaProva cartella;
    EXPECT_EQ(ErroreUscita(cartella / "", {}), eErrore::accessoPercorso);
    EXPECT_EQ(ErroreUscita("/dev/null", {}), eErrore::accessoPercorso);
    EXPECT_EQ(ErroreUscita(cartella / "manca/file", {}), eErrore::percorsoNonTrovato);
    EXPECT_EQ(ErroreUscita(cartella / std::string(300, 'a'), {}), eErrore::percorsoNonTrovato);
}

TEST(ControllaUscita, SenzaPermessoNo)
{
    const prove::CartellaProva cartella;
    prove::ScriviFile(cartella / "file", "x");
    fs::permissions(cartella / "file", fs::perms::owner_read);
    fs::permissions(cartella / "", fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_exec);
    {
        const prove::SenzaPrivilegi privilegi;
        ASSERT_TRUE(privilegi.Riuscito());
        EXPECT_EQ(ErroreUscita(cartella / "nuovo", {}), eErrore::permesso);
    }
    fs::permissions(cartella / "", fs::perms::owner_all);
}

TEST(ScriviAlPosto, IlFileNuovoPrendeIlPostoDelVecchio)
{
    const prove::CartellaProva cartella;
    PiattaformaCli desktop(false);
    prove::ScriviFile(cartella / "file", "vecchio");
    EXPECT_TRUE(ScriviAlPosto(desktop, cartella / "file", [&](const std::string& sProvvisorio) {
        EXPECT_EQ(prove::LeggiFile(cartella / "file"), "vecchio");
        EXPECT_NE(sProvvisorio, cartella / "file");
        prove::ScriviFile(sProvvisorio, "nuovo");
        return true;
    }));
    EXPECT_EQ(prove::LeggiFile(cartella / "file"), "nuovo");
    EXPECT_EQ(Voci(cartella / ""), 1);
}

TEST(ScriviAlPosto, ChiRinunciaLasciaIlVecchio)
{
    const prove::CartellaProva cartella;
    PiattaformaCli desktop(false);
    prove::ScriviFile(cartella / "file", "vecchio");
    EXPECT_FALSE(ScriviAlPosto(desktop, cartella / "file", [](const std::string& sProvvisorio) {
        prove::ScriviFile(sProvvisorio, "a metà");
        return false;
    }));
    EXPECT_EQ(prove::LeggiFile(cartella / "file"), "vecchio");
    EXPECT_EQ(Voci(cartella / ""), 1);
}

TEST(ScriviAlPosto, UnErroreNonLasciaAvanzi)
{
    const prove::CartellaProva cartella;
    PiattaformaCli desktop(false);
    EXPECT_THROW(ScriviAlPosto(desktop, cartella / "file",
                               [](const std::string& sProvvisorio) -> bool {
                                   prove::ScriviFile(sProvvisorio, "a metà");
                                   throw Errore(eErrore::discoPieno);
                               }),
                 Errore);
    EXPECT_EQ(Voci(cartella / ""), 0);
}

TEST(ScriviAlPosto, UnCollegamentoRestaTale)
{
    const prove::CartellaProva cartella;
    PiattaformaCli desktop(false);
    prove::ScriviFile(cartella / "vero", "vecchio");
    fs::create_symlink("vero", cartella / "altro");
    EXPECT_TRUE(ScriviAlPosto(desktop, cartella / "altro", [](const std::string& sProvvisorio) {
        prove::ScriviFile(sProvvisorio, "nuovo");
        return true;
    }));
    EXPECT_TRUE(fs::is_symlink(cartella / "altro"));
    EXPECT_EQ(prove::LeggiFile(cartella / "vero"), "nuovo");
}

TEST(Sessione, UnSistemaSiApreConLeEstrazioniEmulateDellaCartella)
{
    const prove::CartellaProva cartella;
    prove::ScriviFile(cartella / "vuoto.sic", "SISTOCX" + std::string(310, '\0'));
    prove::ScriviFile(cartella / "Emulatore.dat", std::string(91, '\1'));
    prove::ScriviFile(cartella / "Sviluppo.col", "di un altro");
    {
        Sessione sessione(false);
        ASSERT_TRUE(sessione.Apri(cartella / "vuoto.sic", cartella / ""));
        EXPECT_EQ(prove::LeggiFile(sessione.Sistema().PercorsoTemp() + "Emulatore.dat"),
                  std::string(91, '\1'));
        EXPECT_EQ(Voci(cartella / ""), 4);
    }
    EXPECT_EQ(Voci(cartella / ""), 3);
    EXPECT_EQ(prove::LeggiFile(cartella / "Sviluppo.col"), "di un altro");
}

} // namespace
} // namespace ordavel::cli
