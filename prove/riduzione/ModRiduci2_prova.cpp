// ModRiduci2_prova.cpp - the streaming reduction keeps what its definition keeps, byte for byte.

#include "riduzione/ModRiduci2.hpp"

#include "DefinizioneRiduzione.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "riduzione/ModGaranzia.hpp"

#include <rapidcheck/gtest.h>

#include <filesystem>
#include <set>

namespace ordavel {
namespace {

using prove::Byte;
using prove::Colonne;
using prove::Record;

class ModRiduci2 : public testing::Test {
protected:
    /// The bytes of the reduced file.
    std::string Riduci(std::string_view sIngresso, int nRiduzione, std::size_t nByte = kByteTabella)
    {
        prove::ScriviNuovo(sInput, sIngresso);
        RiduzioneSequenziale(sInput, sOutput, nRiduzione, avanzamento, nByte);
        EXPECT_TRUE(FileEsiste(sOutput));
        return prove::LeggiFile(sOutput);
    }

    std::string Riduci(const Colonne& aColonne, int nRiduzione, std::size_t nByte = kByteTabella)
    {
        return Riduci(Byte(aColonne), nRiduzione, nByte);
    }

    prove::CartellaProva cartella;
    std::string sInput = cartella / "test.col";
    std::string sOutput = cartella / "test_Rid_N-1.col";
    prove::AvanzamentoRiduzioneProva avanzamento;
};

/// No table, tables that hold nothing, one column, a few, all: every way of answering.
const std::vector<std::size_t>& Memorie()
{
    static const std::vector<std::size_t> aMemorie{0, 1, 40, 200, 1000, 8000, 400000, kByteTabella};
    return aMemorie;
}

TEST_F(ModRiduci2, TreColonneTengonoLaPrimaELaTerza)
{
    const Colonne aColonne{Record({1, 2, 3}), Record({1, 2, 4}), Record({5, 6, 7})};
    for (const std::size_t nByte : Memorie()) {
        EXPECT_EQ(Riduci(aColonne, 1, nByte), Byte({aColonne[0], aColonne[2]})) << nByte;
    }
}

TEST_F(ModRiduci2, ZeroPuntiTengonoSoltantoLaPrima)
{
    const Colonne aColonne = prove::Completo(7, 3);
    for (const std::size_t nByte : Memorie()) {
        for (const int nRiduzione : {3, 4, 100, 2147483647}) {
            EXPECT_EQ(Riduci(aColonne, nRiduzione, nByte), Byte({aColonne[0]})) << nByte;
        }
    }
}

TEST_F(ModRiduci2, PuntiOltreLaClasseTengonoTutto)
{
    const Colonne aColonne{Record({1, 2, 3}), Record({1, 2, 3}), Record({3, 3, 3})};
    for (const std::size_t nByte : Memorie()) {
        for (const int nRiduzione : {-1, -10, -2147483647 - 1}) {
            EXPECT_EQ(Riduci(aColonne, nRiduzione, nByte), Byte(aColonne)) << nByte;
        }
    }
}

TEST_F(ModRiduci2, UnIngressoVuotoDaUnFileVuoto)
{
    EXPECT_EQ(Riduci("", 1), "");
    EXPECT_EQ(Riduci("", 1, 0), "");
    EXPECT_EQ(avanzamento.nEventi, 0);
    EXPECT_EQ(avanzamento.aPercentuali, (std::vector<std::int16_t>{0, 0}));
}

TEST_F(ModRiduci2, UnFileRidottoCheCEraVieneSostituito)
{
    prove::ScriviFile(sOutput, std::string(1000, 'x'));
    EXPECT_EQ(Riduci(Colonne{Record({1, 2, 3})}, 1), Byte({Record({1, 2, 3})}));
}

TEST_F(ModRiduci2, UnRestoDiPiuDiMezzaColonnaEUnaColonna)
{
    const std::string sDue = Byte({Record({1, 2, 3}), Record({4, 5, 6})});
    const std::string sTerza = Byte({Record({7, 8, 9})});
    for (std::size_t n = 0; n < 20; ++n) {
        const std::string sAtteso = n > 10 ? sDue + sTerza : sDue;
        for (const std::size_t nByte : {std::size_t{0}, kByteTabella}) {
            EXPECT_EQ(Riduci(sDue + sTerza.substr(0, n), 1, nByte), sAtteso) << n;
        }
    }
}

TEST_F(ModRiduci2, MezzaColonnaVaAlNumeroPari)
{
    const std::string sUna = Byte({Record({1, 2, 3})});
    const std::string sMezza = Byte({Record({4, 5, 6})}).substr(0, 10);
    EXPECT_EQ(Riduci(sMezza, 1), "");
    EXPECT_EQ(Riduci(sUna + sMezza, 1), Byte({Record({1, 2, 3}), Record({4, 5, 6})}));
}

TEST_F(ModRiduci2, UnaPrimaColonnaDiZeriNonCopreNulla)
{
    const Colonne aColonne{Record({}), Record({}), Record({1, 2})};
    for (const std::size_t nByte : Memorie()) {
        EXPECT_EQ(Riduci(aColonne, -1, nByte), Byte(aColonne)) << nByte;
        EXPECT_EQ(Riduci(aColonne, 0, nByte), Byte({aColonne[0]})) << nByte;
    }
}

TEST_F(ModRiduci2, LoZeroDentroLaClasseEUnNumero)
{
    const Colonne aColonne{Record({1, 2, 3}), Record({4, 5}), Record({5, 6}), Record({7})};
    for (const std::size_t nByte : Memorie()) {
        EXPECT_EQ(Riduci(aColonne, 1, nByte), Byte({aColonne[0], aColonne[1], aColonne[3]})) << nByte;
        EXPECT_EQ(Riduci(aColonne, 2, nByte), Byte({aColonne[0], aColonne[1]})) << nByte;
    }
}

TEST_F(ModRiduci2, UnNumeroRipetutoConta2VoltePerChiViene)
{
    const Colonne aColonne{Record({1, 2, 3}), Record({7, 7, 8}), Record({7, 9, 10}), Record({8, 11, 12}),
                           Record({8, 8, 13})};
    for (const std::size_t nByte : Memorie()) {
        EXPECT_EQ(Riduci(aColonne, 1, nByte), Byte({aColonne[0], aColonne[1], aColonne[3], aColonne[4]}))
            << nByte;
    }
}

TEST_F(ModRiduci2, INumeriOltre90NonSonoComuniANessuno)
{
    const Colonne aColonne{Record({1, 91, 200}), Record({2, 91, 200}), Record({2, 91, 200}),
                           Record({1, 90, 91})};
    for (const std::size_t nByte : Memorie()) {
        EXPECT_EQ(Riduci(aColonne, 1, nByte), Byte(aColonne)) << nByte;
        EXPECT_EQ(Riduci(aColonne, 2, nByte), Byte({aColonne[0], aColonne[1]})) << nByte;
    }
}

TEST_F(ModRiduci2, CioCheStaDietroLaClasseNonContaMaResta)
{
    const Colonne aColonne{Record({1, 2, 3}), Record({4, 5, 6, 9, 9}), Record({7, 8, 10, 9, 4}),
                           Record({4, 5, 1})};
    EXPECT_EQ(Riduci(aColonne, 1), Byte({aColonne[0], aColonne[1], aColonne[2]}));
}

TEST_F(ModRiduci2, LaClasseSiFermaADieciPosizioni)
{
    const Colonne aColonne{Record({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}),
                           Record({1, 2, 3, 4, 5, 6, 7, 8, 9, 20, 21})};
    EXPECT_EQ(Riduci(aColonne, 1), Byte({aColonne[0]}));
    EXPECT_EQ(Riduci(aColonne, 0), Byte(aColonne));
}

TEST_F(ModRiduci2, OgniSistemaCompletoComeLaDefinizione)
{
    for (int nClasse = 2; nClasse <= 10; ++nClasse) {
        const Colonne aColonne = prove::Completo(nClasse + 3, nClasse);
        for (int nRiduzione = -1; nRiduzione <= nClasse; ++nRiduzione) {
            const std::string sAtteso = Byte(prove::RiduciInFila(aColonne, nRiduzione));
            for (const std::size_t nByte : Memorie()) {
                EXPECT_EQ(Riduci(aColonne, nRiduzione, nByte), sAtteso)
                    << nClasse << " N-" << nRiduzione << " byte " << nByte;
            }
        }
    }
}

TEST_F(ModRiduci2, MoltiCasiComeLaDefinizione)
{
    for (unsigned nSeme = 1; nSeme <= 500; ++nSeme) {
        std::mt19937 sorte(nSeme);
        prove::MisturaColonne mistura;
        mistura.nClasse = static_cast<int>(2 + nSeme % 9);
        mistura.nNumeri = std::array{mistura.nClasse + 4, 24, 90}[sorte() % 3];
        mistura.nQuante = 1 + sorte() % 150;
        mistura.nIrregolariSuCento = std::array{0U, 5U, 60U}[sorte() % 3];
        mistura.nDoppieSuCento = std::array{0U, 20U}[sorte() % 2];
        const Colonne aColonne = prove::ColonneCasuali(sorte, mistura);
        for (int nRiduzione = 0; nRiduzione <= mistura.nClasse; ++nRiduzione) {
            const std::string sAtteso = Byte(prove::RiduciInFila(aColonne, nRiduzione));
            const std::size_t nByte = Memorie()[sorte() % Memorie().size()];
            ASSERT_EQ(Riduci(aColonne, nRiduzione, nByte), sAtteso)
                << "seme " << nSeme << " N-" << nRiduzione << " byte " << nByte;
            ASSERT_EQ(Riduci(aColonne, nRiduzione, 0), sAtteso) << "seme " << nSeme << " N-" << nRiduzione;
        }
    }
}

RC_GTEST_FIXTURE_PROP(ModRiduci2, IlRidottoMantieneLaGaranzia, ())
{
    std::mt19937 sorte(*rc::gen::arbitrary<std::uint32_t>());
    prove::MisturaColonne mistura;
    mistura.nClasse = *rc::gen::inRange(2, 11);
    mistura.nNumeri = *rc::gen::element(14, 30, 90);
    mistura.nQuante = *rc::gen::inRange<std::size_t>(1, 400);
    const int nRiduzione = *rc::gen::inRange(0, mistura.nClasse + 1);
    static_cast<void>(
        Riduci(prove::ColonneCasuali(sorte, mistura), nRiduzione, *rc::gen::elementOf(Memorie())));
    const EsitoGaranzia esito = ControllaGaranzia(sInput, sOutput, mistura.nClasse - nRiduzione);
    RC_ASSERT(esito.nControllate == static_cast<std::int64_t>(mistura.nQuante));
    RC_ASSERT(esito.nScoperte == 0);
}

/// Many blocks in, more than a buffer out, the last block short: only repeats go, wherever they stand.
TEST_F(ModRiduci2, PiuDiCentomilaTenuteAttraversanoBloccoEBuffer)
{
    std::mt19937 sorte(7);
    prove::MisturaColonne mistura;
    mistura.nClasse = 4;
    mistura.nQuante = 320001;
    mistura.nDoppieSuCento = 30;
    const Colonne aColonne = prove::ColonneCasuali(sorte, mistura);
    Colonne aDiverse;
    std::set<std::array<std::uint8_t, kNumeriColonna>> aViste;
    std::copy_if(aColonne.begin(), aColonne.end(), std::back_inserter(aDiverse),
                 [&](const Colonna& colonna) { return aViste.insert(colonna.aNumeri).second; });
    ASSERT_GT(aDiverse.size(), 200000U);
    for (const std::size_t nByte : {kByteTabella, std::size_t{1} << 20U, std::size_t{300000}}) {
        EXPECT_TRUE(Riduci(aColonne, 0, nByte) == Byte(aDiverse)) << nByte;
    }
}

TEST_F(ModRiduci2, AiConfiniDelBlocco)
{
    for (const std::size_t nQuante : {99999U, 100000U, 100001U, 200000U, 200001U}) {
        Colonne aColonne(nQuante, Record({1, 2, 3}));
        aColonne[nQuante - 1] = Record({88, 89, 90});
        EXPECT_EQ(Riduci(aColonne, 1), Byte({Record({1, 2, 3}), Record({88, 89, 90})})) << nQuante;
        EXPECT_EQ(Riduci(aColonne, 1, 0), Byte({Record({1, 2, 3}), Record({88, 89, 90})})) << nQuante;
    }
}

TEST_F(ModRiduci2, LaPercentualeSaleEAllaFineTornaAZero)
{
    Colonne aColonne(215000, Record({1, 2, 3}));
    static_cast<void>(Riduci(aColonne, 1));
    std::vector<std::int16_t> aAttese;
    for (int nFatte = 10000; nFatte <= 210000; nFatte += 10000) {
        aAttese.push_back(static_cast<std::int16_t>(nFatte * 100 / 215000));
    }
    aAttese.insert(aAttese.end(), {100, 0});
    EXPECT_EQ(avanzamento.aPercentuali, aAttese);
    EXPECT_EQ(avanzamento.nEventi, 22);
    EXPECT_TRUE(avanzamento.aFasi.empty());
}

TEST_F(ModRiduci2, ConPiuPassateLaPercentualeNonScende)
{
    std::mt19937 sorte(3);
    const Colonne aColonne = prove::ColonneCasuali(sorte, {.nClasse = 6, .nQuante = 30000});
    static_cast<void>(Riduci(aColonne, 1, 300000));
    ASSERT_GT(avanzamento.aPercentuali.size(), 5U);
    EXPECT_EQ(avanzamento.aPercentuali.back(), 0);
    avanzamento.aPercentuali.pop_back();
    EXPECT_TRUE(std::is_sorted(avanzamento.aPercentuali.begin(), avanzamento.aPercentuali.end()));
    EXPECT_EQ(avanzamento.aPercentuali.back(), 100);
    EXPECT_LT(avanzamento.aPercentuali[2], 50);
}

TEST_F(ModRiduci2, LoStessoFileSiRifiutaENullaVaPerso)
{
    const std::string sByte = Byte({Record({1, 2, 3}), Record({1, 2, 4})});
    prove::ScriviFile(sInput, sByte);
    const std::string sAltroNome = cartella / "altro.col";
    std::filesystem::create_hard_link(sInput, sAltroNome);
    for (const std::string& sUscita : {sInput, cartella / "./test.col", sAltroNome}) {
        EXPECT_EQ(prove::NumeroErrore([&] { RiduzioneSequenziale(sInput, sUscita, 1, avanzamento); }), 5);
        EXPECT_EQ(prove::LeggiFile(sInput), sByte);
        EXPECT_TRUE(FileEsiste(sUscita));
    }
}

TEST_F(ModRiduci2, UnAsteriscoNelNomeNonCancellaAltriFile)
{
    prove::ScriviFile(sInput, Byte({Record({1, 2, 3})}));
    prove::ScriviFile(sOutput, "altro");
    const std::string sUscita = cartella / "*_Rid_N-1.col";
    EXPECT_EQ(prove::NumeroErrore([&] { RiduzioneSequenziale(sInput, sUscita, 1, avanzamento); }), 5);
    EXPECT_EQ(prove::LeggiFile(sOutput), "altro");
}

TEST_F(ModRiduci2, SenzaIngressoIlRidottoDiPrimaResta)
{
    prove::ScriviFile(sOutput, "prima");
    EXPECT_EQ(prove::NumeroErrore([&] { RiduzioneSequenziale(sInput, sOutput, 1, avanzamento); }), 53);
    EXPECT_EQ(prove::LeggiFile(sOutput), "prima");
    EXPECT_FALSE(FileEsiste(sInput));
}

TEST_F(ModRiduci2, UnUscitaCheNonSiCancellaFermaTutto)
{
    prove::ScriviFile(sInput, Byte({Record({1, 2, 3})}));
    std::filesystem::create_directory(sOutput);
    EXPECT_EQ(prove::NumeroErrore([&] { RiduzioneSequenziale(sInput, sOutput, 1, avanzamento); }), 70);
    EXPECT_EQ(avanzamento.fallimenti.aMostrati.size(), 1U);
    EXPECT_TRUE(std::filesystem::is_directory(sOutput));
}

} // namespace
} // namespace ordavel
