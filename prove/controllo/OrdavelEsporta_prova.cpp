// OrdavelEsporta_prova.cpp - the columns as text: every byte, every refusal, every way to stop.

#include "comune/SenzaPrivilegi.hpp"
#include "controllo/F_Progress.hpp"
#include "controllo/SistemaProva.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace ordavel {
namespace {

using prove::ByteDi;
using prove::ColonnaDi;
using prove::DialogoFile;
using prove::Domanda;
using prove::Fallimento;
using prove::LeggiFile;
using prove::ScriviFile;
using prove::SenzaPrivilegi;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr std::string_view kOrigine = "OrdavelSisA.SalvaFileColonneTesto";

/// Column n of a file that is easy to tell: n in three figures of its own.
std::vector<int> NumeriDi(int n)
{
    return {n % 90 + 1, n / 90 % 90 + 1, n / 8100 % 90 + 1};
}

std::string ByteNumerati(int nColonne)
{
    std::string sByte;
    for (int n = 1; n <= nColonne; ++n) {
        sByte += ByteDi({NumeriDi(n)});
    }
    return sByte;
}

/// The first nRighe lines of its text, without any help of the code under test.
std::string TestoColonne(int nRighe)
{
    std::string sTesto;
    for (int n = 1; n <= nRighe; ++n) {
        std::string sRiga;
        for (const int nNumero : NumeriDi(n)) {
            sRiga += (sRiga.empty() ? "" : " ");
            sRiga += static_cast<char>('0' + nNumero / 10);
            sRiga += static_cast<char>('0' + nNumero % 10);
        }
        sTesto += sRiga + "\r\n";
    }
    return sTesto;
}

struct Esportatore : prove::SistemaProva {
    void FileDiLavoro(std::string_view sByte) { ScriviFile(sistema.FileColonne(), sByte); }

    bool Esporta()
    {
        piattaforma.Scegli(sTesto);
        return sistema.SalvaFileColonneTesto();
    }

    /// The text of a working file.
    std::string Esportato(std::string_view sByte)
    {
        FileDiLavoro(sByte);
        EXPECT_TRUE(Esporta());
        return LeggiFile(sTesto);
    }

    /// Exports nColonne columns; what `azione` does when events run for the nVolta-th time, 1 in front of all lines.
    bool EsportaCon(int nColonne, int nVolta, const std::function<void()>& azione)
    {
        FileDiLavoro(ByteNumerati(nColonne));
        piattaforma.nEventi = 0;
        piattaforma.eventi = [this, nVolta, azione] {
            if (piattaforma.nEventi == nVolta) {
                azione();
            }
        };
        return Esporta();
    }

    /// Nothing is left of an export.
    void Riposo()
    {
        EXPECT_TRUE(sistema.Controlli().Componente.Abilitato.Valore());
        EXPECT_FALSE(sistema.Controlli().PanPerc.Visibile.Valore());
        EXPECT_FALSE(piattaforma.Occupato());
        piattaforma.eventi = {};
        FileDiLavoro(ByteDi({{1}}));
        const std::string sAltro = cartella / "riposo.txt";
        piattaforma.Scegli(sAltro);
        EXPECT_TRUE(sistema.SalvaFileColonneTesto()) << "un altro export si fa";
        EXPECT_EQ(LeggiFile(sAltro), "01\r\n");
    }

