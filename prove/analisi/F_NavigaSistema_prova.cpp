// F_NavigaSistema_prova.cpp - the conditions as a tree of their links.

#include "analisi/F_NavigaSistema.hpp"

#include "comune/Fallimenti.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace ordavel {
namespace {

using prove::NumeroErrore;
using prove::OspiteProva;
using testing::ElementsAre;
using testing::SizeIs;

constexpr std::string_view kApre = "LinkOpen";
constexpr std::string_view kChiude = "LinkClose";

NodoAlbero Radice(bool bEspanso = true)
{
    return {.sChiave = "sistema", .sPadre = {}, .sTesto = "Sistema", .sEtichetta = {}, .bEspanso = bEspanso};
}

NodoAlbero NodoDi(int nRiga, const std::string& sPadre, const std::string& sTesto)
{
    const std::string sNumero = std::to_string(nRiga);
    return {.sChiave = sNumero + "Cond",
            .sPadre = sPadre,
            .sTesto = sTesto,
            .sEtichetta = sNumero,
            .bEspanso = false};
}

struct Navigazione {
    /// The conditions from row 1 on, by their names; each with its row as parameters.
    void Condizioni(const std::vector<std::string>& aNomi)
    {
        ospite.griglia.Svuota();
        for (std::size_t n = 1; n <= aNomi.size(); ++n) {
            ospite.griglia.Riga(static_cast<std::int32_t>(n)) = {aNomi[n - 1], "p" + std::to_string(n), "c",
                                                                 "", ""};
        }
    }

    const std::vector<NodoAlbero>& Nodi() const { return naviga.TreeView1.Nodi.Valore(); }

