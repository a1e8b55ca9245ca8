// ModFileCondizioni_prova.cpp - the condition file.

#include "persistenza/ModFileCondizioni.hpp"

#include "comune/Esadecimale.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "core/ModPagina1252.hpp"
#include "core/ModTesti.hpp"
#include "persistenza/SistemaCasuale.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>

namespace ordavel {
namespace {

using prove::CartellaProva;
using prove::NumeroErrore;
using prove::ScriviFile;
using std::string_literals::operator""s;

using Righe = std::vector<Condizione>;

Righe Leggi(std::string_view sByte)
{
    Righe aRighe;
    LeggiFileCondizioni(std::as_bytes(std::span(sByte)), aRighe);
    return aRighe;
}

std::string Componi(std::span<const Condizione> aRighe)
{
    return prove::ComeTesto(ComponiFileCondizioni(aRighe));
}

std::optional<int> ErroreDiLettura(const std::string& sPath, Righe& aRighe)
{
    return NumeroErrore([&] { LeggiFileCondizioni(sPath, aRighe); });
}

std::optional<int> ErroreDiScrittura(const std::string& sPath, std::span<const Condizione> aRighe)
{
    return NumeroErrore([&] { ScriviFileCondizioni(sPath, aRighe); });
}

/// The row of prove/dati/buoni/condizioni.hex.
const Condizione kPonte{"Ponte", "P\r\no\r\nn\r\nt\r\ne", "1-2", "", " "};

std::string BytePonte()
{
    return prove::DaEsadecimale(prove::TestoBuono("condizioni.hex"));
}

/// The format as it is told, everything cut at once: the truth for the reader, which takes a part at a time.
Righe LeggiAllaLettera(std::string_view sByte)
{
    Righe aRighe;
    for (const std::string_view sPezzo : Dividi(sByte, "\0"s)) {
        if (sPezzo.empty()) {
            break;
        }
        auto aCelle = Dividi(sPezzo, "[R]");
        aCelle.resize(5);
        std::array<std::string, 5> aTesti;
        std::transform(aCelle.begin(), aCelle.end(), aTesti.begin(), DaPagina1252);
        aRighe.push_back({aTesti[0], aTesti[1], aTesti[2], aTesti[3], aTesti[4]});
    }
    return aRighe;
}

/// A cell: characters of the page, and parts of the separator that are not one.
std::string CellaCasuale(bool bPiena)
{
    const auto parti = rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
        "[", "]", "R", "[R", "R]", "0", "-", " ", "\r\n", "é", "€", "\xC2\x81"));
    std::string sCella;
    for (const std::string& sParte : *parti) {
        const std::string sNuova = sCella + sParte;
        sCella = sNuova.find("[R]") == std::string::npos ? sNuova : sCella;
    }
    return sCella.empty() && bPiena ? "A" : sCella;
}

Righe RigheCasuali()
{
    Righe aRighe(*rc::gen::inRange<std::size_t>(0, 6));
    for (Condizione& riga : aRighe) {
        riga = {CellaCasuale(true), CellaCasuale(false), CellaCasuale(false), CellaCasuale(false),
                CellaCasuale(false)};
    }
    return aRighe;
}

/// Bytes in which separators are frequent.
std::string ByteCasuali()
{
    std::string sByte;
    for (const std::string& sParte : *rc::gen::container<std::vector<std::string>>(
             rc::gen::element("[R]"s, "\0"s, "["s, "R]"s, "A"s, "\xE9"s, "\x81"s))) {
        sByte += sParte;
    }
    return sByte;
}

// --- the example

TEST(ModFileCondizioni, IlFileDEsempioSiLegge)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "c.cnd", BytePonte());
    Righe aRighe;
    LeggiFileCondizioni(cartella / "c.cnd", aRighe);
    EXPECT_EQ(aRighe, Righe{kPonte});
}

