// F_InsColonne_prova.cpp - columns out of a text file: the list, the points that it is given, what is confirmed.

#include "editor/F_InsColonne.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/SenzaPrivilegi.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::DialogoFile;
using prove::Fallimento;
using prove::OspiteProva;
using prove::ScriviFile;
using testing::ElementsAre;
using testing::IsEmpty;

class FInsColonne : public testing::Test {
protected:
    /// Loads a text that is a file.
    void Carica(std::string_view sTesto)
    {
        ScriviFile(m_Cartella / "colonne.txt", sTesto);
        m_Dialogo.LoadLVColonne(m_Cartella / "colonne.txt");
    }

    [[nodiscard]] const std::vector<RigaElenco>& Righe() const { return m_Dialogo.ListView1.Righe.Valore(); }

    /// A column of the list, the line's text first.
    [[nodiscard]] std::vector<std::string> Sotto(std::size_t nColonna) const
    {
        std::vector<std::string> aTesti;
        for (const RigaElenco& riga : Righe()) {
            aTesti.push_back(riga.aSotto.at(nColonna));
        }
        return aTesti;
    }

    [[nodiscard]] std::vector<std::string> Chiavi() const
    {
        std::vector<std::string> aChiavi;
        for (const RigaElenco& riga : Righe()) {
            aChiavi.push_back(riga.sChiave + "=" + riga.sTesto);
        }
        return aChiavi;
    }

    /// Selects the lines at these places, and no others.
    void Scegli(std::initializer_list<std::size_t> aPosti)
    {
        auto aRighe = Righe();
        for (std::size_t i = 0; i < aRighe.size(); ++i) {
            aRighe[i].bScelta = std::find(aPosti.begin(), aPosti.end(), i) != aPosti.end();
        }
        m_Dialogo.ListView1.Righe.Poni(std::move(aRighe));
    }

    void Segna(std::initializer_list<int> aPunti, std::initializer_list<int> aRecupero)
    {
        for (const int nValore : aPunti) {
            m_Dialogo.Pannello.ChkPunti(nValore).Segnata.Poni(true);
        }
        for (const int nValore : aRecupero) {
            m_Dialogo.Pannello.ChkRecupero(nValore).Segnata.Poni(true);
        }
    }

    /// The numbers of the column at a place.
    [[nodiscard]] std::vector<int> Numeri(std::size_t nPosto) const
    {
        const ColonnaInGriglia colonna = m_Dialogo.Colonne().at(nPosto);
        std::vector<int> aNumeri;
        for (const std::int16_t nNumero : colonna.aNumeri.aElementi) {
            if (nNumero != 0) {
                aNumeri.push_back(nNumero);
            }
        }
        return aNumeri;
    }

    /// Expects one box of the load.
    void FallitoCon(eErrore nNumero, const std::string& sFile)
    {
        EXPECT_THAT(m_Ospite.desktop.Messaggi(),
                    ElementsAre(Fallimento("F_InsColonne.LoadLvColonne", Errore(nNumero, sFile))));
    }

    prove::CartellaProva m_Cartella;
    OspiteProva m_Ospite{6};
    F_InsColonne m_Dialogo{m_Ospite};
};

TEST_F(FInsColonne, AllInizioLElencoEVuotoEIlPannelloNascosto)
{
    EXPECT_EQ(m_Dialogo.sNome, "F_InsColonne");
    EXPECT_EQ(m_Dialogo.sTitolo, "Inserimento colonne da file");
    EXPECT_THAT(m_Dialogo.ListView1.aTestate, ElementsAre("", "Colonna", "Punti", "Recupero", "Quadro Rec"));
    EXPECT_THAT(Righe(), IsEmpty());
    EXPECT_FALSE(m_Dialogo.PanPunti.Visibile.Valore());
}