    const std::string sTesto = cartella / "colonne.txt";
};

class OrdavelEsporta : public testing::Test, protected Esportatore {};

TEST_F(OrdavelEsporta, ScriveUnaRigaPerColonna)
{
    EXPECT_EQ(Esportato(ByteDi({{3, 11, 90}, {1, 2, 3, 4, 5}, {90, 1}})),
              "03 11 90\r\n01 02 03 04 05\r\n90 01\r\n");
}

TEST_F(OrdavelEsporta, VentiNumeriEVentiZeri)
{
    EXPECT_EQ(Esportato(ByteDi({std::vector<int>(20, 90), {}, {7}})),
              "90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90\r\n\r\n07\r\n");
}

TEST_F(OrdavelEsporta, UnFileDiLavoroVuotoDaUnTestoVuoto)
{
    EXPECT_EQ(Esportato(""), "");
    EXPECT_TRUE(std::filesystem::exists(sTesto));
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
}

TEST_F(OrdavelEsporta, AttornoAiBlocchiNonSiPerdeNulla)
{
    for (const int nColonne : {1, 99, 100, 101, 999, 1000, 1001, 1999, 2000, 2001, 10000}) {
        EXPECT_EQ(Esportato(ByteNumerati(nColonne)), TestoColonne(nColonne)) << nColonne;
    }
}

TEST_F(OrdavelEsporta, LUltimoPezzoContaSeEPiuDiMezzaColonnaOPareggia)
{
    const std::string sByte = ByteDi({{1}, {2}, {3}, std::vector<int>(20, 4)});
    EXPECT_EQ(Esportato(sByte.substr(0, 50)), "01\r\n02\r\n");
    EXPECT_EQ(Esportato(sByte.substr(0, 51)), "01\r\n02\r\n03\r\n");
    EXPECT_EQ(Esportato(sByte.substr(0, 70)), "01\r\n02\r\n03\r\n04 04 04 04 04 04 04 04 04 04\r\n");
}

TEST_F(OrdavelEsporta, ChiedeIlNomeColSuggerimento)
{
    piattaforma.Scegli("");
    EXPECT_FALSE(sistema.SalvaFileColonneTesto());
    const DialogoFile dialogo{true,
                              {"Salva colonne formato testo", "File di testo (*.txt)|*.txt", ".txt",
                               "NuovoSistema.txt", sistema.PercorsoSalvaColonne()}};
    EXPECT_THAT(piattaforma.Dialoghi(), ElementsAre(dialogo));
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    EXPECT_EQ(piattaforma.nEventi, 0);
    EXPECT_TRUE(sistema.Controlli().Componente.Abilitato.Valore());
}

TEST_F(OrdavelEsporta, IlNomeSuggeritoEQuelloDelSistema)
{
    ASSERT_TRUE(Salva(cartella / "estate.2.sic"));
    ASSERT_TRUE(Apri(cartella / "estate.2.sic"));
    static_cast<void>(piattaforma.Dialoghi());
    piattaforma.Scegli("");
    EXPECT_FALSE(sistema.SalvaFileColonneTesto());
    EXPECT_EQ(piattaforma.Dialoghi().at(0).richiesta.sNomeFile, "estate.2.txt");
}

TEST_F(OrdavelEsporta, UnFileCheCERimaneSostituito)
{
    ScriviFile(sTesto, std::string(5000, 'x'));
    EXPECT_EQ(Esportato(ByteDi({{1, 2}})), "01 02\r\n");
}

TEST_F(OrdavelEsporta, IlFileDiLavoroRestaComEra)
{
    const std::string sByte = ByteNumerati(1500);
    Esportato(sByte);
    EXPECT_EQ(ByteColonne(), sByte);
}

TEST_F(OrdavelEsporta, SiScriveOgniMilleRighe)
{
    std::vector<std::uintmax_t> aByte;
    FileDiLavoro(ByteNumerati(2002));
    piattaforma.eventi = [&] {
        // Behind lines 999 and 1001, 1999 and 2001: where no line looks, nothing can be asked.
        for (const int nVolta : {991, 992, 1981, 1982}) {
            if (piattaforma.nEventi == nVolta) {
                aByte.push_back(std::filesystem::file_size(sTesto));
            }
        }
    };
    EXPECT_TRUE(Esporta());
    const std::uintmax_t nBlocco = TestoColonne(1000).size();
    EXPECT_THAT(aByte, ElementsAre(0, nBlocco, nBlocco, 2 * nBlocco));
}

TEST_F(OrdavelEsporta, AiMultipliDiCentoNonSiFaNulla)
{
    Esportato(ByteNumerati(1000));
    EXPECT_EQ(piattaforma.nEventi, 1 + 1000 - 10);
}

TEST_F(OrdavelEsporta, LAvanzamentoSaleNelleDueBarre)
{
    std::vector<int> aPercento;
    sistema.Controlli().PanPerc.Valore.Ascolta(
        [&] { aPercento.push_back(sistema.Controlli().PanPerc.Valore.Valore()); });
    Esportato(ByteNumerati(200));
    // Line 200 is never shown, nor is line 100, whose 50 % is that of line 101.
    ASSERT_EQ(aPercento.size(), 99U);
    for (int n = 1; n <= 99; ++n) {
        EXPECT_EQ(aPercento[static_cast<std::size_t>(n) - 1], n);
    }
}

TEST_F(OrdavelEsporta, OgniExportRiparteDaZero)
{
    Esportato(ByteNumerati(150));
    std::vector<int> aPercento;
    sistema.Controlli().PanPerc.Valore.Ascolta(
        [&] { aPercento.push_back(sistema.Controlli().PanPerc.Valore.Valore()); });
    Esportato(ByteNumerati(2));
    EXPECT_THAT(aPercento, ElementsAre(0, 50, 100));
}

TEST_F(OrdavelEsporta, SoloDopoIPrimiEventiIlComponenteEDisabilitato)
{
    std::vector<bool> aAbilitato;
    FileDiLavoro(ByteNumerati(2));
    piattaforma.eventi = [&] {
        aAbilitato.push_back(sistema.Controlli().Componente.Abilitato.Valore());
        EXPECT_TRUE(sistema.Controlli().PanPerc.Visibile.Valore());
        EXPECT_TRUE(piattaforma.Occupato());
    };
    EXPECT_TRUE(Esporta());
    EXPECT_THAT(aAbilitato, ElementsAre(true, false, false));
    EXPECT_THAT(piattaforma.aMostrati, ElementsAre("F_Progress"));
    Riposo();
}

TEST_F(OrdavelEsporta, DuranteLExportIComandiSonoRifiutati)
{
    ASSERT_TRUE(EsportaCon(150, 50, [this] {
        EXPECT_FALSE(sistema.SalvaFileColonneTesto());
        EXPECT_FALSE(sistema.SalvaFileColonne());
        EXPECT_FALSE(sistema.GestSviluppo());
        EXPECT_FALSE(sistema.Apri());
        std::string sFile = cartella / "no.sic";
        EXPECT_FALSE(sistema.Salva(sFile, true));
        for (const char* sChiave : {"New", "VisualizzaColonne", "Delete", "LinkOpen", "FiltraSvilPrec"}) {
            sistema.Toolbar2_ButtonClick(sChiave);
        }
        for (const char* sChiave : {"SalvaColonne", "SalvaColonneTesto", "SalvaConNome"}) {
            sistema.Toolbar2_ButtonMenuClick(sChiave);
        }
    }));
    EXPECT_EQ(LeggiFile(sTesto), TestoColonne(150));
    EXPECT_THAT(piattaforma.Dialoghi(), testing::SizeIs(1));
    EXPECT_FALSE(std::filesystem::exists(cartella / "no.sic"));
    Riposo();
}

TEST_F(OrdavelEsporta, LaCartellaCambiataNelMezzoValeDopo)
{
    ASSERT_TRUE(EsportaCon(1500, 50, [this] { sistema.PoniPercorsoTemp(cartella / "altra"); }));
    EXPECT_EQ(LeggiFile(sTesto), TestoColonne(1500));
}

/// Where an export ends whose cancel comes while events run for the nVolta-th time.
struct Taglio {
    int nVolta = 0;
    int nRighe = 0;
};

class OrdavelEsportaAnnullato : public testing::TestWithParam<Taglio>, protected Esportatore {};

TEST_P(OrdavelEsportaAnnullato, SiFermaAllaPrimaRigaCheGuarda)
{
    EXPECT_FALSE(EsportaCon(2500, GetParam().nVolta, [this] { sistema.AnnullaExport(); }));
    EXPECT_EQ(LeggiFile(sTesto), TestoColonne(GetParam().nRighe));
    EXPECT_EQ(piattaforma.nEventi, GetParam().nVolta);
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
    Riposo();
}

// In front of all lines; at line 1; at 98 and 99, behind which line 100 does not look; at the end of a block, whose
// last line does not look either; in the middle of the last block.
INSTANTIATE_TEST_SUITE_P(Righe, OrdavelEsportaAnnullato,
                         testing::Values(Taglio{1, 1}, Taglio{2, 2}, Taglio{99, 99}, Taglio{100, 101},
                                         Taglio{101, 102}, Taglio{990, 999}, Taglio{991, 1001},
                                         Taglio{992, 1002}, Taglio{2474, 2498}, Taglio{2475, 2499}),
                         [](const auto& caso) { return "Evento" + std::to_string(caso.param.nVolta); });

TEST_F(OrdavelEsporta, AnnullatoAllUltimaRigaEIntero)
{
    EXPECT_TRUE(EsportaCon(150, 1 + 149, [this] { sistema.AnnullaExport(); }));
    EXPECT_EQ(LeggiFile(sTesto), TestoColonne(150));
}

TEST_F(OrdavelEsporta, UnAnnullamentoVecchioNonVale)
{
    sistema.AnnullaExport();
    EXPECT_EQ(Esportato(ByteNumerati(10)), TestoColonne(10));
}

TEST_F(OrdavelEsporta, IlPulsanteDellaFinestraAnnulla)
{
    // The window as a desktop shows it, with its button pressed at line 10.
    struct Scrivania : prove::PiattaformaProva {
        void MostraAccanto(Dialogo& dialogo) override
        {
            PiattaformaProva::MostraAccanto(dialogo);
            progress = dynamic_cast<F_Progress*>(&dialogo);
        }
        void LasciaEventi() override
        {
            if (++nEventi == 11) {
                progress->Annulla();
                nBarra = progress->ProgBarXP1.Valore.Valore();
            }
        }
        F_Progress* progress = nullptr;
        int nBarra = 0;
    } scrivania;
    Ordavel altro(scrivania);
    altro.PoniPercorsoTemp(cartella / "accanto");
    ScriviFile(altro.FileColonne(), ByteNumerati(40));
    scrivania.Scegli(sTesto);
    scrivania.Rispondi(eRisposta::si);
    EXPECT_FALSE(altro.SalvaFileColonneTesto());
    EXPECT_EQ(LeggiFile(sTesto), TestoColonne(11));
    EXPECT_EQ(scrivania.nBarra, 25);
    EXPECT_THAT(scrivania.Messaggi(), ElementsAre(Domanda("Annullare ?")));
}

RC_GTEST_PROP(OrdavelEsportaCasuale, OvunqueSiAnnulliRestaUnTestoValido, ())
{
    Esportatore prova;
    const int nColonne = *rc::gen::inRange(1, 2200);
    const int nVolta = *rc::gen::inRange(1, nColonne + 2);
    const bool bTutte = prova.EsportaCon(nColonne, nVolta, [&] { prova.sistema.AnnullaExport(); });
    const std::string sScritto = LeggiFile(prova.sTesto);
    const auto nRighe = static_cast<int>(std::count(sScritto.begin(), sScritto.end(), '\n'));
    RC_ASSERT(sScritto == TestoColonne(nRighe));
    RC_ASSERT(bTutte == (nRighe == nColonne));
    RC_ASSERT(nRighe >= std::min(nVolta, nColonne));
    RC_ASSERT(nRighe <= nVolta + nVolta / 99 + 1);
}

/// While the box of a failure is seen, the component is still busy.
class OrdavelEsportaGuasti : public OrdavelEsporta {
protected:
    void EsportaEFallisce(const std::string& sFile, eErrore nNumero, const std::string& sOggetto)
    {
        bool bAncoraInVista = false;
        piattaforma.finestra = [&] { bAncoraInVista = sistema.Controlli().PanPerc.Visibile.Valore(); };
        piattaforma.Scegli(sFile);
        EXPECT_FALSE(sistema.SalvaFileColonneTesto());
        piattaforma.finestra = {};
        EXPECT_TRUE(bAncoraInVista);
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento(kOrigine, Errore(nNumero, sOggetto))));
    }

    /// A failure before anything was deleted, or shown.
    void EsportaERifiuta(const std::string& sFile, eErrore nNumero)
    {
        piattaforma.Scegli(sFile);
        EXPECT_FALSE(sistema.SalvaFileColonneTesto());
        const Errore attesa(nNumero, sistema.FileColonne());
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento(kOrigine, attesa)));
        EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    }
};

