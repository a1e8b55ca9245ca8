// ClsOrdinaLv_prova.cpp - a report list sorted by a heading.

#include "analisi/ClsOrdinaLv.hpp"

#include "comune/Fallimenti.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

namespace ordavel {
namespace {

using prove::NumeroErrore;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kNessuno = eOrdine::nessuno;

RigaElenco RigaDi(std::string sTesto, std::vector<std::string> aSotto = {})
{
    return {.sChiave = {}, .sTesto = std::move(sTesto), .aSotto = std::move(aSotto), .bScelta = false};
}

/// A list of two columns: the texts, and the place of each.
Elenco ElencoDi(const std::vector<std::string>& aTesti)
{
    Elenco elenco;
    elenco.aTestate = {"Testo", "Posto"};
    std::vector<RigaElenco> aRighe;
    for (const std::string& sTesto : aTesti) {
        aRighe.push_back(RigaDi(sTesto, {std::to_string(aRighe.size())}));
    }
    elenco.Righe.Poni(std::move(aRighe));
    return elenco;
}

std::vector<std::string> Testi(const Elenco& elenco)
{
    std::vector<std::string> aTesti;
    for (const RigaElenco& riga : elenco.Righe.Valore()) {
        aTesti.push_back(riga.sTesto);
    }
    return aTesti;
}

std::vector<std::string> Ordinati(const std::vector<std::string>& aTesti, eTipoOrdine tipo,
                                  std::int16_t nTipoSort = 1)
{
    Elenco elenco = ElencoDi(aTesti);
    ClsOrdinaLv::OrdinaLv(elenco, 1, tipo, nTipoSort);
    return Testi(elenco);
}

void Ordina(Elenco& elenco, std::int16_t nIdCol, eTipoOrdine tipo, std::int16_t nTipoSort = 1)
{
    ClsOrdinaLv::OrdinaLv(elenco, nIdCol, tipo, nTipoSort);
}

TEST(ClsOrdinaLv, MilleColPuntoVieneDopoNovecentonovantanove)
{
    EXPECT_THAT(Ordinati({"1.000", "999"}, eTipoOrdine::numero), ElementsAre("999", "1.000"));
    EXPECT_THAT(Ordinati({"999", "1.000"}, eTipoOrdine::numero, 0), ElementsAre("1.000", "999"));
}

TEST(ClsOrdinaLv, ComeTestoMilleVienePrima)
{
    EXPECT_THAT(Ordinati({"999", "1.000"}, eTipoOrdine::testo), ElementsAre("1.000", "999"));
}

TEST(ClsOrdinaLv, LaVirgolaSeparaIDecimali)
{
    EXPECT_THAT(
        Ordinati({"1.234,6", "1.234,5", "12.344", "1234,55", "-1.000,5", "-1.000"}, eTipoOrdine::valuta),
        ElementsAre("-1.000,5", "-1.000", "1.234,5", "1234,55", "1.234,6", "12.344"));
}

TEST(ClsOrdinaLv, IDueTipiDiNumeroOrdinanoUguale)
{
    const std::vector<std::string> aTesti{"3", "1,5", "20", "3", "x", "-2", "1.000", "3"};
    EXPECT_EQ(Ordinati(aTesti, eTipoOrdine::numero), Ordinati(aTesti, eTipoOrdine::valuta));
}

TEST(ClsOrdinaLv, QuelCheNonENumeroValeZero)
{
    EXPECT_THAT(Ordinati({"1", "niente", "-1"}, eTipoOrdine::numero), ElementsAre("-1", "niente", "1"));
    EXPECT_THAT(Ordinati({"1", "", "-1"}, eTipoOrdine::numero), ElementsAre("-1", "", "1"));
    EXPECT_THAT(Ordinati({"4", "3 volte", "2"}, eTipoOrdine::numero), ElementsAre("2", "3 volte", "4"));
}

TEST(ClsOrdinaLv, OltreQuattroDecimaliINumeriSonoUguali)
{
    // Two equal ones are swapped, two others put right.
    EXPECT_THAT(Ordinati({"0,00011", "0,00012"}, eTipoOrdine::numero), ElementsAre("0,00012", "0,00011"));
    EXPECT_THAT(Ordinati({"0,00012", "0,00011"}, eTipoOrdine::numero), ElementsAre("0,00011", "0,00012"));
    EXPECT_THAT(Ordinati({"0,0002", "0,0001"}, eTipoOrdine::numero), ElementsAre("0,0001", "0,0002"));
    EXPECT_THAT(Ordinati({"0,0001", "0,0002"}, eTipoOrdine::numero), ElementsAre("0,0001", "0,0002"));
}

TEST(ClsOrdinaLv, IMezziSiArrotondanoAlPari)
{
    // 0,00025 and 0,0002 are both two ten thousandths: equal, and so swapped.
    EXPECT_THAT(Ordinati({"0,0002", "0,00025"}, eTipoOrdine::numero), ElementsAre("0,00025", "0,0002"));
    EXPECT_THAT(Ordinati({"0,00019", "0,0002"}, eTipoOrdine::numero), ElementsAre("0,0002", "0,00019"));
}

TEST(ClsOrdinaLv, ITestiSiConfrontanoByteAByte)
{
    EXPECT_THAT(Ordinati({"a", "Z", "\xC3\xA0", "B", "", "aa", " "}, eTipoOrdine::testo),
                ElementsAre("", " ", "B", "Z", "a", "aa", "\xC3\xA0"));
    EXPECT_THAT(Ordinati({"10", "9", "1"}, eTipoOrdine::testo), ElementsAre("1", "10", "9"));
}

TEST(ClsOrdinaLv, LaRigaSiSpostaIntera)
{
    Elenco elenco = ElencoDi({"b", "a"});
    elenco.Righe.Poni({{"k1", "b", {"2"}, true}, {"k2", "a", {"1"}, false}});
    Ordina(elenco, 2, eTipoOrdine::numero);
    EXPECT_THAT(elenco.Righe.Valore(),
                ElementsAre(RigaElenco{"k2", "a", {"1"}, false}, RigaElenco{"k1", "b", {"2"}, true}));
}

TEST(ClsOrdinaLv, GliUgualiNonTengonoIlLoroOrdine)
{
    Elenco elenco = ElencoDi({"x", "x", "x", "x"});
    Ordina(elenco, 1, eTipoOrdine::testo);
    std::vector<std::string> aPosti;
    for (const RigaElenco& riga : elenco.Righe.Valore()) {
        aPosti.push_back(riga.aSotto.front());
    }
    EXPECT_THAT(aPosti, ElementsAre("2", "3", "0", "1"));
}

TEST(ClsOrdinaLv, ConMenoDiDueRigheNonSuccedeNulla)
{
    for (const auto& aTesti : {std::vector<std::string>{}, {"9e99"}}) {
        Elenco elenco = ElencoDi(aTesti);
        Ordina(elenco, 7, eTipoOrdine::numero);
        EXPECT_EQ(Testi(elenco), aTesti);
        EXPECT_THAT(elenco.Icone.Valore(), IsEmpty());
    }
}

TEST(ClsOrdinaLv, SoloLaTestataOrdinataHaUnIcona)
{
    Elenco elenco = ElencoDi({"b", "a"});
    Ordina(elenco, 1, eTipoOrdine::testo);
    EXPECT_THAT(elenco.Icone.Valore(), ElementsAre(eOrdine::crescente, kNessuno));
    Ordina(elenco, 2, eTipoOrdine::numero, 0);
    EXPECT_THAT(elenco.Icone.Valore(), ElementsAre(kNessuno, eOrdine::decrescente));
}

TEST(ClsOrdinaLv, SenzaQuellaTestataFallisceCon9ENonCambiaNulla)
{
    for (const std::int16_t nIdCol : std::initializer_list<std::int16_t>{-32768, -1, 0, 3, 32767}) {
        Elenco elenco = ElencoDi({"b", "a"});
        EXPECT_EQ(NumeroErrore([&] { Ordina(elenco, nIdCol, eTipoOrdine::testo); }), 9) << nIdCol;
        EXPECT_THAT(Testi(elenco), ElementsAre("b", "a"));
        EXPECT_THAT(elenco.Icone.Valore(), IsEmpty());
    }
}

TEST(ClsOrdinaLv, QuelCheMancaAUnaRigaEVuoto)
{
    Elenco elenco = ElencoDi({});
    elenco.Righe.Poni({RigaDi("uno", {"2"}), RigaDi("due"), RigaDi("tre", {"-1"})});
    Ordina(elenco, 2, eTipoOrdine::testo);
    EXPECT_THAT(Testi(elenco), ElementsAre("due", "tre", "uno"));
    Ordina(elenco, 2, eTipoOrdine::numero);
    EXPECT_THAT(Testi(elenco), ElementsAre("tre", "due", "uno"));
}

TEST(ClsOrdinaLv, UnNumeroTroppoGrandeFallisceCon6ENonCambiaNulla)
{
    for (const char* sGrande : {"922.337.203.685.478", "-922.337.203.685.478", "9e99", "1e999"}) {
        Elenco elenco = ElencoDi({"2", sGrande, "1"});
        EXPECT_EQ(NumeroErrore([&] { Ordina(elenco, 1, eTipoOrdine::numero); }), 6) << sGrande;
        EXPECT_THAT(Testi(elenco), ElementsAre("2", sGrande, "1"));
        EXPECT_THAT(elenco.Icone.Valore(), IsEmpty());
    }
}

TEST(ClsOrdinaLv, INumeriPiuGrandiCheCiStannoSiOrdinano)
{
    EXPECT_THAT(Ordinati({"922.337.203.685.477", "-922.337.203.685.477", "0"}, eTipoOrdine::numero),
                ElementsAre("-922.337.203.685.477", "0", "922.337.203.685.477"));
}

TEST(ClsOrdinaLv, LoStessoClicRovesciaUnAltroRicomincia)
{
    Elenco elenco = ElencoDi({"b", "c", "a"});
    ClsOrdinaLv ordine;
    ordine.Clic(elenco, 1, eTipoOrdine::testo);
    EXPECT_THAT(Testi(elenco), ElementsAre("a", "b", "c"));
    ordine.Clic(elenco, 1, eTipoOrdine::testo);
    EXPECT_THAT(Testi(elenco), ElementsAre("c", "b", "a"));
    EXPECT_THAT(elenco.Icone.Valore(), ElementsAre(eOrdine::decrescente, kNessuno));
    ordine.Clic(elenco, 1, eTipoOrdine::testo);
    EXPECT_THAT(Testi(elenco), ElementsAre("a", "b", "c"));
    ordine.Clic(elenco, 1, eTipoOrdine::testo);
    ordine.Clic(elenco, 2, eTipoOrdine::numero);
    EXPECT_THAT(Testi(elenco), ElementsAre("b", "c", "a"));
    ordine.Clic(elenco, 1, eTipoOrdine::testo);
    EXPECT_THAT(Testi(elenco), ElementsAre("a", "b", "c"));
    EXPECT_THAT(elenco.Icone.Valore(), ElementsAre(eOrdine::crescente, kNessuno));
}

TEST(ClsOrdinaLv, LaDirezioneNonSiPerdeConUnElencoCorto)
{
    Elenco corto = ElencoDi({"a"});
    ClsOrdinaLv ordine;
    ordine.Clic(corto, 1, eTipoOrdine::testo);
    Elenco elenco = ElencoDi({"b", "c", "a"});
    ordine.Clic(elenco, 1, eTipoOrdine::testo);
    EXPECT_THAT(Testi(elenco), ElementsAre("c", "b", "a"));
}

TEST(ClsOrdinaLv, LaVistaSentePrimaLeRigheEUnaVoltaSola)
{
    Elenco elenco = ElencoDi({"b", "a"});
    std::string sSentito;
    elenco.Righe.Ascolta([&] { sSentito += "righe "; });
    elenco.Icone.Ascolta([&] { sSentito += "icone "; });
    Ordina(elenco, 1, eTipoOrdine::testo);
    EXPECT_EQ(sSentito, "righe icone ");
}

RC_GTEST_PROP(ClsOrdinaLv, DecrescenteERovesciataDiCrescente, (const std::vector<std::string>& aTesti))
{
    auto aGiu = Ordinati(aTesti, eTipoOrdine::testo, 0);
    std::reverse(aGiu.begin(), aGiu.end());
    const auto aSu = Ordinati(aTesti, eTipoOrdine::testo);
    RC_ASSERT(aTesti.size() < 2 || aGiu == aSu);
    RC_ASSERT(std::is_sorted(aSu.begin(), aSu.end()));
    RC_ASSERT(std::is_permutation(aSu.begin(), aSu.end(), aTesti.begin(), aTesti.end()));
}

} // namespace
} // namespace ordavel
