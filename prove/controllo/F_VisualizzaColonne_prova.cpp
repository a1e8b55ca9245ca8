// F_VisualizzaColonne_prova.cpp - the viewer of the working file.

#include "controllo/F_VisualizzaColonne.hpp"

#include "controllo/SistemaProva.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace ordavel {
namespace {

using prove::ByteDi;
using prove::CartellaProva;
using prove::OspiteProva;
using prove::ScriviFile;
using prove::ScriviFileRado;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The texts of the two columns, joined.
std::vector<std::string> Righe(const F_VisualizzaColonne& vista)
{
    std::vector<std::string> aTesti;
    for (const RigaElenco& riga : vista.ListView1.Righe.Valore()) {
        EXPECT_THAT(riga.aSotto, SizeIs(1));
        aTesti.push_back(riga.sTesto + ": " + riga.aSotto.front());
    }
    return aTesti;
}

class F_VisualizzaColonneProva : public testing::Test {
protected:
    /// The working file has so many columns, and the host gives them.
    void Riempi(std::int32_t nColonne)
    {
        ScriviFileRado(sFile, static_cast<std::uintmax_t>(nColonne) * 20);
        ospite.aColonne.clear();
        for (std::int32_t n = 1; n <= nColonne; ++n) {
            ospite.aColonne.push_back("colonna " + std::to_string(n));
        }
    }

    static std::vector<std::string> Attese(std::int32_t nDa, std::int32_t nA)
    {
        std::vector<std::string> aTesti;
        for (std::int32_t n = nDa; n <= nA; ++n) {
            aTesti.push_back(std::to_string(n) + ": colonna " + std::to_string(n));
        }
        return aTesti;
    }

    CartellaProva cartella;
    std::string sFile = cartella / "Sviluppo.col";
    OspiteProva ospite{5};
};

TEST_F(F_VisualizzaColonneProva, HaLeDueTestate)
{
    EXPECT_THAT(F_VisualizzaColonne(ospite, sFile).ListView1.aTestate, ElementsAre("Colonna", "Numeri"));
}

TEST_F(F_VisualizzaColonneProva, MostraLePrimeVentuno)
{
    Riempi(100);
    const F_VisualizzaColonne vista(ospite, sFile);
    EXPECT_EQ(Righe(vista), Attese(1, 21));
    EXPECT_EQ(vista.Slider1.Minimo.Valore(), 1);
    EXPECT_EQ(vista.Slider1.Massimo.Valore(), 100);
    EXPECT_EQ(vista.Slider1.Valore.Valore(), 1);
    EXPECT_TRUE(vista.Slider1.Abilitato.Valore());
}

TEST_F(F_VisualizzaColonneProva, IlCursoreSpostaLElenco)
{
    Riempi(100);
    F_VisualizzaColonne vista(ospite, sFile);
    vista.Slider1.Valore.Poni(50);
    EXPECT_EQ(Righe(vista), Attese(50, 70));
    EXPECT_EQ(ospite.nColonneLette, 42);
}

TEST_F(F_VisualizzaColonneProva, VicinoAllaFineCeNeSonoMeno)
{
    Riempi(100);
    F_VisualizzaColonne vista(ospite, sFile);
    for (const std::int32_t nPrima : {79, 80, 81, 99, 100}) {
        vista.Slider1.Valore.Poni(nPrima);
        EXPECT_EQ(Righe(vista), Attese(nPrima, std::min(nPrima + 20, 100))) << nPrima;
    }
}

TEST_F(F_VisualizzaColonneProva, UnaColonnaSola)
{
    Riempi(1);
    const F_VisualizzaColonne vista(ospite, sFile);
    EXPECT_EQ(Righe(vista), Attese(1, 1));
    EXPECT_EQ(vista.Slider1.Massimo.Valore(), 1);
}

TEST_F(F_VisualizzaColonneProva, SenzaFileIlCursoreEDisabilitatoELElencoVuoto)
{
    ospite.aColonne = {"non si legge"};
    const F_VisualizzaColonne vista(ospite, sFile);
    EXPECT_FALSE(vista.Slider1.Abilitato.Valore());
    EXPECT_EQ(vista.Slider1.Minimo.Valore(), 1);
    EXPECT_THAT(Righe(vista), IsEmpty());
    EXPECT_EQ(ospite.nColonneLette, 0);
}

TEST_F(F_VisualizzaColonneProva, UnFileVuotoTieneIlCursoreAbilitato)
{
    Riempi(0);
    const F_VisualizzaColonne vista(ospite, sFile);
    EXPECT_TRUE(vista.Slider1.Abilitato.Valore());
    EXPECT_EQ(vista.Slider1.Massimo.Valore(), 0);
    EXPECT_THAT(Righe(vista), IsEmpty());
}

TEST_F(F_VisualizzaColonneProva, IlNumeroDiColonneSiArrotondaAlPari)
{
    for (const auto& [nByte, nColonne] : {std::pair{50U, 2}, {51U, 3}, {70U, 4}}) {
        ScriviFileRado(sFile, nByte);
        EXPECT_EQ(F_VisualizzaColonne(ospite, sFile).Slider1.Massimo.Valore(), nColonne) << nByte;
    }
}

TEST_F(F_VisualizzaColonneProva, LeRigheVuoteInMezzoSiSaltano)
{
    Riempi(4);
    ospite.aColonne[1].clear();
    const F_VisualizzaColonne vista(ospite, sFile);
    EXPECT_THAT(Righe(vista), ElementsAre("1: colonna 1", "3: colonna 3", "4: colonna 4"));
}

TEST_F(F_VisualizzaColonneProva, IlFilePiuGrandeFermaIlCursoreA32Bit)
{
    ScriviFileRado(sFile, 20ULL << 31);
    F_VisualizzaColonne vista(ospite, sFile);
    constexpr auto nMassimo = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(vista.Slider1.Massimo.Valore(), nMassimo);
    vista.Slider1.Valore.Poni(nMassimo);
    EXPECT_EQ(ospite.nColonneLette, 21 + 1);
}

TEST_F(F_VisualizzaColonneProva, CentoMilioniDiColonneSiApronoConVentunoLetture)
{
    ScriviFileRado(sFile, 20ULL * 100'000'000);
    const F_VisualizzaColonne vista(ospite, sFile);
    EXPECT_EQ(vista.Slider1.Massimo.Valore(), 100'000'000);
    EXPECT_EQ(ospite.nColonneLette, 21);
}

/// The viewer as the component opens it, over a real working file.
class VisualizzaColonneOrdavel : public testing::Test, protected prove::SistemaProva {
protected:
    template <typename Azione> void Visualizza(Azione azione)
    {
        piattaforma.Gioca<F_VisualizzaColonne>(azione);
        sistema.Toolbar2_ButtonClick("VisualizzaColonne");
    }
};

TEST_F(VisualizzaColonneOrdavel, LeggeIlFileDiLavoro)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{3, 11, 90}, {}, {1, 2, 4}}));
    Visualizza([](F_VisualizzaColonne& vista) {
        EXPECT_THAT(Righe(vista), ElementsAre("1: 03 11 90", "3: 01 02 04"));
    });
}

