// F_ApriCondizioni_prova.cpp - the conditions of a file: the list of files, the preview, where the rows go.

#include "editor/F_ApriCondizioni.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/SenzaPrivilegi.hpp"
#include "editor/F_SalvaCondizioni.hpp"
#include "editor/OspiteProva.hpp"
#include "persistenza/ModFileCondizioni.hpp"

#include <rapidcheck/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::CartellaProva;
using prove::Fallimento;
using prove::OspiteProva;
using prove::ScriviFile;
using testing::ElementsAre;
using testing::IsEmpty;

using Condizioni = std::vector<Condizione>;

const Condizione kPonte{"Ponte", "P\r\no\r\nn\r\nt\r\ne", "1-2", "", " "};
const Condizione kResto{"Resto", "Resto a : 3", "0-1", "2", "4"};

/// The rows up to the first empty one.
Condizioni Piene(const GrigliaCondizioni& griglia)
{
    Condizioni aRighe;
    for (std::int32_t nRiga = 1; !griglia.Vuota(nRiga); ++nRiga) {
        aRighe.push_back(griglia.Riga(nRiga));
    }
    return aRighe;
}

Condizioni Copie(std::size_t nRighe)
{
    return Condizioni(nRighe, kPonte);
}

class FApriCondizioni : public testing::Test {
protected:
    FApriCondizioni() { m_Ospite.sDirSistemi = m_Cartella / ""; }

    void ScriviRighe(std::string_view sNome, const Condizioni& aRighe)
    {
        ScriviFileCondizioni(m_Cartella / sNome, aRighe);
    }

    /// Reads bytes as if they were a condition file.
    Condizioni Letto(std::string_view sByte)
    {
        ScriviFile(m_Cartella / "letto.cnd", sByte);
        F_ApriCondizioni dialogo(m_Ospite);
        EXPECT_TRUE(SelezionaCombo("letto", dialogo.CmbCondizioni));
        return Piene(dialogo.GrdCond);
    }

    /// Opens a file of these rows and confirms.
    void Inserisci(const Condizioni& aRighe)
    {
        ScriviRighe("righe.cnd", aRighe);
        F_ApriCondizioni dialogo(m_Ospite);
        dialogo.Mostra();
        EXPECT_TRUE(SelezionaCombo("righe", dialogo.CmbCondizioni));
        dialogo.Premi(ePulsanteDialogo::conferma);
        EXPECT_FALSE(dialogo.Visibile.Valore());
        EXPECT_FALSE(dialogo.sTag.empty());
    }

    void Occupa(std::int32_t nRighe)
    {
        for (std::int32_t nRiga = 1; nRiga <= nRighe; ++nRiga) {
            m_Ospite.griglia.Riga(nRiga) = kResto;
        }
    }

    void FallitoCon(const Errore& errore)
    {
        EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(Fallimento("F_ApriCondizioni.Apri", errore)));
    }

    CartellaProva m_Cartella;
    OspiteProva m_Ospite{6};
};

// --- the list of files

TEST_F(FApriCondizioni, ElencaIFileDellaCartellaDeiSistemi)
{
    for (const char* sNome : {"b.cnd", "a.cnd", "due punti.x.cnd", "c.txt", "d.cndx", "cnd"}) {
        ScriviFile(m_Cartella / sNome, "");
    }
    std::filesystem::create_directory(m_Cartella / "cartella.cnd");
    const F_ApriCondizioni dialogo(m_Ospite);
    EXPECT_EQ(dialogo.sNome, "F_ApriCondizioni");
    EXPECT_EQ(dialogo.sTitolo, "Apri condizioni");
    EXPECT_EQ(dialogo.LabPercorso.Testo.Valore(), m_Cartella / "");
    EXPECT_THAT(dialogo.CmbCondizioni.Voci.Valore(), ElementsAre("a", "b", "due punti.x"));
    EXPECT_EQ(dialogo.CmbCondizioni.Indice.Valore(), -1);
}

TEST_F(FApriCondizioni, UnaCartellaSenzaFileNonOffreNulla)
{
    const F_ApriCondizioni dialogo(m_Ospite);
    EXPECT_THAT(dialogo.CmbCondizioni.Voci.Valore(), IsEmpty());
}

