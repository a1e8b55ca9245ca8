// records_prova.cpp - columns, bounded arrays, compiled conditions.

#include "ordavel/records.hpp"

#include "ordavel/StatoSviluppo.hpp"

#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>

namespace ordavel {
namespace {

using prove::NumeroErrore;

TEST(Records, UnaTabellaFallisceFuoriDaiSuoiLimiti)
{
    Tabella<std::int16_t, 1, 3> aTabella;
    for (const std::int64_t nIndice :
         {std::int64_t{0}, std::int64_t{4}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min(),
          std::numeric_limits<std::int64_t>::max()}) {
        EXPECT_EQ(NumeroErrore([&] { aTabella(nIndice) = 1; }), 9) << nIndice;
        EXPECT_EQ(NumeroErrore([&] { (void)std::as_const(aTabella)(nIndice); }), 9) << nIndice;
    }
}

TEST(Records, UnaTabellaCominciaDalSuoIndiceBasso)
{
    Tabella<std::int16_t, -2, 2> aTabella;
    aTabella(-2) = 7;
    aTabella[2] = 9;
    EXPECT_EQ(aTabella.aElementi.front(), 7);
    EXPECT_EQ(aTabella.aElementi.back(), 9);
    EXPECT_EQ(aTabella.aElementi.size(), 5U);
}

TEST(Records, UnaTabellaNuovaETuttaZero)
{
    EXPECT_EQ(FlagNumeri{}.aElementi, (std::array<std::int16_t, 91>{}));
    EXPECT_EQ(NumeriScelti{}.aElementi.size(), 90U);
    EXPECT_EQ(FlagPunti{}.aElementi.size(), 11U);
    EXPECT_EQ(QuadroRecuperi{}.aElementi.size(), 21U);
}

RC_GTEST_PROP(Records, ContieneDiceDoveLaTabellaNonFallisce, (std::int64_t nLontano))
{
    const std::int64_t nVicino = *rc::gen::inRange<std::int64_t>(-100, 200);
    const FlagNumeri aFlag;
    for (const std::int64_t nIndice : {nLontano, nVicino}) {
        RC_ASSERT(FlagNumeri::Contiene(nIndice) == !NumeroErrore([&] { (void)aFlag(nIndice); }).has_value());
    }
    RC_ASSERT(FlagNumeri::Contiene(nVicino) == (nVicino >= 0 && nVicino <= 90));
}

TEST(Records, LaColonnaSiLeggePerPosizioneDaUno)
{
    Colonna colonna;
    colonna[1] = 5;
    colonna[20] = 90;
    EXPECT_EQ(colonna(1), 5);
    EXPECT_EQ(colonna(2), 0);
    EXPECT_EQ(colonna(20), 90);
    EXPECT_EQ(colonna.aNumeri.front(), 5);
    EXPECT_EQ(colonna.aNumeri.back(), 90);
}

TEST(Records, LaColonnaFallisceFuoriDalle20Posizioni)
{
    const Colonna colonna;
    for (const int nPosizione : {0, -1, 21, 32767}) {
        EXPECT_EQ(NumeroErrore([&] { (void)colonna(nPosizione); }), 9) << nPosizione;
    }
}

TEST(Records, LaColonnaEIlSuoRecordDiFile)
{
    Colonna colonna;
    colonna[1] = 1;
    colonna[20] = 20;
    std::array<std::uint8_t, 20> aByte{};
    static_assert(sizeof(colonna) == sizeof(aByte));
    std::memcpy(aByte.data(), &colonna, sizeof(colonna));
    EXPECT_EQ(aByte, colonna.aNumeri);
}

TEST(Records, IlVeroDeiRecordEMenoUno)
{
    EXPECT_EQ(ComeBooleano(true), -1);
    EXPECT_EQ(ComeBooleano(false), 0);
}

TEST(Records, UnaCondizioneNuovaEDiNessunTipoETuttaZero)
{
    const RecordCondizione condizione;
    EXPECT_EQ(static_cast<int>(condizione.Tipo), 0);
    EXPECT_EQ(condizione.Numeri, FlagNumeri{});
    EXPECT_EQ(condizione.PuntiOk, FlagPunti{});
    EXPECT_EQ(condizione.Parametro, 0);
    EXPECT_EQ(condizione.Passo, 0);
    EXPECT_EQ(condizione.ContaOk, 0.0);
    EXPECT_EQ(condizione.Esito, kFalso);
}

TEST(Records, DueCondizioniSonoUgualiCampoPerCampo)
{
    const RecordCondizione condizione;
    RecordCondizione altra;
    EXPECT_EQ(condizione, altra);
    altra.Numeri(90) = 1;
    EXPECT_NE(condizione, altra);
    altra = condizione;
    altra.EsitoLink = kVero;
    EXPECT_NE(condizione, altra);
}

TEST(Records, INumeriDeiTipiSonoQuelliDeiFile)
{
    EXPECT_EQ(static_cast<int>(TipoCondizione::linkOpen), 1);
    EXPECT_EQ(static_cast<int>(TipoCondizione::baricentro), 12);
    EXPECT_EQ(static_cast<int>(TipoCondizione::sequenze), 17);
    EXPECT_EQ(static_cast<int>(TipoCondizione::emulatore), 26);
    EXPECT_EQ(static_cast<int>(TipoCondizione::decineSpecifiche), kTipiCondizione);
}

TEST(Records, UnoStatoNuovoHaUnaCondizioneEUnaRigaDiEmulatore)
{
    const StatoSviluppo stato;
    EXPECT_EQ(stato.aCondizioni.size(), 1U);
    EXPECT_EQ(stato.nCondizioni, 1);
    ASSERT_EQ(stato.aEmulatore.Righe().size(), 1U);
    EXPECT_EQ(stato.aEmulatore.Righe()[0], RigaEmulatore{});
    EXPECT_FALSE(stato.bStopSviluppo);
}

} // namespace
} // namespace ordavel
