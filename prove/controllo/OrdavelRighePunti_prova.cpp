// OrdavelRighePunti_prova.cpp - many rows at once: points, columns of a text, the recovery board, condition files.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/CondizioniProva.hpp"
#include "editor/F_ApriCondizioni.hpp"
#include "editor/F_ImpostaPunti.hpp"
#include "editor/F_InsColonne.hpp"
#include "editor/F_QuadroRecuperi.hpp"
#include "editor/F_SalvaCondizioni.hpp"

#include <algorithm>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::Fallimento;
using prove::NumeroErrore;
using prove::RigaScelta;
using prove::StatoLista;
using testing::ElementsAre;

// ---- points ----

class OrdavelImpostaPunti : public prove::CondizioniProva {
protected:
    OrdavelImpostaPunti() { Chiavi({"Peso", "LinkOpen", "Ponte", "linkclose", "Decine", "Figure"}); }

    /// 1, 2 and 10 accepted, 3 for recovery in group 4.
    static void Scegli(F_ImpostaPunti& dialogo)
    {
        dialogo.CmbDalla.Indice.Poni(0);
        dialogo.CmbAlla.Indice.Poni(4);
        dialogo.Pannello.CmbRecupero.Indice.Poni(4);
        for (const int nValore : {1, 2, 10}) {
            dialogo.Pannello.ChkPunti(nValore).Segnata.Poni(true);
        }
        dialogo.Pannello.ChkRecupero(3).Segnata.Poni(true);
    }
};

TEST_F(OrdavelImpostaPunti, GliStessiPuntiInTutteLeRigheMenoILink)
{
    StatoLista atteso = Stato();
    Conferma<F_ImpostaPunti>(Scegli);
    sistema.ApplicaImpostaPunti();
    for (const std::size_t nRiga : {1U, 3U, 5U}) {
        Condizione& celle = atteso.aRighe[nRiga];
        celle = {celle.sCondizione, celle.sParametri, "1-2-10", "3", "4"};
    }
    atteso.nCorrente = 5;
    EXPECT_EQ(Stato(), atteso);
    ExpectModificato(false);
}

TEST_F(OrdavelImpostaPunti, AnnullatoNonCambiaNulla)
{
    const StatoLista prima = Stato();
    Annulla<F_ImpostaPunti>(Scegli);
    sistema.ApplicaImpostaPunti();
    EXPECT_EQ(Stato(), prima);
}

TEST_F(OrdavelImpostaPunti, SenzaSpunteSvuotaIPunti)
{
    Conferma<F_ImpostaPunti>([](F_ImpostaPunti& dialogo) {
        EXPECT_EQ(dialogo.CmbAlla.Voci.Valore().size(), 6U);
        dialogo.CmbDalla.Indice.Poni(5);
        dialogo.CmbAlla.Indice.Poni(5);
    });
    sistema.ApplicaImpostaPunti();
    EXPECT_THAT(Punti(6), ElementsAre("1", "2", "3", "4", "5", ""));
    EXPECT_EQ(Griglia().Riga(6).sQuadro, " ");
    EXPECT_EQ(Griglia().Corrente(), 6);
}

// ---- columns of a text ----

class OrdavelInserisciColonne : public prove::CondizioniProva {
protected:
    OrdavelInserisciColonne() { prove::ScriviFile(m_sFile, "1 2 3\nnulla\n4.5.6.7.8\n90\n91 0 5 5\n\n7"); }

    /// Five columns from the text, with 2 accepted in the second, 1 for recovery, and group 3.
    void Inserisci()
    {
        piattaforma.Scegli(m_sFile);
        Conferma<F_InsColonne>([](F_InsColonne& dialogo) {
            dialogo.Toolbar1("open");
            auto aRighe = dialogo.ListView1.Righe.Valore();
            aRighe.at(1).bScelta = true;
            dialogo.ListView1.Righe.Poni(aRighe);
            dialogo.Pannello.CmbRecupero.Indice.Poni(3);
            dialogo.Pannello.ChkPunti(2).Segnata.Poni(true);
            dialogo.Pannello.ChkRecupero(1).Segnata.Poni(true);
            dialogo.XPButton2();
        });
        sistema.InserisciColonneDaFile();
    }

