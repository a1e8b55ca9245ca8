// OrdavelProprieta_prova.cpp - the settings that a host keeps: read, written, noted.

#include "ordavel/Ordavel.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/PiattaformaProva.hpp"
#include "comune/SenzaPrivilegi.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <filesystem>
#include <limits>
#include <map>
#include <ostream>

namespace ordavel {
namespace {

using prove::Avviso;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

using Voci = std::map<std::string, std::string, std::less<>>;

/// Keeps texts by their keys, and remembers in which order it was asked for them.
class ArchivioProva : public ArchivioProprieta {
public:
    ArchivioProva() = default;
    explicit ArchivioProva(Voci voci) : aVoci(std::move(voci)) {}

    [[nodiscard]] std::optional<std::string> Leggi(std::string_view sChiave) const override
    {
        aLette.emplace_back(sChiave);
        const auto voce = aVoci.find(sChiave);
        return voce == aVoci.end() ? std::nullopt : std::optional(voce->second);
    }

    void Scrivi(std::string_view sChiave, const std::string& sValore) override
    {
        aScritte.emplace_back(sChiave);
        aVoci.insert_or_assign(std::string(sChiave), sValore);
    }

    Voci aVoci;
    mutable std::vector<std::string> aLette;
    std::vector<std::string> aScritte;
};

/// A component that nobody has told anything yet, and a folder beside it.
struct Banco {
    void Leggi(const Voci& voci) { sistema.LeggiProprieta(ArchivioProva(voci)); }

    [[nodiscard]] Voci Scritte() const
    {
        ArchivioProva archivio;
        sistema.ScriviProprieta(archivio);
        return archivio.aVoci;
    }

    /// Every setting away from where it began.
    void Sporca()
    {
        sistema.PoniClasse(7);
        sistema.PoniNumeroThreadsSviluppo(9);
        sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
        sistema.PoniPercorsoSalvaColonne(cartella / "salvate");
        sistema.PoniPercorsoTemp(cartella / "temp");
    }

    prove::CartellaProva cartella;
    prove::PiattaformaProva piattaforma;
    Ordavel sistema{piattaforma};
};

const Voci kDiPartenza{{"Classe", "5"},
                       {"NumeroThreadsSviluppo", "5"},
                       {"PercorsoSalvaColonne", ""},
                       {"MotoreSviluppo", "1"},
                       {"PercorsoTemp", ""}};

class OrdavelProprieta : public testing::Test, protected Banco {
protected:
    /// The names of the settings whose change was noted since the last call.
    [[nodiscard]] std::vector<std::string> Note() { return std::exchange(m_aNote, {}); }

