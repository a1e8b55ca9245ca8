// OrdavelInterfaccia_prova.cpp - the whole public face of the component: every member called once, both events.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/SistemaProva.hpp"
#include "core/FileBinario.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <ostream>
#include <type_traits>

namespace ordavel {
namespace {

using prove::ByteDi;
using prove::ColonnaDi;
using prove::NumeroErrore;
using testing::ElementsAre;
using testing::IsEmpty;

/// A system of class 2 over 3, 8 and 40.
struct Banco : prove::SistemaProva {
    Banco() { Pronostico(2, {3, 8, 40}); }

    /// A number of columns in the working file.
    void FileDiLavoro() { prove::ScriviFile(sistema.FileColonne(), ByteDi({{3, 8}, {3, 40}})); }

    const Colonna colonna = ColonnaDi({3, 4, 6, 17, 19}).colonna;
};

/// One member: its place, its name, and a call of it.
struct Membro {
    int nPosto;
    std::string_view sNome;
    void (*chiama)(Banco& banco);

    friend std::ostream& operator<<(std::ostream& uscita, const Membro& m) { return uscita << m.sNome; }
};

// What a member gives is part of its face.
static_assert(std::is_same_v<decltype(std::declval<Ordavel&>().ColonneIntegrali()), double>);
static_assert(std::is_same_v<decltype(std::declval<Ordavel&>().classe()), std::int16_t>);
static_assert(std::is_same_v<decltype(std::declval<Ordavel&>().NumeroThreadsSviluppo()), std::int16_t>);
static_assert(std::is_same_v<decltype(std::declval<Ordavel&>().QuantitaColonne()), std::int32_t>);
static_assert(std::is_same_v<decltype(std::declval<Ordavel&>().ContaNumeriSel()), std::int32_t>);
static_assert(std::is_same_v<decltype(std::declval<Ordavel&>().GetIdCmbTipoGioco()), std::int16_t>);
static_assert(
    std::is_same_v<decltype(std::declval<Ordavel&>().GetQuantitaColDaEmulareFromGrid()), std::int16_t>);
static_assert(static_cast<std::int32_t>(eMotoreSviluppo::interno) == 1);
static_assert(static_cast<std::int32_t>(eMotoreSviluppo::esterno) == 2);

constexpr auto kMembri = std::to_array<Membro>({
    {0, "FileBdWF", [](Banco& b) { EXPECT_EQ(b.sistema.FileBdWF(), ""); }},
    {1, "FileBdWF",
     [](Banco& b) {
         b.sistema.PoniFileBdWF("wf");
         EXPECT_EQ(b.sistema.FileBdWF(), "wf");
     }},
    {2, "FileBdLotto", [](Banco& b) { EXPECT_EQ(b.sistema.FileBdLotto(), ""); }},
    {3, "FileBdLotto",
     [](Banco& b) {
         b.sistema.PoniFileBdLotto("lotto");
         EXPECT_EQ(b.sistema.FileBdLotto(), "lotto");
     }},
    {4, "FileBd10Lotto", [](Banco& b) { EXPECT_EQ(b.sistema.FileBd10Lotto(), ""); }},
    {5, "FileBd10Lotto",
     [](Banco& b) {
         b.sistema.PoniFileBd10Lotto("dieci");
         EXPECT_EQ(b.sistema.FileBd10Lotto(), "dieci");
     }},
    {6, "FileBd10Lotto5M", [](Banco& b) { EXPECT_EQ(b.sistema.FileBd10Lotto5M(), ""); }},
    {7, "FileBd10Lotto5M",
     [](Banco& b) {
         b.sistema.PoniFileBd10Lotto5M("cinque");
         EXPECT_EQ(b.sistema.FileBd10Lotto5M(), "cinque");
     }},
    {8, "FileBdSE", [](Banco& b) { EXPECT_EQ(b.sistema.FileBdSE(), ""); }},
    {9, "FileBdSE",
     [](Banco& b) {
         b.sistema.PoniFileBdSE("se");
         EXPECT_EQ(b.sistema.FileBdSE(), "se");
     }},
    {10, "DirSistemi", [](Banco& b) { EXPECT_EQ(b.sistema.DirSistemi(), b.cartella / "sistemi/"); }},
    {11, "DirSistemi",
     [](Banco& b) {
         EXPECT_TRUE(b.sistema.PoniDirSistemi(b.cartella / "altri"));
         EXPECT_EQ(b.sistema.DirSistemi(), b.cartella / "altri/");
     }},
    {12, "ColonneIntegrali", [](Banco& b) { EXPECT_EQ(b.sistema.ColonneIntegrali(), 3); }},
    {13, "MotoreSviluppo", [](Banco& b) { EXPECT_EQ(b.sistema.MotoreSviluppo(), eMotoreSviluppo::interno); }},
    {14, "MotoreSviluppo",
     [](Banco& b) {
         b.sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
         EXPECT_EQ(b.sistema.MotoreSviluppo(), eMotoreSviluppo::esterno);
     }},
    {15, "GetGridCond",
     [](Banco& b) {
         b.sistema.GetGridCond().Riga(1).sCondizione = "Ponte";
         EXPECT_TRUE(b.sistema.IsCondizionePresente("Ponte"));
     }},
    {16, "GetLbQuadroRec",
     [](Banco& b) { EXPECT_EQ(&b.sistema.GetLbQuadroRec(), &b.sistema.Controlli().LbQuadroRec); }},
    {17, "SetColonnaGrid",
     [](Banco& b) {
         b.sistema.SetColonnaGrid(12);
         EXPECT_EQ(b.sistema.GetGridCond().Corrente(), 12);
         EXPECT_EQ(b.sistema.Controlli().GrdCond.PrimaColonna.Valore(), 4);
     }},
    {18, "GetColonneSviluppo",
     [](Banco& b) {
         b.FileDiLavoro();
         std::vector<Colonna> aColonne;
         EXPECT_FALSE(b.sistema.GetColonneSviluppo(aColonne));
         EXPECT_EQ(aColonne.size(), 2);
     }},
    {19, "GetColonnaSviluppo",
     [](Banco& b) {
         b.FileDiLavoro();
         EXPECT_EQ(b.sistema.GetColonnaSviluppo(2), "03 40");
     }},
    {20, "GetColonnaSviluppoFromFile",
     [](Banco& b) {
         b.FileDiLavoro();
         FileBinario file(b.sistema.FileColonne(), eApertura::lettura);
         EXPECT_EQ(b.sistema.GetColonnaSviluppoFromFile(1, file), "03 08");
     }},
    {21, "GetNumeriSel",
     [](Banco& b) {
         const NumeriScelti aNumeri = b.sistema.GetNumeriSel();
         EXPECT_THAT((std::array{aNumeri(1), aNumeri(2), aNumeri(3), aNumeri(4), aNumeri(90)}),
                     ElementsAre(3, 8, 40, 0, 0));
     }},
    {22, "ContaNumeriSel", [](Banco& b) { EXPECT_EQ(b.sistema.ContaNumeriSel(), 3); }},
    {23, "SelezionaNumero",
     [](Banco& b) {
         b.sistema.SelezionaNumero(90, true);
         b.sistema.SelezionaNumero(3, false);
         EXPECT_FALSE(b.sistema.Controlli().SelnovoNumeri1.Scelto(3));
         EXPECT_TRUE(b.sistema.Controlli().SelnovoNumeri1.Scelto(90));
     }},
    {24, "InsCondizione",
     [](Banco& b) {
         b.sistema.InsCondizione(TipoCondizione::ponte, "1");
         EXPECT_EQ(b.sistema.GetGridCond().Riga(1).sCondizione, "Ponte");
     }},
    {25, "AggiornaProgressSviluppoDll",
     [](Banco& b) {
         EXPECT_EQ(NumeroErrore([&] { b.sistema.AggiornaProgressSviluppoDll(); }), 11) << "nessuna corsa";
         b.Sviluppa();
         b.sistema.Controlli().LabSviluppate.Testo.Poni("prima");
         b.sistema.AggiornaProgressSviluppoDll();
         EXPECT_NE(b.sistema.Controlli().LabSviluppate.Testo.Valore(), "prima");
     }},
    {26, "GestSviluppo",
     [](Banco& b) {
         b.Sviluppa();
         EXPECT_EQ(b.sistema.QuantitaColonne(), 3);
     }},
    {27, "GestSviluppoDaFileColonne",
     [](Banco& b) {
         prove::ScriviFile(b.cartella / "c.col", ByteDi({{1, 2}, {3, 4}}));
         b.Filtra(b.cartella / "c.col");
         EXPECT_EQ(b.sistema.QuantitaColonne(), 2);
     }},
    {28, "SelezionaComboMotSviluppo",
     [](Banco& b) {
         b.sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
         b.sistema.SelezionaComboMotSviluppo();
         EXPECT_EQ(b.sistema.Controlli().CmbMotSviluppo.Testo(), "Esterno");
     }},
    {29, "SetNum", [](Banco& b) { b.sistema.SetNum(90, true); }},
    {30, "Deinit",
     [](Banco& b) {
         b.sistema.Deinit();
         EXPECT_EQ(Ordavel::Pubblicato(), nullptr);
     }},
    {31, "classe", [](Banco& b) { EXPECT_EQ(b.sistema.classe(), 2); }},
    {32, "classe",
     [](Banco& b) {
         b.sistema.PoniClasse(3);
         EXPECT_EQ(b.sistema.Controlli().CmbClasse.Testo(), "3");
     }},
    {33, "NumeroThreadsSviluppo", [](Banco& b) { EXPECT_EQ(b.sistema.NumeroThreadsSviluppo(), 5); }},
    {34, "NumeroThreadsSviluppo",
     [](Banco& b) {
         b.sistema.PoniNumeroThreadsSviluppo(8);
         EXPECT_EQ(b.sistema.NumeroThreadsSviluppo(), 8);
     }},
    {35, "QuantitaColonne",
     [](Banco& b) {
         b.FileDiLavoro();
         EXPECT_EQ(b.sistema.QuantitaColonne(), 2);
     }},
    {36, "CalcolaBaricentro", [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaBaricentro(5, b.colonna), 10); }},
    {37, "CalcolaPonte", [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaPonte(5, b.colonna), 2); }},
    {38, "CalcolaAmpiezza", [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaAmpiezza(5, b.colonna), 16); }},
    {39, "CalcolaDistanzaMinima",
     [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaDistanzaMinima(5, b.colonna), 1); }},
    {40, "CalcolaDistanzaMassima",
     [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaDistanzaMassima(5, b.colonna), 11); }},
    {41, "CalcolaConsecutivi", [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaConsecutivi(5, b.colonna), 1); }},
    {42, "CalcolaInterruzioniPD",
     [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaInterruzioniPD(5, b.colonna), 2); }},
    {43, "CalcolaVorticeDiretto",
     [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaVorticeDiretto(1, b.colonna), 0); }},
    {44, "CalcolaVorticeInverso",
     [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaVorticeInverso(1, b.colonna), 0); }},
    {45, "CalcolaSimmetrieDirette",
     [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaSimmetrieDirette(5, b.colonna), 1); }},
    {46, "CalcolaSimmetrieInverse",
     [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaSimmetrieInverse(5, b.colonna), 1); }},
    {47, "CalcolaParalleliDiretti",
     [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaParalleliDiretti(5, b.colonna), 0); }},
    {48, "CalcolaParalleliInversi",
     [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaParalleliInversi(5, b.colonna), 2); }},
    {49, "CalcolaSequenze", [](Banco& b) { EXPECT_EQ(b.sistema.CalcolaSequenze(5, b.colonna, "P"), 2); }},
    {50, "CalcolaPuntiSequenze",
     [](Banco& b) {
         std::int32_t nConsec = 0;
         EXPECT_EQ(b.sistema.CalcolaPuntiSequenze(5, b.colonna, "P", nConsec), 2);
         EXPECT_EQ(nConsec, 2);
     }},
    {51, "SalvaFileColonne",
     [](Banco& b) {
         b.FileDiLavoro();
         b.piattaforma.Scegli(b.cartella / "copia.col");
         EXPECT_TRUE(b.sistema.SalvaFileColonne());
         EXPECT_EQ(prove::LeggiFile(b.cartella / "copia.col"), b.ByteColonne());
     }},
    {52, "SalvaFileColonneTesto",
     [](Banco& b) {
         b.FileDiLavoro();
         b.piattaforma.Scegli(b.cartella / "copia.txt");
         EXPECT_TRUE(b.sistema.SalvaFileColonneTesto());
         EXPECT_EQ(prove::LeggiFile(b.cartella / "copia.txt"), "03 08\r\n03 40\r\n");
     }},
    {53, "RiduciColonne",
     [](Banco& b) {
         b.FileDiLavoro();
         b.sistema.RiduciColonne(b.sistema.FileColonne(), 1);
         EXPECT_EQ(b.ByteColonne().size(), 20U);
     }},
    {54, "StopRiduciColonne", [](Banco& b) { b.sistema.StopRiduciColonne(); }},
    {55, "GetIdCmbTipoGioco", [](Banco& b) { EXPECT_EQ(b.sistema.GetIdCmbTipoGioco(), 0); }},
    {56, "GetIdCmbTipoGiocoString", [](Banco& b) { EXPECT_EQ(b.sistema.GetIdCmbTipoGiocoString(), "Lotto"); }},
    {57, "PercorsoSalvaColonne",
     [](Banco& b) { EXPECT_EQ(b.sistema.PercorsoSalvaColonne(), b.cartella / "salvate/"); }},
    {58, "PercorsoSalvaColonne",
     [](Banco& b) {
         EXPECT_TRUE(b.sistema.PoniPercorsoSalvaColonne(b.cartella / "altre"));
         EXPECT_EQ(b.sistema.PercorsoSalvaColonne(), b.cartella / "altre/");
     }},
    {59, "PercorsoTemp", [](Banco& b) { EXPECT_EQ(b.sistema.PercorsoTemp(), b.cartella / "temp/"); }},
    {60, "PercorsoTemp",
     [](Banco& b) {
         EXPECT_TRUE(b.sistema.PoniPercorsoTemp(b.cartella / "altro"));
         EXPECT_EQ(b.sistema.FileColonne(), b.cartella / "altro/Sviluppo.col");
     }},
    {61, "VerificaCoerenzaLink", [](Banco& b) { EXPECT_TRUE(b.sistema.VerificaCoerenzaLink()); }},
    {62, "IsCondizionePresente", [](Banco& b) { EXPECT_FALSE(b.sistema.IsCondizionePresente("Ponte")); }},
    {63, "GetQuantitaColDaEmulareFromGrid",
     [](Banco& b) {
         EXPECT_EQ(b.sistema.GetQuantitaColDaEmulareFromGrid(), 0);
         b.sistema.GetGridCond().Riga(1) = {"Emulatore", "[12]\r\n", "", "", ""};
         EXPECT_EQ(b.sistema.GetQuantitaColDaEmulareFromGrid(), 12);
     }},
    {64, "DisegnaNumeriProno",
     [](Banco& b) {
         b.sistema.DisegnaNumeriProno();
         EXPECT_EQ(b.sistema.Controlli().PicProno.Scritte.Valore().size(), 90);
     }},
    {65, "SetcoloreCasellaNumeri",
     [](Banco& b) {
         b.sistema.SetcoloreCasellaNumeri(3, 0xFF, 0xFF00);
         EXPECT_EQ(b.sistema.Controlli().SelnovoNumeri1.Colori.Valore()(3), (ColoriCasella{0xFF, 0xFF00}));
     }},
    {66, "AnnullaExport", [](Banco& b) { b.sistema.AnnullaExport(); }},
});
static_assert(kMembri.size() == 67);