    /// The numbers of the rows nDalla to nAlla; "" where another kind stands.
    [[nodiscard]] std::vector<std::string> Colonne(std::int32_t nDalla, std::int32_t nAlla)
    {
        std::vector<std::string> aColonne;
        for (std::int32_t nRiga = nDalla; nRiga <= nAlla; ++nRiga) {
            const Condizione& celle = Griglia().Riga(nRiga);
            aColonne.push_back(celle.sCondizione == "Punti Col." ? celle.sParametri : "");
        }
        return aColonne;
    }

    const std::string m_sFile = cartella / "colonne.txt";
};

TEST_F(OrdavelInserisciColonne, OgniColonnaDelTestoEUnaCondizione)
{
    Riempi(2);
    Inserisci();
    EXPECT_THAT(Colonne(2, 8), ElementsAre("", "01-02-03", "04-05-06-07-\r\n08", "90", "05", "07", ""));
    EXPECT_EQ(Griglia().Riga(3), (Condizione{"Punti Col.", "01-02-03", "", "", "3"}));
    EXPECT_EQ(Griglia().Riga(4).sPunti, "2");
    EXPECT_EQ(Griglia().Riga(4).sRecupero, "1");
    EXPECT_EQ(Griglia().Corrente(), 7);
    EXPECT_EQ(piattaforma.Dialoghi().at(0).richiesta.sCartella, sistema.PercorsoSalvaColonne());
    ExpectModificato(true);
}

TEST_F(OrdavelInserisciColonne, OltreDuemilaSiAvvisaELeScritteRestano)
{
    Riempi(1998);
    Inserisci();
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Avviso("Superato il numero di condizioni impostabili")));
    EXPECT_THAT(Colonne(1998, 2000), ElementsAre("", "01-02-03", "04-05-06-07-\r\n08"));
    EXPECT_EQ(Griglia().Corrente(), 2000);
    EXPECT_EQ(Griglia().Riga(0).sCondizione, "Condizione");
    ExpectModificato(true);
}

TEST_F(OrdavelInserisciColonne, FinoADuemilaGiusteNonSiAvvisa)
{
    Riempi(1995);
    Inserisci();
    EXPECT_EQ(Griglia().Riga(2000).sParametri, "07");
}

TEST_F(OrdavelInserisciColonne, DaUnaListaPienaSiScriveDalleIntestazioni)
{
    Riempi(2000);
    Inserisci();
    EXPECT_THAT(Colonne(0, 5), ElementsAre("01-02-03", "04-05-06-07-\r\n08", "90", "05", "07", ""));
    EXPECT_EQ(Griglia().Corrente(), 4);
}

TEST_F(OrdavelInserisciColonne, DaUnBucoSiScriveSulleRigheDietro)
{
    Riempi(8);
    sistema.SetColonnaGrid(3);
    sistema.InserisciRiga();
    Inserisci();
    EXPECT_THAT(Colonne(2, 8), ElementsAre("", "01-02-03", "04-05-06-07-\r\n08", "90", "05", "07", ""));
    EXPECT_EQ(Griglia().Riga(8).sPunti, "7");
}

TEST_F(OrdavelInserisciColonne, SenzaColonneOAnnullatoNonCambiaNulla)
{
    const StatoLista prima = Stato();
    Conferma<F_InsColonne>([](F_InsColonne&) {});
    sistema.InserisciColonneDaFile();
    EXPECT_EQ(Stato(), prima);
    Annulla<F_InsColonne>([this](F_InsColonne& dialogo) { dialogo.LoadLVColonne(m_sFile); });
    sistema.InserisciColonneDaFile();
    EXPECT_EQ(Stato(), prima);
}

