// OrdavelPronostico_prova.cpp - the strip of picks and the counters that a writer outside fills.

#include "ordavel/Ordavel.hpp"

#include "comune/Fallimenti.hpp"
#include "controllo/SistemaProva.hpp"
#include "core/ModNumeri.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <ostream>

namespace ordavel {
namespace {

using prove::NumeroErrore;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Colore kVerde = 0x00FF00;
constexpr Colore kSpento = 0xAA1111;

class OrdavelPronostico : public testing::Test, protected prove::SistemaProva {
protected:
    [[nodiscard]] Disegno& Striscia() { return sistema.Controlli().PicProno; }

    /// The strip as it is drawn now.
    const std::vector<Scritta>& Disegna()
    {
        sistema.DisegnaNumeriProno();
        return Striscia().Scritte.Valore();
    }

    /// The numbers that stand in green, as they were last drawn.
    [[nodiscard]] std::vector<std::string> Verdi()
    {
        std::vector<std::string> aNumeri;
        for (const Scritta& scritta : Striscia().Scritte.Valore()) {
            if (scritta.nColore == kVerde) {
                aNumeri.push_back(scritta.sTesto);
            }
        }
        return aNumeri;
    }
};

TEST_F(OrdavelPronostico, AllaNascitaNonEDisegnata)
{
    EXPECT_THAT(Striscia().Scritte.Valore(), IsEmpty());
}

TEST_F(OrdavelPronostico, HaNovantaNumeriDiDueCifreInDueLinee)
{
    const auto& aScritte = Disegna();
    ASSERT_EQ(aScritte.size(), 90);
    for (std::int32_t n = 1; n <= 90; ++n) {
        const std::int32_t nPosto = (n - 1) % 45;
        const Scritta attesa{
            .nX = 2 + 18 * nPosto, .nY = n <= 45 ? 2 : 18, .nColore = kSpento, .sTesto = Formatta00(n)};
        EXPECT_EQ(aScritte[static_cast<std::size_t>(n) - 1], attesa) << n;
    }
    EXPECT_EQ(aScritte.front().sTesto, "01");
    EXPECT_EQ(aScritte.back().sTesto, "90");
}

TEST_F(OrdavelPronostico, INumeriSceltiSonoVerdi)
{
    Pronostico(5, {1, 9, 45, 46, 90});
    Disegna();
    EXPECT_THAT(Verdi(), ElementsAre("01", "09", "45", "46", "90"));
    Pronostico(5, 1, 90);
    Disegna();
    EXPECT_EQ(Verdi().size(), 90);
}

/// Sizes of letters and of the strip, and where the numbers come to stand.
struct CasoStriscia {
    double nW;
    double nZeroZero;
    double nAltezza;
    std::int32_t nStriscia;
    std::array<std::int32_t, 5> aX; ///< of 1, 2, 3, 4 and 45
    std::array<std::int32_t, 2> aY; ///< of both lines

