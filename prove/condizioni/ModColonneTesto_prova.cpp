// ModColonneTesto_prova.cpp - the numbers of a line, and the lines of a text that comes in blocks.

#include "condizioni/ModColonneTesto.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

namespace ordavel {
namespace {

using prove::NumeroErrore;

using Numeri = std::vector<int>;

/// The places of a column up to its first 0; behind that all must be 0.
Numeri Compatti(const NumeriScelti& aNumeri)
{
    const auto& aElementi = aNumeri.aElementi;
    const auto fine = std::find(aElementi.begin(), aElementi.end(), 0);
    EXPECT_TRUE(std::all_of(fine, aElementi.end(), [](int n) { return n == 0; }));
    return {aElementi.begin(), fine};
}

/// The numbers of a line; nothing must be found exactly when there are none.
Numeri NumeriDi(std::string_view sRiga)
{
    NumeriScelti aNumeri;
    aNumeri.aElementi.fill(55);
    bool bTrovati = false;
    GetArrayNumFromColonna(sRiga, aNumeri, bTrovati);
    Numeri aCompatti = Compatti(aNumeri);
    EXPECT_EQ(bTrovati, !aCompatti.empty()) << sRiga;
    return aCompatti;
}

/// A line as it was handed over.
using RigaLetta = std::pair<std::string, Numeri>;

/// Keeps all lines, and stops behind the nMassime-th.
struct Raccolta {
    std::vector<RigaLetta> aRighe;
    std::size_t nMassime = 1000000;