    void Ascolta()
    {
        sistema.Eventi().PropertyChanged = [this](std::string_view sNome) { m_aNote.emplace_back(sNome); };
    }

private:
    std::vector<std::string> m_aNote;
};

TEST_F(OrdavelProprieta, UnSistemaNuovoScriveIValoriDiPartenza)
{
    EXPECT_EQ(Scritte(), kDiPartenza);
}

TEST_F(OrdavelProprieta, SiScrivonoNelLoroOrdine)
{
    ArchivioProva archivio;
    sistema.ScriviProprieta(archivio);
    EXPECT_THAT(archivio.aScritte, ElementsAre("Classe", "NumeroThreadsSviluppo", "PercorsoSalvaColonne",
                                               "MotoreSviluppo", "PercorsoTemp"));
    EXPECT_THAT(archivio.aLette, IsEmpty());
}

TEST_F(OrdavelProprieta, SiLeggonoInUnAltroOrdine)
{
    const ArchivioProva archivio;
    sistema.LeggiProprieta(archivio);
    EXPECT_THAT(archivio.aLette, ElementsAre("Classe", "MotoreSviluppo", "NumeroThreadsSviluppo",
                                             "PercorsoSalvaColonne", "PercorsoTemp"));
    EXPECT_THAT(archivio.aScritte, IsEmpty());
}

TEST_F(OrdavelProprieta, SiScriveQuelCheVale)
{
    Sporca();
    EXPECT_EQ(Scritte(), (Voci{{"Classe", "7"},
                               {"NumeroThreadsSviluppo", "9"},
                               {"PercorsoSalvaColonne", cartella / "salvate/"},
                               {"MotoreSviluppo", "2"},
                               {"PercorsoTemp", cartella / "temp/"}}));
}

TEST_F(OrdavelProprieta, SiScriveLaClasseSceltaNellaLista)
{
    sistema.Controlli().CmbClasse.Indice.Poni(8);
    EXPECT_EQ(Scritte().at("Classe"), "10");
    sistema.Controlli().CmbTipoGioco.Indice.Poni(3);
    EXPECT_EQ(Scritte().at("Classe"), "6");
}

TEST_F(OrdavelProprieta, QuelCheMancaTornaAlValoreDiPartenza)
{
    Sporca();
    Leggi({});
    EXPECT_EQ(Scritte(), kDiPartenza);
}

TEST_F(OrdavelProprieta, SiPrendeQuelCheSiLegge)
{
    const Voci lette{{"Classe", "10"},
                     {"NumeroThreadsSviluppo", "12"},
                     {"PercorsoSalvaColonne", "/colonne"},
                     {"MotoreSviluppo", "2"},
                     {"PercorsoTemp", "/temporanei/"}};
    Leggi(lette);
    EXPECT_EQ(sistema.classe(), 10);
    EXPECT_EQ(sistema.NumeroThreadsSviluppo(), 12);
    EXPECT_EQ(sistema.MotoreSviluppo(), eMotoreSviluppo::esterno);
    EXPECT_EQ(sistema.PercorsoSalvaColonne(), "/colonne");
    EXPECT_EQ(sistema.PercorsoTemp(), "/temporanei/");
    EXPECT_EQ(Scritte(), lette);
}

TEST_F(OrdavelProprieta, LaLetturaMetteInLineaGliElenchi)
{
    sistema.Controlli().CmbRid.Indice.Poni(3);
    Leggi({{"MotoreSviluppo", "2"}, {"NumeroThreadsSviluppo", "3"}});
    EXPECT_EQ(sistema.Controlli().CmbMotSviluppo.Indice.Valore(), 1);
    EXPECT_EQ(sistema.Controlli().CmbRid.Indice.Valore(), 0);
    EXPECT_EQ(sistema.Controlli().TxtPMin.size(), 3);
    EXPECT_EQ(sistema.Controlli().TxtPMax.size(), 3);
    EXPECT_EQ(sistema.Controlli().LabGaranzia.Testo.Valore(), "A condizioni superate garanzia 5");
}

TEST_F(OrdavelProprieta, LaClasseLettaValePiuDiQuellaDelGioco)
{
    sistema.Controlli().CmbTipoGioco.Indice.Poni(3);
    Leggi({{"Classe", "4"}});
    EXPECT_EQ(sistema.classe(), 4);
    EXPECT_EQ(sistema.GetIdCmbTipoGioco(), 3);
    Leggi({});
    EXPECT_EQ(sistema.classe(), 5);
}

/// A stored text, and the number that comes of it.
struct CasoNumero {
    std::string_view sChiave;
    std::string_view sTesto;
    std::string_view sAtteso;

