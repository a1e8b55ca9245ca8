// F_SalvaCondizioni_prova.cpp - a run of conditions into a file: the choice, the preview, what is written.

#include "editor/F_SalvaCondizioni.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/SenzaPrivilegi.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::CartellaProva;
using prove::DialogoFile;
using prove::Fallimento;
using prove::LeggiFile;
using prove::OspiteProva;
using prove::ScriviFile;
using testing::ElementsAre;
using testing::IsEmpty;

const Condizione kPonte{"Ponte", "P\r\no\r\nn\r\nt\r\ne", "1-2", "", " "};
const Condizione kResto{"Resto", "Resto a : 3", "0-1", "2", "4"};

/// A component with the rows "Ponte", "Resto" and "LinkOpen".
class FSalvaCondizioni : public testing::Test {
protected:
    FSalvaCondizioni()
    {
        m_Ospite.griglia.Riga(1) = kPonte;
        m_Ospite.griglia.Riga(2) = kResto;
        m_Ospite.griglia.Riga(3).sCondizione = "LinkOpen";
        m_Ospite.sDirSistemi = m_Cartella / "";
    }

    /// Chooses entries, by their places from 0.
    static void Scegli(F_SalvaCondizioni& dialogo, std::int32_t nInizio, std::int32_t nFine)
    {
        dialogo.CmbCondInizio.Indice.Poni(nInizio);
        dialogo.CmbCondFine.Indice.Poni(nFine);
    }

    static std::vector<std::string> Anteprima(const F_SalvaCondizioni& dialogo)
    {
        std::vector<std::string> aChiavi;
        for (std::int32_t nRiga = 1; !dialogo.GrdCond.Vuota(nRiga); ++nRiga) {
            aChiavi.push_back(dialogo.GrdCond.Riga(nRiga).sCondizione);
        }
        return aChiavi;
    }

    /// Saves rows 1 and 2 under a path.
    void Salva(const std::string& sFile)
    {
        F_SalvaCondizioni dialogo(m_Ospite);
        Scegli(dialogo, 0, 1);
        m_Ospite.desktop.Scegli(sFile);
        dialogo.Mostra();
        dialogo.Premi(ePulsanteDialogo::conferma);
        m_bRimasto = dialogo.Visibile.Valore();
    }

    /// The save ended with a failure, and the dialog is still there.
    void FallitoCon(eErrore nNumero, const std::string& sFile)
    {
        EXPECT_THAT(m_Ospite.desktop.Messaggi(),
                    ElementsAre(Fallimento("F_SalvaCondizioni.Salva", Errore(nNumero, sFile))));
        EXPECT_TRUE(m_bRimasto);
    }

    static std::string Byte()
    {
        return "Ponte[R]P\r\no\r\nn\r\nt\r\ne[R]1-2[R][R] [R]" + std::string(1, '\0') +
               "Resto[R]Resto a : 3[R]0-1[R]2[R]4[R]" + std::string(1, '\0');
    }

    CartellaProva m_Cartella;
    OspiteProva m_Ospite{6};
    bool m_bRimasto = false;
};

TEST_F(FSalvaCondizioni, OffreLeRigheColLoroNumero)
{
    const F_SalvaCondizioni dialogo(m_Ospite);
    EXPECT_EQ(dialogo.sNome, "F_SalvaCondizioni");
    EXPECT_EQ(dialogo.sTitolo, "Salva condizioni");
    for (const Combo* combo : {&dialogo.CmbCondInizio, &dialogo.CmbCondFine}) {
        EXPECT_THAT(combo->Voci.Valore(), ElementsAre("   1 - Ponte", "   2 - Resto", "   3 - LinkOpen"));
        EXPECT_EQ(combo->Indice.Valore(), -1);
    }
}

TEST_F(FSalvaCondizioni, LeRigheDopoLaPrimaVuotaNonSiOffrono)
{
    m_Ospite.griglia.Riga(2) = {};
    const F_SalvaCondizioni dialogo(m_Ospite);
    EXPECT_THAT(dialogo.CmbCondFine.Voci.Valore(), ElementsAre("   1 - Ponte"));
}

