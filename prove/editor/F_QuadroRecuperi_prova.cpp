// F_QuadroRecuperi_prova.cpp - the board: which groups the rows name, what the boxes hold, what is written back.

#include "editor/F_QuadroRecuperi.hpp"

#include "comune/Fallimenti.hpp"
#include "editor/OspiteProva.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::NumeroErrore;
using prove::OspiteProva;

const std::string kNonInUso = "-1,-1,-0";

class FQuadroRecuperi : public testing::Test {
protected:
    void Gruppo(std::int32_t nRiga, const std::string& sQuadro)
    {
        m_Ospite.griglia.Riga(nRiga) = {"Ponte", "", "1", "", sQuadro};
    }

    /// Loads the dialog from the grid and these board lines.
    void Leggi(std::vector<std::string> aRighe = {})
    {
        Lista quadro;
        quadro.Voci.Poni(std::move(aRighe));
        m_Dialogo.LeggiRecuperiInseriti(m_Ospite.griglia, quadro);
    }

    std::string Inseriti(std::int32_t nGruppo)
    {
        return m_Dialogo.Gruppo(nGruppo).LabRecInseriti.Testo.Valore();
    }

    /// Are both boxes of a group enabled, or neither?
    bool Abilitato(std::int32_t nGruppo)
    {
        const F_QuadroRecuperi::Linea& linea = m_Dialogo.Gruppo(nGruppo);
        EXPECT_EQ(linea.TxtMin.Abilitato.Valore(), linea.TxtMax.Abilitato.Valore()) << nGruppo;
        return linea.TxtMin.Abilitato.Valore();
    }

    void Digita(std::int32_t nGruppo, const std::string& sMinimo, const std::string& sMassimo)
    {
        m_Dialogo.Gruppo(nGruppo).TxtMin.Testo.Poni(sMinimo);
        m_Dialogo.Gruppo(nGruppo).TxtMax.Testo.Poni(sMassimo);
    }

    /// The board line of a group.
    std::string Riga(std::size_t nGruppo) { return m_Dialogo.RigheQuadro().at(nGruppo - 1); }

    /// A board that is out of use but for one line.
    static std::vector<std::string> QuadroCon(std::size_t nGruppo, const std::string& sRiga)
    {
        std::vector<std::string> aRighe(kGruppiRecupero, kNonInUso);
        aRighe.at(nGruppo - 1) = sRiga;
        return aRighe;
    }

    OspiteProva m_Ospite{6};
    F_QuadroRecuperi m_Dialogo{m_Ospite};
};

TEST_F(FQuadroRecuperi, HaNomeETitolo)
{
    EXPECT_EQ(m_Dialogo.sNome, "F_QuadroRecuperi");
    EXPECT_EQ(m_Dialogo.sTitolo, "Quadro recuperi");
}

TEST_F(FQuadroRecuperi, LeVentiLineePortanoIlLoroNumero)
{
    for (std::int32_t n = 1; n <= 20; ++n) {
        EXPECT_EQ(m_Dialogo.Gruppo(n).LabQuadroRec.Testo.Valore(), std::to_string(n));
        EXPECT_EQ(Inseriti(n), "");
        EXPECT_FALSE(Abilitato(n)) << n;
    }
}

TEST_F(FQuadroRecuperi, NonCiSonoAltreLinee)
{
    for (const int nGruppo : {0, 21, -1}) {
        EXPECT_EQ(NumeroErrore([&] { static_cast<void>(m_Dialogo.Gruppo(nGruppo)); }), 9) << nGruppo;
    }
}

TEST_F(FQuadroRecuperi, LeCasellePrendonoSoloCifre)
{
    for (std::int32_t n = 1; n <= 20; ++n) {
        for (const CasellaTesto* casella : {&m_Dialogo.Gruppo(n).TxtMin, &m_Dialogo.Gruppo(n).TxtMax}) {
            EXPECT_TRUE(casella->Accetta('7'));
            EXPECT_FALSE(casella->Accetta('a'));
        }
    }
}

TEST_F(FQuadroRecuperi, ConfermaDaIlSuoTag)
{
    m_Dialogo.Mostra();
    m_Dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(m_Dialogo.sTag, "ddd");
    EXPECT_FALSE(m_Dialogo.Visibile.Valore());
}

TEST_F(FQuadroRecuperi, ChiudiLoSvuota)
{
    m_Dialogo.Premi(ePulsanteDialogo::conferma);
    m_Dialogo.Mostra();
    m_Dialogo.Premi(ePulsanteDialogo::chiudi);
    EXPECT_EQ(m_Dialogo.sTag, "");
    EXPECT_FALSE(m_Dialogo.Visibile.Valore());
}

// --- the rows of each group

TEST_F(FQuadroRecuperi, LeRigheDiUnGruppoSiContano)
{
    Gruppo(1, "3");
    Gruppo(2, "20");
    Gruppo(3, "3");
    Leggi();
    EXPECT_EQ(Inseriti(3), "2");
    EXPECT_EQ(Inseriti(20), "1");
    EXPECT_EQ(Inseriti(1), "");
}