TEST(ModFileCondizioni, IlFileDEsempioSiScriveBytePerByte)
{
    const CartellaProva cartella;
    ScriviFileCondizioni(cartella / "c.cnd", Righe{kPonte});
    EXPECT_EQ(prove::LeggiFile(cartella / "c.cnd"), BytePonte());
}

TEST(ModFileCondizioni, IlDocumentoMostraIlFileDEsempio)
{
    EXPECT_THAT(prove::TestoFormato("condizioni.md"),
                testing::HasSubstr(prove::TestoBuono("condizioni.hex")));
}

TEST(ModFileCondizioni, IlDocumentoDiceILimiti)
{
    EXPECT_THAT(prove::TestoFormato("condizioni.md"),
                testing::AllOf(testing::HasSubstr("| " + std::to_string(kCondizioniMassime) + " |"),
                               testing::HasSubstr("| " + std::to_string(kByteFileCondizioniMassimi) + " |")));
}

// --- composing

TEST(ModFileCondizioni, SenzaRigheNonCiSonoByte)
{
    EXPECT_EQ(Componi({}), "");
    EXPECT_EQ(Componi(Righe{{}, kPonte}), "");
}

TEST(ModFileCondizioni, LaPrimaChiaveVuotaChiudeIlFile)
{
    const Condizione senzaChiave{"", "p", "1", "2", "3"};
    EXPECT_EQ(Componi(Righe{kPonte, kPonte, senzaChiave, kPonte}), BytePonte() + BytePonte());
}

TEST(ModFileCondizioni, UnaCellaVuotaESoloLaSuaFine)
{
    EXPECT_EQ(Componi(Righe{{"LinkOpen", "", "", "", ""}}), "LinkOpen[R][R][R][R][R]\0"s);
}

TEST(ModFileCondizioni, ITestiStannoNellaPagina1252)
{
    EXPECT_EQ(Componi(Righe{{"è", "€", "Ω", "\xFF", "ù"}}), "\xE8[R]\x80[R]?[R]?[R]\xF9[R]\0"s);
    EXPECT_EQ(Leggi("\xE8[R]\x80[R]\x81[R]\xFF[R]\xF9[R]\0"s), (Righe{{"è", "€", "\xC2\x81", "ÿ", "ù"}}));
}

TEST(ModFileCondizioni, UnSeparatoreInUnaCellaLaTaglia)
{
    const Righe aRighe{{"A", "b[R]c", "1", "2", "3"}};
    EXPECT_EQ(Leggi(Componi(aRighe)), (Righe{{"A", "b", "c", "1", "2"}}));
    const Righe aZero{{"A", "b\0c"s, "1", "2", "3"}};
    EXPECT_EQ(Leggi(Componi(aZero)), (Righe{{"A", "b", "", "", ""}, {"c", "1", "2", "3", ""}}));
}

// --- reading

TEST(ModFileCondizioni, ZeroByteNonHannoRighe)
{
    EXPECT_EQ(Leggi(""), Righe{});
}

TEST(ModFileCondizioni, IlPrimoPezzoVuotoChiudeLeRighe)
{
    EXPECT_EQ(Leggi("\0"s + BytePonte()), Righe{});
    EXPECT_EQ(Leggi(BytePonte() + "\0"s + BytePonte()), Righe{kPonte});
    EXPECT_EQ(Leggi(BytePonte() + BytePonte()), (Righe{kPonte, kPonte}));
}

TEST(ModFileCondizioni, LaFineDelFileChiudeLUltimaRiga)
{
    EXPECT_EQ(Leggi("A[R]b[R]1[R]2[R]3[R]"), (Righe{{"A", "b", "1", "2", "3"}}));
    EXPECT_EQ(Leggi("A[R]b[R]1[R]2[R]3"), (Righe{{"A", "b", "1", "2", "3"}}));
    EXPECT_EQ(Leggi("A"), (Righe{{"A", "", "", "", ""}}));
}

TEST(ModFileCondizioni, LeCelleOltreLaQuintaNonContano)
{
    EXPECT_EQ(Leggi("A[R]b[R]1[R]2[R]3[R]4[R]5[R]\0B[R]\0"s),
              (Righe{{"A", "b", "1", "2", "3"}, {"B", "", "", "", ""}}));
}

