// errore_prova.cpp - failures and the text of their box.

#include "ordavel/errore.hpp"

#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace ordavel {
namespace {

using prove::NumeroErrore;

const std::vector<eErrore>& TuttiGliErrori()
{
    static const std::vector<eErrore> aErrori{
        eErrore::argomento,  eErrore::overflow, eErrore::memoria,         eErrore::indice,
        eErrore::divisione,  eErrore::tipo,     eErrore::fileNonTrovato,  eErrore::dispositivo,
        eErrore::discoPieno, eErrore::permesso, eErrore::accessoPercorso, eErrore::percorsoNonTrovato,
        eErrore::oggetto,    eErrore::membro,
    };
    return aErrori;
}

TEST(Errore, OgniNumeroHaUnaDescrizioneSua)
{
    std::set<std::string_view> aDescrizioni{"Errore sconosciuto"};
    for (const eErrore nNumero : TuttiGliErrori()) {
        EXPECT_TRUE(aDescrizioni.insert(DescrizioneErrore(nNumero)).second) << static_cast<int>(nNumero);
        EXPECT_FALSE(DescrizioneErrore(nNumero).ends_with('.')) << static_cast<int>(nNumero);
    }
}

TEST(Errore, UnNumeroFuoriElencoESconosciuto)
{
    EXPECT_EQ(DescrizioneErrore(static_cast<eErrore>(12345)), "Errore sconosciuto");
}

TEST(Errore, INumeriSonoQuelliClassici)
{
    EXPECT_EQ(static_cast<int>(eErrore::overflow), 6);
    EXPECT_EQ(static_cast<int>(eErrore::indice), 9);
    EXPECT_EQ(static_cast<int>(eErrore::divisione), 11);
    EXPECT_EQ(static_cast<int>(eErrore::fileNonTrovato), 53);
    EXPECT_EQ(static_cast<int>(eErrore::accessoPercorso), 75);
    EXPECT_EQ(static_cast<int>(eErrore::percorsoNonTrovato), 76);
}

TEST(Errore, SenzaLineaIlTestoFinisceConLaDescrizione)
{
    EXPECT_EQ(TestoFallimento(Errore(eErrore::fileNonTrovato)), "53- File non trovato");
}

TEST(Errore, ConLaLineaIlTestoLaDice)
{
    EXPECT_EQ(TestoFallimento(Errore(eErrore::fileNonTrovato, 210)), "53- File non trovato Linea errore 210");
}

TEST(Errore, LOggettoSegueLaDescrizione)
{
    const Errore errore(eErrore::fileNonTrovato, "/dati/a.col", 7);
    EXPECT_EQ(errore.Descrizione(), "File non trovato: /dati/a.col");
    EXPECT_EQ(TestoFallimento(errore), "53- File non trovato: /dati/a.col Linea errore 7");
}

TEST(Errore, UnErroreRiportaQuelCheHaRicevuto)
{
    const Errore errore(eErrore::overflow, 42);
    EXPECT_EQ(errore.Numero(), eErrore::overflow);
    EXPECT_EQ(errore.Linea(), 42);
    EXPECT_EQ(Errore(eErrore::overflow).Linea(), 0);
    EXPECT_STREQ(errore.what(), errore.Descrizione().c_str());
}

TEST(Errore, SollevaLanciaIlNumero)
{
    for (const eErrore nNumero : TuttiGliErrori()) {
        EXPECT_EQ(NumeroErrore([nNumero] { Solleva(nNumero); }), static_cast<int>(nNumero));
    }
}

TEST(Errore, SiPrendeComeEccezioneStandard)
{
    try {
        Solleva(eErrore::divisione);
    } catch (const std::exception& eccezione) {
        EXPECT_STREQ(eccezione.what(), "Divisione per zero");
        return;
    }
    FAIL();
}

} // namespace
} // namespace ordavel