    friend std::ostream& operator<<(std::ostream& uscita, const CasoStriscia& c)
    {
        return uscita << "W " << c.nW << ", 00 " << c.nZeroZero << ", alta " << c.nAltezza << " su "
                      << c.nStriscia;
    }
};

class StrisciaMisurata : public OrdavelPronostico, public testing::WithParamInterface<CasoStriscia> {
protected:
    StrisciaMisurata()
    {
        piattaforma.larghezza = [](std::string_view sTesto) {
            return sTesto == "W" ? GetParam().nW : sTesto == "00" ? GetParam().nZeroZero : 1000.0;
        };
        piattaforma.altezza = [](std::string_view sTesto) {
            return sTesto == "W" ? GetParam().nAltezza : 1000.0;
        };
        Striscia().Altezza.Poni(GetParam().nStriscia);
    }
};

TEST_P(StrisciaMisurata, OgniPassoSiArrotondaAlPari)
{
    const auto& aScritte = Disegna();
    const auto x = [&](std::size_t n) { return aScritte.at(n - 1).nX; };
    EXPECT_THAT((std::array{x(1), x(2), x(3), x(4), x(45)}), testing::ElementsAreArray(GetParam().aX));
    for (std::size_t n = 1; n <= 45; ++n) {
        EXPECT_EQ(x(n + 45), x(n)) << n;
        EXPECT_EQ(aScritte[n - 1].nY, GetParam().aY[0]) << n;
        EXPECT_EQ(aScritte[n + 44].nY, GetParam().aY[1]) << n;
    }
}

constexpr auto kStrisce = std::to_array<CasoStriscia>({
    {8, 16, 16, 40, {2, 20, 38, 56, 794}, {2, 18}},
    {7, 13, 15, 61, {2, 17, 32, 47, 662}, {8, 23}},      // 1.75, then steps of 14.75; 7.75
    {10, 12, 13, 40, {2, 16, 30, 44, 618}, {4, 17}},     // 2.5, then steps of 14.5; 3.5
    {14, 10, 14.5, 40, {4, 18, 32, 46, 620}, {3, 18}},   // 3.5, then steps of 13.5; 2.75, then 17.5
    {12, 9.5, 13.5, 40, {3, 16, 28, 40, 532}, {3, 16}},  // 3, then steps of 12.5; 3.25, then 16.5
    {6.4, 13.2, 16, 10, {2, 17, 32, 47, 662}, {-6, 10}}, // 1.6, then steps of 14.8; -5.5
    {1, 0, 0.4, 1, {0, 0, 0, 0, 0}, {0, 0}},             // 0.25, which never comes to a whole one
});

INSTANTIATE_TEST_SUITE_P(Misure, StrisciaMisurata, testing::ValuesIn(kStrisce));

TEST_F(OrdavelPronostico, NonSegueOgniNumero)
{
    Disegna();
    sistema.SelezionaNumero(7, true);
    EXPECT_THAT(Verdi(), IsEmpty());
}

TEST_F(OrdavelPronostico, SiRidisegnaQuandoIlSelettoreSiChiude)
{
    sistema.SelezionaNumero(7, true);
    sistema.SelnovoNumeri1_Chiuso();
    EXPECT_THAT(Verdi(), ElementsAre("07"));
}

TEST_F(OrdavelPronostico, SiRidisegnaQuandoCambiaLaGrandezza)
{
    Disegna();
    Striscia().Altezza.Poni(80);
    EXPECT_EQ(Striscia().Scritte.Valore().front().nY, 2);
    sistema.Resize();
    EXPECT_EQ(Striscia().Scritte.Valore().front().nY, 12);
}

TEST_F(OrdavelPronostico, SiRidisegnaColNuovoEConLApertura)
{
    Pronostico(2, {7, 70});
    ASSERT_TRUE(Salva(cartella / "s.sic"));
    Disegna();
    sistema.NuovoSistema();
    EXPECT_THAT(Verdi(), IsEmpty());
    EXPECT_EQ(Striscia().Scritte.Valore().size(), 90);
    ASSERT_TRUE(Apri(cartella / "s.sic"));
    EXPECT_THAT(Verdi(), ElementsAre("07", "70"));
}

class OrdavelContatori : public testing::Test, protected prove::SistemaProva {
protected:
    /// A number in the box of a thread, from 1.
    static void Scrivi(std::deque<CasellaTesto>& aCaselle, std::size_t nThread, std::string_view sTesto)
    {
        aCaselle.at(nThread - 1).Testo.Poni(std::string(sTesto));
    }

    void Sviluppate(std::size_t nThread, std::string_view sTesto) { Scrivi(Minimi(), nThread, sTesto); }
    void Condizionate(std::size_t nThread, std::string_view sTesto) { Scrivi(Massimi(), nThread, sTesto); }

    [[nodiscard]] std::deque<CasellaTesto>& Minimi() { return sistema.Controlli().TxtPMin; }
    [[nodiscard]] std::deque<CasellaTesto>& Massimi() { return sistema.Controlli().TxtPMax; }

