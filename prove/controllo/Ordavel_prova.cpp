// Ordavel_prova.cpp - the component: settings, lists and labels.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>

#include <array>
#include <map>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::NumeroErrore;
using testing::ElementsAre;

class OrdavelComponente : public testing::Test, protected prove::SistemaProva {
protected:
    [[nodiscard]] std::string Integrale() { return sistema.Controlli().LabIntegrale.Testo.Valore(); }
    [[nodiscard]] std::string Garanzia() { return sistema.Controlli().LabGaranzia.Testo.Valore(); }
    [[nodiscard]] std::string Scelti() { return sistema.Controlli().LabNumSel.Testo.Valore(); }
};

TEST_F(OrdavelComponente, NasceComeUnSistemaVuotoDelLotto)
{
    EXPECT_EQ(sistema.GetIdCmbTipoGioco(), 0);
    EXPECT_EQ(sistema.GetIdCmbTipoGiocoString(), "Lotto");
    EXPECT_EQ(sistema.classe(), 5);
    EXPECT_EQ(sistema.Riduzione(), 0);
    EXPECT_EQ(sistema.MotoreSviluppo(), eMotoreSviluppo::interno);
    EXPECT_EQ(sistema.ContaNumeriSel(), 0);
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
    EXPECT_EQ(sistema.FileSistema(), "");
    EXPECT_FALSE(sistema.Modificato());
    EXPECT_FALSE(sistema.ColonneValide());
    EXPECT_FALSE(sistema.Controlli().PanSviluppo.Visibile.Valore());
    EXPECT_EQ(Garanzia(), "A condizioni superate garanzia 5");
}

TEST_F(OrdavelComponente, LeListeHannoLeLoroVoci)
{
    const ControlliOrdavel& controlli = sistema.Controlli();
    EXPECT_THAT(controlli.CmbTipoGioco.Voci.Valore(),
                ElementsAre("Lotto", "10ELotto", "10ELotto5M", "SuperEnalotto", "WinForLife"));
    EXPECT_THAT(controlli.CmbClasse.Voci.Valore(), ElementsAre("2", "3", "4", "5", "6", "7", "8", "9", "10"));
    EXPECT_THAT(controlli.CmbRid.Voci.Valore(), ElementsAre(" ", "1", "2", "3", "4", "5"));
    EXPECT_THAT(controlli.CmbMotSviluppo.Voci.Valore(), ElementsAre("Interno", "Esterno"));
}

TEST_F(OrdavelComponente, IlGiocoDecideLaClasseDiPartenza)
{
    const std::map<std::int32_t, int> aClassi{{1, 10}, {2, 10}, {3, 6}, {4, 10}, {0, 5}};
    for (const auto& [nGioco, nClasse] : aClassi) {
        sistema.Controlli().CmbTipoGioco.Indice.Poni(nGioco);
        EXPECT_EQ(sistema.classe(), nClasse) << nGioco;
        EXPECT_EQ(sistema.GetIdCmbTipoGioco(), nGioco);
        EXPECT_EQ(sistema.Controlli().CmbClasse.Voci.Valore().size(), 9);
    }
}

TEST_F(OrdavelComponente, IlCambioDiGiocoToglieLaRiduzione)
{
    sistema.Controlli().CmbRid.Indice.Poni(2);
    ASSERT_EQ(sistema.Riduzione(), 2);
    sistema.Controlli().CmbTipoGioco.Indice.Poni(3);
    EXPECT_EQ(sistema.Controlli().CmbRid.Indice.Valore(), -1);
    EXPECT_EQ(sistema.Controlli().CmbRid.Voci.Valore().size(), 6);
    EXPECT_EQ(sistema.Riduzione(), 0);
    EXPECT_EQ(Garanzia(), "A condizioni superate garanzia 6");
}

TEST_F(OrdavelComponente, IlCambioDiGiocoContaLeColonneDellaNuovaClasse)
{
    Pronostico(5, 1, 10);
    ASSERT_EQ(Integrale(), "252");
    sistema.Controlli().CmbTipoGioco.Indice.Poni(3);
    EXPECT_EQ(Integrale(), "210");
}

TEST_F(OrdavelComponente, LaRiduzioneSiLeggeDallaLista)
{
    for (std::int32_t i = 0; i <= 5; ++i) {
        sistema.Controlli().CmbRid.Indice.Poni(i);
        EXPECT_EQ(sistema.Riduzione(), i);
        EXPECT_EQ(Garanzia(), "A condizioni superate garanzia " + std::to_string(5 - i));
    }
}

