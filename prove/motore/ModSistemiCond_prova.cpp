// ModSistemiCond_prova.cpp - a whole run: compile, develop or filter, report.

#include "motore/ModSistemiCond.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/RecordProva.hpp"
#include "motore/CorsaProva.hpp"

#include <gmock/gmock.h>

#include <limits>
#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::Fila;
using prove::Pronostico;
using testing::IsEmpty;

/// Runs over a grid, into a file of its own.
class ModSistemiCondProva {
public:
    bool Sviluppa(const std::vector<int>& aScelti, int nClasse)
    {
        return InitSviluppoSistCondizionato(Richiesta(nClasse), Pronostico(aScelti), stato, avanzamento);
    }

    bool Filtra(const std::vector<Colonna>& aColonne, int nClasse)
    {
        FileBinario origine(sOrigine, eApertura::scrittura);
        AccodaColonne(origine, aColonne);
        origine.Chiudi();
        return InitSviluppoSistCondizionato(Richiesta(nClasse), sOrigine, stato, avanzamento);
    }

    [[nodiscard]] std::vector<Colonna> Colonne() const { return prove::ColonneDelFile(sFile); }

    /// Was exactly one failure shown, of that number, under that title?
    void AspettaFallimento(int nNumero, const std::string& sTitolo) const
    {
        ASSERT_EQ(avanzamento.fallimenti.aMostrati.size(), std::size_t{1});
        EXPECT_EQ(avanzamento.fallimenti.aMostrati[0].nNumero, nNumero);
        EXPECT_EQ(avanzamento.fallimenti.aMostrati[0].sOrigine, sTitolo);
    }

    prove::CartellaProva cartella;
    std::string sFile = cartella / "Sviluppo.col";
    std::string sOrigine = cartella / "Origine.col";
    std::vector<Condizione> aRighe;
    std::vector<std::string> aQuadro;
    int nRiduzione = 0;
    StatoSviluppo stato;
    prove::AvanzamentoProva avanzamento;

private:
    [[nodiscard]] RichiestaSviluppo Richiesta(int nClasse)
    {
        m_Griglia = prove::GrigliaDi(aRighe);
        return {static_cast<std::int16_t>(nClasse), static_cast<std::int16_t>(nClasse - nRiduzione),
                m_Griglia, aQuadro, sFile};
    }

    GrigliaCondizioni m_Griglia;
};

const std::string kTitolo = "ModSistemiCond.InitSviluppoSistCondizionato";
const Condizione kDueOTreDispari{"Pari-Dispari", "Dispari", "02-03", "", ""};

TEST(ModSistemiCond, UnoSviluppoCompilaLaGrigliaEScriveIlFile)
{
    ModSistemiCondProva corsa;
    corsa.aRighe = {kDueOTreDispari};
    EXPECT_TRUE(corsa.Sviluppa({1, 2, 3, 4}, 2));
    EXPECT_EQ(corsa.Colonne(), std::vector<Colonna>{prove::ColonnaDi({1, 3}).colonna});
    EXPECT_EQ(corsa.stato.nCondizioni, 1);
    EXPECT_EQ(corsa.stato.aCondizioni[0].ContaOk, 1);
    EXPECT_EQ(corsa.stato.aCondizioni[0].ContaKo, 5);
    EXPECT_THAT(corsa.avanzamento.fallimenti.aMostrati, IsEmpty());
}

TEST(ModSistemiCond, UnFiltroCompilaLaGrigliaEScriveIlFile)
{
    ModSistemiCondProva corsa;
    corsa.aRighe = {kDueOTreDispari, {"Ampiezza", "", "0-2", "", ""}};
    EXPECT_TRUE(corsa.Filtra({prove::ColonnaDi({5, 9}).colonna, prove::ColonnaDi({5, 7}).colonna}, 2));
    EXPECT_EQ(corsa.Colonne(), std::vector<Colonna>{prove::ColonnaDi({5, 7}).colonna});
    EXPECT_EQ(corsa.stato.nCondizioni, 2);
}

TEST(ModSistemiCond, OgniCorsaRicominciaDaCapo)
{
    ModSistemiCondProva corsa;
    corsa.aRighe = {kDueOTreDispari};
    corsa.stato.bStopSviluppo = true;
    EXPECT_TRUE(corsa.Sviluppa(Fila(1, 10), 3));
    const RecordCondizione prima = corsa.stato.aCondizioni[0];
    EXPECT_EQ(prima.ContaOk + prima.ContaKo, 120);
    KillFile(corsa.sFile, corsa.avanzamento);
    EXPECT_TRUE(corsa.Sviluppa(Fila(1, 10), 3));
    EXPECT_EQ(corsa.stato.aCondizioni[0], prima);
}