    [[nodiscard]] std::vector<std::size_t> Quante() { return {Minimi().size(), Massimi().size()}; }
};

TEST_F(OrdavelContatori, UnaCasellaPerThreadVuotaAllInizio)
{
    EXPECT_THAT(Quante(), ElementsAre(5, 5));
    EXPECT_EQ(Minimi().back().Testo.Valore(), "");
    EXPECT_THAT(Conteggi(), ElementsAre("", ""));
}

TEST_F(OrdavelContatori, LeSommeVannoNelleDueEtichette)
{
    Sviluppate(1, "1000");
    EXPECT_THAT(Conteggi(), ElementsAre("1.000", "0"));
    Condizionate(5, "12");
    Sviluppate(5, "234");
    Condizionate(3, "8");
    EXPECT_THAT(Conteggi(), ElementsAre("1.234", "20"));
}

TEST_F(OrdavelContatori, UnNuovoConteggioPrendeIlPostoDelVecchio)
{
    Sviluppate(2, "100");
    Sviluppate(3, "1");
    Sviluppate(2, "250");
    EXPECT_THAT(Conteggi(), ElementsAre("251", "0"));
    Sviluppate(2, "");
    EXPECT_THAT(Conteggi(), ElementsAre("1", "0"));
}

TEST_F(OrdavelContatori, OgniTestoSiLeggeComeNumero)
{
    const std::map<std::string_view, std::string_view> aTesti{{"12abc", "12"}, {"abc", "0"}, {" 7", "7"},
                                                              {"-3", "-3"},    {"2.5", "2"}, {"3.5", "4"},
                                                              {"1e3", "1.000"}};
    for (const auto& [sTesto, sSomma] : aTesti) {
        Condizionate(1, sTesto);
        EXPECT_THAT(Conteggi(), ElementsAre("0", sSomma)) << sTesto;
    }
}

TEST_F(OrdavelContatori, LaSommaPuoPassareI32Bit)
{
    for (std::size_t nThread = 1; nThread <= 5; ++nThread) {
        Sviluppate(nThread, "2147483647");
    }
    EXPECT_THAT(Conteggi(), ElementsAre("10.737.418.235", "0"));
}

TEST_F(OrdavelContatori, UnNumeroTroppoGrandeFallisceEIlConteggioResta)
{
    Sviluppate(1, "10");
    for (const std::string_view sTesto : {"2147483648", "-2147483649", "1e999"}) {
        EXPECT_EQ(NumeroErrore([&] { Sviluppate(1, sTesto); }), 6) << sTesto;
        EXPECT_THAT(Conteggi(), ElementsAre("10", "0")) << sTesto;
    }
    Sviluppate(2, "5");
    EXPECT_THAT(Conteggi(), ElementsAre("15", "0"));
}

TEST_F(OrdavelContatori, ConAltriThreadSiContaDaCapo)
{
    Sviluppate(1, "10");
    sistema.PoniNumeroThreadsSviluppo(2);
    EXPECT_THAT(Quante(), ElementsAre(2, 2));
    EXPECT_EQ(Minimi().front().Testo.Valore(), "");
    Sviluppate(2, "1");
    Condizionate(2, "4");
    EXPECT_THAT(Conteggi(), ElementsAre("1", "4"));
    sistema.PoniNumeroThreadsSviluppo(90);
    EXPECT_THAT(Quante(), ElementsAre(90, 90));
    Sviluppate(90, "3");
    EXPECT_THAT(Conteggi(), ElementsAre("3", "0"));
}

TEST_F(OrdavelContatori, SenzaThreadNonCiSonoCaselle)
{
    for (const auto nThread : std::to_array<std::int16_t>({0, -1, -32768})) {
        sistema.PoniNumeroThreadsSviluppo(nThread);
        EXPECT_THAT(Quante(), Each(0)) << nThread;
        EXPECT_EQ(sistema.NumeroThreadsSviluppo(), nThread);
    }
    sistema.PoniNumeroThreadsSviluppo(1);
    Condizionate(1, "6");
    EXPECT_THAT(Conteggi(), ElementsAre("0", "6"));
}

TEST_F(OrdavelContatori, LoSviluppoScriveISuoiConteggiSenzaToccareLeCaselle)
{
    Sviluppate(1, "10");
    Pronostico(2, 1, 3);
    Sviluppa();
    EXPECT_THAT(Conteggi(), ElementsAre("3", "3"));
    EXPECT_EQ(Minimi().front().Testo.Valore(), "10");
}

} // namespace
} // namespace ordavel