TEST_F(OrdavelComponente, LaGaranziaSegueLaClasseEPuoAndareSottoZero)
{
    sistema.Controlli().CmbRid.Indice.Poni(5);
    sistema.PoniClasse(2);
    EXPECT_EQ(Garanzia(), "A condizioni superate garanzia -3");
}

TEST_F(OrdavelComponente, UnaClasseFuoriListaNonCambiaNulla)
{
    sistema.PoniClasse(7);
    for (const auto nClasse : std::to_array<std::int16_t>({0, 1, 11, -5})) {
        sistema.PoniClasse(nClasse);
        EXPECT_EQ(sistema.classe(), 7) << nClasse;
    }
}

TEST_F(OrdavelComponente, LeEtichetteSeguonoNumeriEClasse)
{
    EXPECT_EQ(Scelti(), "");
    Pronostico(5, 1, 4);
    EXPECT_EQ(Scelti(), "4");
    EXPECT_EQ(Integrale(), "0");
    sistema.SelezionaNumero(90, true);
    EXPECT_EQ(Integrale(), "1");
    Pronostico(5, 1, 30);
    EXPECT_EQ(Scelti(), "31");
    EXPECT_EQ(Integrale(), "169.911");
    sistema.PoniClasse(2);
    EXPECT_EQ(Integrale(), "465");
}

TEST_F(OrdavelComponente, LeColonneIntegraliSonoZeroConPochiNumeri)
{
    Pronostico(6, 1, 5);
    EXPECT_EQ(sistema.ColonneIntegrali(), 0);
    sistema.SelezionaNumero(6, true);
    EXPECT_EQ(sistema.ColonneIntegrali(), 1);
    Pronostico(6, 1, 90);
    EXPECT_NEAR(sistema.ColonneIntegrali(), 622614630.0, 1);
}

TEST_F(OrdavelComponente, SenzaClasseNonCeNullaDaContare)
{
    for (const auto nNumeri : std::to_array<std::int16_t>({0, 3})) {
        Pronostico(5, 1, nNumeri);
        sistema.Controlli().CmbClasse.Indice.Poni(-1);
        EXPECT_EQ(sistema.classe(), 0);
        EXPECT_EQ(Integrale(), "");
        EXPECT_EQ(NumeroErrore([&] { (void)sistema.ColonneIntegrali(); }), 11);
    }
}

TEST_F(OrdavelComponente, INumeriSceltiSonoCompattiECrescenti)
{
    Pronostico(5, {90, 3, 47});
    NumeriScelti attesi;
    attesi(1) = 3;
    attesi(2) = 47;
    attesi(3) = 90;
    EXPECT_EQ(sistema.GetNumeriSel(), attesi);
    EXPECT_EQ(sistema.ContaNumeriSel(), 3);
}

TEST_F(OrdavelComponente, UnNumeroFuoriDa1A90EUnIndiceSbagliato)
{
    EXPECT_EQ(NumeroErrore([&] { sistema.SelezionaNumero(0, true); }), 9);
    EXPECT_EQ(NumeroErrore([&] { sistema.SelezionaNumero(91, false); }), 9);
}

TEST_F(OrdavelComponente, IlMotoreSegueLaSuaLista)
{
    auto& indice = sistema.Controlli().CmbMotSviluppo.Indice;
    EXPECT_EQ(indice.Valore(), 0);
    indice.Poni(1);
    EXPECT_EQ(sistema.MotoreSviluppo(), eMotoreSviluppo::esterno);
    indice.Poni(0);
    EXPECT_EQ(sistema.MotoreSviluppo(), eMotoreSviluppo::interno);
}

TEST_F(OrdavelComponente, IlMotorePostoDalProgrammaTrovaLaListaSoloSeRichiesto)
{
    const auto& indice = sistema.Controlli().CmbMotSviluppo.Indice;
    sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
    EXPECT_EQ(indice.Valore(), 0);
    sistema.SelezionaComboMotSviluppo();
    EXPECT_EQ(indice.Valore(), 1);
    EXPECT_EQ(sistema.MotoreSviluppo(), eMotoreSviluppo::esterno);
    sistema.PoniMotoreSviluppo(eMotoreSviluppo::interno);
    sistema.SelezionaComboMotSviluppo();
    EXPECT_EQ(indice.Valore(), 0);
}

