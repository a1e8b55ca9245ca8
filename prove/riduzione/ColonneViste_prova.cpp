// ColonneViste_prova.cpp - what the columns kept rule out, and how many of them there is room for.

#include "riduzione/ColonneViste.hpp"

#include "DefinizioneRiduzione.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Record;

TEST(ColonneViste, LElencoDelleRipetuteHaUnLimite)
{
    ColonneViste viste(3, 2, 100, 40); // two columns of 20 bytes
    EXPECT_TRUE(viste.Aggiungi(Record({1, 1, 2})));
    EXPECT_TRUE(viste.Aggiungi(Record({3, 3, 4})));
    EXPECT_FALSE(viste.Aggiungi(Record({5, 5, 6})));
    EXPECT_TRUE(viste.Copre(Record({3, 8, 9})));
    EXPECT_FALSE(viste.Copre(Record({5, 8, 9})));
    viste.Svuota();
    EXPECT_FALSE(viste.Copre(Record({3, 8, 9})));
    EXPECT_TRUE(viste.Aggiungi(Record({5, 5, 6})));
    EXPECT_TRUE(viste.Copre(Record({5, 8, 9})));
}

TEST(ColonneViste, LaPrimaTrovaSemprePosto)
{
    ColonneViste viste(10, 5, 100, 1);
    EXPECT_TRUE(viste.Aggiungi(Record({1, 2, 3, 4, 5, 6, 7, 8, 9, 10})));
    EXPECT_FALSE(viste.Aggiungi(Record({11, 12, 13, 14, 15, 16, 17, 18, 19, 20})));
    EXPECT_TRUE(viste.Copre(Record({1, 2, 3, 4, 5, 16, 17, 18, 19, 20})));
    EXPECT_FALSE(viste.Copre(Record({1, 2, 3, 4, 15, 16, 17, 18, 19, 20})));
}

} // namespace
} // namespace ordavel