TEST_F(FApriCondizioni, UnaCartellaCheMancaNonOffreNulla)
{
    for (const std::string& sCartella : {m_Cartella / "manca/", std::string()}) {
        m_Ospite.sDirSistemi = sCartella;
        const F_ApriCondizioni dialogo(m_Ospite);
        EXPECT_THAT(dialogo.CmbCondizioni.Voci.Valore(), IsEmpty()) << sCartella;
    }
}

TEST_F(FApriCondizioni, UnaCartellaChiusaEUnFallimento)
{
    const std::string sChiusa = m_Cartella / "chiusa/";
    std::filesystem::create_directory(sChiusa);
    std::filesystem::permissions(sChiusa, std::filesystem::perms::none);
    m_Ospite.sDirSistemi = sChiusa;
    {
        const prove::SenzaPrivilegi senza;
        if (!senza.Riuscito()) {
            // Without the right to change users nobody can be kept from reading.
            GTEST_SKIP() << "i permessi non si possono provare qui";
        }
        const F_ApriCondizioni dialogo(m_Ospite);
    }
    std::filesystem::permissions(sChiusa, std::filesystem::perms::owner_all); // so that the folder can go
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(Fallimento("F_ApriCondizioni.LoadComboCondizioni",
                                                                    Errore(eErrore::permesso, sChiusa))));
}

TEST_F(FApriCondizioni, UnAltraCartellaSiElencaDaCapo)
{
    ScriviRighe("a.cnd", {kPonte});
    std::filesystem::create_directory(m_Cartella / "altra");
    ScriviRighe("altra/b.cnd", {kResto});
    F_ApriCondizioni dialogo(m_Ospite);
    m_Ospite.desktop.Scegli(m_Cartella / "altra");
    dialogo.Command1();
    EXPECT_EQ(dialogo.LabPercorso.Testo.Valore(), m_Cartella / "altra/");
    EXPECT_THAT(dialogo.CmbCondizioni.Voci.Valore(), ElementsAre("b"));
    dialogo.CmbCondizioni.Indice.Poni(0);
    EXPECT_EQ(Piene(dialogo.GrdCond), Condizioni{kResto});
}

TEST_F(FApriCondizioni, IlSeparatoreNonSiRaddoppia)
{
    std::filesystem::create_directory(m_Cartella / "altra");
    F_ApriCondizioni dialogo(m_Ospite);
    m_Ospite.desktop.Scegli(m_Cartella / "altra/");
    dialogo.Command1();
    EXPECT_EQ(dialogo.LabPercorso.Testo.Valore(), m_Cartella / "altra/");
}

TEST_F(FApriCondizioni, ChiRinunciaRestaNellaCartella)
{
    ScriviRighe("a.cnd", {kPonte});
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.CmbCondizioni.Indice.Poni(0);
    m_Ospite.desktop.Scegli("");
    dialogo.Command1();
    EXPECT_EQ(dialogo.LabPercorso.Testo.Valore(), m_Cartella / "");
    EXPECT_EQ(dialogo.CmbCondizioni.Testo(), "a");
}

TEST_F(FApriCondizioni, UnaCartellaSenzaFileTieneLAnteprima)
{
    ScriviRighe("a.cnd", {kPonte});
    std::filesystem::create_directory(m_Cartella / "vuota");
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.CmbCondizioni.Indice.Poni(0);
    m_Ospite.desktop.Scegli(m_Cartella / "vuota");
    dialogo.Command1();
    EXPECT_THAT(dialogo.CmbCondizioni.Voci.Valore(), IsEmpty());
    EXPECT_EQ(dialogo.CmbCondizioni.Indice.Valore(), -1);
    EXPECT_EQ(Piene(dialogo.GrdCond), Condizioni{kPonte});
}

// --- the preview

TEST_F(FApriCondizioni, LaSceltaLeggeIlFile)
{
    ScriviRighe("a.cnd", {kPonte, kResto});
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.CmbCondizioni.Indice.Poni(0);
    EXPECT_EQ(Piene(dialogo.GrdCond), (Condizioni{kPonte, kResto}));
    EXPECT_THAT(Piene(m_Ospite.griglia), IsEmpty());
}

TEST_F(FApriCondizioni, UnFilePiuCortoNonLasciaResti)
{
    ScriviRighe("a.cnd", {kPonte, kPonte});
    ScriviRighe("b.cnd", {kResto});
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.CmbCondizioni.Indice.Poni(0);
    dialogo.CmbCondizioni.Indice.Poni(1);
    EXPECT_EQ(Piene(dialogo.GrdCond), Condizioni{kResto});
}