    friend std::ostream& operator<<(std::ostream& uscita, const CasoNumero& c)
    {
        return uscita << c.sChiave << " \"" << c.sTesto << "\"";
    }
};

class NumeroLetto : public OrdavelProprieta, public testing::WithParamInterface<CasoNumero> {};

TEST_P(NumeroLetto, OValeOTornaAlValoreDiPartenza)
{
    Sporca();
    Leggi({{std::string(GetParam().sChiave), std::string(GetParam().sTesto)}});
    Voci attese = kDiPartenza;
    attese.find(GetParam().sChiave)->second = GetParam().sAtteso;
    EXPECT_EQ(Scritte(), attese);
}

constexpr auto kNumeri = std::to_array<CasoNumero>({
    {"Classe", "2", "2"},
    {"Classe", "10", "10"},
    {"Classe", " 7 numeri", "7"},
    {"Classe", "2.5", "2"},
    {"Classe", "3.5", "4"},
    {"Classe", "", "5"},
    {"Classe", "sette", "5"},
    {"Classe", "0", "5"},
    {"Classe", "1", "5"},
    {"Classe", "11", "5"},
    {"Classe", "-7", "5"},
    {"Classe", "65543", "5"},
    {"Classe", "1e300", "5"},
    {"Classe", "1e999", "5"},
    {"Classe", "nan", "5"},
    {"NumeroThreadsSviluppo", "1", "1"},
    {"NumeroThreadsSviluppo", "+8", "8"},
    {"NumeroThreadsSviluppo", "0", "5"},
    {"NumeroThreadsSviluppo", "-1", "5"},
    {"NumeroThreadsSviluppo", "32767", "32767"},
    {"NumeroThreadsSviluppo", "32768", "5"},
    {"NumeroThreadsSviluppo", "-1e999", "5"},
    {"NumeroThreadsSviluppo", "molti", "5"},
    {"MotoreSviluppo", "1", "1"},
    {"MotoreSviluppo", "2", "2"},
    {"MotoreSviluppo", "0", "1"},
    {"MotoreSviluppo", "3", "1"},
    {"MotoreSviluppo", "-2", "1"},
    {"MotoreSviluppo", "4294967298", "1"},
    {"MotoreSviluppo", "esterno", "1"},
});

INSTANTIATE_TEST_SUITE_P(Testi, NumeroLetto, testing::ValuesIn(kNumeri));

TEST_F(OrdavelProprieta, UnPercorsoLettoNonSiCreaENonDaIlNomeAlFileDiLavoro)
{
    Leggi({{"PercorsoTemp", cartella / "mai/"}});
    EXPECT_EQ(sistema.PercorsoTemp(), cartella / "mai/");
    EXPECT_EQ(sistema.FileColonne(), "");
    EXPECT_FALSE(std::filesystem::exists(cartella / "mai"));
}

TEST_F(OrdavelProprieta, IlFileDiLavoroRestaQuelloCheEra)
{
    sistema.PoniPercorsoTemp(cartella / "temp");
    Leggi({{"PercorsoTemp", "/altrove/"}});
    EXPECT_EQ(sistema.FileColonne(), cartella / "temp/Sviluppo.col");
    sistema.InizializzaProprieta();
    EXPECT_EQ(sistema.FileColonne(), cartella / "temp/Sviluppo.col");
}

TEST_F(OrdavelProprieta, IlPrimoSviluppoUsaIlPercorsoLetto)
{
    Leggi({{"PercorsoTemp", cartella / ""}, {"Classe", "2"}});
    sistema.SelezionaNumero(3, true);
    sistema.SelezionaNumero(8, true);
    EXPECT_TRUE(sistema.GestSviluppo());
    EXPECT_EQ(piattaforma.Messaggi().size(), 1);
    EXPECT_EQ(sistema.FileColonne(), cartella / "Sviluppo.col");
    EXPECT_EQ(sistema.GetColonnaSviluppo(1), "03 08");
}

TEST_F(OrdavelProprieta, InizializzareRiportaSoloLeCinqueProprieta)
{
    Sporca();
    sistema.PoniDirSistemi(cartella / "sistemi");
    sistema.PoniFileBdLotto("lotto.dat");
    sistema.InizializzaProprieta();
    EXPECT_EQ(Scritte(), kDiPartenza);
    EXPECT_EQ(sistema.classe(), 5);
    EXPECT_EQ(sistema.Controlli().TxtPMin.size(), 5);
    EXPECT_EQ(sistema.DirSistemi(), cartella / "sistemi/");
    EXPECT_EQ(sistema.FileBdLotto(), "lotto.dat");
}

TEST_F(OrdavelProprieta, DirSistemiEGliArchiviNonSiScrivono)
{
    sistema.PoniDirSistemi(cartella / "sistemi");
    sistema.PoniFileBdWF("wf.dat");
    EXPECT_EQ(Scritte(), kDiPartenza);
}

RC_GTEST_PROP(OrdavelProprietaCasuali, SiRileggonoComeSonoScritte, ())
{
    const Voci voci{
        {"Classe", std::to_string(*rc::gen::inRange<int>(kClasseMinima, kClasseMassima + 1))},
        {"NumeroThreadsSviluppo", std::to_string(*rc::gen::inRange(1, 400))},
        {"PercorsoSalvaColonne", *rc::gen::arbitrary<std::string>()},
        {"MotoreSviluppo", std::to_string(*rc::gen::inRange(1, 3))},
        {"PercorsoTemp", *rc::gen::arbitrary<std::string>()},
    };
    Banco uno;
    uno.Leggi(voci);
    RC_ASSERT(uno.Scritte() == voci);
    Banco due;
    due.Leggi(uno.Scritte());
    RC_ASSERT(due.Scritte() == voci);
}

TEST_F(OrdavelProprieta, OgniCambioSiSegnalaColSuoNome)
{
    Ascolta();
    Sporca();
    sistema.PoniDirSistemi(cartella / "sistemi");
    EXPECT_THAT(Note(), ElementsAre("Classe", "NumeroThreadsSviluppo", "PercorsoSalvaColonne", "PercorsoTemp",
                                    "DirSistemi"));
}

TEST_F(OrdavelProprieta, NonSiSegnalanoNeIlMotoreNeGliArchiviNeUnaClasseFuoriLista)
{
    Ascolta();
    sistema.PoniMotoreSviluppo(eMotoreSviluppo::esterno);
    sistema.PoniFileBdLotto("a");
    sistema.PoniFileBd10Lotto("b");
    sistema.PoniFileBd10Lotto5M("c");
    sistema.PoniFileBdSE("d");
    sistema.PoniFileBdWF("e");
    sistema.PoniClasse(11);
    sistema.PoniClasse(1);
    EXPECT_THAT(Note(), IsEmpty());
}

TEST_F(OrdavelProprieta, QuandoSiSegnalaIlValoreEGiaQuelloNuovo)
{
    std::vector<Voci> aViste;
    std::vector<std::string> aCartelle;
    sistema.Eventi().PropertyChanged = [&](std::string_view) {
        aViste.push_back(Scritte());
        aCartelle.push_back(sistema.DirSistemi());
    };
    Sporca();
    sistema.PoniDirSistemi(cartella / "sistemi");
    ASSERT_EQ(aViste.size(), 5);
    EXPECT_EQ(aViste[0].at("Classe"), "7");
    EXPECT_EQ(aViste[1].at("NumeroThreadsSviluppo"), "9");
    EXPECT_EQ(aViste[2].at("PercorsoSalvaColonne"), cartella / "salvate/");
    EXPECT_EQ(aViste[3].at("PercorsoTemp"), cartella / "temp/");
    EXPECT_EQ(aCartelle[4], cartella / "sistemi/");
}

TEST_F(OrdavelProprieta, LeggereEInizializzareNonSegnalanoNePercorsiNeThread)
{
    Ascolta();
    Leggi({{"Classe", "8"}, {"NumeroThreadsSviluppo", "2"}, {"PercorsoTemp", "/t/"}});
    sistema.InizializzaProprieta();
    EXPECT_THAT(Note(), Each("Classe"));
}

TEST_F(OrdavelProprieta, ChiScriveAOgniCambioNonPerdeQuelCheRilegge)
{
    const Voci tenute{{"Classe", "8"},
                      {"NumeroThreadsSviluppo", "2"},
                      {"PercorsoSalvaColonne", "/s/"},
                      {"MotoreSviluppo", "2"},
                      {"PercorsoTemp", "/t/"}};
    ArchivioProva archivio(tenute);
    sistema.Eventi().PropertyChanged = [&](std::string_view) { sistema.ScriviProprieta(archivio); };
    sistema.LeggiProprieta(archivio);
    EXPECT_EQ(Scritte(), tenute);
    EXPECT_EQ(archivio.aVoci, tenute);
}

TEST_F(OrdavelProprieta, OgniGiocoHaIlSuoArchivio)
{
    sistema.PoniFileBdLotto("lotto");
    sistema.PoniFileBd10Lotto("dieci");
    sistema.PoniFileBd10Lotto5M("dieci5m");
    sistema.PoniFileBdSE("se");
    sistema.PoniFileBdWF("wf");
    Leggi({});
    EXPECT_EQ(sistema.FileBdLotto(), "lotto");
    EXPECT_EQ(sistema.FileBd10Lotto(), "dieci");
    EXPECT_EQ(sistema.FileBd10Lotto5M(), "dieci5m");
    EXPECT_EQ(sistema.FileBdSE(), "se");
    EXPECT_EQ(sistema.FileBdWF(), "wf");
}

TEST_F(OrdavelProprieta, UnArchivioSiPrendeComeViene)
{
    sistema.PoniFileBdLotto(cartella / "manca/lotto.dat");
    EXPECT_EQ(sistema.FileBdLotto(), cartella / "manca/lotto.dat");
    EXPECT_FALSE(std::filesystem::exists(cartella / "manca"));
}

class PercorsoNegato : public OrdavelProprieta, public testing::WithParamInterface<std::string_view> {
protected:
    PercorsoNegato()
    {
        Sporca();
        sistema.PoniDirSistemi(cartella / "sistemi");
        Ascolta();
        prove::ScriviFile(cartella / "file", "");
    }

