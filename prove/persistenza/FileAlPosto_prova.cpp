// FileAlPosto_prova.cpp - files that take the place of older ones in one step.

#include "persistenza/FileAlPosto.hpp"

#include "ordavel/errore.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/SenzaPrivilegi.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <optional>

namespace ordavel {
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
    prove::ScriviFile(cartella / "file", "vecchio");
    EXPECT_TRUE(ScriviAlPosto(cartella / "file", [&](const std::string& sProvvisorio) {
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
    prove::ScriviFile(cartella / "file", "vecchio");
    EXPECT_FALSE(ScriviAlPosto(cartella / "file", [](const std::string& sProvvisorio) {
        prove::ScriviFile(sProvvisorio, "a metà");
        return false;
    }));
    EXPECT_EQ(prove::LeggiFile(cartella / "file"), "vecchio");
    EXPECT_EQ(Voci(cartella / ""), 1);
}

TEST(ScriviAlPosto, UnErroreNonLasciaAvanzi)
{
    const prove::CartellaProva cartella;
    EXPECT_THROW(ScriviAlPosto(cartella / "file",
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
    prove::ScriviFile(cartella / "vero", "vecchio");
    fs::create_symlink("vero", cartella / "altro");
    EXPECT_TRUE(ScriviAlPosto(cartella / "altro", [](const std::string& sProvvisorio) {
        prove::ScriviFile(sProvvisorio, "nuovo");
        return true;
    }));
    EXPECT_TRUE(fs::is_symlink(cartella / "altro"));
    EXPECT_EQ(prove::LeggiFile(cartella / "vero"), "nuovo");
}

TEST(ScriviAlPosto, UnErroreParlaDelFileENonDelProvvisorio)
{
    const prove::CartellaProva cartella;
    try {
        ScriviAlPosto(cartella / "file", [](const std::string& sProvvisorio) -> bool {
            throw Errore(eErrore::discoPieno, sProvvisorio, 7);
        });
        FAIL() << "nessun errore";
    } catch (const Errore& errore) {
        EXPECT_EQ(TestoFallimento(errore),
                  TestoFallimento(Errore(eErrore::discoPieno, cartella / "file", 7)));
    }
}

} // namespace
} // namespace ordavel