TEST_F(FApriCondizioni, UnFileDiZeroByteNonDaRighe)
{
    EXPECT_THAT(Letto(""), IsEmpty());
}

TEST_F(FApriCondizioni, SenzaAnteprimaAvvisaERimane)
{
    ScriviFile(m_Cartella / "vuoto.cnd", "");
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.Mostra();
    dialogo.CmbCondizioni.Indice.Poni(0);
    dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(Avviso("Impostare le condizioni da salvare")));
    EXPECT_TRUE(dialogo.Visibile.Valore());
    EXPECT_EQ(dialogo.sTag, "");
}

TEST_F(FApriCondizioni, UnAltroFormatoDaLeRigheCheCapita)
{
    EXPECT_EQ(Letto("nessuna cella"), (Condizioni{{"nessuna cella", "", "", "", ""}}));
    EXPECT_EQ(Letto("a[R]b\n[R]"), (Condizioni{{"a", "b\n", "", "", ""}}));
}

TEST_F(FApriCondizioni, UnFallimentoSvuotaLAnteprima)
{
    ScriviRighe("a.cnd", {kPonte});
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.CmbCondizioni.Indice.Poni(0);
    dialogo.Apri(m_Cartella / "manca.cnd");
    FallitoCon(Errore(eErrore::fileNonTrovato, m_Cartella / "manca.cnd"));
    EXPECT_THAT(Piene(dialogo.GrdCond), IsEmpty());
}

TEST_F(FApriCondizioni, UnFileSparitoDopoLElencoEUnFallimento)
{
    ScriviRighe("a.cnd", {kPonte});
    F_ApriCondizioni dialogo(m_Ospite);
    std::filesystem::remove(m_Cartella / "a.cnd");
    dialogo.CmbCondizioni.Indice.Poni(0);
    FallitoCon(Errore(eErrore::fileNonTrovato, m_Cartella / "a.cnd"));
}

TEST_F(FApriCondizioni, UnaCartellaAlPostoDelFileEUnFallimento)
{
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.Apri(m_Cartella / "");
    FallitoCon(Errore(eErrore::accessoPercorso, m_Cartella / ""));
}

TEST_F(FApriCondizioni, UnFileCheNonSiPuoLeggereEUnFallimento)
{
    ScriviRighe("a.cnd", {kPonte});
    std::filesystem::permissions(m_Cartella / "a.cnd", std::filesystem::perms::none);
    F_ApriCondizioni dialogo(m_Ospite);
    {
        const prove::SenzaPrivilegi senza;
        if (!senza.Riuscito()) {
            // Without the right to change users nobody can be kept from reading.
            GTEST_SKIP() << "i permessi non si possono provare qui";
        }
        dialogo.CmbCondizioni.Indice.Poni(0);
    }
    FallitoCon(Errore(eErrore::permesso, m_Cartella / "a.cnd"));
}

TEST_F(FApriCondizioni, UnFileTroppoLungoNonSiLegge)
{
    ScriviFile(m_Cartella / "a.cnd", "");
    std::filesystem::resize_file(m_Cartella / "a.cnd", kByteFileCondizioniMassimi + 1);
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.CmbCondizioni.Indice.Poni(0);
    FallitoCon(Errore(eErrore::memoria, m_Cartella / "a.cnd"));
}

TEST_F(FApriCondizioni, DuemilaRigheEntranoNellAnteprima)
{
    ScriviRighe("a.cnd", Copie(2000));
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.CmbCondizioni.Indice.Poni(0);
    EXPECT_EQ(Piene(dialogo.GrdCond).size(), std::size_t{2000});
}

TEST_F(FApriCondizioni, OltreDuemilaRigheEUnFallimentoELeAltreRestano)
{
    ScriviRighe("a.cnd", Copie(2001));
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.CmbCondizioni.Indice.Poni(0);
    FallitoCon(Errore(eErrore::indice));
    EXPECT_EQ(Piene(dialogo.GrdCond).size(), std::size_t{2000});
}

// --- inserting

TEST_F(FApriCondizioni, LeRigheVannoDietroQuelleDelSistema)
{
    Occupa(1);
    m_Ospite.griglia.PoniCorrente(900);
    Inserisci({kPonte, kPonte});
    EXPECT_EQ(Piene(m_Ospite.griglia), (Condizioni{kResto, kPonte, kPonte}));
    EXPECT_EQ(m_Ospite.griglia.Corrente(), 900);
}