TEST_F(OrdavelEsportaGuasti, SenzaFileDiLavoroIlTestoDiPrimaResta)
{
    ScriviFile(sTesto, "di prima");
    EsportaERifiuta(sTesto, eErrore::fileNonTrovato);
    EXPECT_EQ(LeggiFile(sTesto), "di prima");
}

TEST_F(OrdavelEsportaGuasti, SulFileDiLavoroNonSiEsporta)
{
    FileDiLavoro(ByteNumerati(3));
    EsportaERifiuta(sistema.FileColonne(), eErrore::argomento);
    EXPECT_EQ(ByteColonne(), ByteNumerati(3));
}

TEST_F(OrdavelEsportaGuasti, InUnaCartellaCheNonCE)
{
    FileDiLavoro(ByteNumerati(3));
    EsportaEFallisce(cartella / "manca/a.txt", eErrore::percorsoNonTrovato, cartella / "manca/a.txt");
    Riposo();
}

TEST_F(OrdavelEsportaGuasti, SuUnaCartellaNonSiComincia)
{
    FileDiLavoro(ByteNumerati(3));
    std::filesystem::create_directories(cartella / "piena/dentro");
    piattaforma.Scegli(cartella / "piena");
    EXPECT_FALSE(sistema.SalvaFileColonneTesto());
    const auto aMessaggi = piattaforma.Messaggi();
    ASSERT_THAT(aMessaggi, testing::SizeIs(1));
    EXPECT_EQ(aMessaggi[0].sTitolo, "ModFunzGeneriche.KillFile");
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    Riposo();
}

