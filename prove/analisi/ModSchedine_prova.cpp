// ModSchedine_prova.cpp - the places of slips on a page, to the millimetre.

#include "analisi/ModSchedine.hpp"

#include <gtest/gtest.h>

#include <ostream>

namespace ordavel {

inline std::ostream& operator<<(std::ostream& uscita, const RettangoloMm& r)
{
    return uscita << r.nX << ',' << r.nY << ' ' << r.nLarghezza << 'x' << r.nAltezza;
}

namespace {

constexpr FoglioMm kA4{};

} // namespace

TEST(Schedine, UnFoglioA4NeHaVentiPerIlLotto)
{
    const PaginaSchedine pagina(kA4, "Lotto");
    EXPECT_EQ(pagina.Pannelli(), 1);
    EXPECT_EQ(pagina.SchedinePerRiga(), 4);
    EXPECT_EQ(pagina.RigheSchedine(), 5);
    EXPECT_EQ(pagina.Colonne(), 20);
}

TEST(Schedine, IPannelliSonoQuantiNeStanno)
{
    EXPECT_EQ(PaginaSchedine(kA4, "SuperEnalotto").Pannelli(), 4);
    EXPECT_EQ(PaginaSchedine({297, 210, 10}, "superenalotto").Pannelli(), 5);
    EXPECT_EQ(PaginaSchedine({105, 148, 10}, "SuperEnalotto").Pannelli(), 1);
    EXPECT_EQ(PaginaSchedine(kA4, "WinForLife").Pannelli(), 4);
    EXPECT_EQ(PaginaSchedine(kA4, "10ELotto").Pannelli(), 1);
    EXPECT_EQ(PaginaSchedine(kA4, "un altro").Pannelli(), 1);
}

TEST(Schedine, LePagineBastanoEAvanzanoDiPoco)
{
    const PaginaSchedine pagina(kA4, "Lotto");
    EXPECT_EQ(pagina.Pagine(0), 0);
    EXPECT_EQ(pagina.Pagine(1), 1);
    EXPECT_EQ(pagina.Pagine(20), 1);
    EXPECT_EQ(pagina.Pagine(21), 2);
    EXPECT_EQ(pagina.Pagine(1000), 50);
    EXPECT_EQ(pagina.Pagine(43949268), 2197464);
    EXPECT_EQ(PaginaSchedine(kA4, "SuperEnalotto").SchedineTotali(1000), 250);
    EXPECT_EQ(PaginaSchedine(kA4, "SuperEnalotto").SchedineTotali(1001), 251);
}

TEST(Schedine, OgniCosaHaIlSuoPosto)
{
    // Four slips of 44 mm with 4 mm between them are 188 mm, centred on 210; five of 50 mm are 266 on 297.
    const PaginaSchedine pagina(kA4, "Lotto");
    EXPECT_EQ(pagina.Schedina(0), (RettangoloMm{11, 15.5, 44, 50}));
    EXPECT_EQ(pagina.Schedina(1), (RettangoloMm{59, 15.5, 44, 50}));
    EXPECT_EQ(pagina.Schedina(4), (RettangoloMm{11, 69.5, 44, 50}));
    EXPECT_EQ(pagina.Schedina(19), (RettangoloMm{155, 231.5, 44, 50}));
    EXPECT_EQ(pagina.Testata(0), (RettangoloMm{11, 15.5, 44, 7}));
    EXPECT_EQ(pagina.TestataPannello(0, 0), (RettangoloMm{13, 22.5, 40, 5}));
    EXPECT_EQ(pagina.Casella(0, 0, 1), (RettangoloMm{13, 27.5, 4, 4}));
    EXPECT_EQ(pagina.Casella(0, 0, 10), (RettangoloMm{49, 27.5, 4, 4}));
    EXPECT_EQ(pagina.Casella(0, 0, 11), (RettangoloMm{13, 31.5, 4, 4}));
    EXPECT_EQ(pagina.Casella(0, 0, 90), (RettangoloMm{49, 59.5, 4, 4}));
}

TEST(Schedine, IPannelliStannoUnoAccantoAllAltro)
{
    // Four panels of 40 mm and five gaps of 2 mm: 170 mm, centred on 210.
    const PaginaSchedine pagina(kA4, "SuperEnalotto");
    EXPECT_EQ(pagina.Schedina(0), (RettangoloMm{20, 15.5, 170, 50}));
    EXPECT_EQ(pagina.TestataPannello(0, 3), (RettangoloMm{148, 22.5, 40, 5}));
    EXPECT_EQ(pagina.Casella(1, 1, 45), (RettangoloMm{80, 97.5, 4, 4}));
}

TEST(Schedine, TuttoStaDentroIMargini)
{
    for (const FoglioMm& foglio :
         {kA4, FoglioMm{297, 210, 10}, FoglioMm{215.9, 279.4, 15}, FoglioMm{148, 210, 5}}) {
        for (const char* sGioco : {"Lotto", "SuperEnalotto", "WinForLife"}) {
            const PaginaSchedine pagina(foglio, sGioco);
            for (std::int32_t n = 0; n < pagina.Schedine(); ++n) {
                const RettangoloMm schedina = pagina.Schedina(n);
                const RettangoloMm ultima = pagina.Casella(n, pagina.Pannelli() - 1, 90);
                EXPECT_GE(schedina.nX, foglio.nMargine - 1e-9);
                EXPECT_GE(schedina.nY, foglio.nMargine - 1e-9);
                EXPECT_LE(schedina.nX + schedina.nLarghezza, foglio.nLarghezza - foglio.nMargine + 1e-9);
                EXPECT_LE(schedina.nY + schedina.nAltezza, foglio.nAltezza - foglio.nMargine + 1e-9);
                EXPECT_NEAR(ultima.nX + ultima.nLarghezza + kBordoMm, schedina.nX + schedina.nLarghezza,
                            1e-9);
                EXPECT_NEAR(ultima.nY + ultima.nAltezza + kBordoMm, schedina.nY + schedina.nAltezza, 1e-9);
            }
        }
    }
}

TEST(Schedine, UnFoglioTroppoPiccoloNeHaUna)
{
    const PaginaSchedine pagina({30, 30, 10}, "SuperEnalotto");
    EXPECT_EQ(pagina.Pannelli(), 1);
    EXPECT_EQ(pagina.Schedine(), 1);
    EXPECT_EQ(pagina.Schedina(0).nX, 0);
}

} // namespace ordavel
