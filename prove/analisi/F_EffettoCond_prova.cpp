// F_EffettoCond_prova.cpp - what each condition did in the last run.

#include "analisi/F_EffettoCond.hpp"

#include "comune/Fallimenti.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::NumeroErrore;
using prove::OspiteProva;
using testing::ElementsAre;

RecordCondizione Record(TipoCondizione tipo, double nOk, double nKo, double nRec)
{
    RecordCondizione record;
    record.Tipo = tipo;
    record.ContaOk = nOk;
    record.ContaKo = nKo;
    record.ContaRec = nRec;
    return record;
}

class Effetto : public testing::Test {
protected:
    Effetto() { m_Ospite.nIntegrali = 1000; }

    void Carica(std::vector<RecordCondizione> aCondizioni)
    {
        m_Ospite.stato.aCondizioni = std::move(aCondizioni);
        m_Dialogo.LoadList();
    }

    OspiteProva m_Ospite{5};
    F_EffettoCond m_Dialogo{m_Ospite};
};

TEST_F(Effetto, ContiEPercentualiDelTotale)
{
    Carica({Record(TipoCondizione::peso, 333, 667, 1)});
    const RigaElenco& riga = m_Dialogo.ListView1.Righe.Valore().at(0);
    EXPECT_EQ(riga.sTesto, "1");
    EXPECT_THAT(riga.aSotto, ElementsAre("Peso", "333", "33", "667", "66", "1", "0"));
    EXPECT_EQ(m_Dialogo.sTitolo, "Effetto condizioni");
    EXPECT_EQ(m_Dialogo.ListView1.aTestate.size(), std::size_t{8});
}

TEST_F(Effetto, ILinkHannoSoloIlNomeEAlcuniTipiNessuno)
{
    Carica({Record(TipoCondizione::linkOpen, 0, 0, 0), Record(TipoCondizione::cadenze, 0, 1000, 0),
            Record(TipoCondizione::linkClose, 0, 0, 0)});
    const auto& aRighe = m_Dialogo.ListView1.Righe.Valore();
    EXPECT_THAT(aRighe.at(0).aSotto, ElementsAre("LinkOpen"));
    EXPECT_THAT(aRighe.at(1).aSotto, ElementsAre("", "0", "0", "1.000", "100", "0", "0"));
    EXPECT_THAT(aRighe.at(2).aSotto, ElementsAre("LinkClose"));
}

TEST_F(Effetto, IContatoriGrandiSiVedonoInteri)
{
    m_Ospite.nIntegrali = 5e12;
    Carica({Record(TipoCondizione::ponte, 5e12, 3000000000.0, 0)});
    EXPECT_EQ(m_Dialogo.ListView1.Righe.Valore().at(0).aSotto[1], "5.000.000.000.000");
    EXPECT_EQ(m_Dialogo.ListView1.Righe.Valore().at(0).aSotto[3], "3.000.000.000");
}

TEST_F(Effetto, CiSiFermaAlPrimoRecordSenzaTipo)
{
    Carica(
        {Record(TipoCondizione::ponte, 1, 2, 3), RecordCondizione{}, Record(TipoCondizione::peso, 1, 2, 3)});
    EXPECT_EQ(m_Dialogo.ListView1.Righe.Valore().size(), std::size_t{1});
    m_Ospite.nIntegrali = 0;
    Carica({RecordCondizione{}});
    EXPECT_TRUE(m_Dialogo.ListView1.Righe.Valore().empty()) << "nothing was run, and nothing is divided";
}

TEST_F(Effetto, SenzaColonneLaPercentualeFallisce)
{
    m_Ospite.nIntegrali = 0;
    EXPECT_EQ(NumeroErrore([&] { Carica({Record(TipoCondizione::ponte, 1, 2, 3)}); }), 11);
}

TEST_F(Effetto, UnDoppioClicPortaAllaCondizione)
{
    Carica({Record(TipoCondizione::ponte, 1, 2, 3), Record(TipoCondizione::peso, 1, 2, 3)});
    m_Dialogo.DblClick(1);
    EXPECT_EQ(m_Ospite.griglia.Corrente(), 2);
    EXPECT_EQ(NumeroErrore([&] { m_Dialogo.DblClick(2); }), 9);
}

} // namespace
} // namespace ordavel
