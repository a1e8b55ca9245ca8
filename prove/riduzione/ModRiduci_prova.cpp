// ModRiduci_prova.cpp - the reduction in memory against its definition, and what a stop leaves.

#include "riduzione/ModRiduci.hpp"

#include "comune/CartellaProva.hpp"
#include "riduzione/DefinizioneInMemoria.hpp"
#include "riduzione/DefinizioneRiduzione.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace ordavel {
namespace {

using prove::AvanzamentoRiduzioneProva;
using prove::Byte;
using prove::CartellaProva;
using prove::ColonneCasuali;
using prove::Completo;
using prove::Record;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kSeme = 20261121;

std::vector<Colonna> Riduci(const std::vector<Colonna>& aColonne, std::int32_t nPunti,
                            std::optional<eCopertura> forma = {})
{
    AvanzamentoRiduzioneProva avanzamento;
    return RiduciInMemoria(aColonne, nPunti, forma, {}, avanzamento).value();
}

/// Is every column covered by one that is kept, or kept itself?
bool Garantita(const std::vector<Colonna>& aColonne, const std::vector<Colonna>& aRidotte,
               std::int32_t nPunti)
{
    return std::ranges::all_of(prove::Scoperte(aColonne, aRidotte, nPunti), [&](std::size_t i) {
        return std::ranges::find(aRidotte, aColonne[i]) != aRidotte.end();
    });
}

void ConfrontaConLaDefinizione(const std::vector<Colonna>& aColonne, std::int32_t nPunti)
{
    const auto aAttese = DefinizioneInMemoria(aColonne, nPunti).Riduci();
    const ProblemaRiduzione problema{aColonne, ClasseRiduzione(aColonne), nPunti};
    for (const eCopertura forma : {eCopertura::piana, eCopertura::fette, eCopertura::sottoinsiemi}) {
        if (Ammessa(forma, problema)) {
            ASSERT_EQ(Riduci(aColonne, nPunti, forma), aAttese) << "forma " << static_cast<int>(forma);
        }
    }
    ASSERT_EQ(Riduci(aColonne, nPunti), aAttese);
    ASSERT_TRUE(Garantita(aColonne, aAttese, nPunti));
}

TEST(ModRiduci, TreColonneConDuePuntiNeLascianoDue)
{
    const auto aColonne = std::vector<Colonna>{Record({1, 2, 3}), Record({1, 2, 4}), Record({5, 6, 7})};
    const auto aRidotte = Riduci(aColonne, 2);
    DefinizioneInMemoria definizione(aColonne, 2);
    EXPECT_EQ(aRidotte, definizione.Riduci());
    ASSERT_EQ(aRidotte.size(), 2U);
    EXPECT_EQ(aRidotte.front(), definizione.Ordinati().front().Numeri);
    EXPECT_EQ(aRidotte.back(), aColonne.back());
}

TEST(ModRiduci, ConPuntiPariAllaClasseRestanoTutteNellOrdineDelPunteggio)
{
    const auto aColonne = Completo(7, 3);
    const auto aRidotte = Riduci(aColonne, 3);
    EXPECT_EQ(aRidotte.size(), aColonne.size());
    EXPECT_EQ(aRidotte, DefinizioneInMemoria(aColonne, 3).Riduci());
}

TEST(ModRiduci, ConPuntiPariAllaClasseIDoppioniSiRiducono)
{
    const auto aColonne =
        std::vector<Colonna>{Record({1, 2, 3}), Record({4, 5, 6}), Record({1, 2, 3}), Record({3, 2, 1})};
    EXPECT_EQ(Riduci(aColonne, 3).size(), 2U);
    EXPECT_EQ(Riduci(aColonne, 3), DefinizioneInMemoria(aColonne, 3).Riduci());
}

TEST(ModRiduci, SenzaColonneNonRestaNulla)
{
    for (const std::int32_t nPunti : {-1, 0, 1, 5}) {
        EXPECT_THAT(Riduci({}, nPunti), IsEmpty());
    }
}

TEST(ModRiduci, PuntiZeroLascianoUnaColonnaSola)
{
    for (const std::int32_t nPunti : {0, -3}) {
        ConfrontaConLaDefinizione(Completo(8, 4), nPunti);
        EXPECT_EQ(Riduci(Completo(8, 4), nPunti).size(), 1U);
    }
}

TEST(ModRiduci, UnaPrimaColonnaDiZeriNonCopreNulla)
{
    auto aColonne = std::vector<Colonna>{Record({}), Record({1, 2, 3}), Record({1, 2, 3})};
    EXPECT_EQ(ClasseRiduzione(aColonne), 0);
    EXPECT_EQ(Riduci(aColonne, 1).size(), 3U);
    ConfrontaConLaDefinizione(aColonne, 1);
    ConfrontaConLaDefinizione(aColonne, 0);
}

TEST(ModRiduci, InsiemiCompletiComeLaDefinizione)
{
    for (int nClasse = 2; nClasse <= 6; ++nClasse) {
        const auto aColonne = Completo(nClasse + 4, nClasse);
        for (std::int32_t nPunti = 0; nPunti <= nClasse + 1; ++nPunti) {
            SCOPED_TRACE(testing::Message() << "classe " << nClasse << ", punti " << nPunti);
            ConfrontaConLaDefinizione(aColonne, nPunti);
        }
    }
}

/// What a round of random inputs is made like.
struct Giri {
    int nGiri = 0;
    int nColonneMassime = 0;
    bool bSporche = false; ///< without repetitions
    unsigned nIrregolariSuCento = 0;
};

void ConfrontaCasuali(const Giri& giri)
{
    std::mt19937 caso(kSeme);
    for (int nGiro = 0; nGiro < giri.nGiri; ++nGiro) {
        const auto estrai = [&](int nDa, int nA) {
            return std::uniform_int_distribution<int>(nDa, nA)(caso);
        };
        const int nClasse = estrai(2, 10);
        auto aColonne =
            ColonneCasuali(caso, {.nNumeri = estrai(nClasse, nClasse + 9),
                                  .nClasse = nClasse,
                                  .nQuante = static_cast<std::size_t>(estrai(1, giri.nColonneMassime)),
                                  .nIrregolariSuCento = giri.nIrregolariSuCento,
                                  .nDoppieSuCento = 5});
        if (giri.bSporche) {
            prove::SporcaSenzaRipetere(caso, aColonne, nClasse);
        }
        const std::int32_t nPunti = estrai(0, nClasse + 1);
        SCOPED_TRACE(testing::Message() << "seme " << kSeme << ", giro " << nGiro << ", classe " << nClasse
                                        << ", punti " << nPunti << ", colonne " << aColonne.size());
        ConfrontaConLaDefinizione(aColonne, nPunti);
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(ModRiduci, MigliaiaDiIngressiPiccoliComeLaDefinizione)
{
    ConfrontaCasuali({.nGiri = 2000, .nColonneMassime = 30});
}

TEST(ModRiduci, IngressiCasualiComeLaDefinizione)
{
    ConfrontaCasuali({.nGiri = 60, .nColonneMassime = 160});
}

TEST(ModRiduci, IngressiIrregolariComeLaDefinizione)
{
    ConfrontaCasuali({.nGiri = 1000, .nColonneMassime = 40, .bSporche = true});
}

TEST(ModRiduci, NumeriRipetutiComeLaDefinizione)
{
    ConfrontaCasuali({.nGiri = 1000, .nColonneMassime = 40, .nIrregolariSuCento = 30});
}

// The file, the user's side and the stop.

class ModRiduciFile : public testing::Test {
protected:
    void Scrivi(const std::vector<Colonna>& aColonne, std::string_view sCoda = {})
    {
        prove::ScriviFile(m_sFile, Byte(aColonne) + std::string(sCoda));
        m_aColonne = aColonne;
    }

    void Riduci(std::int32_t nPunti)
    {
        RiduzioneColonne(m_sFile, nPunti, m_aColonne, m_Stato, m_Avanzamento);
    }

    CartellaProva m_Cartella;
    std::string m_sFile = m_Cartella / "colonne.col";
    std::vector<Colonna> m_aColonne;
    StatoRiduzione m_Stato;
    AvanzamentoRiduzioneProva m_Avanzamento;
};

TEST_F(ModRiduciFile, MostraLeFasiEAllaFineNulla)
{
    Scrivi(Completo(9, 4));
    Riduci(3);
    EXPECT_EQ(m_aColonne, DefinizioneInMemoria(Completo(9, 4), 3).Riduci());
    EXPECT_THAT(m_Avanzamento.aFasi, ElementsAre("Analisi rappresentatività colonne in corso ...",
                                                 "Ordinamento in corso ...", "Riduzione colonne ...", ""));
    EXPECT_TRUE(std::ranges::all_of(m_Avanzamento.aPercentuali, [](int n) { return n >= 0 && n <= 100; }));
    EXPECT_EQ(m_Avanzamento.aPercentuali.back(), 0);
    EXPECT_EQ(std::ranges::count(m_Avanzamento.aPercentuali, 100), 2); // the analysis, and the reduction
    EXPECT_EQ(m_Avanzamento.nInterruzioni, 0);
    EXPECT_GT(m_Avanzamento.nEventi, 2);
}

TEST_F(ModRiduciFile, SenzaPunteggiNessunLivelloSiEsegue)
{
    Scrivi({Record({1, 2, 3}), Record({4, 5, 6}), Record({7, 8, 9})});
    Riduci(3);
    EXPECT_EQ(m_aColonne.size(), 3U);
    EXPECT_THAT(m_Avanzamento.aPercentuali,
                ElementsAre(100, 0, 0)); // the analysis, the reduction's start, the end
    EXPECT_EQ(m_Avanzamento.nEventi, 1);
}

TEST_F(ModRiduciFile, UnFileVuotoRestaVuoto)
{
    Scrivi({});
    Riduci(3);
    EXPECT_THAT(m_aColonne, IsEmpty());
    EXPECT_THAT(m_Avanzamento.fallimenti.aMostrati, IsEmpty());
}

TEST_F(ModRiduciFile, UnaColonnaAMetaSiArrotondaAlPari)
{
    const auto aColonne = std::vector<Colonna>{Record({1, 2, 3})};
    for (const auto& [nByte, nAttese] : {std::pair{9U, 1U}, {10U, 2U}, {11U, 2U}, {30U, 2U}}) {
        Scrivi(aColonne, std::string(nByte, '\7'));
        Riduci(3);
        EXPECT_EQ(m_aColonne.size(), nAttese) << nByte;
    }
}

TEST_F(ModRiduciFile, UnFileCheMancaSiMostraEdEFinita)
{
    m_aColonne = std::vector<Colonna>{Record({1, 2, 3})};
    m_Stato.StopRiduzione = true;
    RiduzioneColonne(m_Cartella / "manca.col", 2, m_aColonne, m_Stato, m_Avanzamento);
    EXPECT_FALSE(m_Stato.StopRiduzione);
    EXPECT_EQ(m_aColonne.size(), 1U);
    ASSERT_EQ(m_Avanzamento.fallimenti.aMostrati.size(), 1U);
    EXPECT_EQ(m_Avanzamento.fallimenti.aMostrati.front().sOrigine, "ModRiduci.RiduzioneColonne");
}

TEST_F(ModRiduciFile, NessunFileDellaCartellaVienePortatoVia)
{
    Scrivi(Completo(6, 3));
    const auto prima = std::filesystem::current_path();
    std::filesystem::current_path(m_Cartella / "");
    Riduci(2);
    std::filesystem::current_path(prima);
    EXPECT_EQ(prove::LeggiFile(m_sFile), Byte(Completo(6, 3)));
}

TEST_F(ModRiduciFile, UnoStopNellAnalisiLasciaTutto)
{
    const auto aColonne = Completo(9, 4);
    Scrivi(aColonne);
    m_Avanzamento.eventi = [this] { m_Stato.StopRiduzione = true; };
    Riduci(3);
    EXPECT_EQ(m_aColonne, aColonne);
    EXPECT_EQ(m_Avanzamento.nInterruzioni, 1);
    EXPECT_EQ(m_Avanzamento.nEventi, 1);
    EXPECT_THAT(m_Avanzamento.aFasi, ElementsAre("Analisi rappresentatività colonne in corso ...",
                                                 "Ordinamento in corso ...", "Riduzione colonne ...", ""));
}

/// To find the shared sets of so many columns takes long; a stop does not wait for the first percentage.
TEST_F(ModRiduciFile, UnoStopMentreSiCercanoGliInsiemiLasciaTutto)
{
    std::mt19937 caso(kSeme);
    const auto aColonne = ColonneCasuali(caso, {.nNumeri = 60, .nClasse = 8, .nQuante = 60000});
    m_Avanzamento.eventi = [this] { m_Stato.StopRiduzione = true; };
    EXPECT_EQ(RiduciInMemoria(aColonne, 4, eCopertura::sottoinsiemi, m_Stato, m_Avanzamento), std::nullopt);
    EXPECT_EQ(m_Avanzamento.nEventi, 1);
    EXPECT_THAT(m_Avanzamento.aPercentuali, IsEmpty());
}

TEST_F(ModRiduciFile, UnoStopNellaRiduzioneTieneLaGaranzia)
{
    std::mt19937 caso(kSeme);
    const auto aColonne = ColonneCasuali(caso, {.nNumeri = 12, .nClasse = 5, .nQuante = 400});
    const auto aIntere = DefinizioneInMemoria(aColonne, 3).Riduci();
    int nPiuLunghe = 0;
    for (int nEventi = 2; nEventi < 12; ++nEventi) {
        Scrivi(aColonne);
        m_Avanzamento.nEventi = 0;
        m_Avanzamento.eventi = [&] { m_Stato.StopRiduzione = m_Avanzamento.nEventi >= nEventi; };
        Riduci(3);
        EXPECT_TRUE(Garantita(aColonne, m_aColonne, 3)) << nEventi;
        EXPECT_LE(m_aColonne.size(), aColonne.size());
        nPiuLunghe += m_aColonne.size() > aIntere.size() ? 1 : 0;
    }
    EXPECT_EQ(m_Avanzamento.nInterruzioni, 10);
    EXPECT_GT(nPiuLunghe, 0);
}

} // namespace
} // namespace ordavel
