// ModFileColonne_prova.cpp - the column file and the column block of a system file.

#include "persistenza/ModFileColonne.hpp"

#include "comune/Esadecimale.hpp"
#include "comune/Fallimenti.hpp"
#include "persistenza/SistemaCasuale.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>

namespace ordavel {
namespace {

using prove::ApriTesto;
using prove::CartellaProva;
using prove::LeggiFile;
using prove::NumeroErrore;
using prove::ScriviFile;
using prove::SegnalatoreProva;
using std::string_literals::operator""s;

/// A column of the given numbers.
Colonna ColonnaDi(std::initializer_list<std::uint8_t> aNumeri)
{
    Colonna colonna;
    std::copy(aNumeri.begin(), aNumeri.end(), colonna.aNumeri.begin());
    return colonna;
}

std::string ComeTesto(std::span<const Colonna> aColonne)
{
    return prove::ComeTesto(std::as_bytes(aColonne));
}

/// The two columns of prove/dati/buoni/colonne.hex.
const std::vector<Colonna> kEsempio = {ColonnaDi({3, 11, 90}), ColonnaDi({1, 2, 4})};

std::string ByteEsempio()
{
    return prove::DaEsadecimale(prove::TestoBuono("colonne.hex"));
}

TEST(ModFileColonne, IlFileDEsempioSiLegge)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "c", ByteEsempio());
    SegnalatoreProva segnalatore;
    EXPECT_EQ(NumeroColonneFile(cartella / "c"), 2);
    EXPECT_EQ(GetNumeroColonneInFile(cartella / "c", segnalatore), 2);
    EXPECT_EQ(GetClasseColonneInFile(cartella / "c", segnalatore), 3);
    EXPECT_EQ(LeggiColonne(cartella / "c", 2), kEsempio);
    EXPECT_TRUE(segnalatore.aMostrati.empty());
}

TEST(ModFileColonne, IlFileDEsempioSiScriveBytePerByte)
{
    const CartellaProva cartella;
    FileBinario file(cartella / "c", eApertura::scrittura);
    AccodaColonne(file, kEsempio);
    file.Chiudi();
    EXPECT_EQ(LeggiFile(cartella / "c"), ByteEsempio());
}

TEST(ModFileColonne, IlDocumentoMostraIlFileDEsempio)
{
    EXPECT_THAT(prove::TestoFormato("colonne.md"), testing::HasSubstr(prove::TestoBuono("colonne.hex")));
}

TEST(ModFileColonne, UnFileCheMancaNonHaColonneNeFinestre)
{
    const CartellaProva cartella;
    SegnalatoreProva segnalatore;
    EXPECT_EQ(NumeroColonneFile(cartella / "manca"), 0);
    EXPECT_EQ(GetNumeroColonneInFile(cartella / "manca", segnalatore), std::nullopt);
    EXPECT_EQ(GetClasseColonneInFile(cartella / "manca", segnalatore), 0);
    EXPECT_TRUE(segnalatore.aMostrati.empty());
}

TEST(ModFileColonne, UnFileVuotoHaZeroColonneEClasseZero)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "c", "");
    SegnalatoreProva segnalatore;
    EXPECT_EQ(NumeroColonneFile(cartella / "c"), 0);
    EXPECT_EQ(GetNumeroColonneInFile(cartella / "c", segnalatore), 0);
    EXPECT_EQ(GetClasseColonneInFile(cartella / "c", segnalatore), 0);
    EXPECT_TRUE(LeggiColonne(cartella / "c", 0).empty());
    EXPECT_TRUE(segnalatore.aMostrati.empty());
}

TEST(ModFileColonne, UnaCartellaSiMostraComeFallimento75)
{
    const CartellaProva cartella;
    SegnalatoreProva segnalatore;
    EXPECT_EQ(GetNumeroColonneInFile(cartella / "", segnalatore), std::nullopt);
    EXPECT_EQ(GetClasseColonneInFile(cartella / "", segnalatore), 0);
    ASSERT_EQ(segnalatore.aMostrati.size(), 2);
    for (const auto& mostrato : segnalatore.aMostrati) {
        EXPECT_EQ(mostrato.sOrigine, "Mod_Sviluppo.GetNumeroColonneInFile");
        EXPECT_EQ(mostrato.nNumero, 75);
    }
}

TEST(ModFileColonne, UnaLunghezzaNonMultiplaDaUnaFrazione)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "c", ByteEsempio() + "\x07\x08"s);
    SegnalatoreProva segnalatore;
    EXPECT_EQ(NumeroColonneFile(cartella / "c"), 2.1);
    EXPECT_EQ(GetNumeroColonneInFile(cartella / "c", segnalatore), 2.1);
}