    OspiteProva ospite{5};
    F_NavigaSistema naviga{ospite};
};

class F_NavigaSistemaProva : public testing::Test, protected Navigazione {};

TEST_F(F_NavigaSistemaProva, SiChiamaNavigaSistema)
{
    EXPECT_EQ(naviga.sNome, "F_NavigaSistema");
    EXPECT_EQ(naviga.sTitolo, "Naviga sistema");
}

TEST_F(F_NavigaSistemaProva, UnaGrigliaVuotaHaLaRadiceSola)
{
    naviga.LoadTree();
    EXPECT_THAT(Nodi(), ElementsAre(Radice()));
}

TEST_F(F_NavigaSistemaProva, SenzaLinkLeCondizioniSonoInFila)
{
    Condizioni({"Peso", "Pari-Dispari"});
    naviga.LoadTree();
    EXPECT_THAT(Nodi(),
                ElementsAre(Radice(), NodoDi(1, "sistema", "Peso"), NodoDi(2, "sistema", "Pari-Dispari")));
}

TEST_F(F_NavigaSistemaProva, UnLinkEUnRamoColSuoLinkClose)
{
    Condizioni({"Peso", "LinkOpen", "Somma", "LinkClose", "Resto"});
    naviga.LoadTree();
    EXPECT_THAT(Nodi(), ElementsAre(Radice(), NodoDi(1, "sistema", "Peso"), NodoDi(2, "sistema", "LinkOpen"),
                                    NodoDi(3, "2Cond", "Somma"), NodoDi(4, "2Cond", "LinkClose (p4)"),
                                    NodoDi(5, "sistema", "Resto")));
}

TEST_F(F_NavigaSistemaProva, ILinkSiAnnidano)
{
    Condizioni({"LinkOpen", "LinkOpen", "Peso", "LinkClose", "LinkOpen", "LinkClose", "Resto", "LinkClose"});
    naviga.LoadTree();
    EXPECT_THAT(Nodi(),
                ElementsAre(Radice(), NodoDi(1, "sistema", "LinkOpen"), NodoDi(2, "1Cond", "LinkOpen"),
                            NodoDi(3, "2Cond", "Peso"), NodoDi(4, "2Cond", "LinkClose (p4)"),
                            NodoDi(5, "1Cond", "LinkOpen"), NodoDi(6, "5Cond", "LinkClose (p6)"),
                            NodoDi(7, "1Cond", "Resto"), NodoDi(8, "1Cond", "LinkClose (p8)")));
}

TEST_F(F_NavigaSistemaProva, SiFermaAllaPrimaRigaVuota)
{
    Condizioni({"Peso", "", "LinkClose"});
    naviga.LoadTree();
    EXPECT_THAT(Nodi(), ElementsAre(Radice(), NodoDi(1, "sistema", "Peso")));
}

TEST_F(F_NavigaSistemaProva, UnLinkMaiChiusoTieneTuttoIlResto)
{
    Condizioni({"LinkOpen", "Peso"});
    naviga.LoadTree();
    EXPECT_THAT(Nodi(), ElementsAre(Radice(), NodoDi(1, "sistema", "LinkOpen"), NodoDi(2, "1Cond", "Peso")));
}

TEST_F(F_NavigaSistemaProva, UnLinkCloseSenzaLinkFallisceCon91EQuiFinisceLAlbero)
{
    Condizioni({"LinkOpen", "LinkClose", "Peso", "LinkClose", "Resto"});
    EXPECT_EQ(NumeroErrore([this] { naviga.LoadTree(); }), 91);
    EXPECT_THAT(Nodi(), ElementsAre(Radice(false), NodoDi(1, "sistema", "LinkOpen"),
                                    NodoDi(2, "1Cond", "LinkClose (p2)"), NodoDi(3, "sistema", "Peso"),
                                    NodoDi(4, "sistema", "LinkClose")));
}

TEST_F(F_NavigaSistemaProva, DopoUnFallimentoLAlberoSiRifa)
{
    Condizioni({"LinkClose"});
    EXPECT_EQ(NumeroErrore([this] { naviga.LoadTree(); }), 91);
    Condizioni({"Peso"});
    naviga.LoadTree();
    EXPECT_THAT(Nodi(), ElementsAre(Radice(), NodoDi(1, "sistema", "Peso")));
}

TEST_F(F_NavigaSistemaProva, UnClicVaAllaCondizione)
{
    Condizioni({"LinkOpen", "Peso", "LinkClose", "Resto"});
    naviga.LoadTree();
    for (const std::int32_t nRiga : {4, 2, 3, 1}) {
        naviga.Clic(std::to_string(nRiga) + "Cond");
        EXPECT_EQ(ospite.griglia.Corrente(), nRiga);
    }
}

TEST_F(F_NavigaSistemaProva, UnClicSullaRadiceVaAZero)
{
    Condizioni({"Peso"});
    naviga.LoadTree();
    ospite.griglia.PoniCorrente(1);
    naviga.Clic("sistema");
    EXPECT_EQ(ospite.griglia.Corrente(), 0);
}

TEST_F(F_NavigaSistemaProva, UnClicSuUnNodoCheNonCEFallisceCon9)
{
    Condizioni({"Peso"});
    ospite.griglia.PoniCorrente(1);
    EXPECT_EQ(NumeroErrore([this] { naviga.Clic("1Cond"); }), 9) << "l'albero non c'e ancora";
    naviga.LoadTree();
    for (const char* sChiave : {"2Cond", "", "1", "cond"}) {
        EXPECT_EQ(NumeroErrore([&] { naviga.Clic(sChiave); }), 9) << sChiave;
    }
    EXPECT_EQ(ospite.griglia.Corrente(), 1);
}

TEST_F(F_NavigaSistemaProva, LAlberoEQuelloDelCaricamentoEIlClicNonLoRifa)
{
    Condizioni({"Peso", "Resto"});
    naviga.LoadTree();
    Condizioni({"Peso"});
    naviga.Clic("2Cond");
    EXPECT_EQ(ospite.griglia.Corrente(), 2);
    EXPECT_THAT(Nodi(), SizeIs(3));
}

TEST_F(F_NavigaSistemaProva, DuemilaRigheUnaDentroLAltra)
{
    std::vector<std::string> aNomi(1000, std::string(kApre));
    aNomi.resize(2000, std::string(kChiude));
    Condizioni(aNomi);
    naviga.LoadTree();
    ASSERT_THAT(Nodi(), SizeIs(2001));
    EXPECT_EQ(Nodi()[1000], NodoDi(1000, "999Cond", "LinkOpen"));
    EXPECT_EQ(Nodi()[1001], NodoDi(1001, "1000Cond", "LinkClose (p1001)"));
    EXPECT_EQ(Nodi()[2000], NodoDi(2000, "1Cond", "LinkClose (p2000)"));
    naviga.Clic("2000Cond");
    EXPECT_EQ(ospite.griglia.Corrente(), 2000);
}

/// Of links drawn at random, every parent stands in front of its child and is a "LinkOpen" or the root.
RC_GTEST_PROP(F_NavigaSistemaCasuale, OgniPadreEUnLinkApertoInPrecedenza, ())
{
    Navigazione prova;
    const auto genere = rc::gen::element<std::string>("Peso", std::string(kApre), std::string(kChiude));
    const auto aNomi = *rc::gen::container<std::vector<std::string>>(genere);
    prova.Condizioni(aNomi);
    std::vector<std::size_t> aAperti{0};
    const auto nErrore = NumeroErrore([&] { prova.naviga.LoadTree(); });
    const auto& aNodi = prova.Nodi();
    for (std::size_t n = 1; n < aNodi.size(); ++n) {
        RC_ASSERT(!aAperti.empty());
        RC_ASSERT(aNodi[n].sPadre == aNodi[aAperti.back()].sChiave);
        if (aNomi[n - 1] == kApre) {
            aAperti.push_back(n);
        } else if (aNomi[n - 1] == kChiude) {
            aAperti.pop_back();
        }
    }
    RC_ASSERT(nErrore.has_value() == aAperti.empty());
    RC_ASSERT(aAperti.empty() || aNodi.size() == aNomi.size() + 1);
}

} // namespace
} // namespace ordavel
