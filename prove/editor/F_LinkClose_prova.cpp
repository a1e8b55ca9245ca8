// F_LinkClose_prova.cpp - the end of a link: which counts it offers, which it writes, which it reads back.

#include "editor/F_LinkClose.hpp"

#include "core/ModTesti.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::OspiteProva;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class FLinkClose : public testing::Test {
protected:
    /// Writes these keys into the rows from 1 on.
    void Righe(const std::vector<std::string>& aChiavi)
    {
        std::int32_t nRiga = 0;
        for (const std::string& sChiave : aChiavi) {
            m_Ospite.griglia.Riga(++nRiga).sCondizione = sChiave;
        }
    }

    /// Reads a row of these points into a dialog that offers 0 to n.
    std::string Riletti(std::int32_t n, const std::string& sPunti)
    {
        m_Ospite.griglia.Riga(4).sPunti = sPunti;
        m_Ospite.griglia.PoniCorrente(4);
        F_LinkClose dialogo(m_Ospite);
        dialogo.LoadchkPunti(n);
        dialogo.LeggiPunti(m_Ospite.griglia);
        return dialogo.GetPunti();
    }

    [[nodiscard]] const std::vector<std::string>& Voci() const { return m_Dialogo.List1.Voci.Valore(); }

    OspiteProva m_Ospite{6};
    F_LinkClose m_Dialogo{m_Ospite};
};

TEST_F(FLinkClose, HaIlSuoNomeEIlSuoTitolo)
{
    EXPECT_EQ(m_Dialogo.sNome, "F_LinkClose");
    EXPECT_EQ(m_Dialogo.sTitolo, "LinkClose");
    EXPECT_EQ(m_Dialogo.Tipo(), TipoCondizione::linkClose);
    EXPECT_THAT(Voci(), IsEmpty());
}

TEST_F(FLinkClose, OffreDaZeroAllaQuantita)
{
    m_Dialogo.LoadchkPunti(3);
    EXPECT_THAT(Voci(), ElementsAre("0", "1", "2", "3"));
    EXPECT_EQ(m_Dialogo.GetPunti(), "");
}

TEST_F(FLinkClose, LElencoSiFermaANovanta)
{
    m_Dialogo.LoadchkPunti(90);
    EXPECT_THAT(Voci(), SizeIs(91));
    m_Dialogo.LoadchkPunti(91);
    EXPECT_THAT(Voci(), SizeIs(182));
    EXPECT_EQ(Voci().back(), "90");
}

TEST_F(FLinkClose, SubitoDopoLaperturaSiOffreSoloZero)
{
    Righe({"Ponte", "LinkOpen"});
    m_Dialogo.GuardaRighe(m_Ospite.griglia, 3);
    EXPECT_THAT(Voci(), ElementsAre("0"));
}

TEST_F(FLinkClose, SenzaAperturaSiContanoLeRigheFinoAllaPrima)
{
    Righe({"Ponte", "Peso", "Resto"});
    m_Dialogo.GuardaRighe(m_Ospite.griglia, 4);
    EXPECT_THAT(Voci(), ElementsAre("0", "1", "2", "3"));
}

TEST_F(FLinkClose, SullaPrimaRigaSiOffreSoloZero)
{
    m_Dialogo.GuardaRighe(m_Ospite.griglia, 1);
    EXPECT_THAT(Voci(), ElementsAre("0"));
}

TEST_F(FLinkClose, UnLinkDiPiuDiNovantaRigheOffreFinoANovanta)
{
    Righe({"LinkOpen"});
    m_Dialogo.GuardaRighe(m_Ospite.griglia, 150);
    EXPECT_THAT(Voci(), SizeIs(91));
}

TEST_F(FLinkClose, RiempitoDueVolteOffreTuttoDueVolte)
{
    m_Dialogo.LoadchkPunti(1);
    m_Dialogo.List1.Seleziona(1, true);
    m_Dialogo.LoadchkPunti(1);
    EXPECT_THAT(Voci(), ElementsAre("0", "1", "0", "1"));
    EXPECT_EQ(m_Dialogo.GetPunti(), "1");
}