TEST_F(FApriCondizioni, UnaRigaApertaNelBloccoEIlPostoEQuelloCheSegueSiPerde)
{
    Occupa(4);
    m_Ospite.griglia.Riga(2) = {};
    Inserisci({kPonte, kPonte});
    EXPECT_EQ(Piene(m_Ospite.griglia), (Condizioni{kResto, kPonte, kPonte, kResto}));
}

TEST_F(FApriCondizioni, InUnaGrigliaPienaSiScriveDallaCima)
{
    Occupa(2000);
    Inserisci({kPonte});
    EXPECT_EQ(m_Ospite.griglia.Riga(1), kPonte);
    EXPECT_EQ(m_Ospite.griglia.Riga(2), kResto);
}

TEST_F(FApriCondizioni, OltreLUltimaRigaEUnFallimentoELeAltreRestano)
{
    Occupa(1998);
    Inserisci({kPonte, kPonte, kPonte});
    EXPECT_THAT(m_Ospite.desktop.Messaggi(),
                ElementsAre(Fallimento("F_ApriCondizioni.Inserisci", Errore(eErrore::indice))));
    EXPECT_EQ(m_Ospite.griglia.Riga(1999), kPonte);
    EXPECT_EQ(m_Ospite.griglia.Riga(2000), kPonte);
    EXPECT_EQ(m_Ospite.griglia.Riga(1), kResto);
}

TEST_F(FApriCondizioni, DueEmulatoriEUnGruppoSconosciutoPassano)
{
    const Condizione emulatore{"Emulatore", "[2]", "", "", ""};
    Inserisci({emulatore, emulatore, kResto});
    EXPECT_EQ(Piene(m_Ospite.griglia), (Condizioni{emulatore, emulatore, kResto}));
}

TEST_F(FApriCondizioni, UnLinkSenzaFineHaLAltezzaDelleAltre)
{
    Inserisci({{"LinkOpen", "L", "", "", ""}});
    EXPECT_EQ(m_Ospite.griglia.Riga(1).sCondizione, "LinkOpen");
    EXPECT_EQ(m_Ospite.griglia.Altezza(1), eAltezza::comune);
}

TEST_F(FApriCondizioni, ChiudiNonInserisce)
{
    ScriviRighe("a.cnd", {kPonte});
    F_ApriCondizioni dialogo(m_Ospite);
    dialogo.Mostra();
    dialogo.CmbCondizioni.Indice.Poni(0);
    dialogo.Premi(ePulsanteDialogo::chiudi);
    EXPECT_THAT(Piene(m_Ospite.griglia), IsEmpty());
    EXPECT_FALSE(dialogo.Visibile.Valore());
    EXPECT_EQ(dialogo.sTag, "");
}

// --- both ways

/// Saves all rows of a grid into a file.
void SalvaTutte(const Condizioni& aRighe, const std::string& sFile)
{
    OspiteProva ospite(6);
    ospite.griglia = prove::GrigliaDi(aRighe);
    ospite.desktop.Scegli(sFile);
    F_SalvaCondizioni dialogo(ospite);
    dialogo.CmbCondInizio.Indice.Poni(0);
    dialogo.CmbCondFine.Indice.Poni(static_cast<std::int32_t>(aRighe.size()) - 1);
    dialogo.Premi(ePulsanteDialogo::conferma);
}

/// What a system without rows gets from the only file of a folder.
Condizioni ApriUnico(const std::string& sCartella)
{
    OspiteProva ospite(6);
    ospite.sDirSistemi = sCartella;
    F_ApriCondizioni dialogo(ospite);
    dialogo.CmbCondizioni.Indice.Poni(0);
    dialogo.Premi(ePulsanteDialogo::conferma);
    return Piene(ospite.griglia);
}

RC_GTEST_PROP(FApriCondizioniProprieta, LeRigheSalvateTornanoUguali, ())
{
    const Condizioni aRighe = *prove::GenCondizioni(6, 12);
    RC_PRE(!aRighe.empty());
    const CartellaProva cartella;
    SalvaTutte(aRighe, cartella / "a.cnd");
    RC_ASSERT(ApriUnico(cartella / "") == aRighe);
}

TEST_F(FApriCondizioni, AndataERitornoTengonoAccapoEBianchi)
{
    SalvaTutte({kPonte, kResto}, m_Cartella / "a.cnd");
    EXPECT_EQ(ApriUnico(m_Cartella / ""), (Condizioni{kPonte, kResto}));
}

} // namespace
} // namespace ordavel