TEST(InterfacciaElenco, HaSessantasetteMembriAlLoroPosto)
{
    std::map<std::string_view, int> aVolte;
    for (std::size_t i = 0; i < kMembri.size(); ++i) {
        EXPECT_EQ(kMembri[i].nPosto, static_cast<int>(i));
        ++aVolte[kMembri[i].sNome];
    }
    EXPECT_EQ(std::count_if(aVolte.begin(), aVolte.end(), [](const auto& v) { return v.second == 2; }), 11);
    EXPECT_EQ(aVolte.size(), 67 - 11);
}

class InterfacciaMembro : public testing::TestWithParam<Membro>, protected Banco {};

TEST_P(InterfacciaMembro, SiChiama)
{
    GetParam().chiama(*this);
}

INSTANTIATE_TEST_SUITE_P(Tutti, InterfacciaMembro, testing::ValuesIn(kMembri), [](const auto& caso) {
    return std::to_string(caso.param.nPosto) + "_" + std::string(caso.param.sNome);
});

class Interfaccia : public testing::Test, protected Banco {};

TEST_F(Interfaccia, IlPulsanteCondizioniAvvisaLOspite)
{
    int nVolte = 0;
    sistema.Toolbar2_ButtonClick("Condizioni");
    sistema.Eventi().CondizioniPressed = [&] { ++nVolte; };
    sistema.Toolbar2_ButtonClick("Condizioni");
    EXPECT_EQ(nVolte, 1);
}

