// OrdavelApri_prova.cpp - a system file is opened.

#include "ordavel/Ordavel.hpp"

#include "comune/Esadecimale.hpp"
#include "controllo/SistemaProva.hpp"
#include "persistenza/SistemaCasuale.hpp"

#include <gtest/gtest.h>

#include <array>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::ByteDi;
using prove::DialogoFile;
using prove::Fallimento;
using prove::ScriviFile;
using prove::TestoSistema;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;

const Messaggio kRifiuto = Avviso("Il sistema scelto è salvato in formato non più supportato");

class OrdavelApri : public testing::Test, protected prove::SistemaProva {
protected:
    /// Writes a file of these bytes and opens it.
    bool ApriByte(std::string_view sByte)
    {
        ScriviFile(sFile, sByte);
        return Apri(sFile);
    }

    bool ApriParte(const ParteSistema& parte) { return ApriByte(TestoSistema(parte)); }

    /// A system of class 5, to be changed.
    [[nodiscard]] static ParteSistema Parte(std::int16_t nClasse = 5, std::int16_t nRiduzione = 0)
    {
        ParteSistema parte;
        parte.nClasse = nClasse;
        parte.nRiduzione = nRiduzione;
        return parte;
    }

    /// The folder that a dialog opens in, for a system of that path; the dialog is given up.
    std::string CartellaDelDialogo()
    {
        (void)piattaforma.Dialoghi();
        EXPECT_FALSE(Apri(""));
        return piattaforma.Dialoghi().at(0).richiesta.sCartella;
    }

    const std::string sFile = cartella / "s.sic";
    const std::string sEsempio = prove::DaEsadecimale(prove::TestoBuono("sistema.hex"));
};

TEST_F(OrdavelApri, IlFileDEsempioSiApre)
{
    EXPECT_TRUE(ApriByte(sEsempio));
    EXPECT_EQ(sistema.FileSistema(), sFile);
    EXPECT_EQ(sistema.classe(), 3);
    EXPECT_EQ(sistema.Riduzione(), 1);
    EXPECT_EQ(sistema.ContaNumeriSel(), 6);
    EXPECT_EQ(sistema.GetNumeriSel()(6), 90);
    EXPECT_EQ(sistema.GetGridCond().Riga(1),
              (Condizione{"Peso", "Caselle :\r\n1-2-3", "6-300", "5-400", "1"}));
    EXPECT_TRUE(sistema.GetGridCond().Vuota(2));
    EXPECT_EQ(ByteColonne(), ByteDi({{3, 11, 90}, {1, 2, 4}}));
    EXPECT_FALSE(sistema.Modificato());
}

TEST_F(OrdavelApri, LeEtichetteDiconoIlSistemaAperto)
{
    Pronostico(5, 1, 9);
    Sviluppa();
    EXPECT_TRUE(ApriByte(sEsempio));
    EXPECT_EQ(sistema.Controlli().LabNumSel.Testo.Valore(), "6");
    EXPECT_EQ(sistema.Controlli().LabIntegrale.Testo.Valore(), "20");
    EXPECT_EQ(sistema.Controlli().LabGaranzia.Testo.Valore(), "A condizioni superate garanzia 2");
    EXPECT_THAT(Conteggi(), ElementsAre("", "2"));
}

TEST_F(OrdavelApri, LeEtichetteSiRiscrivonoAncheConGliStessiNumeri)
{
    EXPECT_TRUE(ApriByte(sEsempio));
    EXPECT_TRUE(ApriByte(sEsempio));
    EXPECT_EQ(sistema.Controlli().LabNumSel.Testo.Valore(), "6");
    EXPECT_EQ(sistema.Controlli().LabIntegrale.Testo.Valore(), "20");
}

TEST_F(OrdavelApri, IlDialogoProponeIlSistemaAperto)
{
    ASSERT_TRUE(ApriParte(Parte()));
    EXPECT_FALSE(Apri(""));
    EXPECT_THAT(piattaforma.Dialoghi(),
                Contains(DialogoFile{.bSalva = false,
                                     .richiesta = {.sTitolo = "Apri sistema",
                                                   .sFiltro = "Sistemi condizionati (*.sic)|*.sic",
                                                   .sEstensione = ".sic",
                                                   .sNomeFile = sFile,
                                                   .sCartella = cartella / ""}}));
}