TEST_F(FSalvaCondizioni, UnaGrigliaPienaLeOffreTutte)
{
    for (std::int32_t nRiga = 1; nRiga <= kCondizioniMassime; ++nRiga) {
        m_Ospite.griglia.Riga(nRiga) = kPonte;
    }
    F_SalvaCondizioni dialogo(m_Ospite);
    EXPECT_EQ(dialogo.CmbCondFine.Voci.Valore().back(), "2000 - Ponte");
    Scegli(dialogo, 0, 1999);
    EXPECT_EQ(Anteprima(dialogo).size(), std::size_t{2000});
}

TEST_F(FSalvaCondizioni, UnaGrigliaVuotaNonOffreNulla)
{
    m_Ospite.griglia.Svuota();
    F_SalvaCondizioni dialogo(m_Ospite);
    EXPECT_THAT(dialogo.CmbCondInizio.Voci.Valore(), IsEmpty());
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(Avviso("Impostare le condizioni da salvare")));
}

TEST_F(FSalvaCondizioni, UnEstremoSoloNonCopiaNulla)
{
    F_SalvaCondizioni dialogo(m_Ospite);
    Scegli(dialogo, 0, -1);
    EXPECT_THAT(Anteprima(dialogo), IsEmpty());
    Scegli(dialogo, -1, 0);
    EXPECT_THAT(Anteprima(dialogo), IsEmpty());
}

TEST_F(FSalvaCondizioni, ToltaUnaSceltaLAnteprimaResta)
{
    F_SalvaCondizioni dialogo(m_Ospite);
    Scegli(dialogo, 0, 1);
    Scegli(dialogo, 0, -1);
    EXPECT_THAT(Anteprima(dialogo), ElementsAre("Ponte", "Resto"));
    Scegli(dialogo, -1, 1);
    EXPECT_THAT(Anteprima(dialogo), ElementsAre("Ponte", "Resto"));
}

TEST_F(FSalvaCondizioni, IlTrattoSceltoVaInAnteprimaDallaPrimaRiga)
{
    F_SalvaCondizioni dialogo(m_Ospite);
    Scegli(dialogo, 1, 2);
    EXPECT_THAT(Anteprima(dialogo), ElementsAre("Resto", "LinkOpen"));
    EXPECT_EQ(dialogo.GrdCond.Riga(1), kResto);
}

TEST_F(FSalvaCondizioni, UnTrattoPiuCortoNonLasciaResti)
{
    F_SalvaCondizioni dialogo(m_Ospite);
    Scegli(dialogo, 0, 2);
    dialogo.CmbCondFine.Indice.Poni(0);
    EXPECT_THAT(Anteprima(dialogo), ElementsAre("Ponte"));
}

TEST_F(FSalvaCondizioni, UnInizioDopoLaFineSvuotaLAnteprima)
{
    F_SalvaCondizioni dialogo(m_Ospite);
    Scegli(dialogo, 0, 1);
    dialogo.CmbCondInizio.Indice.Poni(2);
    EXPECT_THAT(Anteprima(dialogo), IsEmpty());
}

TEST_F(FSalvaCondizioni, SenzaAnteprimaAvvisaERimane)
{
    F_SalvaCondizioni dialogo(m_Ospite);
    dialogo.Mostra();
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(Avviso("Impostare le condizioni da salvare")));
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_THAT(m_Ospite.desktop.Dialoghi(), IsEmpty());
}

TEST_F(FSalvaCondizioni, IlFileSiChiedeNellaCartellaDeiSistemiConUnTitoloDiApertura)
{
    Salva("");
    EXPECT_THAT(m_Ospite.desktop.Dialoghi(),
                ElementsAre(DialogoFile{.bSalva = true,
                                        .richiesta = {.sTitolo = "Apri file",
                                                      .sFiltro = "File di condizioni (*.cnd)|*.cnd",
                                                      .sEstensione = ".cnd",
                                                      .sNomeFile = "",
                                                      .sCartella = m_Cartella / ""}}));
    EXPECT_TRUE(m_bRimasto);
    EXPECT_TRUE(std::filesystem::is_empty(m_Cartella / ""));
}