TEST_F(VisualizzaColonneOrdavel, CentoMilioniDiColonneFinoAllUltima)
{
    ScriviFileRado(sistema.FileColonne(), 20ULL * 100'000'000 - 20);
    std::ofstream(sistema.FileColonne(), std::ios::binary | std::ios::app) << ByteDi({{7, 8, 9}});
    Visualizza([](F_VisualizzaColonne& vista) {
        EXPECT_THAT(Righe(vista), IsEmpty());
        vista.Slider1.Valore.Poni(vista.Slider1.Massimo.Valore());
        EXPECT_THAT(Righe(vista), ElementsAre("100000000: 07 08 09"));
    });
}

TEST_F(VisualizzaColonneOrdavel, UnFileCheSiAccorciaMostraQuelCheResta)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1}, {2}, {3}}));
    Visualizza([this](F_VisualizzaColonne& vista) {
        std::filesystem::resize_file(sistema.FileColonne(), 40);
        vista.Slider1.Valore.Poni(2);
        EXPECT_THAT(Righe(vista), ElementsAre("2: 02"));
        vista.Slider1.Valore.Poni(3);
        EXPECT_THAT(Righe(vista), IsEmpty());
    });
}

TEST_F(VisualizzaColonneOrdavel, UnFileCheSparisceLasciaLElencoVuotoENonMostraFallimenti)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1}, {2}, {3}}));
    Visualizza([this](F_VisualizzaColonne& vista) {
        std::filesystem::remove(sistema.FileColonne());
        vista.Slider1.Valore.Poni(2);
        EXPECT_THAT(Righe(vista), IsEmpty());
    });
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
}

TEST_F(VisualizzaColonneOrdavel, SenzaFileSiApreVuotoESenzaFallimenti)
{
    Visualizza([](F_VisualizzaColonne& vista) {
        EXPECT_FALSE(vista.Slider1.Abilitato.Valore());
        EXPECT_THAT(Righe(vista), IsEmpty());
    });
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
}

TEST_F(VisualizzaColonneOrdavel, UnPezzoDiColonnaSiLeggeConGliZeriDietro)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1, 2}, {3, 4}}).substr(0, 31));
    Visualizza([](F_VisualizzaColonne& vista) {
        EXPECT_EQ(vista.Slider1.Massimo.Valore(), 2);
        EXPECT_THAT(Righe(vista), ElementsAre("1: 01 02", "2: 03 04"));
    });
}

} // namespace
} // namespace ordavel