TEST_F(OrdavelApri, LaCartellaEQuellaDelSistemaFinoACheEsiste)
{
    EXPECT_EQ(CartellaDelDialogo(), cartella / "sistemi/");
    std::filesystem::create_directories(cartella / "altra");
    ScriviFile(cartella / "altra/a.sic", TestoSistema(Parte()));
    ASSERT_TRUE(Apri(cartella / "altra/a.sic"));
    EXPECT_EQ(CartellaDelDialogo(), cartella / "altra/");
    std::filesystem::remove_all(cartella / "altra");
    EXPECT_EQ(CartellaDelDialogo(), cartella / "sistemi/");
}

TEST_F(OrdavelApri, RinunciareNonCambiaNulla)
{
    Pronostico(5, 1, 6);
    sistema.GetGridCond().Riga(1).sCondizione = "Cadenze";
    Sviluppa();
    ASSERT_TRUE(Salva(sFile));
    const std::string sPrima = ByteColonne();
    const int nEventi = piattaforma.nEventi;
    EXPECT_FALSE(Apri(""));
    EXPECT_EQ(piattaforma.nEventi, nEventi);
    EXPECT_EQ(sistema.Controlli().LabNumSel.Testo.Valore(), "6");
    EXPECT_THAT(Conteggi(), ElementsAre("6", "0"));
    EXPECT_EQ(sistema.GetGridCond().Riga(1).sCondizione, "Cadenze");
    EXPECT_TRUE(Abilitato("FiltraSvilPrec"));
    EXPECT_FALSE(VoceAbilitata("Salva"));
    EXPECT_EQ(sistema.FileSistema(), "");
    EXPECT_EQ(ByteColonne(), sPrima);
}

TEST_F(OrdavelApri, UnFileDi316ByteNonESupportato)
{
    Pronostico(4, 1, 6);
    sistema.GetGridCond().Riga(1).sCondizione = "Cadenze";
    EXPECT_FALSE(ApriByte(std::string(316, '\0')));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(kRifiuto));
    EXPECT_EQ(kRifiuto.sTesto, "Il sistema scelto \xC3\xA8 salvato in formato non pi\xC3\xB9 supportato");
    EXPECT_EQ(sistema.FileSistema(), sFile);
    EXPECT_EQ(sistema.classe(), 4);
    EXPECT_EQ(sistema.ContaNumeriSel(), 6);
    EXPECT_EQ(sistema.GetGridCond().Riga(1).sCondizione, "Cadenze");
    EXPECT_FALSE(VoceAbilitata("Salva"));
}

TEST_F(OrdavelApri, UnRifiutoPulisceLeEtichette)
{
    Pronostico(5, 1, 6);
    Sviluppa();
    EXPECT_FALSE(ApriByte("breve"));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(kRifiuto));
    EXPECT_EQ(sistema.Controlli().LabNumSel.Testo.Valore(), "");
    EXPECT_EQ(sistema.Controlli().LabIntegrale.Testo.Valore(), "");
    EXPECT_THAT(Conteggi(), ElementsAre("", ""));
    EXPECT_FALSE(Abilitato("FiltraSvilPrec"));
    EXPECT_EQ(sistema.QuantitaColonne(), 6);
}

TEST_F(OrdavelApri, UnFileCheNonCeSiMostra)
{
    EXPECT_FALSE(Apri(cartella / "manca.sic"));
    EXPECT_THAT(
        piattaforma.Messaggi(),
        ElementsAre(Fallimento("OrdavelSis.Apri", Errore(eErrore::fileNonTrovato, cartella / "manca.sic"))));
    EXPECT_EQ(sistema.FileSistema(), cartella / "manca.sic");
}

TEST_F(OrdavelApri, UnaCartellaNonESistema)
{
    EXPECT_FALSE(Apri(cartella / "sistemi"));
    EXPECT_THAT(
        piattaforma.Messaggi(),
        ElementsAre(Fallimento("OrdavelSis.Apri", Errore(eErrore::accessoPercorso, cartella / "sistemi"))));
}

TEST_F(OrdavelApri, UnMarchioEstraneoSiApre)
{
    std::string sByte = sEsempio;
    sByte.replace(0, 7, "ESTERNO");
    EXPECT_TRUE(ApriByte(sByte));
    EXPECT_EQ(sistema.classe(), 3);
}