TEST_F(Interfaccia, LaStampaSiChiedeAllOspiteSoloConUnFileDiLavoro)
{
    std::vector<std::string> aGiochi;
    sistema.Eventi().StampaSk = [&](std::string& sTipogioco) {
        aGiochi.push_back(sTipogioco);
        sTipogioco = "altro";
    };
    sistema.Toolbar2_ButtonClick("StampaSk");
    EXPECT_THAT(aGiochi, IsEmpty());
    FileDiLavoro();
    sistema.Controlli().CmbTipoGioco.Indice.Poni(3);
    sistema.Toolbar2_ButtonClick("StampaSk");
    EXPECT_THAT(aGiochi, ElementsAre("SuperEnalotto"));
    EXPECT_EQ(sistema.GetIdCmbTipoGiocoString(), "SuperEnalotto");
}

TEST_F(Interfaccia, ILimitiDellaTabellaDeiNumeri)
{
    for (const auto nNumero : std::to_array<std::int16_t>({1, 45, 90})) {
        EXPECT_EQ(NumeroErrore([&] { sistema.SetNum(nNumero, true); }), std::nullopt) << nNumero;
        EXPECT_EQ(NumeroErrore([&] { sistema.SetNum(nNumero, false); }), std::nullopt) << nNumero;
    }
    for (const auto nNumero : std::to_array<std::int16_t>({0, 91, -1, 32767, -32768})) {
        EXPECT_EQ(NumeroErrore([&] { sistema.SetNum(nNumero, true); }), 9) << nNumero;
    }
    EXPECT_EQ(sistema.ContaNumeriSel(), 3);
}

TEST_F(Interfaccia, IColoriVannoAllaCasellaDelNumeroENonAdAltre)
{
    const auto& colori = sistema.Controlli().SelnovoNumeri1.Colori;
    for (const auto nNumero : std::to_array<std::int16_t>({0, 91, -1})) {
        EXPECT_EQ(NumeroErrore([&] { sistema.SetcoloreCasellaNumeri(nNumero, 1, 2); }), 9) << nNumero;
    }
    EXPECT_EQ(colori.Valore(), (Tabella<ColoriCasella, 1, kNumeroMassimo>{}));
    sistema.SetcoloreCasellaNumeri(1, 0x0000FF, 0xFFFFFF);
    sistema.SetcoloreCasellaNumeri(90, 0x00FF00, 0);
    Tabella<ColoriCasella, 1, kNumeroMassimo> attesi;
    attesi(1) = {.nSfondo = 0x0000FF, .nTesto = 0xFFFFFF};
    attesi(90) = {.nSfondo = 0x00FF00, .nTesto = 0};
    EXPECT_EQ(colori.Valore(), attesi);
}

} // namespace
} // namespace ordavel
