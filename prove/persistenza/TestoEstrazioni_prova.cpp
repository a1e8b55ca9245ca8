// TestoEstrazioni_prova.cpp - draws as a text.

#include "persistenza/TestoEstrazioni.hpp"

#include "comune/Fallimenti.hpp"
#include "core/TestoErrato.hpp"

#include <gtest/gtest.h>

#include <ios>
#include <sstream>
#include <streambuf>

namespace ordavel {
namespace {

constexpr const char* kTestata = "Data;N1;N2;N3;N4;N5;N6\n";

const ProfiloGioco& Gioco(std::string_view sNome)
{
    return *TrovaGioco(sNome);
}

/// Draws of a text of "SuperEnalotto", and the blocks that they came in.
struct Lette {
    std::vector<Estrazione> aEstrazioni;
    std::vector<std::size_t> aBlocchi;
    std::int64_t nQuante = 0;
};

Lette Leggi(std::istream& ingresso)
{
    Lette lette;
    lette.nQuante = LeggiTestoEstrazioni(ingresso, "e.csv", Gioco("SuperEnalotto"), [&](const auto& aBlocco) {
        lette.aBlocchi.push_back(aBlocco.size());
        lette.aEstrazioni.insert(lette.aEstrazioni.end(), aBlocco.begin(), aBlocco.end());
    });
    return lette;
}

Lette Leggi(const std::string& sTesto)
{
    std::istringstream ingresso(sTesto);
    return Leggi(ingresso);
}

/// What is wrong with a text.
std::string Rifiuto(const std::string& sTesto)
{
    try {
        (void)Leggi(sTesto);
        return {};
    } catch (const TestoErrato& errore) {
        return errore.what();
    }
}

/// A text behind which the disk fails.
class DiscoRotto : public std::streambuf {
public:
    explicit DiscoRotto(std::string sTesto) : m_sTesto(std::move(sTesto))
    {
        setg(m_sTesto.data(), m_sTesto.data(), m_sTesto.data() + m_sTesto.size());
    }

protected:
    int_type underflow() override { throw std::ios_base::failure("rotto"); }

private:
    std::string m_sTesto;
};

TEST(TestoEstrazioni, UnDiscoCheSiRompeNonEUnaFine)
{
    for (const std::string sFine : {"", "1;2", ";1;2;3;4;5;6\n", ";1;2;3;4;5;6\n;1;2;3;4;5;6"}) {
        DiscoRotto disco(kTestata + sFine);
        std::istream ingresso(&disco);
        EXPECT_EQ(prove::NumeroErrore([&] { (void)Leggi(ingresso); }), 57) << sFine;
    }
}

TEST(TestoEstrazioni, LeEstrazioniArrivanoABlocchi)
{
    std::string sTesto = kTestata;
    for (int i = 0; i < kEstrazioniBlocco + 1; ++i) {
        sTesto += ";1;2;3;4;5;" + std::to_string(6 + i % 85) + "\n";
    }
    const Lette lette = Leggi(sTesto);
    EXPECT_EQ(lette.nQuante, kEstrazioniBlocco + 1);
    EXPECT_EQ(lette.aBlocchi, (std::vector<std::size_t>{kEstrazioniBlocco, 1}));
    for (int i = 0; i < kEstrazioniBlocco + 1; ++i) {
        ASSERT_EQ(lette.aEstrazioni[static_cast<std::size_t>(i)][5], 6 + i % 85) << i;
    }
}

TEST(TestoEstrazioni, IlNumeroDellaRigaContaTutteLeRighe)
{
    const std::string sRiga = ";1;2;3;4;5;6\n";
    EXPECT_EQ(Rifiuto(""), "riga 1: il testo è vuoto");
    EXPECT_EQ(Rifiuto(kTestata + sRiga + "\n\r\n" + ";1;2;3;4;5\n"), "riga 5: ha 6 parti, ne servono 7");
    EXPECT_EQ(Rifiuto(kTestata + std::string(";1;2;3;4;5;91")), "riga 2: \"91\" non è un numero da 0 a 90");
    EXPECT_EQ(Rifiuto(kTestata + std::string(";1;2;3;4;5;006")), "riga 2: \"006\" non è un numero da 0 a 90");
    EXPECT_EQ(Rifiuto(kTestata + std::string(";1;2;3;90;5;90")), "riga 2: il 90 è estratto due volte");
    EXPECT_EQ(Rifiuto(kTestata + std::string("x;1;2;3;4;5;6")), "riga 2: \"x\" non è una data");
    EXPECT_EQ(Rifiuto(kTestata + std::string(4096, ' ')), "");
    EXPECT_EQ(Rifiuto(kTestata + std::string(4097, ' ')), "riga 2: è troppo lunga");
    EXPECT_EQ(Rifiuto("Data;N1;N2\n"), "riga 1: l'intestazione deve essere \"Data;N1;...;N6\", 7 nomi");
}

TEST(TestoEstrazioni, SulleRuoteUnNumeroEscePiuVolteMaSuUnaSola)
{
    const ProfiloGioco& lotto = Gioco("Lotto");
    Estrazione estrazione{};
    for (std::size_t i = 0; i < kNumeriEstrazione; ++i) {
        estrazione[i] = static_cast<std::uint8_t>(86 + i % 5);
    }
    const auto Quante = [&] {
        std::istringstream ingresso(IntestazioneEstrazioni(lotto) + LineaEstrazione(lotto, estrazione));
        return LeggiTestoEstrazioni(ingresso, "e.csv", lotto, [&](const auto& aLette) {
            EXPECT_EQ(aLette, std::vector<Estrazione>{estrazione});
        });
    };
    EXPECT_EQ(Quante(), 1);
    estrazione[50] = estrazione[54];
    EXPECT_THROW((void)Quante(), TestoErrato);
    estrazione[50] = estrazione[49] = 1;
    EXPECT_EQ(Quante(), 1) << "the last of a wheel and the first of the next";
    estrazione[1] = estrazione[2] = 0;
    EXPECT_EQ(Quante(), 1) << "two are absent";
}

TEST(TestoEstrazioni, QuelloCheSiScriveNonHaData)
{
    Estrazione estrazione{};
    estrazione[0] = 90;
    estrazione[5] = 1;
    EXPECT_EQ(IntestazioneEstrazioni(Gioco("SuperEnalotto")), kTestata);
    EXPECT_EQ(LineaEstrazione(Gioco("SuperEnalotto"), estrazione), ";90;0;0;0;0;1\n");
    EXPECT_TRUE(IntestazioneEstrazioni(Gioco("Lotto"))
                    .ends_with(";Venezia5;Nazionale1;Nazionale2;Nazionale3;"
                               "Nazionale4;Nazionale5\n"));
}

} // namespace
} // namespace ordavel