TEST_F(FLinkClose, IPuntiSonoIPostiENonITesti)
{
    m_Dialogo.LoadchkPunti(2);
    m_Dialogo.LoadchkPunti(2);
    m_Dialogo.List1.Seleziona(0, true);
    m_Dialogo.List1.Seleziona(4, true);
    m_Dialogo.List1.Seleziona(5, true);
    EXPECT_EQ(m_Dialogo.GetPunti(), "0-4-5");
}

TEST_F(FLinkClose, LeCelleHannoIPuntiESenzaRecuperoNeGruppo)
{
    m_Dialogo.LoadchkPunti(3);
    m_Dialogo.List1.Seleziona(1, true);
    m_Dialogo.List1.Seleziona(2, true);
    const Condizione celle = m_Dialogo.GetParametri();
    EXPECT_EQ(celle.sCondizione, "LinkClose");
    EXPECT_EQ(Sostituisci(celle.sParametri, kCrLf, ""), "LinkClose");
    EXPECT_THAT(celle.sParametri, testing::StartsWith("L\r\ni\r\nn"));
    EXPECT_EQ(celle.sPunti, "1-2");
    EXPECT_EQ(celle.sRecupero, "");
    EXPECT_EQ(celle.sQuadro, "");
}

TEST_F(FLinkClose, SenzaNullaDiSceltoSiConfermaLoStesso)
{
    m_Dialogo.LoadchkPunti(3);
    m_Dialogo.Mostra();
    m_Dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(m_Dialogo.sTag, "ooo");
    EXPECT_FALSE(m_Dialogo.Visibile.Valore());
    EXPECT_EQ(m_Dialogo.GetParametri().sPunti, "");
}

TEST_F(FLinkClose, ChiudiSvuotaIlTagENasconde)
{
    m_Dialogo.Premi(ePulsanteDialogo::conferma);
    m_Dialogo.Mostra();
    m_Dialogo.Premi(ePulsanteDialogo::chiudi);
    EXPECT_EQ(m_Dialogo.sTag, "");
    EXPECT_FALSE(m_Dialogo.Visibile.Valore());
}

TEST_F(FLinkClose, NonHaStatistica)
{
    m_Dialogo.Mostra();
    m_Dialogo.Premi(ePulsanteDialogo::statistica);
    EXPECT_THAT(m_Ospite.desktop.statistica.aMostrate, IsEmpty());
    EXPECT_TRUE(m_Dialogo.Visibile.Valore());
}

TEST_F(FLinkClose, SiMostraSempreENonPrendeUnaStringa)
{
    EXPECT_TRUE(m_Dialogo.SempreMostrato());
    m_Dialogo.SetPuntiSuFrm("1,2|");
    EXPECT_EQ(m_Dialogo.sTag, "");
}

TEST_F(FLinkClose, RileggeLaRigaCorrente)
{
    m_Ospite.griglia.Riga(1).sPunti = "0";
    EXPECT_EQ(Riletti(5, "1-3-5"), "1-3-5");
}

TEST_F(FLinkClose, RileggeAncheDueCifre)
{
    EXPECT_EQ(Riletti(5, "00-03"), "0-3");
}

TEST_F(FLinkClose, IPostiOltreLElencoNonContano)
{
    EXPECT_EQ(Riletti(5, "5-6-7"), "5");
    EXPECT_EQ(Riletti(5, "2-99999999999-1e300"), "2");
    EXPECT_EQ(Riletti(5, "5.4"), "");
}

TEST_F(FLinkClose, UnaCellaVuotaNonSceglieNulla)
{
    EXPECT_EQ(Riletti(5, ""), "");
}

TEST_F(FLinkClose, UnPezzoSenzaNumeroEIlPostoZero)
{
    EXPECT_EQ(Riletti(5, "2--x"), "0-2");
}

TEST_F(FLinkClose, SenzaVociNonSiSceglieNulla)
{
    m_Ospite.griglia.Riga(1).sPunti = "0-1";
    m_Dialogo.LeggiPunti(m_Ospite.griglia);
    EXPECT_EQ(m_Dialogo.GetPunti(), "");
}

} // namespace
} // namespace ordavel
