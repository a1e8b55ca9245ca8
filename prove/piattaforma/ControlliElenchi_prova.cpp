// ControlliElenchi_prova.cpp - the controls of the special dialogs: filtered boxes, lists, sheet, view of conditions.

#include "ordavel/Controlli.hpp"
#include "ordavel/VistaCondizioni.hpp"

#include "comune/Fallimenti.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace ordavel {
namespace {

using prove::NumeroErrore;
using testing::ElementsAre;
using testing::IsEmpty;

/// How often a value rings.
template <typename T> int Suonate(Stato<T>& stato, const std::function<void()>& azione)
{
    int nVolte = 0;
    stato.AlCambio([&nVolte] { ++nVolte; });
    azione();
    stato.AlCambio({});
    return nVolte;
}

// --- boxes for figures

TEST(SoloCifre, PassanoLeCifreLaVirgolaInvioEIndietro)
{
    for (const char32_t nTasto : std::u32string_view(U"0123456789,\r\b")) {
        EXPECT_TRUE(SoloCifre(nTasto)) << static_cast<std::uint32_t>(nTasto);
    }
}

TEST(SoloCifre, NonPassaAltro)
{
    for (const char32_t nTasto : std::u32string_view(U"/:.-+; aZ\n\t\x7F\x660\xFF11")) {
        EXPECT_FALSE(SoloCifre(nTasto)) << static_cast<std::uint32_t>(nTasto);
    }
    EXPECT_FALSE(SoloCifre(0));
    EXPECT_FALSE(SoloCifre(0x10000 + '5'));
}

TEST(CasellaTesto, SenzaFiltroPrendeTutto)
{
    const CasellaTesto casella;
    EXPECT_TRUE(casella.Accetta('a'));
    EXPECT_TRUE(casella.Accetta('7'));
}

TEST(CasellaTesto, ColFiltroPrendeSoloCifreMaLaLogicaCiScriveTutto)
{
    CasellaTesto casella;
    casella.bSoloCifre = true;
    EXPECT_FALSE(casella.Accetta('a'));
    EXPECT_TRUE(casella.Accetta('7'));
    casella.Testo.Poni("abc");
    EXPECT_EQ(casella.Testo.Valore(), "abc");
}

TEST(CasellaTesto, OgniRichiestaDiFuocoSuona)
{
    CasellaTesto casella;
    EXPECT_EQ(Suonate(casella.Fuoco,
                      [&casella] {
                          casella.ChiediFuoco();
                          casella.ChiediFuoco();
                      }),
              2);
}

// --- lists

ListaMultipla ListaDi(std::initializer_list<const char*> aVoci)
{
    ListaMultipla lista;
    for (const char* sVoce : aVoci) {
        lista.Aggiungi(sVoce);
    }
    return lista;
}

TEST(ListaMultipla, LeVociNuoveNonSonoScelte)
{
    ListaMultipla lista = ListaDi({"a", "b"});
    EXPECT_THAT(lista.Scelte.Valore(), ElementsAre(false, false));
    lista.Seleziona(0, true);
    lista.Aggiungi("a");
    EXPECT_THAT(lista.Voci.Valore(), ElementsAre("a", "b", "a"));
    EXPECT_THAT(lista.Scelte.Valore(), ElementsAre(true, false, false));
}

TEST(ListaMultipla, SeNeScelgonoPiuDUnaESiTolgono)
{
    ListaMultipla lista = ListaDi({"a", "b", "c"});
    lista.Seleziona(0, true);
    lista.Seleziona(2, true);
    EXPECT_THAT(lista.Scelte.Valore(), ElementsAre(true, false, true));
    lista.Seleziona(0, false);
    EXPECT_THAT(lista.Scelte.Valore(), ElementsAre(false, false, true));
}

TEST(ListaMultipla, UnaVoceGiaSceltaNonSuona)
{
    ListaMultipla lista = ListaDi({"a"});
    EXPECT_EQ(Suonate(lista.Scelte,
                      [&lista] {
                          lista.Seleziona(0, true);
                          lista.Seleziona(0, true);
                      }),
              1);
}

TEST(ListaMultipla, OltreLElencoEUnIndiceSbagliato)
{
    ListaMultipla lista = ListaDi({"a"});
    EXPECT_EQ(NumeroErrore([&] { lista.Seleziona(1, true); }), 9);
    EXPECT_EQ(NumeroErrore([] { ListaMultipla().Seleziona(0, false); }), 9);
}

Elenco ElencoDiDue()
{
    Elenco elenco;
    elenco.Righe.Poni({{.sChiave = "k1", .sTesto = "1", .aSotto = {"x"}, .bScelta = true},
                       {.sChiave = "k2", .sTesto = "2", .aSotto = {"y"}, .bScelta = false}});
    return elenco;
}

TEST(Elenco, LeRigheSiSelezionanoTutteONessuna)
{
    Elenco elenco = ElencoDiDue();
    for (const bool bScelte : {true, false}) {
        elenco.SelezionaTutte(bScelte);
        EXPECT_EQ(elenco.Righe.Valore()[0].bScelta, bScelte);
        EXPECT_EQ(elenco.Righe.Valore()[1].bScelta, bScelte);
    }
    EXPECT_THAT(elenco.Righe.Valore()[1].aSotto, ElementsAre("y"));
}

TEST(Elenco, LaSceltaDiTutteSuonaUnaVoltaSola)
{
    Elenco elenco = ElencoDiDue();
    EXPECT_EQ(Suonate(elenco.Righe,
                      [&elenco] {
                          elenco.SelezionaTutte(true);
                          elenco.SelezionaTutte(true);
                      }),
              1);
}

TEST(Elenco, DueRigheSonoUgualiSeLoSonoInTutto)
{
    const RigaElenco riga{.sChiave = "k1", .sTesto = "1", .aSotto = {"x"}, .bScelta = false};
    RigaElenco altra = riga;
    EXPECT_EQ(riga, altra);
    altra.bScelta = true;
    EXPECT_NE(riga, altra);
}

// --- the sheet

Foglio FoglioDi(std::int32_t nRighe, std::int32_t nColonne)
{
    Foglio foglio;
    foglio.Disponi(nRighe, nColonne);
    return foglio;
}

TEST(Foglio, AllInizioNonHaRigheNeCorrente)
{
    const Foglio foglio;
    EXPECT_EQ(foglio.Righe(), 0);
    EXPECT_EQ(foglio.Corrente.Valore(), (Foglio::Posto{-1, 0}));
}

TEST(Foglio, DispostoHaCelleVuoteENessunaCorrente)
{
    Foglio foglio = FoglioDi(2, 3);
    foglio.Scrivi({1, 2}, "x");
    foglio.Corrente.Poni({1, 2});
    foglio.Disponi(3, 3);
    EXPECT_EQ(foglio.Righe(), 3);
    EXPECT_EQ(foglio.Testo({1, 2}), "");
    EXPECT_LT(foglio.Corrente.Valore().nRiga, 0);
}

TEST(Foglio, SiScriveLaSolaCellaDetta)
{
    Foglio foglio = FoglioDi(2, 2);
    foglio.Scrivi({1, 0}, "x");
    EXPECT_THAT(foglio.Celle.Valore(), ElementsAre(ElementsAre("", ""), ElementsAre("x", "")));
    EXPECT_EQ(foglio.Testo({1, 0}), "x");
}

TEST(Foglio, LoStessoTestoNonSuona)
{
    Foglio foglio = FoglioDi(1, 1);
    EXPECT_EQ(Suonate(foglio.Celle,
                      [&foglio] {
                          foglio.Scrivi({0, 0}, "x");
                          foglio.Scrivi({0, 0}, "x");
                      }),
              1);
}

TEST(Foglio, FuoriDalFoglioEUnIndiceSbagliato)
{
    Foglio foglio = FoglioDi(2, 3);
    for (const Foglio::Posto posto : {Foglio::Posto{-1, 0}, {0, -1}, {2, 0}, {0, 3}}) {
        EXPECT_EQ(NumeroErrore([&] { static_cast<void>(foglio.Testo(posto)); }), 9);
        EXPECT_EQ(NumeroErrore([&] { foglio.Scrivi(posto, "x"); }), 9);
    }
}

TEST(Foglio, SenzaRigheNonCiSonoCelle)
{
    const Foglio foglio = FoglioDi(0, 3);
    EXPECT_THAT(foglio.Celle.Valore(), IsEmpty());
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(foglio.Testo({0, 0})); }), 9);
}