    bool operator()(std::string_view sTesto, const NumeriScelti& aNumeri)
    {
        aRighe.emplace_back(sTesto, Compatti(aNumeri));
        return aRighe.size() < nMassime;
    }
};

std::vector<RigaLetta> RigheDi(const std::string& sTesto)
{
    std::istringstream ingresso(sTesto);
    Raccolta raccolta;
    LeggiColonneTesto(ingresso, std::ref(raccolta));
    return raccolta.aRighe;
}

TEST(ModColonneTesto, UnaRigaNonHaFormatoFisso)
{
    const std::vector<std::pair<std::string, Numeri>> aCasi = {
        {"1 2 3", {1, 2, 3}},     {"01.02.03", {1, 2, 3}},
        {"n. 7, 8", {7, 8}},      {"Colonna n.ro90", {90}},
        {"3x2y1", {1, 2, 3}},     {"-5+6", {5, 6}},
        {"1.5e3", {1, 3, 5}},     {"12\t34", {12, 34}},
        {"\xE0 7 \xC3\xA0", {7}}, {std::string("4\0005", 3), {4, 5}},
    };
    for (const auto& [sRiga, aAttesi] : aCasi) {
        EXPECT_EQ(NumeriDi(sRiga), aAttesi) << sRiga;
    }
}

TEST(ModColonneTesto, INumeriImpossibiliEIDoppiCadono)
{
    const std::vector<std::pair<std::string, Numeri>> aCasi = {
        {"91 0 5 5", {5}},
        {"0", {}},
        {"000 00", {}},
        {"91", {}},
        {"100 900 1000000", {}},
        {"90 1", {1, 90}},
        {"9 8 7 8 9", {7, 8, 9}},
        {"0000000000000000000000000000000090", {90}},
        {"00000000000000000000000000000000091", {}},
    };
    for (const auto& [sRiga, aAttesi] : aCasi) {
        EXPECT_EQ(NumeriDi(sRiga), aAttesi) << sRiga;
    }
}

TEST(ModColonneTesto, UnNumeroLunghissimoNonTornaPiccolo)
{
    EXPECT_EQ(NumeriDi(std::string(100000, '9')), Numeri{});
    EXPECT_EQ(NumeriDi("4294967297 18446744073709551617 340282366920938463463374607431768211457"), Numeri{});
    EXPECT_EQ(NumeriDi(std::string(100000, '0') + "7"), Numeri{7});
}

TEST(ModColonneTesto, UnaRigaSenzaCifreNonEUnaColonna)
{
    EXPECT_EQ(NumeriDi(""), Numeri{});
    EXPECT_EQ(NumeriDi("nessun numero"), Numeri{});
}

TEST(ModColonneTesto, UnaRigaPuoTenereTuttiINovantaNumeri)
{
    std::string sRiga;
    Numeri aAttesi;
    for (int n = 90; n >= 1; --n) {
        sRiga += std::to_string(n) + " ";
        aAttesi.insert(aAttesi.begin(), n);
    }
    EXPECT_EQ(NumeriDi(sRiga), aAttesi);
}

TEST(ModColonneTesto, SoloLeRigheConNumeriSiConsegnano)
{
    const std::vector<RigaLetta> aAttese = {{"1 2 3", {1, 2, 3}}, {" 03.02 ", {2, 3}}, {"n. 7", {7}}};
    EXPECT_EQ(RigheDi("1 2 3\n\ntitolo\n 03.02 \n91 0\nn. 7\n"), aAttese);
}

TEST(ModColonneTesto, OgniFineDiRigaVale)
{
    const std::vector<RigaLetta> aAttese = {{"1 2", {1, 2}}, {"3", {3}}, {"4", {4}}, {"5", {5}}};
    EXPECT_EQ(RigheDi("1 2\r\n3\r4\n5"), aAttese);
}

TEST(ModColonneTesto, UnTestoDiRigheVuoteNonDaNulla)
{
    EXPECT_TRUE(RigheDi("").empty());
    EXPECT_TRUE(RigheDi("\n\r\n\n  \n").empty());
}

TEST(ModColonneTesto, UnaRigaLunghissimaSiTagliaMaContaTutta)
{
    const std::string sLunga = "1" + std::string(5000000, 'x') + "90";
    const auto aRighe = RigheDi(sLunga + "\n2\n");
    ASSERT_EQ(aRighe.size(), 2U);
    EXPECT_EQ(aRighe[0], (RigaLetta{sLunga.substr(0, kByteRigaMostrata), {1, 90}}));
    EXPECT_EQ(aRighe[1], (RigaLetta{"2", {2}}));
}

TEST(ModColonneTesto, UnaRigaCheBastaAppenaRestaIntera)
{
    const std::string sGiusta = std::string(kByteRigaMostrata - 2, ' ') + "\xC3\xA0";
    EXPECT_EQ(RigheDi(sGiusta + "\n1").size(), 1U) << "no number in the first line";
    const std::string sConNumero = "7" + sGiusta.substr(1);
    EXPECT_EQ(RigheDi(sConNumero), (std::vector<RigaLetta>{{sConNumero, {7}}}));
    EXPECT_EQ(RigheDi(sConNumero + "8"), (std::vector<RigaLetta>{{sConNumero, {7, 8}}}));
}

TEST(ModColonneTesto, IlTaglioNonSpezzaUnCarattere)
{
    const std::vector<std::string> aCaratteri = {"\xC3\xA0", "\xE2\x82\xAC", "\xF0\x9F\x8E\xB1"};
    for (const std::string& sCarattere : aCaratteri) {
        for (std::size_t nDentro = 1; nDentro < sCarattere.size(); ++nDentro) {
            const std::string sInizio = "7" + std::string(kByteRigaMostrata - 1 - nDentro, ' ');
            const auto aRighe = RigheDi(sInizio + sCarattere + " 8");
            ASSERT_EQ(aRighe.size(), 1U);
            EXPECT_EQ(aRighe[0], (RigaLetta{sInizio, {7, 8}})) << sCarattere << ' ' << nDentro;
        }
    }
}

TEST(ModColonneTesto, UnTestoCheNonEUtf8PerdeAlTaglioAlPiuTreByte)
{
    const std::string sRiga = "7" + std::string(3000, '\x80');
    const auto aRighe = RigheDi(sRiga);
    ASSERT_EQ(aRighe.size(), 1U);
    EXPECT_EQ(aRighe[0], (RigaLetta{sRiga.substr(0, kByteRigaMostrata - 3), {7}}));
}

TEST(ModColonneTesto, UnNumeroACavalloDeiBlocchiRestaIntero)
{
    for (const std::size_t nPrima : {65534U, 65535U, 65536U, 131071U}) {
        const std::string sTesto = std::string(nPrima, '\n') + "78\n9";
        EXPECT_EQ(RigheDi(sTesto), (std::vector<RigaLetta>{{"78", {78}}, {"9", {9}}})) << nPrima;
    }
    const std::string sBloccoPieno = std::string(65535, ' ') + "7";
    EXPECT_EQ(RigheDi(sBloccoPieno).size(), 1U);
}

/// The same line for ever.
class SenzaFine : public std::streambuf {
protected:
    int_type underflow() override
    {
        setg(m_sRiga.data(), m_sRiga.data(), m_sRiga.data() + m_sRiga.size());
        return traits_type::to_int_type(m_sRiga.front());
    }

private:
    std::string m_sRiga = "12 34\n";
};

TEST(ModColonneTesto, ChiRiceveFermaLaLettura)
{
    SenzaFine righe;
    std::istream ingresso(&righe);
    Raccolta raccolta{{}, 30000};
    LeggiColonneTesto(ingresso, std::ref(raccolta));
    EXPECT_EQ(raccolta.aRighe, std::vector<RigaLetta>(30000, {"12 34", {12, 34}}));
}

TEST(ModColonneTesto, FermarsiAllUltimaRigaSenzaFineNonLaRipete)
{
    std::istringstream ingresso("1\n2\n3");
    Raccolta raccolta{{}, 2};
    LeggiColonneTesto(ingresso, std::ref(raccolta));
    EXPECT_EQ(raccolta.aRighe, (std::vector<RigaLetta>{{"1", {1}}, {"2", {2}}}));
}

TEST(ModColonneTesto, UnFallimentoDiChiRiceveArrivaAChiHaChiamato)
{
    std::istringstream ingresso("1\n2\n");
    const auto rifiuta = [](std::string_view, const NumeriScelti&) -> bool {
        throw Errore(eErrore::memoria);
    };
    EXPECT_EQ(NumeroErrore([&] { LeggiColonneTesto(ingresso, rifiuta); }), 7);
}

/// A medium that breaks after its first line.
class Guasto : public std::streambuf {
protected:
    int_type underflow() override
    {
        if (m_bLetta) {
            throw std::runtime_error("guasto");
        }
        m_bLetta = true;
        setg(m_sRiga.data(), m_sRiga.data(), m_sRiga.data() + m_sRiga.size());
        return traits_type::to_int_type(m_sRiga.front());
    }

private:
    std::string m_sRiga = "12 34\n";
    bool m_bLetta = false;
};

TEST(ModColonneTesto, UnIngressoGuastoFallisceCon57)
{
    Guasto guasto;
    std::istream ingresso(&guasto);
    Raccolta raccolta;
    EXPECT_EQ(NumeroErrore([&] { LeggiColonneTesto(ingresso, std::ref(raccolta)); }), 57);
    std::ifstream mancante("/cartella/che/non/esiste");
    EXPECT_EQ(NumeroErrore([&] { LeggiColonneTesto(mancante, std::ref(raccolta)); }), 57);
}

TEST(ModColonneTesto, UnFileDaLeStesseRigheDelSuoTesto)
{
    std::string sTesto;
    for (int i = 0; sTesto.size() < 200000; ++i) {
        sTesto += "colonna " + std::to_string(i % 97) + (i % 5 == 0 ? "\r\n" : "\n");
    }
    const std::size_t nTutto = sTesto.size();
    const prove::CartellaProva cartella;
    for (const std::size_t nByte : {std::size_t{0}, std::size_t{65536}, std::size_t{131072}, nTutto}) {
        prove::ScriviFile(cartella / "colonne.txt", sTesto.substr(0, nByte));
        FileBinario file(cartella / "colonne.txt", eApertura::lettura);
        Raccolta raccolta;
        LeggiColonneTesto(file, std::ref(raccolta));
        EXPECT_EQ(raccolta.aRighe, RigheDi(sTesto.substr(0, nByte))) << nByte;
    }
}

/// The numbers of a line, from the definition: words of digits, without their leading zeros.
Numeri NumeriPerDefinizione(std::string sRiga)
{
    std::replace_if(
        sRiga.begin(), sRiga.end(), [](char c) { return c < '0' || c > '9'; }, ' ');
    std::set<int> aNumeri;
    std::istringstream parole(sRiga);
    for (std::string sParola; parole >> sParola;) {
        sParola.erase(0, sParola.find_first_not_of('0'));
        if (!sParola.empty() && sParola.size() <= 2 && std::stoi(sParola) <= 90) {
            aNumeri.insert(std::stoi(sParola));
        }
    }
    return {aNumeri.begin(), aNumeri.end()};
}

rc::Gen<std::string> GenTesto()
{
    return rc::gen::container<std::string>(
        rc::gen::element('0', '1', '8', '9', '0', '5', ' ', ' ', '.', 'a', '\n', '\r', '\xC3', '\0'));
}

RC_GTEST_PROP(ModColonneTesto, INumeriSonoQuelliDellaDefinizione, ())
{
    const std::string sRiga = *GenTesto();
    RC_ASSERT(NumeriDi(sRiga) == NumeriPerDefinizione(sRiga));
}

RC_GTEST_PROP(ModColonneTesto, LeRigheSonoQuelleDellaDefinizione, ())
{
    std::string sTesto = *GenTesto();
    const auto aLette = RigheDi(sTesto);
    std::replace(sTesto.begin(), sTesto.end(), '\r', '\n');
    std::vector<RigaLetta> aAttese;
    std::istringstream righe(sTesto);
    for (std::string sRiga; std::getline(righe, sRiga);) {
        const Numeri aNumeri = NumeriPerDefinizione(sRiga);
        if (!aNumeri.empty()) {
            aAttese.emplace_back(sRiga, aNumeri);
        }
    }
    RC_ASSERT(aLette == aAttese);
}

} // namespace
} // namespace ordavel