// ---- the recovery board ----

class OrdavelQuadro : public prove::CondizioniProva {
protected:
    [[nodiscard]] Lista& Quadro() { return sistema.GetLbQuadroRec(); }
    void Gruppi(const std::vector<std::string>& aGruppi)
    {
        Riempi(aGruppi.size());
        for (std::size_t i = 0; i < aGruppi.size(); ++i) {
            Griglia().Riga(static_cast<std::int32_t>(i) + 1).sQuadro = aGruppi[i];
        }
    }
    static void Imposta(F_QuadroRecuperi& dialogo, std::int32_t nGruppo, const std::string& sMinimo,
                        const std::string& sMassimo)
    {
        dialogo.Gruppo(nGruppo).TxtMin.Testo.Poni(sMinimo);
        dialogo.Gruppo(nGruppo).TxtMax.Testo.Poni(sMassimo);
    }
};

TEST_F(OrdavelQuadro, ConfermatoHaVentiRigheEHaCambiatoIlSistema)
{
    Gruppi({"2", " ", "2", "20"});
    Conferma<F_QuadroRecuperi>([](F_QuadroRecuperi& dialogo) {
        EXPECT_EQ(dialogo.Gruppo(2).LabRecInseriti.Testo.Valore(), "2");
        EXPECT_TRUE(dialogo.Gruppo(20).TxtMin.Abilitato.Valore());
        EXPECT_FALSE(dialogo.Gruppo(1).TxtMin.Abilitato.Valore());
        Imposta(dialogo, 2, "003", "1");
        Imposta(dialogo, 3, "4", "5");
        Imposta(dialogo, 20, "6", " ");
    });
    sistema.GestQuadroRecuperi();
    std::vector<std::string> aAttese(20, "-1,-1,-0");
    aAttese[1] = "3,1,-1";
    aAttese[2] = "4,5,-1";
    EXPECT_EQ(Quadro().Voci.Valore(), aAttese);
    ExpectModificato(true);
}

TEST_F(OrdavelQuadro, RilettoEConfermatoDaLoStessoQuadro)
{
    Quadro().Voci.Poni({"2,5,-1", "-1,-1,-0", "7,9,-1"});
    Conferma<F_QuadroRecuperi>([](F_QuadroRecuperi& dialogo) {
        EXPECT_EQ(dialogo.Gruppo(2).TxtMin.Testo.Valore(), "");
        EXPECT_EQ(dialogo.Gruppo(3).TxtMax.Testo.Valore(), "9");
    });
    sistema.GestQuadroRecuperi();
    std::vector<std::string> aAttese(20, "-1,-1,-0");
    aAttese[0] = "2,5,-1";
    aAttese[2] = "7,9,-1";
    EXPECT_EQ(Quadro().Voci.Valore(), aAttese);
}

TEST_F(OrdavelQuadro, AnnullatoNonCambiaNulla)
{
    const StatoLista prima = Stato();
    Annulla<F_QuadroRecuperi>([](F_QuadroRecuperi& dialogo) { Imposta(dialogo, 1, "1", "2"); });
    sistema.GestQuadroRecuperi();
    EXPECT_EQ(Stato(), prima);
}

TEST_F(OrdavelQuadro, UnGruppoFuoriDa0A20OUnaRigaCortaFallisconoCon9)
{
    Gruppi({"21"});
    EXPECT_EQ(NumeroErrore([&] { sistema.GestQuadroRecuperi(); }), 9);
    Gruppi({"20"});
    Quadro().Voci.Poni({"2,5"});
    EXPECT_EQ(NumeroErrore([&] { sistema.GestQuadroRecuperi(); }), 9);
    ExpectModificato(false);
}

// ---- files of conditions ----