TEST(ModFileColonne, LUltimaColonnaIncompletaTieneCioCheCEra)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "c", ByteEsempio() + "\x07\x08"s);
    EXPECT_THAT(LeggiColonne(cartella / "c", 3),
                testing::ElementsAre(kEsempio[0], kEsempio[1], ColonnaDi({7, 8})));
    FileBinario file(cartella / "c", eApertura::lettura);
    EXPECT_EQ(LeggiColonna(file, 3), ColonnaDi({7, 8}));
}

TEST(ModFileColonne, LaClasseSiCercaSoloFinoAllaDecimaPosizione)
{
    const CartellaProva cartella;
    SegnalatoreProva segnalatore;
    for (std::int16_t nClasse = 0; nClasse <= kNumeriColonna; ++nClasse) {
        std::string sColonna(20, '\0');
        sColonna.replace(0, static_cast<std::size_t>(nClasse), static_cast<std::size_t>(nClasse), '\x01');
        ScriviFile(cartella / "c", sColonna);
        EXPECT_EQ(GetClasseColonneInFile(cartella / "c", segnalatore), std::min<std::int16_t>(nClasse, 10));
    }
    EXPECT_TRUE(segnalatore.aMostrati.empty());
}

TEST(ModFileColonne, LaClasseELUltimaPosizionePienaAncheDopoUnoZero)
{
    const CartellaProva cartella;
    SegnalatoreProva segnalatore;
    ScriviFile(cartella / "c", "\x01\x00\x00\x09"s);
    EXPECT_EQ(GetClasseColonneInFile(cartella / "c", segnalatore), 4);
}

TEST(ModFileColonne, LaClasseSiLeggeDallaPrimaColonna)
{
    const CartellaProva cartella;
    SegnalatoreProva segnalatore;
    const std::vector<Colonna> aColonne = {ColonnaDi({1, 2}), ColonnaDi({1, 2, 3, 4})};
    ScriviFile(cartella / "c", ComeTesto(aColonne));
    EXPECT_EQ(GetClasseColonneInFile(cartella / "c", segnalatore), 2);
}

TEST(ModFileColonne, UnaColonnaSiMostraADueCifre)
{
    EXPECT_EQ(FormattaColonna(ColonnaDi({3, 11, 90}).aNumeri, false), "03 11 90");
    EXPECT_EQ(FormattaColonna(Colonna{}.aNumeri, false), "");
    EXPECT_EQ(FormattaColonna({}, true), "");
}

TEST(ModFileColonne, GliZeriSiMostranoSoloARichiesta)
{
    const std::vector<std::uint8_t> aNumeri = {0, 5, 0, 7};
    EXPECT_EQ(FormattaColonna(aNumeri, false), "05 07");
    EXPECT_EQ(FormattaColonna(aNumeri, true), "00 05 00 07");
}

TEST(ModFileColonne, VentiNumeriRiempionoLaRiga)
{
    Colonna colonna;
    colonna.aNumeri.fill(90);
    EXPECT_EQ(FormattaColonna(colonna.aNumeri, false),
              "90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90 90");
}

TEST(ModFileColonne, UnNumeroDiTreCifreOccupaIlPostoDelBlank)
{
    const std::vector<std::uint8_t> aNumeri = {255, 3, 200};
    EXPECT_EQ(FormattaColonna(aNumeri, false), "25503 20");
    EXPECT_EQ(FormattaColonna(std::span(aNumeri).first(1), false), "25");
}

TEST(ModFileColonne, OltreLaFineUnaColonnaEVuota)
{
    const CartellaProva cartella;
    FileBinario file = ApriTesto(cartella / "c", ByteEsempio());
    constexpr auto nMassimo = std::numeric_limits<std::int64_t>::max();
    for (const std::int64_t nId : {std::int64_t{3}, std::int64_t{4}, std::int64_t{1} << 40, nMassimo}) {
        EXPECT_EQ(FormattaColonna(LeggiColonna(file, nId).aNumeri, false), "") << nId;
    }
    EXPECT_EQ(LeggiColonna(file, 2), kEsempio[1]);
}

TEST(ModFileColonne, UnaColonnaPrimaDellaPrimaFallisceCon57)
{
    const CartellaProva cartella;
    FileBinario file = ApriTesto(cartella / "c", ByteEsempio());
    for (const std::int64_t nId :
         {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min()}) {
        EXPECT_EQ(NumeroErrore([&] { static_cast<void>(LeggiColonna(file, nId)); }), 57) << nId;
    }
}

