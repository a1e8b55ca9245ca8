// LimitiRighe_prova.cpp - a run of conditions: what may be chosen, and what is refused.

#include "editor/LimitiRighe.hpp"

#include "editor/F_DelCondizioni.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::OspiteProva;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class LimitiDiRighe : public testing::Test {
protected:
    /// Chooses the entries at these places, and presses the button.
    void Conferma(std::int32_t nDalla, std::int32_t nAlla)
    {
        m_Dialogo.Mostra();
        m_Dialogo.CmbDalla.Indice.Poni(nDalla);
        m_Dialogo.CmbAlla.Indice.Poni(nAlla);
        m_Dialogo.Premi(ePulsanteDialogo::conferma);
    }

    /// It stays, with one warning.
    void Rifiutato(std::string_view sMessaggio)
    {
        EXPECT_THAT(m_Ospite.desktop.Messaggi(), ElementsAre(Avviso(sMessaggio)));
        EXPECT_TRUE(m_Dialogo.Visibile.Valore());
        EXPECT_EQ(m_Dialogo.sTag, "");
    }

    OspiteProva m_Ospite{6};
    F_DelCondizioni m_Dialogo{m_Ospite};
};

TEST_F(LimitiDiRighe, EliminaCondizioniHaNomeETitolo)
{
    EXPECT_EQ(m_Dialogo.sNome, "F_DelCondizioni");
    EXPECT_EQ(m_Dialogo.sTitolo, "Elimina condizioni");
}

TEST_F(LimitiDiRighe, IDueComboOffronoLeRigheENessunaEScelta)
{
    m_Dialogo.LoadCombo(3);
    EXPECT_THAT(m_Dialogo.CmbDalla.Voci.Valore(), ElementsAre("1", "2", "3"));
    EXPECT_THAT(m_Dialogo.CmbAlla.Voci.Valore(), ElementsAre("1", "2", "3"));
    EXPECT_EQ(m_Dialogo.Dalla(), 0);
    EXPECT_EQ(m_Dialogo.Alla(), 0);
}

TEST_F(LimitiDiRighe, RiempitiDiNuovoDimenticanoQuelloCheCera)
{
    m_Dialogo.LoadCombo(5);
    m_Dialogo.CmbDalla.Indice.Poni(4);
    m_Dialogo.LoadCombo(2);
    EXPECT_THAT(m_Dialogo.CmbDalla.Voci.Valore(), SizeIs(2));
    EXPECT_EQ(m_Dialogo.Dalla(), 0);
}

TEST_F(LimitiDiRighe, SenzaRigheNonCENullaDaScegliere)
{
    for (const int nRighe : {0, -1}) {
        m_Dialogo.LoadCombo(nRighe);
        EXPECT_THAT(m_Dialogo.CmbDalla.Voci.Valore(), IsEmpty()) << nRighe;
    }
    Conferma(-1, -1);
    Rifiutato("Impostare i limiti");
}

TEST_F(LimitiDiRighe, UnaGrigliaPienaLeOffreTutte)
{
    m_Dialogo.LoadCombo(kCondizioniMassime);
    EXPECT_EQ(m_Dialogo.CmbAlla.Voci.Valore().back(), "2000");
}

TEST_F(LimitiDiRighe, SenzaInizioMancanoILimiti)
{
    m_Dialogo.LoadCombo(3);
    Conferma(-1, 1);
    Rifiutato("Impostare i limiti");
}

TEST_F(LimitiDiRighe, SenzaFineParlaLUltimaProvaFallita)
{
    m_Dialogo.LoadCombo(3);
    Conferma(1, -1);
    Rifiutato("Parametri incoerenti");
}

TEST_F(LimitiDiRighe, LaFineNonVieneDavantiAllInizio)
{
    m_Dialogo.LoadCombo(3);
    Conferma(2, 1);
    Rifiutato("Parametri incoerenti");
}

TEST_F(LimitiDiRighe, UnaRigaSolaBasta)
{
    m_Dialogo.LoadCombo(3);
    Conferma(1, 1);
    EXPECT_EQ(m_Dialogo.sTag, "ooo");
    EXPECT_FALSE(m_Dialogo.Visibile.Valore());
    EXPECT_EQ(m_Dialogo.Dalla(), 2);
    EXPECT_EQ(m_Dialogo.Alla(), 2);
}

TEST_F(LimitiDiRighe, DopoUnRifiutoSiPuoCorreggere)
{
    m_Dialogo.LoadCombo(3);
    Conferma(2, 0);
    Rifiutato("Parametri incoerenti");
    Conferma(0, 2);
    EXPECT_EQ(m_Dialogo.sTag, "ooo");
}

TEST_F(LimitiDiRighe, ChiudiNonChiedeNulla)
{
    m_Dialogo.LoadCombo(3);
    Conferma(0, 2);
    m_Dialogo.Mostra();
    m_Dialogo.Premi(ePulsanteDialogo::chiudi);
    EXPECT_EQ(m_Dialogo.sTag, "");
    EXPECT_FALSE(m_Dialogo.Visibile.Valore());
}

TEST_F(LimitiDiRighe, NonCEStatistica)
{
    m_Dialogo.Mostra();
    m_Dialogo.Premi(ePulsanteDialogo::statistica);
    EXPECT_THAT(m_Ospite.desktop.statistica.aMostrate, IsEmpty());
    EXPECT_TRUE(m_Dialogo.Visibile.Valore());
}

} // namespace
} // namespace ordavel