class OrdavelFileCondizioni : public prove::CondizioniProva {
protected:
    /// Saves the rows nDalla to nAlla as "prova.cnd".
    void SalvaTratto(std::int32_t nDalla, std::int32_t nAlla)
    {
        piattaforma.Scegli(sistema.DirSistemi() + "prova.cnd");
        Conferma<F_SalvaCondizioni>([=](F_SalvaCondizioni& dialogo) {
            dialogo.CmbCondInizio.Indice.Poni(nDalla - 1);
            dialogo.CmbCondFine.Indice.Poni(nAlla - 1);
        });
        sistema.SalvaCondizioni();
    }

    /// Puts the only file of the folder behind the conditions.
    void InserisciFile()
    {
        Conferma<F_ApriCondizioni>([](F_ApriCondizioni& dialogo) {
            EXPECT_THAT(dialogo.CmbCondizioni.Voci.Valore(), ElementsAre("prova"));
            dialogo.CmbCondizioni.Indice.Poni(0);
        });
        sistema.InsCondizioni();
    }
};

TEST_F(OrdavelFileCondizioni, SalvareNonCambiaIlSistema)
{
    Riempi(4);
    const StatoLista prima = Stato();
    SalvaTratto(2, 3);
    EXPECT_EQ(Stato(), prima);
    EXPECT_EQ(prove::LeggiFile(sistema.DirSistemi() + "prova.cnd").substr(0, 8), "Ponte[R]");
}

TEST_F(OrdavelFileCondizioni, LeRigheDelFileSiAccodanoSenzaCambiareIlSistema)
{
    Griglia().Riga(1) = RigaScelta(TipoCondizione::linkOpen);
    Griglia().Riga(2) = RigaScelta(TipoCondizione::puntiColonna, true);
    Griglia().Riga(3) = RigaScelta(TipoCondizione::peso);
    SalvaTratto(1, 2);
    StatoLista atteso = Stato();
    InserisciFile();
    std::copy_n(atteso.aRighe.begin() + 1, 2, atteso.aRighe.begin() + 4);
    EXPECT_EQ(Stato(), atteso) << "neither heights nor the selected row";
    ExpectModificato(false);
}

TEST_F(OrdavelFileCondizioni, DaUnBucoSiScriveSulleRigheDietro)
{
    Riempi(5);
    SalvaTratto(4, 5);
    sistema.SetColonnaGrid(2);
    sistema.InserisciRiga();
    sistema.SetColonnaGrid(5);
    InserisciFile();
    EXPECT_THAT(Punti(7), ElementsAre("1", "4", "5", "3", "4", "5", ""));
    ExpectModificato(false);
}

TEST_F(OrdavelFileCondizioni, OltreDuemilaFallisceELeScritteRestano)
{
    Riempi(1999);
    SalvaTratto(1, 2);
    InserisciFile();
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("F_ApriCondizioni.Inserisci", Errore(eErrore::indice))));
    EXPECT_EQ(Griglia().Riga(2000).sPunti, "1");
    ExpectModificato(false);
}

TEST_F(OrdavelFileCondizioni, ConLaListaPienaSiScriveDallInizio)
{
    Riempi(2000);
    SalvaTratto(1999, 2000);
    InserisciFile();
    EXPECT_THAT(Punti(3), ElementsAre("1999", "2000", "3"));
    ExpectModificato(false);
}

TEST_F(OrdavelFileCondizioni, AnnullatiNonCambianoNulla)
{
    Riempi(3);
    SalvaTratto(1, 1);
    const StatoLista prima = Stato();
    Annulla<F_SalvaCondizioni>([](F_SalvaCondizioni&) {});
    sistema.SalvaCondizioni();
    Annulla<F_ApriCondizioni>([](F_ApriCondizioni& dialogo) { dialogo.CmbCondizioni.Indice.Poni(0); });
    sistema.InsCondizioni();
    EXPECT_EQ(Stato(), prima);
}

} // namespace
} // namespace ordavel