TEST_F(FQuadroRecuperi, SoloIGruppiConRigheSiAprono)
{
    Gruppo(1, "1");
    Leggi();
    EXPECT_TRUE(Abilitato(1));
    EXPECT_FALSE(Abilitato(2));
}

TEST_F(FQuadroRecuperi, LeRigheSenzaGruppoNonContano)
{
    Gruppo(1, " ");
    Gruppo(2, "");
    Gruppo(3, "0");
    Leggi();
    for (std::int32_t n = 1; n <= 20; ++n) {
        EXPECT_EQ(Inseriti(n), "") << n;
    }
}

TEST_F(FQuadroRecuperi, SiContaFinoAllUltimaRigaAncheDopoUnaVuota)
{
    Gruppo(1, "7");
    Gruppo(2000, "7");
    Leggi();
    EXPECT_EQ(Inseriti(7), "2");
}

TEST_F(FQuadroRecuperi, UnGruppoOltreVentiEUnFallimento)
{
    Gruppo(1, "21");
    EXPECT_EQ(NumeroErrore([&] { Leggi(); }), 9);
}

TEST_F(FQuadroRecuperi, LettoDiNuovoUnGruppoSenzaPiuRigheSiChiude)
{
    Gruppo(1, "5");
    Leggi();
    Gruppo(1, " ");
    Leggi();
    EXPECT_EQ(Inseriti(5), "");
    EXPECT_FALSE(Abilitato(5));
}

// --- the ranges

TEST_F(FQuadroRecuperi, SenzaQuadroLeCaselleSonoVuote)
{
    Gruppo(1, "1");
    Leggi();
    EXPECT_EQ(m_Dialogo.Gruppo(1).TxtMin.Testo.Valore(), "");
    EXPECT_EQ(m_Dialogo.Gruppo(1).TxtMax.Testo.Valore(), "");
}

TEST_F(FQuadroRecuperi, IGruppiInUsoMostranoIlLoroRange)
{
    Leggi(QuadroCon(20, "2,5,-1"));
    EXPECT_EQ(m_Dialogo.Gruppo(20).TxtMin.Testo.Valore(), "2");
    EXPECT_EQ(m_Dialogo.Gruppo(20).TxtMax.Testo.Valore(), "5");
    EXPECT_EQ(m_Dialogo.Gruppo(1).TxtMin.Testo.Valore(), "");
}

TEST_F(FQuadroRecuperi, UnGruppoFuoriUsoNonMostraIlSuoRange)
{
    Leggi(QuadroCon(4, "2,5,0"));
    EXPECT_EQ(m_Dialogo.Gruppo(4).TxtMin.Testo.Valore(), "");
}

TEST_F(FQuadroRecuperi, UnaRigaDelQuadroConMenoDiTrePartiEUnFallimento)
{
    EXPECT_EQ(NumeroErrore([&] { Leggi(QuadroCon(1, "2,5")); }), 9);
}

TEST_F(FQuadroRecuperi, UnVentunesimoGruppoInUsoEUnFallimento)
{
    auto aRighe = QuadroCon(1, kNonInUso);
    aRighe.push_back("1,2,-1");
    EXPECT_EQ(NumeroErrore([&] { Leggi(aRighe); }), 9);
}

// --- writing back

TEST_F(FQuadroRecuperi, SenzaCaselleTuttiIGruppiSonoFuoriUso)
{
    EXPECT_EQ(m_Dialogo.RigheQuadro(), std::vector<std::string>(20, kNonInUso));
}

TEST_F(FQuadroRecuperi, DueCasellePieneMettonoIlGruppoInUso)
{
    Digita(3, "2", "5");
    EXPECT_EQ(m_Dialogo.RigheQuadro(), QuadroCon(3, "2,5,-1"));
}

TEST_F(FQuadroRecuperi, INumeriSiRiscrivonoSenzaZeri)
{
    Digita(1, "003", " 07 ");
    EXPECT_EQ(Riga(1), "3,7,-1");
}

TEST_F(FQuadroRecuperi, ConUnaCasellaSolaIlGruppoEFuoriUso)
{
    for (const char* sVuota : {"", "  "}) {
        Digita(1, "2", sVuota);
        EXPECT_EQ(Riga(1), kNonInUso);
        Digita(1, sVuota, "2");
        EXPECT_EQ(Riga(1), kNonInUso);
    }
}

TEST_F(FQuadroRecuperi, UnMinimoSopraIlMassimoPassaSenzaParole)
{
    Digita(2, "9", "1");
    m_Dialogo.Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(m_Dialogo.sTag, "ddd");
    EXPECT_EQ(Riga(2), "9,1,-1");
}

TEST_F(FQuadroRecuperi, UnRangeSenzaRigheRestaInUso)
{
    Leggi(QuadroCon(6, "1,4,-1"));
    EXPECT_FALSE(Abilitato(6));
    EXPECT_EQ(Riga(6), "1,4,-1");
}

TEST_F(FQuadroRecuperi, UnQuadroLettoERiscrittoEUguale)
{
    auto aRighe = QuadroCon(1, "0,3,-1");
    aRighe.back() = "12,2000,-1";
    Leggi(aRighe);
    EXPECT_EQ(m_Dialogo.RigheQuadro(), aRighe);
}

} // namespace
} // namespace ordavel