TEST_F(OrdavelComponente, LeCartelleSiCreanoEPrendonoIlSeparatore)
{
    EXPECT_EQ(sistema.PercorsoTemp(), cartella / "temp/");
    EXPECT_EQ(sistema.DirSistemi(), cartella / "sistemi/");
    EXPECT_EQ(sistema.PercorsoSalvaColonne(), cartella / "salvate/");
    EXPECT_EQ(sistema.FileColonne(), cartella / "temp/Sviluppo.col");
    EXPECT_TRUE(sistema.PoniPercorsoTemp(cartella / "uno/due/"));
    EXPECT_EQ(sistema.PercorsoTemp(), cartella / "uno/due/");
    EXPECT_EQ(sistema.FileColonne(), cartella / "uno/due/Sviluppo.col");
    EXPECT_TRUE(std::filesystem::is_directory(cartella / "uno/due"));
}

TEST_F(OrdavelComponente, UnaCartellaCheNonSiCreaAvvisaENonCambiaNulla)
{
    prove::ScriviFile(cartella / "file", "");
    const std::string sPercorso = cartella / "file/sotto";
    EXPECT_FALSE(sistema.PoniDirSistemi(sPercorso));
    EXPECT_FALSE(sistema.PoniPercorsoTemp(sPercorso));
    EXPECT_FALSE(sistema.PoniPercorsoSalvaColonne(""));
    const Messaggio avviso = Avviso("Errore creazione percorso " + sPercorso);
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(avviso, avviso, Avviso("Errore creazione percorso ")));
    EXPECT_EQ(sistema.DirSistemi(), cartella / "sistemi/");
    EXPECT_EQ(sistema.FileColonne(), cartella / "temp/Sviluppo.col");
    EXPECT_EQ(sistema.PercorsoSalvaColonne(), cartella / "salvate/");
}

TEST_F(OrdavelComponente, UnaCondizioneSiCercaPerNomeSenzaMaiuscole)
{
    sistema.GetGridCond().Riga(2000).sCondizione = "Emulatore";
    EXPECT_TRUE(sistema.IsCondizionePresente("eMULATORE"));
    EXPECT_FALSE(sistema.IsCondizionePresente("Emulator"));
    EXPECT_FALSE(sistema.IsCondizionePresente("Condizione"));
}

TEST_F(OrdavelComponente, LaGrigliaSiSelezionaPerColonna)
{
    sistema.SetColonnaGrid(2000);
    EXPECT_EQ(sistema.GetGridCond().Corrente(), 2000);
    EXPECT_EQ(NumeroErrore([&] { sistema.SetColonnaGrid(2001); }), 9);
    EXPECT_EQ(sistema.GetGridCond().Corrente(), 2000);
}

TEST_F(OrdavelComponente, ILinkSiChiudonoComeParentesi)
{
    // "(" opens, ")" closes, "x" is a condition without a kind.
    const std::map<std::string, bool> aCasi{{"", true},      {"()", true},  {"(())()", true}, {"x(x)x", true},
                                            {"(", false},    {")", false},  {")(", false},    {"(()", false},
                                            {"())(", false}, {"(x", false}, {"x)", false}};
    for (const auto& [sCaso, bCoerente] : aCasi) {
        sistema.GetGridCond().Svuota();
        std::int32_t nRiga = 0;
        for (const char c : sCaso) {
            sistema.GetGridCond().Riga(++nRiga).sCondizione = c == '('   ? "LinkOpen"
                                                              : c == ')' ? "LinkClose"
                                                                         : "x";
        }
        EXPECT_EQ(sistema.VerificaCoerenzaLink(), bCoerente) << sCaso;
        const auto nAvvisi = static_cast<std::size_t>(bCoerente ? 0 : 1);
        EXPECT_EQ(piattaforma.Messaggi(), std::vector<Messaggio>(nAvvisi, Avviso("Link non valide")))
            << sCaso;
    }
}

TEST_F(OrdavelComponente, LaVerificaDeiLinkNonToccaIlSistema)
{
    sistema.GetGridCond().Riga(1).sCondizione = "LinkOpen";
    sistema.GetGridCond().Riga(2).sCondizione = "LinkClose";
    EXPECT_TRUE(sistema.VerificaCoerenzaLink());
    EXPECT_EQ(sistema.UltimoSviluppo().aCondizioni, std::vector<RecordCondizione>(1));
    EXPECT_EQ(sistema.GetGridCond().Riga(2).sCondizione, "LinkClose");
}

TEST_F(OrdavelComponente, CambiareClasseGiocoORiduzioneNonModificaIlSistema)
{
    Pronostico(4, 1, 4);
    Sviluppa();
    sistema.PoniClasse(3);
    sistema.Controlli().CmbRid.Indice.Poni(2);
    sistema.Controlli().CmbTipoGioco.Indice.Poni(3);
    EXPECT_FALSE(sistema.Modificato());
    EXPECT_TRUE(sistema.ColonneValide());
}

} // namespace
} // namespace ordavel