TEST(ModSistemiCond, LeSequenzeEstendonoIlRecupero)
{
    // "P" in both places: satisfied by 2 4 and not by 2 3; 0 is listed for nobody.
    ModSistemiCondProva corsa;
    corsa.aRighe = {{"Sequenze", "P\r\nP\r\nPasso : 1\r\nConsec :1", "01", "00", "1"}};
    ASSERT_TRUE(corsa.Sviluppa({2, 3, 4}, 2));
    const RecordCondizione& record = corsa.stato.aCondizioni[0];
    EXPECT_NE(record.PuntiRec(1), kFalso);
    EXPECT_NE(record.PuntiRec2(1), kFalso);
}

TEST(ModSistemiCond, IlQuadroValeNellaCorsa)
{
    ModSistemiCondProva corsa;
    corsa.aRighe = {{"Ampiezza", "", "80-90", "0-90", "1"}};
    corsa.aQuadro = {"1,1,-1"};
    EXPECT_TRUE(corsa.Sviluppa({1, 2, 3}, 2));
    EXPECT_EQ(corsa.Colonne().size(), std::size_t{3});
}

TEST(ModSistemiCond, UnaCorsaFermataNonEValidaETieneLeColonne)
{
    ModSistemiCondProva corsa;
    corsa.avanzamento.eventi = [&corsa] { corsa.stato.bStopSviluppo = true; };
    EXPECT_FALSE(corsa.Sviluppa(Fila(1, 30), 4));
    EXPECT_EQ(corsa.Colonne().size(), std::size_t{20000});
    EXPECT_THAT(corsa.avanzamento.fallimenti.aMostrati, IsEmpty());
}

TEST(ModSistemiCond, UnaGrigliaCheNonCompilaSiMostra)
{
    ModSistemiCondProva corsa;
    corsa.aRighe = {{"Consecutivi", "", "11", "", ""}};
    EXPECT_FALSE(corsa.Sviluppa({1, 2, 3}, 2));
    corsa.AspettaFallimento(9, kTitolo);
    EXPECT_THAT(corsa.Colonne(), IsEmpty());
}

TEST(ModSistemiCond, UnaCondizioneCheFallisceFermaLaCorsa)
{
    ModSistemiCondProva corsa;
    corsa.aRighe = {{"Resto", "Resto a : 0", "01", "", ""}};
    EXPECT_FALSE(corsa.Sviluppa({1, 2, 3}, 2));
    corsa.AspettaFallimento(11, kTitolo);
}

TEST(ModSistemiCond, UnaDestinazioneCheNonSiApreSiMostra)
{
    ModSistemiCondProva corsa;
    corsa.aRighe = {kDueOTreDispari};
    corsa.sFile = corsa.cartella / "manca/Sviluppo.col";
    EXPECT_FALSE(corsa.Sviluppa({1, 2, 3}, 2));
    corsa.AspettaFallimento(76, kTitolo);
    EXPECT_EQ(corsa.stato.aCondizioni, std::vector<RecordCondizione>(1)) << "azzerate prima di aprire";
}

TEST(ModSistemiCond, IlContatoreOltreIl32BitSiMostraERestaQuantoScritto)
{
    ModSistemiCondProva corsa;
    corsa.avanzamento.eventi = [&corsa] {
        corsa.stato.nSviluppate = std::numeric_limits<std::int32_t>::max() - 5;
    };
    EXPECT_FALSE(corsa.Sviluppa(Fila(1, 30), 4));
    corsa.AspettaFallimento(6, kTitolo);
    EXPECT_EQ(corsa.Colonne().size(), std::size_t{10000}) << "il buffer in attesa si perde";
}

TEST(ModSistemiCond, UnFallimentoDelFiltroLasciaLaCorsaCompiuta)
{
    ModSistemiCondProva corsa;
    corsa.aRighe = {{"Resto", "Resto a : 0", "01", "", ""}};
    EXPECT_TRUE(corsa.Filtra({prove::ColonnaDi({5, 9}).colonna}, 2));
    corsa.AspettaFallimento(11, "ModSistemiCond.FiltraFile");
}

TEST(ModSistemiCond, UnBufferTroppoPienoLasciaLaCorsaCompiuta)
{
    // 10000 columns of which 6000 pass, then 5000 that all do: the last block is shorter than what waits.
    std::vector<Colonna> aColonne(15000, prove::ColonnaDi({5, 9}).colonna);
    std::fill(aColonne.begin(), aColonne.begin() + 4000, prove::ColonnaDi({5, 90}).colonna);
    ModSistemiCondProva corsa;
    corsa.aRighe = {{"Punti Col.", "90", "00", "", ""}};
    corsa.nRiduzione = 2;
    EXPECT_TRUE(corsa.Filtra(aColonne, 2));
    corsa.AspettaFallimento(9, "ModSistemiCond.FiltraFile");
    EXPECT_THAT(corsa.Colonne(), IsEmpty());
}

} // namespace
} // namespace ordavel