TEST_F(FSalvaCondizioni, ScriveLAnteprimaBytePerByteESiChiude)
{
    Salva(m_Cartella / "a.cnd");
    EXPECT_FALSE(m_bRimasto);
    EXPECT_EQ(LeggiFile(m_Cartella / "a.cnd"), Byte());
}

TEST_F(FSalvaCondizioni, UnFileCheCEraSiRifaDaCapo)
{
    ScriviFile(m_Cartella / "a.cnd", std::string(5000, 'x'));
    Salva(m_Cartella / "a.cnd");
    EXPECT_EQ(LeggiFile(m_Cartella / "a.cnd"), Byte());
}

TEST_F(FSalvaCondizioni, UnLinkSenzaFineSiSalva)
{
    F_SalvaCondizioni dialogo(m_Ospite);
    Scegli(dialogo, 2, 2);
    m_Ospite.desktop.Scegli(m_Cartella / "a.cnd");
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(LeggiFile(m_Cartella / "a.cnd"), "LinkOpen[R][R][R][R][R]" + std::string(1, '\0'));
}

TEST_F(FSalvaCondizioni, LeRigheDelSistemaNonCambiano)
{
    m_Ospite.griglia.PoniCorrente(2);
    Salva(m_Cartella / "a.cnd");
    EXPECT_EQ(m_Ospite.griglia.Riga(1), kPonte);
    EXPECT_EQ(m_Ospite.griglia.Riga(2), kResto);
    EXPECT_EQ(m_Ospite.griglia.Corrente(), 2);
}

TEST_F(FSalvaCondizioni, ChiudiNonScrive)
{
    F_SalvaCondizioni dialogo(m_Ospite);
    Scegli(dialogo, 0, 2);
    dialogo.Mostra();
    dialogo.Premi(ePulsanteDialogo::chiudi);
    EXPECT_FALSE(dialogo.Visibile.Valore());
    EXPECT_EQ(dialogo.sTag, "");
}

// --- failures

TEST_F(FSalvaCondizioni, InUnaCartellaMancanteNonSiSalva)
{
    Salva(m_Cartella / "manca/a.cnd");
    FallitoCon(eErrore::percorsoNonTrovato, m_Cartella / "manca/a.cnd");
}

TEST_F(FSalvaCondizioni, SopraUnaCartellaNonSiSalva)
{
    std::filesystem::create_directory(m_Cartella / "a.cnd");
    Salva(m_Cartella / "a.cnd");
    EXPECT_THAT(m_Ospite.desktop.Messaggi(),
                testing::Contains(Fallimento("F_SalvaCondizioni.Salva",
                                             Errore(eErrore::accessoPercorso, m_Cartella / "a.cnd"))));
    EXPECT_TRUE(m_bRimasto);
}

TEST_F(FSalvaCondizioni, InUnaCartellaChiusaNonSiSalva)
{
    const std::string sChiusa = m_Cartella / "chiusa";
    std::filesystem::create_directory(sChiusa);
    std::filesystem::permissions(sChiusa, std::filesystem::perms::owner_read |
                                              std::filesystem::perms::owner_exec |
                                              std::filesystem::perms::others_exec);
    {
        const prove::SenzaPrivilegi senza;
        if (!senza.Riuscito()) {
            // Without the right to change users nobody can be kept from writing.
            GTEST_SKIP() << "i permessi non si possono provare qui";
        }
        Salva(sChiusa + "/a.cnd");
    }
    FallitoCon(eErrore::permesso, sChiusa + "/a.cnd");
    std::filesystem::permissions(sChiusa, std::filesystem::perms::owner_all); // so that the folder can go
}

TEST_F(FSalvaCondizioni, DopoUnFallimentoSiSalvaAltrove)
{
    F_SalvaCondizioni dialogo(m_Ospite);
    Scegli(dialogo, 0, 1);
    dialogo.Mostra();
    m_Ospite.desktop.Scegli(m_Cartella / "manca/a.cnd");
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(m_Ospite.desktop.Messaggi().size(), std::size_t{1});
    m_Ospite.desktop.Scegli(m_Cartella / "a.cnd");
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_FALSE(dialogo.Visibile.Valore());
    EXPECT_EQ(LeggiFile(m_Cartella / "a.cnd"), Byte());
}

} // namespace
} // namespace ordavel