TEST_F(FInsColonne, IlPannelloEDellaClasseDelSistema)
{
    EXPECT_TRUE(m_Dialogo.Pannello.ChkPunti(6).Visibile.Valore());
    EXPECT_FALSE(m_Dialogo.Pannello.ChkPunti(7).Visibile.Valore());
}

// --- the file

TEST_F(FInsColonne, OpenChiedeUnTestoNellaCartellaDelleColonne)
{
    m_Ospite.sPercorsoSalvaColonne = m_Cartella / "";
    m_Ospite.desktop.Scegli("");
    m_Dialogo.Toolbar1("open");
    EXPECT_THAT(m_Ospite.desktop.Dialoghi(),
                ElementsAre(DialogoFile{.bSalva = false,
                                        .richiesta = {.sTitolo = "Apri file",
                                                      .sFiltro = "File di testo (*.txt)|*.txt",
                                                      .sEstensione = "",
                                                      .sNomeFile = "",
                                                      .sCartella = m_Cartella / ""}}));
}

TEST_F(FInsColonne, OpenCaricaIlFileScelto)
{
    ScriviFile(m_Cartella / "a.txt", "1 2 3\r\n");
    m_Ospite.desktop.Scegli(m_Cartella / "a.txt");
    m_Dialogo.Toolbar1("open");
    EXPECT_THAT(Sotto(0), ElementsAre("1 2 3"));
}

TEST_F(FInsColonne, ChiRinunciaTieneLElenco)
{
    Carica("1 2 3");
    m_Ospite.desktop.Scegli("");
    m_Dialogo.ApriFile();
    EXPECT_THAT(Sotto(0), ElementsAre("1 2 3"));
}

TEST_F(FInsColonne, OgniRigaConNumeriEUnaVoceNumerata)
{
    Carica("1 2 3\r\n01.02.03\nn. 7, 8");
    EXPECT_THAT(Chiavi(), ElementsAre("k1=1", "k2=2", "k3=3"));
    EXPECT_THAT(Sotto(0), ElementsAre("1 2 3", "01.02.03", "n. 7, 8"));
    EXPECT_THAT(Sotto(1), ElementsAre("", "", ""));
    EXPECT_FALSE(Righe()[0].bScelta);
}

TEST_F(FInsColonne, LeRigheSenzaNumeriNonSiNumerano)
{
    Carica("titolo\r\n5\r\n\r\n0 91 100\r\n6\r\n");
    EXPECT_THAT(Chiavi(), ElementsAre("k1=1", "k2=2"));
    EXPECT_THAT(Sotto(0), ElementsAre("5", "6"));
}

TEST_F(FInsColonne, UnNuovoFilePrendeIlPostoDiQuelloDiPrima)
{
    Carica("1\n2\n3\n");
    Carica("9\n");
    EXPECT_THAT(Chiavi(), ElementsAre("k1=1"));
    EXPECT_THAT(Numeri(0), ElementsAre(9));
}

TEST_F(FInsColonne, UnFileVuotoSvuotaLElenco)
{
    Carica("1\n2\n");
    Carica("");
    EXPECT_THAT(Righe(), IsEmpty());
}

TEST_F(FInsColonne, UnFileMancanteNonCambiaNulla)
{
    Carica("1\n2\n");
    m_Dialogo.LoadLVColonne(m_Cartella / "manca.txt");
    EXPECT_THAT(Sotto(0), ElementsAre("1", "2"));
}

TEST_F(FInsColonne, UnaCartellaAlPostoDelFileEUnFallimento)
{
    Carica("1\n");
    m_Dialogo.LoadLVColonne(m_Cartella / "");
    FallitoCon(eErrore::accessoPercorso, m_Cartella / "");
    EXPECT_THAT(Righe(), IsEmpty());
}