TEST_F(OrdavelEsportaGuasti, DoveNonSiCancellaNonSiComincia)
{
    FileDiLavoro(ByteNumerati(3));
    std::filesystem::create_directory(cartella / "chiusa");
    const std::string sFile = cartella / "chiusa/a.txt";
    ScriviFile(sFile, "vecchio");
    std::filesystem::permissions(cartella / "chiusa", std::filesystem::perms(0555));
    {
        const SenzaPrivilegi utente;
        ASSERT_TRUE(utente.Riuscito());
        piattaforma.Scegli(sFile);
        EXPECT_FALSE(sistema.SalvaFileColonneTesto());
    }
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("ModFunzGeneriche.KillFile", Errore(eErrore::permesso, sFile))));
    EXPECT_EQ(LeggiFile(sFile), "vecchio");
    EXPECT_THAT(piattaforma.aMostrati, IsEmpty());
    Riposo();
}

TEST_F(OrdavelEsportaGuasti, DoveNonSiScrive)
{
    FileDiLavoro(ByteNumerati(3));
    std::filesystem::create_directory(cartella / "chiusa");
    std::filesystem::permissions(cartella / "chiusa", std::filesystem::perms(0555));
    {
        const SenzaPrivilegi utente;
        ASSERT_TRUE(utente.Riuscito());
        EsportaEFallisce(cartella / "chiusa/a.txt", eErrore::permesso, cartella / "chiusa/a.txt");
    }
    EXPECT_FALSE(std::filesystem::exists(cartella / "chiusa/a.txt"));
    Riposo();
}

TEST_F(OrdavelEsportaGuasti, UnFallimentoNegliEventiNonLasciaIlComponenteOccupato)
{
    for (const int nVolta : {1, 2, 1500}) {
        EXPECT_FALSE(EsportaCon(1700, nVolta, [] { Solleva(eErrore::divisione); }));
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento(kOrigine, Errore(eErrore::divisione))));
        Riposo();
    }
}

TEST_F(OrdavelEsportaGuasti, UnFileDiLavoroCheSiAccorciaLasciaRigheVuote)
{
    ASSERT_TRUE(
        EsportaCon(2100, 50, [this] { std::filesystem::resize_file(sistema.FileColonne(), 20 * 1002); }));
    const std::string sScritto = LeggiFile(sTesto);
    EXPECT_EQ(std::count(sScritto.begin(), sScritto.end(), '\n'), 2100);
    EXPECT_THAT(sScritto, testing::StartsWith(TestoColonne(1002) + "\r\n\r\n"));
}

} // namespace
} // namespace ordavel