TEST(ModFileColonne, LePrimeColonneSiLeggonoSenzaLeAltre)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "c", ByteEsempio());
    EXPECT_THAT(LeggiColonne(cartella / "c", 1), testing::ElementsAre(kEsempio[0]));
    EXPECT_THAT(LeggiColonne(cartella / "c", 4),
                testing::ElementsAre(kEsempio[0], kEsempio[1], Colonna{}, Colonna{}));
}

TEST(ModFileColonne, UnMilioneDiColonneSiLeggeIntero)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "c", ComeTesto(std::vector<Colonna>(kColonneInMemoria + 1, ColonnaDi({1, 90}))));
    EXPECT_EQ(LeggiColonne(cartella / "c", kColonneInMemoria),
              std::vector<Colonna>(kColonneInMemoria, ColonnaDi({1, 90})));
}

TEST(ModFileColonne, LeggereColonneImpossibiliFallisce)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "c", ByteEsempio());
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(LeggiColonne(cartella / "c", -1)); }), 5);
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(LeggiColonne(cartella / "manca", 1)); }), 53);
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(LeggiColonne(cartella / "manca/c", 1)); }), 76);
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(LeggiColonne(cartella / "", 1)); }), 75);
}

TEST(ModFileColonne, LeColonneSiAccodanoInFondo)
{
    const CartellaProva cartella;
    FileBinario file(cartella / "c", eApertura::scrittura);
    AccodaColonne(file, std::span(kEsempio).first(1));
    AccodaColonne(file, {});
    AccodaColonne(file, std::span(kEsempio).subspan(1));
    file.Chiudi();
    EXPECT_EQ(LeggiColonne(cartella / "c", 2), kEsempio);
    EXPECT_EQ(NumeroColonneFile(cartella / "c"), 2);
}

/// The two searches of the marker over the bytes of one file.
struct Ricerca {
    std::int64_t nInizio;
    std::int64_t nParte;
    [[nodiscard]] friend bool operator==(const Ricerca&, const Ricerca&) = default;
};

Ricerca Cerca(std::string_view sContenuto)
{
    const CartellaProva cartella;
    FileBinario file = ApriTesto(cartella / "s", sContenuto);
    return {.nInizio = TrovaInizioColonne(file), .nParte = LunghezzaParteSistema(file)};
}

TEST(ModFileColonne, LaMarcaSiTrovaOvunqueStia)
{
    EXPECT_EQ(Cerca("COLONNE"), (Ricerca{8, 0}));
    EXPECT_EQ(Cerca("..COLONNE.."), (Ricerca{10, 2}));
    EXPECT_EQ(Cerca("COLONCOLONNE"), (Ricerca{13, 5}));
    EXPECT_EQ(Cerca("\0\0COLONNE"s), (Ricerca{10, 2}));
}

TEST(ModFileColonne, SenzaMarcaLaParteETuttoIlFile)
{
    EXPECT_EQ(Cerca(""), (Ricerca{0, 0}));
    EXPECT_EQ(Cerca("COLONN"), (Ricerca{0, 6}));
    EXPECT_EQ(Cerca(std::string(700000, 'x')), (Ricerca{0, 700000}));
}

TEST(ModFileColonne, ValeLaPrimaMarca)
{
    EXPECT_EQ(Cerca(".COLONNE.COLONNE"), (Ricerca{9, 1}));
}

TEST(ModFileColonne, LInizioNonGuardaLeMaiuscoleLaParteSi)
{
    EXPECT_EQ(Cerca(".Colonne."), (Ricerca{9, 9}));
    EXPECT_EQ(Cerca(".colonne.COLONNE"), (Ricerca{9, 9}));
}

TEST(ModFileColonne, OltreIlByte66800LeColonneNonSiTrovano)
{
    EXPECT_EQ(Cerca(std::string(66793, '.') + "COLONNE"), (Ricerca{66801, 66793}));
    EXPECT_EQ(Cerca(std::string(66794, '.') + "COLONNE"), (Ricerca{0, 66794}));
}

TEST(ModFileColonne, LaParteSiCercaFinoADuemilaCondizioni)
{
    constexpr std::size_t nMassima = 317 + 2000 * 334;
    EXPECT_EQ(Cerca(std::string(nMassima, '.') + "COLONNE"), (Ricerca{0, nMassima}));
    EXPECT_EQ(Cerca(std::string(nMassima + 1, '.') + "COLONNE"), (Ricerca{0, nMassima + 8}));
}