TEST_F(FInsColonne, UnFileCheNonSiPuoLeggereEUnFallimento)
{
    const std::string sFile = m_Cartella / "chiuso.txt";
    ScriviFile(sFile, "1 2 3");
    std::filesystem::permissions(sFile, std::filesystem::perms::none);
    {
        const prove::SenzaPrivilegi senza;
        if (!senza.Riuscito()) {
            // Without the right to change users nobody can be kept from reading.
            GTEST_SKIP() << "i permessi non si possono provare qui";
        }
        m_Dialogo.LoadLVColonne(sFile);
    }
    FallitoCon(eErrore::permesso, sFile);
    EXPECT_THAT(Righe(), IsEmpty());
}

std::string MolteRighe(std::size_t nRighe)
{
    std::string sTesto;
    for (std::size_t i = 0; i < nRighe; ++i) {
        sTesto += "7\n";
    }
    return sTesto;
}

TEST_F(FInsColonne, CentomilaColonneEntrano)
{
    Carica(MolteRighe(100000));
    EXPECT_EQ(Righe().size(), std::size_t{100000});
    EXPECT_EQ(Righe().back().sChiave, "k100000");
}

TEST_F(FInsColonne, UnaDiPiuEUnFallimentoELeAltreRestano)
{
    Carica(MolteRighe(100001));
    FallitoCon(eErrore::memoria, m_Cartella / "colonne.txt");
    EXPECT_EQ(Righe().size(), std::size_t{100000});
    EXPECT_EQ(m_Dialogo.Colonne().size(), std::size_t{100000});
}

TEST_F(FInsColonne, UnAltroFormatoDaLeRigheCheCapita)
{
    Carica(std::string("\x7F\x45\x4C\x46\x00\x01", 6) + "\xFF" + "12\xFE\n\x80\x81\n");
    EXPECT_EQ(Righe().size(), std::size_t{1});
    EXPECT_THAT(Numeri(0), ElementsAre(12));
}

// --- the toolbar and the panel

TEST_F(FInsColonne, DeleteTogliLeRigheScelte)
{
    Carica("1\n2\n3\n4\n");
    Scegli({0, 2});
    m_Dialogo.Toolbar1("delete");
    EXPECT_THAT(Sotto(0), ElementsAre("2", "4"));
    EXPECT_THAT(Chiavi(), ElementsAre("k2=2", "k4=4"));
}

TEST_F(FInsColonne, DeleteSenzaSceltaNonToglieNulla)
{
    Carica("1\n2\n");
    m_Dialogo.EliminaRecord();
    EXPECT_THAT(Sotto(0), ElementsAre("1", "2"));
}

TEST_F(FInsColonne, DopoUnaCancellazioneICodiciTengonoILoroNumeri)
{
    Carica("11 12\n21 22\n31 32\n");
    Scegli({0});
    m_Dialogo.EliminaRecord();
    EXPECT_THAT(Numeri(0), ElementsAre(21, 22));
    EXPECT_THAT(Numeri(1), ElementsAre(31, 32));
}

TEST_F(FInsColonne, PuntiMostraIlPannello)
{
    m_Dialogo.Toolbar1("punti");
    EXPECT_TRUE(m_Dialogo.PanPunti.Visibile.Valore());
}

TEST_F(FInsColonne, UnAltroPulsanteNonFaNulla)
{
    m_Dialogo.Toolbar1("");
    m_Dialogo.Toolbar1("stampa");
    EXPECT_FALSE(m_Dialogo.PanPunti.Visibile.Valore());
}

TEST_F(FInsColonne, IlPannelloScriveLeSoleRigheScelte)
{
    Carica("1\n2\n3\n");
    Scegli({0, 2});
    m_Dialogo.Toolbar1("punti");
    m_Dialogo.Pannello.CmbRecupero.Indice.Poni(4);
    Segna({0, 2}, {1, 3});
    m_Dialogo.XPButton2();
    EXPECT_THAT(Sotto(1), ElementsAre("0-2", "", "0-2"));
    EXPECT_THAT(Sotto(2), ElementsAre("1-3", "", "1-3"));
    EXPECT_THAT(Sotto(3), ElementsAre("4", "", "4"));
    EXPECT_FALSE(m_Dialogo.PanPunti.Visibile.Valore());
}