// --- the view of the conditions

VistaCondizioni Vista(std::int32_t nPrima, std::int32_t nIntere)
{
    VistaCondizioni vista;
    vista.PrimaColonna.Poni(nPrima);
    vista.ColonneIntere.Poni(nIntere);
    return vista;
}

/// Where the view begins once a condition was brought into it.
std::int32_t PrimaDopo(VistaCondizioni vista, std::int32_t nId)
{
    vista.PortaInVista(nId);
    return vista.PrimaColonna.Valore();
}

TEST(VistaCondizioni, AllInizioMostraLaPrima)
{
    const VistaCondizioni vista;
    EXPECT_EQ(vista.PrimaColonna.Valore(), 1);
    EXPECT_TRUE(vista.IsVisibile(1));
}

TEST(VistaCondizioni, SonoVisibiliLeColonneIntere)
{
    const VistaCondizioni vista = Vista(5, 3);
    for (const int nId : {5, 6, 7}) {
        EXPECT_TRUE(vista.IsVisibile(nId)) << nId;
    }
    for (const int nId : {-1, 0, 4, 8, 2000}) {
        EXPECT_FALSE(vista.IsVisibile(nId)) << nId;
    }
}

TEST(VistaCondizioni, DaSinistraSiPortaAlBordo)
{
    EXPECT_EQ(PrimaDopo(Vista(10, 3), 4), 4);
    EXPECT_EQ(PrimaDopo(Vista(10, 3), 9), 9);
    EXPECT_EQ(PrimaDopo(Vista(10, 3), 1), 1);
}