TEST(ModFileCondizioni, UnaChiaveVuotaLasciaLaSuaRiga)
{
    EXPECT_EQ(Leggi("[R]b[R]\0A[R]\0"s), (Righe{{"", "b", "", "", ""}, {"A", "", "", "", ""}}));
    EXPECT_EQ(Leggi("[R]\0A[R]\0"s), (Righe{{}, {"A", "", "", "", ""}}));
}

TEST(ModFileCondizioni, VuotoEBlankRestanoDiversi)
{
    EXPECT_EQ(Leggi("A[R] [R][R] [R][R]\0"s), (Righe{{"A", " ", "", " ", ""}}));
}

TEST(ModFileCondizioni, LeRigheDiPrimaSeNeVanno)
{
    Righe aRighe{kPonte, kPonte};
    LeggiFileCondizioni(std::span<const std::byte>{}, aRighe);
    EXPECT_EQ(aRighe, Righe{});
}

TEST(ModFileCondizioni, DuemilaRigheSiLeggonoDallaSeguenteSiFallisce)
{
    const Righe aPiena(2000, kPonte);
    const std::string sPiena = Componi(aPiena);
    EXPECT_EQ(Leggi(sPiena), aPiena);
    EXPECT_EQ(Leggi(sPiena + "\0A"s), aPiena);
    Righe aRighe;
    const std::string sTroppe = sPiena + "A";
    EXPECT_EQ(NumeroErrore([&] { LeggiFileCondizioni(std::as_bytes(std::span(sTroppe)), aRighe); }), 9);
    EXPECT_EQ(aRighe, aPiena);
}

TEST(ModFileCondizioni, TagliatoOvunqueSiLeggeCioCheResta)
{
    const std::string sIntero = BytePonte() + BytePonte();
    for (std::size_t n = 0; n <= sIntero.size(); ++n) {
        const std::string sTagliato = sIntero.substr(0, n);
        const Righe aRighe = Leggi(sTagliato);
        EXPECT_EQ(aRighe, LeggiAllaLettera(sTagliato)) << n;
        EXPECT_EQ(aRighe.size(), (n + 37) / 38) << n;
    }
}

TEST(ModFileCondizioni, UnByteGuastoDaLeRigheDeiSuoiByte)
{
    const std::string sIntero = BytePonte() + BytePonte();
    for (std::size_t i = 0; i < sIntero.size(); ++i) {
        for (int nBit = 1; nBit <= 0xFF; ++nBit) {
            std::string sGuasto = sIntero;
            sGuasto[i] = static_cast<char>(sGuasto[i] ^ nBit);
            ASSERT_EQ(Leggi(sGuasto), LeggiAllaLettera(sGuasto)) << "byte " << i << ", bit " << nBit;
        }
    }
}

// --- files

TEST(ModFileCondizioni, UnFilePiuVecchioEPiuLungoSparisceDelTutto)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "c.cnd", std::string(1000, 'x'));
    ScriviFileCondizioni(cartella / "c.cnd", Righe{kPonte});
    EXPECT_EQ(prove::LeggiFile(cartella / "c.cnd"), BytePonte());
    ScriviFileCondizioni(cartella / "c.cnd", {});
    EXPECT_EQ(prove::LeggiFile(cartella / "c.cnd"), "");
}

TEST(ModFileCondizioni, CioCheNonEUnFileSiRifiuta)
{
    const CartellaProva cartella;
    Righe aRighe{kPonte};
    EXPECT_EQ(ErroreDiScrittura(cartella / "", aRighe), 75);
    EXPECT_EQ(ErroreDiScrittura("/dev/null", aRighe), 75);
    EXPECT_EQ(ErroreDiScrittura(cartella / "manca/c.cnd", aRighe), 76);
    for (const auto& [sPath, nNumero] :
         {std::pair{cartella / "", 75}, std::pair{"/dev/zero"s, 75}, std::pair{cartella / "c.cnd", 53}}) {
        aRighe = {kPonte};
        EXPECT_EQ(ErroreDiLettura(sPath, aRighe), nNumero) << sPath;
        EXPECT_EQ(aRighe, Righe{}) << sPath;
    }
}