/// Appends columns to a system file and takes them out again.
std::string AndataERitorno(const CartellaProva& cartella, std::string_view sColonne)
{
    ScriviFile(cartella / "entra.c", sColonne);
    std::filesystem::remove(cartella / "sistema");
    std::filesystem::remove(cartella / "esce.c");
    FileBinario sistema(cartella / "sistema", eApertura::scrittura);
    sistema.Accoda(ComponiParteSistema({}, {}));
    AppendiColonne(cartella / "entra.c", sistema);
    EstraiColonne(sistema, TrovaInizioColonne(sistema), cartella / "esce.c");
    EXPECT_EQ(sistema.Lunghezza(), 317 + 7 + std::ssize(sColonne));
    return LeggiFile(cartella / "esce.c");
}

TEST(ModFileColonne, LeColonneDiUnSistemaSiRiprendonoUguali)
{
    const CartellaProva cartella;
    EXPECT_EQ(AndataERitorno(cartella, ByteEsempio()), ByteEsempio());
    EXPECT_EQ(AndataERitorno(cartella, "x"), "x");
}

TEST(ModFileColonne, UnBloccoVuotoDaUnFileVuoto)
{
    const CartellaProva cartella;
    EXPECT_EQ(AndataERitorno(cartella, ""), "");
    EXPECT_TRUE(std::filesystem::exists(cartella / "esce.c"));
}

TEST(ModFileColonne, UnBloccoIntornoAlPassoDiCopiaRestaUguale)
{
    const CartellaProva cartella;
    constexpr std::int64_t nPasso = 10485760;
    for (const std::int64_t nByte : {nPasso - 1, nPasso, nPasso + 1, nPasso + 40, 2 * nPasso + 20}) {
        std::string sColonne(static_cast<std::size_t>(nByte), '\0');
        for (std::size_t i = 0; i < sColonne.size(); ++i) {
            sColonne[i] = static_cast<char>(1 + (i + i / 4099) % 90);
        }
        EXPECT_TRUE(AndataERitorno(cartella, sColonne) == sColonne) << nByte;
    }
}

TEST(ModFileColonne, AppendereUnFileCheMancaNonTocca)
{
    const CartellaProva cartella;
    FileBinario sistema(cartella / "sistema", eApertura::scrittura);
    EXPECT_EQ(NumeroErrore([&] { AppendiColonne(cartella / "manca", sistema); }), 53);
    EXPECT_EQ(sistema.Lunghezza(), 0);
}

TEST(ModFileColonne, EstrarreInUnaCartellaFallisceCon75)
{
    const CartellaProva cartella;
    FileBinario sistema = ApriTesto(cartella / "s", "COLONNE" + ByteEsempio());
    EXPECT_EQ(NumeroErrore([&] { EstraiColonne(sistema, 8, cartella / ""); }), 75);
    EXPECT_EQ(NumeroErrore([&] { EstraiColonne(sistema, 8, cartella / "manca/c"); }), 76);
}

TEST(ModFileColonne, EstrarreDaPrimaDelFileFallisceCon57)
{
    const CartellaProva cartella;
    FileBinario sistema = ApriTesto(cartella / "s", "COLONNE" + ByteEsempio());
    EXPECT_EQ(NumeroErrore([&] { EstraiColonne(sistema, 0, cartella / "c"); }), 57);
}