TEST(VistaCondizioni, SeAncheLaSeguenteSiVedeNonSiMuove)
{
    EXPECT_EQ(PrimaDopo(Vista(5, 3), 5), 5);
    EXPECT_EQ(PrimaDopo(Vista(5, 3), 6), 5);
}

TEST(VistaCondizioni, DaDestraSiScorreFincheSiVedeLaSeguente)
{
    EXPECT_EQ(PrimaDopo(Vista(5, 3), 7), 6);
    EXPECT_EQ(PrimaDopo(Vista(5, 3), 8), 7);
    EXPECT_EQ(PrimaDopo(Vista(1, 10), 500), 492);
}

TEST(VistaCondizioni, DopoLUltimaNonCENulla)
{
    EXPECT_EQ(PrimaDopo(Vista(1, 10), 2000), 1991);
    EXPECT_EQ(PrimaDopo(Vista(1, 10), 1999), 1991);
    EXPECT_EQ(PrimaDopo(Vista(1991, 10), 2000), 1991);
    EXPECT_EQ(PrimaDopo(Vista(1990, 10), 1998), 1990);
}

TEST(VistaCondizioni, SeCiStaUnaColonnaSolaEQuellaCheSiChiede)
{
    EXPECT_EQ(PrimaDopo(Vista(1, 1), 5), 5);
    EXPECT_EQ(PrimaDopo(Vista(5, 1), 5), 5);
    EXPECT_EQ(PrimaDopo(Vista(9, 1), 5), 5);
    EXPECT_EQ(PrimaDopo(Vista(1, 1), 2000), 2000);
    EXPECT_EQ(PrimaDopo(Vista(1, 1), 1), 1);
}

TEST(VistaCondizioni, SeCeNeStannoDueLaSeguenteStaAccanto)
{
    EXPECT_EQ(PrimaDopo(Vista(1, 2), 5), 5);
    EXPECT_EQ(PrimaDopo(Vista(4, 2), 5), 5);
}

TEST(VistaCondizioni, LeIntestazioniPortanoAllaPrima)
{
    EXPECT_EQ(PrimaDopo(Vista(7, 3), 0), 1);
    EXPECT_EQ(PrimaDopo(Vista(1, 3), 0), 1);
}

TEST(VistaCondizioni, CioCheSiPortaInVistaSiVedeSempre)
{
    for (const int nIntere : {1, 2, 3, 10, 1999, 2000, 3000}) {
        for (const int nPrima : {1, 2, 1000, 1999, 2000}) {
            for (const int nId : {1, 2, 3, 11, 999, 1000, 1001, 1990, 1999, 2000}) {
                VistaCondizioni vista = Vista(nPrima, nIntere);
                vista.PortaInVista(nId);
                EXPECT_TRUE(vista.IsVisibile(nId)) << nIntere << ' ' << nPrima << ' ' << nId;
                EXPECT_GE(vista.PrimaColonna.Valore(), 1);
            }
        }
    }
}

TEST(VistaCondizioni, CioCheGiaSiVedeNonSuona)
{
    VistaCondizioni vista = Vista(5, 3);
    EXPECT_EQ(Suonate(vista.PrimaColonna, [&vista] { vista.PortaInVista(6); }), 0);
}

} // namespace
} // namespace ordavel
