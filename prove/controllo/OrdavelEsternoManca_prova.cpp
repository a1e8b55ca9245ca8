// OrdavelEsternoManca_prova.cpp - the external engine is missing, or lacks a function: the component stays usable.
//
// The library is looked for beside the program. Each test runs this program again from a folder where it stands
// beside another library, or none.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace ordavel {
namespace {

using prove::ByteDi;
using prove::Domanda;
using prove::Fallimento;
using prove::NumeroErrore;
using testing::ElementsAre;

namespace fs = std::filesystem;

constexpr std::string_view kClick = "OrdavelSis.Toolbar2_ButtonClick";
constexpr const char* kFiglio = "ORDAVEL_PROVA_FIGLIO";

class OrdavelEsternoManca : public testing::Test, protected prove::SistemaProva {
protected:
    OrdavelEsternoManca()
    {
        Pronostico(3, 1, 5);
        sistema.Controlli().CmbMotSviluppo.Indice.Poni(1);
    }

    /// Is this the program that stands beside the library sLibreria (none when it is empty)? If not, it is run.
    static bool Figlio(const std::string& sLibreria)
    {
        if (std::getenv(kFiglio) != nullptr) { // NOLINT(concurrency-mt-unsafe)
            return true;
        }
        const fs::path programma = fs::read_symlink("/proc/self/exe");
        const std::string sNome = testing::UnitTest::GetInstance()->current_test_info()->name();
        const fs::path posto = programma.parent_path() / ("figlio-" + sNome);
        fs::remove_all(posto);
        fs::create_directories(posto);
        fs::create_hard_link(programma, posto / "programma");
        if (!sLibreria.empty()) {
            fs::copy_file(programma.parent_path() / sLibreria, posto / "TorvanSvilSist.so");
        }
        const std::string sComando = std::string(kFiglio) + "=1 '" + (posto / "programma").string() +
                                     "' --gtest_filter=OrdavelEsternoManca." + sNome + " --gtest_output= >&2";
        EXPECT_EQ(std::system(sComando.c_str()), 0); // NOLINT(cert-env33-c,concurrency-mt-unsafe)
        fs::remove_all(posto);
        return false;
    }

    /// No run is on its way, and the internal engine works.
    void ExpectFermo()
    {
        EXPECT_FALSE(sistema.Controlli().Timer1.Acceso.Valore());
        EXPECT_FALSE(sistema.Controlli().PanSviluppo.Visibile.Valore());
        EXPECT_FALSE(Abilitato("Stop"));
        EXPECT_TRUE(Abilitato("SviluppaCond"));
        EXPECT_EQ(sistema.FileSistema(), "");
        sistema.Controlli().CmbMotSviluppo.Indice.Poni(0);
        Sviluppa();
        EXPECT_EQ(sistema.QuantitaColonne(), 10);
        EXPECT_TRUE(sistema.ColonneValide());
    }

    const Errore kManca{eErrore::fileNonTrovato, "TorvanSvilSist"};
    const Errore kMonca{eErrore::membro, "TorvanSvilSist.GetCondizionate"};
};

TEST_F(OrdavelEsternoManca, SenzaLibreriaSiMostraCheManca)
{
    if (!Figlio("")) {
        return;
    }
    prove::ScriviFile(sistema.FileColonne(), ByteDi({{1, 2, 3}}));
    sistema.Toolbar2_ButtonClick("SviluppaCond");
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento(kClick, kManca)));
    EXPECT_FALSE(sistema.ColonneValide());
    EXPECT_FALSE(fs::exists(sistema.FileColonne()));
    EXPECT_FALSE(Abilitato("VisualizzaColonne"));
    EXPECT_FALSE(Abilitato("FiltraSvilPrec"));
    ExpectFermo();
}

TEST_F(OrdavelEsternoManca, SenzaLibreriaChiNonPassaDallaBarraRiceveIlFallimento)
{
    if (!Figlio("")) {
        return;
    }
    EXPECT_EQ(NumeroErrore([&] { sistema.GestSviluppo(); }), 53);
    EXPECT_EQ(NumeroErrore([&] { sistema.AggiornaProgressSviluppoDll(); }), 53);
    ExpectFermo();
}

TEST_F(OrdavelEsternoManca, SenzaLibreriaUnFiltroSiFermaLoStesso)
{
    if (!Figlio("")) {
        return;
    }
    prove::ScriviFileRado(cartella / "tante.col", 20 * 50'000);
    {
        std::fstream file(cartella / "tante.col", std::ios::binary | std::ios::in | std::ios::out);
        file.write(ByteDi({{1, 2, 3}}).data(), 20);
    }
    piattaforma.Rispondi(eRisposta::si);
    piattaforma.eventi = [this] {
        if (piattaforma.nEventi == 2) {
            sistema.Toolbar2_ButtonClick("Stop");
        }
    };
    EXPECT_TRUE(sistema.GestSviluppoDaFileColonne(cartella / "tante.col"));
    piattaforma.eventi = {};
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Domanda("Interrompere ?"), Fallimento(kClick, kManca), prove::FineSviluppo()));
    EXPECT_FALSE(sistema.ColonneValide());
}

TEST_F(OrdavelEsternoManca, UnaFunzioneCheMancaSiDiceAncheDagliScattiUnaVolta)
{
    if (!Figlio("monco/TorvanSvilSist.so")) {
        return;
    }
    setenv("ORDAVEL_FINTO", "lento", 1); // NOLINT(concurrency-mt-unsafe)
    piattaforma.eventi = [&] {
        if (sistema.Controlli().Timer1.Acceso.Valore()) {
            sistema.Controlli().Timer1.scatto();
            EXPECT_FALSE(sistema.Controlli().Timer1.Acceso.Valore());
        } else if (Abilitato("Stop") && !sistema.UltimoSviluppo().bStopSviluppo && piattaforma.nEventi > 20) {
            piattaforma.Rispondi(eRisposta::si);
            sistema.Toolbar2_ButtonClick("Stop");
        }
    };
    sistema.Toolbar2_ButtonClick("SviluppaCond");
    piattaforma.eventi = {};
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento("OrdavelSis.Timer1_Timer", kMonca),
                                                    Domanda("Interrompere ?"), Fallimento(kClick, kMonca)));
    EXPECT_EQ(ByteColonne(), ByteDi({{1, 2, 3}}));
    ExpectFermo();
}

} // namespace
} // namespace ordavel