TEST_F(FInsColonne, SenzaSegniSiScrivonoTestiVuotiEIlGruppoBianco)
{
    Carica("1\n");
    Scegli({0});
    m_Dialogo.ImpostaPunti();
    EXPECT_THAT(Righe()[0].aSotto, ElementsAre("1", "", "", " "));
}

TEST_F(FInsColonne, AnnullaNascondeSenzaScrivere)
{
    Carica("1\n");
    Scegli({0});
    m_Dialogo.Toolbar1("punti");
    Segna({2}, {});
    m_Dialogo.XPButton3();
    EXPECT_FALSE(m_Dialogo.PanPunti.Visibile.Valore());
    EXPECT_THAT(Sotto(1), ElementsAre(""));
}

TEST_F(FInsColonne, NelPannelloUnValoreAccettatoNonSiRecupera)
{
    m_Dialogo.Pannello.CmbRecupero.Indice.Poni(1);
    Segna({}, {2});
    Segna({2}, {});
    EXPECT_FALSE(m_Dialogo.Pannello.ChkRecupero(2).Segnata.Valore());
}

// --- the answer

TEST_F(FInsColonne, SenzaColonneLaConfermaNonDiceNulla)
{
    Carica("\r\n\r\n\n");
    m_Dialogo.Mostra();
    EXPECT_FALSE(m_Dialogo.VerificaCoerenza());
    m_Dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_TRUE(m_Dialogo.Visibile.Valore());
    EXPECT_EQ(m_Dialogo.sTag, "");
}

TEST_F(FInsColonne, ConUnaColonnaSiConferma)
{
    Carica("1\n");
    m_Dialogo.Mostra();
    EXPECT_TRUE(m_Dialogo.VerificaCoerenza());
    m_Dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_FALSE(m_Dialogo.Visibile.Valore());
    EXPECT_FALSE(m_Dialogo.sTag.empty());
}

TEST_F(FInsColonne, ChiudiNonConferma)
{
    Carica("1\n");
    m_Dialogo.Mostra();
    m_Dialogo.Premi(ePulsanteDialogo::chiudi);
    EXPECT_FALSE(m_Dialogo.Visibile.Valore());
    EXPECT_EQ(m_Dialogo.sTag, "");
}

TEST_F(FInsColonne, LeColonnePortanoNumeriOrdinatiEPunti)
{
    Carica("91 0 5 5\n9 3 90\n");
    Scegli({1});
    Segna({1}, {});
    m_Dialogo.ImpostaPunti();
    EXPECT_THAT(Numeri(0), ElementsAre(5));
    EXPECT_THAT(Numeri(1), ElementsAre(3, 9, 90));
    EXPECT_EQ(m_Dialogo.Colonne()[0].sPunti, "");
    EXPECT_EQ(m_Dialogo.Colonne()[1].sPunti, "1");
}

TEST_F(FInsColonne, IlGruppoEQuelloCheIlComboMostraAllaFine)
{
    Carica("1\n");
    Scegli({0});
    m_Dialogo.Pannello.CmbRecupero.Indice.Poni(2);
    Segna({1}, {3});
    m_Dialogo.ImpostaPunti();
    m_Dialogo.Pannello.CmbRecupero.Indice.Poni(5);
    EXPECT_THAT(Sotto(3), ElementsAre("2"));
    EXPECT_EQ(m_Dialogo.Quadro(), "5");
    EXPECT_EQ(m_Dialogo.Colonne()[0].sRecupero, "3");
}

TEST_F(FInsColonne, UnaRigaLungaSiMostraTagliataEContaTutta)
{
    Carica("1" + std::string(2000, ' ') + "2\n");
    EXPECT_EQ(Sotto(0)[0].size(), std::size_t{1024});
    EXPECT_THAT(Numeri(0), ElementsAre(1, 2));
}

} // namespace
} // namespace ordavel