TEST_F(OrdavelApri, LaRiduzioneZeroLasciaLaSuaLista)
{
    sistema.Controlli().CmbRid.Indice.Poni(3);
    EXPECT_TRUE(ApriParte(Parte(5, 0)));
    EXPECT_EQ(sistema.Riduzione(), 3);
    EXPECT_TRUE(ApriParte(Parte(5, 6)));
    EXPECT_EQ(sistema.Riduzione(), 3);
    EXPECT_TRUE(ApriParte(Parte(5, 2)));
    EXPECT_EQ(sistema.Riduzione(), 2);
}

TEST_F(OrdavelApri, UnaClasseFuoriListaNonNeSceglieNessuna)
{
    for (const auto nClasse : std::to_array<std::int16_t>({0, 11, -1, 32767})) {
        ASSERT_TRUE(ApriParte(Parte(4)));
        EXPECT_TRUE(ApriParte(Parte(nClasse)));
        EXPECT_EQ(sistema.Controlli().CmbClasse.Indice.Valore(), -1) << nClasse;
        EXPECT_EQ(sistema.Controlli().LabIntegrale.Testo.Valore(), "");
    }
}

TEST_F(OrdavelApri, LaClasseUnoSceglieLaPrimaVoceCheCominciaCosi)
{
    EXPECT_TRUE(ApriParte(Parte(1)));
    EXPECT_EQ(sistema.classe(), 10);
}

TEST_F(OrdavelApri, LaGrigliaSiSvuotaPrima)
{
    for (std::int32_t nRiga = 1; nRiga <= 5; ++nRiga) {
        sistema.GetGridCond().Riga(nRiga).sCondizione = "Cadenze";
        sistema.GetGridCond().PoniAltezza(nRiga, eAltezza::link);
    }
    sistema.SetColonnaGrid(5);
    EXPECT_TRUE(ApriByte(sEsempio));
    EXPECT_TRUE(sistema.GetGridCond().Vuota(2));
    EXPECT_EQ(sistema.GetGridCond().Altezza(1), eAltezza::normale);
    EXPECT_EQ(sistema.GetGridCond().Altezza(5), eAltezza::comune);
    EXPECT_EQ(sistema.GetGridCond().Corrente(), 1);
}

TEST_F(OrdavelApri, ILinkHannoLaLoroAltezza)
{
    ParteSistema parte = Parte();
    parte.aCondizioni.resize(3);
    parte.aCondizioni[0].Tipo = TipoCondizione::linkOpen;
    parte.aCondizioni[1].Tipo = TipoCondizione::cadenze;
    parte.aCondizioni[2].Tipo = TipoCondizione::linkClose;
    EXPECT_TRUE(ApriParte(parte));
    EXPECT_EQ(sistema.GetGridCond().Altezza(1), eAltezza::link);
    EXPECT_EQ(sistema.GetGridCond().Altezza(2), eAltezza::normale);
    EXPECT_EQ(sistema.GetGridCond().Altezza(3), eAltezza::link);
    EXPECT_EQ(sistema.GetGridCond().Riga(3).sCondizione, "LinkClose");
}

TEST_F(OrdavelApri, UnRecordSenzaTipoEUnaRigaVuota)
{
    ParteSistema parte = Parte();
    parte.aCondizioni.resize(2);
    parte.aCondizioni[1].Tipo = TipoCondizione::cadenze;
    EXPECT_TRUE(ApriParte(parte));
    EXPECT_EQ(sistema.GetGridCond().Riga(1), Condizione{});
    EXPECT_EQ(sistema.GetGridCond().Riga(2).sCondizione, "Cadenze");
}

TEST_F(OrdavelApri, DuemilaCondizioniRiempionoLaGriglia)
{
    ParteSistema parte = Parte();
    parte.aCondizioni.resize(2000);
    parte.aCondizioni.back().Tipo = TipoCondizione::linkClose;
    EXPECT_TRUE(ApriParte(parte));
    EXPECT_EQ(sistema.GetGridCond().Riga(2000).sCondizione, "LinkClose");
}

TEST_F(OrdavelApri, IlQuadroHaSempreVentiRighe)
{
    sistema.GetLbQuadroRec().Voci.Poni({"9,9,9"});
    ParteSistema parte = Parte();
    parte.aQuadroRec(0) = {.Attiva = 7, .MinPunti = 7, .MaxPunti = 7};
    parte.aQuadroRec(2) = {.Attiva = kVero, .MinPunti = 1, .MaxPunti = 30000};
    EXPECT_TRUE(ApriParte(parte));
    auto aRighe = sistema.GetLbQuadroRec().Voci.Valore();
    ASSERT_EQ(aRighe.size(), 20);
    EXPECT_EQ(aRighe[1], "1,30000,-1");
    aRighe.erase(aRighe.begin() + 1);
    EXPECT_THAT(aRighe, Each(std::string("0,0,0")));
}