TEST(ModFileCondizioni, UnFileTroppoLungoNonEntraInMemoria)
{
    // Sparse files: loading the last one would ask for more memory than there is.
    const CartellaProva cartella;
    const std::string sPath = cartella / "c.cnd";
    ScriviFile(sPath, BytePonte());
    Righe aRighe;
    std::filesystem::resize_file(sPath, kByteFileCondizioniMassimi);
    EXPECT_EQ(ErroreDiLettura(sPath, aRighe), std::nullopt);
    EXPECT_EQ(aRighe, Righe{kPonte});
    for (const std::int64_t nByte : {kByteFileCondizioniMassimi + 1, std::int64_t{1} << 40}) {
        std::filesystem::resize_file(sPath, static_cast<std::uintmax_t>(nByte));
        EXPECT_EQ(ErroreDiLettura(sPath, aRighe), 7) << nByte;
        EXPECT_EQ(aRighe, Righe{}) << nByte;
    }
}

TEST(ModFileCondizioni, NonSiScriveCioCheNonSiRileggerebbe)
{
    const CartellaProva cartella;
    const std::string sPath = cartella / "c.cnd";
    ScriviFile(sPath, BytePonte());
    constexpr std::size_t nContorno = 1 + 5 * 3 + 1; // the key, five ends of cells and one of a row
    Righe aRighe{{"A", std::string(kByteFileCondizioniMassimi - nContorno + 1, 'x'), "", "", ""}};
    EXPECT_EQ(ErroreDiScrittura(sPath, aRighe), 7);
    EXPECT_EQ(prove::LeggiFile(sPath), BytePonte());
    aRighe[0].sParametri.pop_back();
    ScriviFileCondizioni(sPath, aRighe);
    Righe aRilette;
    LeggiFileCondizioni(sPath, aRilette);
    EXPECT_TRUE(aRilette == aRighe); // not EXPECT_EQ: eight megabytes are not to be shown
}

// --- properties

RC_GTEST_PROP(ModFileCondizioni, LeRigheScritteSiRileggonoUguali, ())
{
    const Righe aRighe = RigheCasuali();
    RC_ASSERT(Leggi(Componi(aRighe)) == aRighe);
}

RC_GTEST_PROP(ModFileCondizioni, LeCondizioniDeiDialoghiPassanoPerIlFile, ())
{
    const CartellaProva cartella;
    const Righe aRighe = prove::CondizioniCasuali(6, 12);
    ScriviFileCondizioni(cartella / "c.cnd", aRighe);
    Righe aRilette;
    LeggiFileCondizioni(cartella / "c.cnd", aRilette);
    RC_ASSERT(aRilette == aRighe);
}

RC_GTEST_PROP(ModFileCondizioni, QualunqueByteDaLeRigheCheDice, ())
{
    const std::string sByte = *rc::gen::oneOf(rc::gen::exec(ByteCasuali), rc::gen::arbitrary<std::string>());
    RC_ASSERT(Leggi(sByte) == LeggiAllaLettera(sByte));
}

RC_GTEST_PROP(ModFileCondizioni, LettoERiscrittoEUguale, ())
{
    const std::string sByte = ByteCasuali();
    Righe aRighe = Leggi(sByte);
    const std::string sScritto = Componi(aRighe);
    aRighe.erase(
        std::find_if(aRighe.begin(), aRighe.end(), [](const auto& riga) { return riga.sCondizione.empty(); }),
        aRighe.end());
    RC_ASSERT(Leggi(sScritto) == aRighe);
    RC_ASSERT(Componi(Leggi(sScritto)) == sScritto);
}

} // namespace
} // namespace ordavel