    /// All three folders are refused, with a warning each, and stay what they were.
    void ExpectNegato(const std::string& sPercorso)
    {
        EXPECT_FALSE(sistema.PoniDirSistemi(sPercorso));
        EXPECT_FALSE(sistema.PoniPercorsoTemp(sPercorso));
        EXPECT_FALSE(sistema.PoniPercorsoSalvaColonne(sPercorso));
        EXPECT_EQ(piattaforma.Messaggi(),
                  std::vector<Messaggio>(3, Avviso("Errore creazione percorso " + sPercorso)));
        EXPECT_THAT(Note(), IsEmpty());
        EXPECT_EQ(sistema.DirSistemi(), cartella / "sistemi/");
        EXPECT_EQ(sistema.PercorsoTemp(), cartella / "temp/");
        EXPECT_EQ(sistema.FileColonne(), cartella / "temp/Sviluppo.col");
        EXPECT_EQ(sistema.PercorsoSalvaColonne(), cartella / "salvate/");
    }
};

TEST_P(PercorsoNegato, AvvisaETieneIlVecchio)
{
    ExpectNegato(cartella / GetParam());
}

INSTANTIATE_TEST_SUITE_P(Percorsi, PercorsoNegato,
                         testing::Values("file", "file/", "file/sotto", "nuova/../file/x/y"));

TEST_F(PercorsoNegato, UnPercorsoVuotoNonEUnaCartella)
{
    ExpectNegato("");
}

TEST_F(PercorsoNegato, UnNomeTroppoLungoNonSiCrea)
{
    ExpectNegato(cartella / std::string(300, 'n'));
}

TEST_F(PercorsoNegato, SenzaPermessoNonSiCrea)
{
    std::filesystem::create_directory(cartella / "chiusa");
    std::filesystem::permissions(cartella / "chiusa", std::filesystem::perms::none);
    {
        const prove::SenzaPrivilegi diTutti;
        if (!diTutti.Riuscito()) {
            // Without the right to change users there is nothing to see.
            GTEST_SKIP();
        }
        ExpectNegato(cartella / "chiusa/sotto");
    }
    std::filesystem::permissions(cartella / "chiusa", std::filesystem::perms::owner_all);
}

} // namespace
} // namespace ordavel