TEST_F(OrdavelApri, SenzaColonneIlFileDiLavoroRestaComEra)
{
    ScriviFile(sistema.FileColonne(), "di prima");
    EXPECT_TRUE(ApriParte(Parte()));
    EXPECT_EQ(ByteColonne(), "di prima");
    EXPECT_THAT(Conteggi(), ElementsAre("", ""));
    EXPECT_TRUE(Abilitato("VisualizzaColonne"));
}

TEST_F(OrdavelApri, LeColonneAperteSostituisconoIlFileDiLavoro)
{
    ScriviFile(sistema.FileColonne(), std::string(200, '\1'));
    std::string sColonne(1234 * 20, '\7');
    EXPECT_TRUE(ApriByte(TestoSistema(Parte()) + "COLONNE" + sColonne));
    EXPECT_EQ(ByteColonne(), sColonne);
    EXPECT_THAT(Conteggi(), ElementsAre("", "1.234"));
    EXPECT_TRUE(VoceAbilitata("SalvaColonne"));
}

TEST_F(OrdavelApri, UnBloccoVuotoDiColonneSvuotaIlFileDiLavoro)
{
    ScriviFile(sistema.FileColonne(), "di prima");
    EXPECT_TRUE(ApriByte(TestoSistema(Parte()) + "COLONNE"));
    EXPECT_EQ(ByteColonne(), "");
    EXPECT_THAT(Conteggi(), ElementsAre("", "0"));
}

TEST_F(OrdavelApri, OltreLaRicercaLeColonneNonCiSono)
{
    ScriviFile(sistema.FileColonne(), "di prima");
    EXPECT_TRUE(ApriByte(TestoSistema(prove::ParteUguale(200)) + "COLONNE" + ByteDi({{1, 2, 3, 4, 5}})));
    EXPECT_EQ(ByteColonne(), "di prima");
    EXPECT_THAT(Conteggi(), ElementsAre("", ""));
}

TEST_F(OrdavelApri, AprireNonToccaLaValiditaDelleColonne)
{
    ASSERT_TRUE(ApriByte(sEsempio));
    EXPECT_FALSE(sistema.ColonneValide());
    ASSERT_TRUE(Salva(cartella / "t.sic"));
    EXPECT_EQ(prove::LeggiFile(cartella / "t.sic").size(), 651);
    sistema.GetGridCond().Svuota();
    Sviluppa();
    ASSERT_TRUE(ApriByte(sEsempio));
    EXPECT_TRUE(sistema.ColonneValide());
    ASSERT_TRUE(Salva(cartella / "t.sic"));
    EXPECT_EQ(prove::LeggiFile(cartella / "t.sic").substr(651), sEsempio.substr(651));
}

TEST_F(OrdavelApri, AprireAbilitaSalvaESpegneIlFiltro)
{
    Pronostico(5, 1, 6);
    Sviluppa();
    ASSERT_TRUE(Abilitato("FiltraSvilPrec"));
    EXPECT_FALSE(VoceAbilitata("Salva"));
    EXPECT_TRUE(ApriByte(sEsempio));
    EXPECT_FALSE(Abilitato("FiltraSvilPrec"));
    EXPECT_TRUE(VoceAbilitata("Salva"));
}

TEST_F(OrdavelApri, MentreSiApreIlPuntatoreEInAttesa)
{
    bool bOccupato = false;
    piattaforma.eventi = [&] { bOccupato = piattaforma.Occupato(); };
    EXPECT_TRUE(ApriParte(Parte()));
    EXPECT_TRUE(bOccupato);
    EXPECT_FALSE(piattaforma.Occupato());
}

TEST_F(OrdavelApri, UnFileDiLavoroCheNonSiCancellaNonFermaLApertura)
{
    std::filesystem::create_directories(Temp("Sviluppo.col/piena"));
    EXPECT_TRUE(ApriByte(sEsempio));
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("ModFunzGeneriche.KillFile",
                                       Errore(eErrore::accessoPercorso, sistema.FileColonne()))));
    EXPECT_EQ(sistema.classe(), 3);
}

} // namespace
} // namespace ordavel