/// Files of this process may not grow beyond nByte while it lives: a disk that is full.
class DiscoPiccolo {
public:
    explicit DiscoPiccolo(rlim_t nByte)
    {
        getrlimit(RLIMIT_FSIZE, &m_Prima);
        const rlimit limite = {nByte, m_Prima.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    DiscoPiccolo(const DiscoPiccolo&) = delete;
    DiscoPiccolo& operator=(const DiscoPiccolo&) = delete;
    ~DiscoPiccolo()
    {
        setrlimit(RLIMIT_FSIZE, &m_Prima);
        std::signal(SIGXFSZ, m_Segnale);
    }

private:
    rlimit m_Prima{};
    void (*m_Segnale)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST(ModFileColonne, UnDiscoPienoSiDiceCon61)
{
    // 400 bytes wait in the buffer until the file is closed, 40000 fail while they are written.
    const CartellaProva cartella;
    for (const std::size_t nByte : {400U, 40000U}) {
        FileBinario sistema =
            ApriTesto(cartella / std::to_string(nByte), "COLONNE" + std::string(nByte, '\x01'));
        const DiscoPiccolo disco(100);
        EXPECT_EQ(NumeroErrore([&] { EstraiColonne(sistema, 8, cartella / "c"); }), 61) << nByte;
    }
}

/// Every reader over one damaged system file: what they give must fit the bytes that are there.
void UsaSistema(const CartellaProva& cartella, const std::string& sContenuto)
{
    FileBinario sistema = ApriTesto(cartella / "s", sContenuto);
    const std::int64_t nInizio = TrovaInizioColonne(sistema);
    const std::int64_t nParte = LunghezzaParteSistema(sistema);
    ASSERT_LE(nParte, std::ssize(sContenuto));
    if (nInizio == 0) {
        EXPECT_EQ(nParte, std::ssize(sContenuto));
        return;
    }
    std::filesystem::remove(cartella / "c");
    EstraiColonne(sistema, nInizio, cartella / "c");
    const std::string sResto = sContenuto.substr(static_cast<std::size_t>(nInizio - 1));
    EXPECT_EQ(LeggiFile(cartella / "c"), sResto);
    SegnalatoreProva segnalatore;
    EXPECT_EQ(GetNumeroColonneInFile(cartella / "c", segnalatore), static_cast<double>(sResto.size()) / 20);
    const std::int16_t nClasse = GetClasseColonneInFile(cartella / "c", segnalatore);
    EXPECT_TRUE(nClasse >= 0 && nClasse <= 10) << nClasse;
    EXPECT_TRUE(segnalatore.aMostrati.empty());
}

TEST(ModFileColonne, UnSistemaTagliatoOvunqueNonInganna)
{
    const CartellaProva cartella;
    const std::string sIntero = prove::DaEsadecimale(prove::TestoBuono("sistema.hex"));
    for (std::size_t nByte = 0; nByte <= sIntero.size(); ++nByte) {
        SCOPED_TRACE(nByte);
        UsaSistema(cartella, sIntero.substr(0, nByte));
    }
}

TEST(ModFileColonne, UnSistemaConUnByteGuastoNonInganna)
{
    const CartellaProva cartella;
    const std::string sIntero = prove::DaEsadecimale(prove::TestoBuono("sistema.hex"));
    for (std::size_t i = 0; i < sIntero.size(); ++i) {
        for (const int nBit : {0x20, 0xFF}) {
            SCOPED_TRACE(testing::Message() << "byte " << i << ", bit " << nBit);
            std::string sGuasto = sIntero;
            sGuasto[i] = static_cast<char>(sGuasto[i] ^ nBit);
            UsaSistema(cartella, sGuasto);
        }
    }
}

RC_GTEST_PROP(ModFileColonne, LeColonneScritteSiRileggonoUgualiUnaAUna, ())
{
    const CartellaProva cartella;
    const auto aByte = *rc::gen::arbitrary<std::vector<std::array<std::uint8_t, kNumeriColonna>>>();
    std::vector<Colonna> aColonne(aByte.size());
    std::transform(aByte.begin(), aByte.end(), aColonne.begin(),
                   [](const auto& aNumeri) { return Colonna{aNumeri}; });
    FileBinario file(cartella / "c", eApertura::scrittura);
    AccodaColonne(file, aColonne);
    for (std::size_t i = 0; i < aColonne.size(); ++i) {
        RC_ASSERT(LeggiColonna(file, static_cast<std::int64_t>(i) + 1) == aColonne[i]);
    }
    file.Chiudi();
    RC_ASSERT(LeggiFile(cartella / "c") == ComeTesto(aColonne));
    RC_ASSERT(LeggiColonne(cartella / "c", std::ssize(aColonne)) == aColonne);
}

RC_GTEST_PROP(ModFileColonne, IlTestoDiUnaColonnaTieneISuoiNumeri, ())
{
    const auto aNumeri =
        *rc::gen::container<std::vector<std::uint8_t>>(rc::gen::inRange<std::uint8_t>(1, 91));
    std::istringstream parole(FormattaColonna(aNumeri, false));
    std::vector<std::uint8_t> aLetti;
    for (std::string sParola; parole >> sParola;) {
        RC_ASSERT(sParola.size() == 2U);
        aLetti.push_back(static_cast<std::uint8_t>(std::stoi(sParola)));
    }
    RC_ASSERT(aLetti == aNumeri);
}

RC_GTEST_PROP(ModFileColonne, QualunqueBloccoSiRiprendeUguale, ())
{
    const CartellaProva cartella;
    const auto sColonne = *rc::gen::arbitrary<std::string>();
    RC_ASSERT(AndataERitorno(cartella, sColonne) == sColonne);
}

} // namespace
} // namespace ordavel
