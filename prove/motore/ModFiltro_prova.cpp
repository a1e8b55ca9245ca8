// ModFiltro_prova.cpp - the conditions over an existing file.

#include "motore/ModFiltro.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/RecordProva.hpp"
#include "motore/CorsaProva.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ordavel {
namespace {

using prove::Aggiornamento;
using prove::ColonnaDi;
using prove::CorsaProva;
using prove::Fila;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kClasse = 4;

/// nQuante columns of class 4, the first of a development over 40 numbers.
std::vector<Colonna> Prime(std::size_t nQuante)
{
    CorsaProva corsa;
    std::vector<Colonna> aColonne = corsa.Sviluppa(Fila(1, 40), kClasse);
    aColonne.resize(nQuante);
    return aColonne;
}

/// A condition that rejects the columns with number 90.
RecordCondizione Senza90()
{
    RecordCondizione record = prove::Lista(TipoCondizione::puntiColonna, {0});
    record.Numeri(90) = kVero;
    return record;
}

/// Puts 90 into the columns nDa to nA-1.
void Scarta(std::vector<Colonna>& aColonne, std::size_t nDa, std::size_t nA)
{
    for (std::size_t i = nDa; i < nA; ++i) {
        aColonne[i][kClasse] = 90;
    }
}

std::vector<Colonna> Buone(const std::vector<Colonna>& aColonne)
{
    std::vector<Colonna> aBuone;
    std::copy_if(aColonne.begin(), aColonne.end(), std::back_inserter(aBuone),
                 [](const Colonna& colonna) { return colonna[kClasse] != 90; });
    return aBuone;
}

TEST(ModFiltro, SenzaCondizioniRestanoTutteNellOrdineDelFile)
{
    std::vector<Colonna> aColonne = Prime(500);
    std::reverse(aColonne.begin(), aColonne.end());
    CorsaProva corsa;
    EXPECT_EQ(corsa.Filtra(aColonne, kClasse), aColonne);
    EXPECT_EQ(corsa.stato.nSviluppate, 500);
    EXPECT_EQ(corsa.stato.nCondizionate, 500);
}

TEST(ModFiltro, DiecimilaColonneSonoUnBlocco)
{
    const std::vector<Colonna> aColonne = Prime(10000);
    CorsaProva corsa;
    EXPECT_EQ(corsa.Filtra(aColonne, kClasse), aColonne);
    EXPECT_THAT(corsa.avanzamento.aMostrati,
                ElementsAre(Aggiornamento{10000, 10000, 100}, Aggiornamento{10000, 0, 100}));
}

TEST(ModFiltro, VenticinquemilaColonneSonoTreBlocchi)
{
    const std::vector<Colonna> aColonne = Prime(25000);
    CorsaProva corsa;
    EXPECT_EQ(corsa.Filtra(aColonne, kClasse), aColonne);
    EXPECT_THAT(corsa.avanzamento.aMostrati,
                ElementsAre(Aggiornamento{10000, 10000, 40}, Aggiornamento{20000, 20000, 80},
                            Aggiornamento{25000, 0, 100}))
        << "l'ultimo blocco di 5000 riempie la sua soglia: nel buffer non resta nulla";
}

TEST(ModFiltro, AllaFineSiMostraQuantoRestaNelBuffer)
{
    std::vector<Colonna> aColonne = Prime(700);
    Scarta(aColonne, 0, 300);
    CorsaProva corsa({Senza90()});
    EXPECT_EQ(corsa.Filtra(aColonne, kClasse), Buone(aColonne));
    EXPECT_THAT(corsa.avanzamento.aMostrati, ElementsAre(Aggiornamento{700, 400, 100}));
}

TEST(ModFiltro, RifiutateTutteIlRisultatoEVuoto)
{
    CorsaProva corsa({prove::Manca()});
    EXPECT_THAT(corsa.Filtra(Prime(10010), kClasse), IsEmpty());
    EXPECT_EQ(corsa.stato.aCondizioni[0].ContaKo, 10010);
    EXPECT_EQ(corsa.avanzamento.aMostrati.back(), (Aggiornamento{10010, 0, 100}));
    EXPECT_THAT(corsa.avanzamento.fallimenti.aMostrati, IsEmpty());
}

/// A source of whole columns and the first bytes of one more.
std::string ByteConResto(const std::vector<Colonna>& aColonne, std::size_t nResto)
{
    std::string sByte;
    for (const Colonna& colonna : aColonne) {
        sByte.append(colonna.aNumeri.begin(), colonna.aNumeri.end());
    }
    return sByte + std::string("\x51\x52\x53\x54" + std::string(16, '\0')).substr(0, nResto);
}

TEST(ModFiltro, IlRestoSiArrotondaAllaColonnaPiuVicinaIPariAlPari)
{
    const Colonna intera = ColonnaDi({0x51, 0x52, 0x53, 0x54}).colonna;
    struct Caso {
        std::size_t nIntere;
        std::size_t nResto;
        std::size_t nLette;
    };
    for (const Caso& caso :
         {Caso{1, 9, 1}, {1, 10, 2}, {1, 11, 2}, {2, 9, 2}, {2, 10, 2}, {2, 11, 3}, {3, 10, 4}, {0, 11, 1}}) {
        std::vector<Colonna> aAttese = Prime(caso.nIntere);
        CorsaProva corsa;
        const auto aTenute = corsa.Filtra(ByteConResto(aAttese, caso.nResto), kClasse);
        aAttese.resize(caso.nLette, intera);
        EXPECT_EQ(aTenute, aAttese) << caso.nIntere << " e " << caso.nResto;
    }
}

TEST(ModFiltro, LaColonnaIncompletaHa0DoveIlFileFinisce)
{
    const Colonna intera = ColonnaDi({81, 82, 83, 84, 85, 86, 87, 88, 89, 90, 91, 92, 93}).colonna;
    std::string sByte(intera.aNumeri.begin(), intera.aNumeri.end());
    CorsaProva corsa;
    const auto aTenute = corsa.Filtra(sByte.substr(0, 11), kClasse);
    ASSERT_EQ(aTenute.size(), std::size_t{1});
    EXPECT_EQ(aTenute[0], ColonnaDi({81, 82, 83, 84, 85, 86, 87, 88, 89, 90, 91}).colonna);
}

TEST(ModFiltro, UnRestoDietroUnBloccoInteroNonLasciaNumeriDelBloccoPrima)
{
    std::vector<Colonna> aColonne = Prime(10000);
    aColonne[0] = ColonnaDi(Fila(41, 60)).colonna; // it stands where the last column is read
    CorsaProva corsa;
    const auto aTenute = corsa.Filtra(ByteConResto(aColonne, 11), kClasse);
    ASSERT_EQ(aTenute.size(), std::size_t{10001});
    EXPECT_EQ(aTenute.back(), ColonnaDi({0x51, 0x52, 0x53, 0x54}).colonna);
    CorsaProva altra;
    EXPECT_EQ(altra.Filtra(ByteConResto(aColonne, 10), kClasse), aColonne) << "mezza colonna è nessuna";
}

TEST(ModFiltro, LaRiduzioneGuardaLaTenutaPrima)
{
    const std::vector<Colonna> aColonne{ColonnaDi({1, 2, 3, 4}).colonna, ColonnaDi({1, 2, 3, 5}).colonna,
                                        ColonnaDi({1, 2, 6, 7}).colonna};
    CorsaProva corsa;
    EXPECT_EQ(corsa.Filtra(aColonne, kClasse, 3), (std::vector<Colonna>{aColonne[0], aColonne[2]}));
}

TEST(ModFiltro, DueColonneUgualiSiDiradanoAncheConRiduzione0)
{
    const std::vector<Colonna> aColonne(2, ColonnaDi({1, 2, 3, 4}).colonna);
    CorsaProva corsa;
    EXPECT_EQ(corsa.Filtra(aColonne, kClasse, kClasse).size(), std::size_t{1});
}

TEST(ModFiltro, UnoStopSiVedeSubitoDopoGliEventi)
{
    CorsaProva corsa({Senza90()});
    std::vector<Colonna> aColonne = Prime(25000);
    Scarta(aColonne, 100, 8000);
    corsa.avanzamento.eventi = [&corsa] { corsa.stato.bStopSviluppo = true; };
    const std::vector<Colonna> aTenute = corsa.Filtra(aColonne, kClasse);
    aColonne.resize(10000);
    EXPECT_EQ(aTenute, Buone(aColonne)) << "le tenute del buffer restano";
    EXPECT_THAT(corsa.avanzamento.aMostrati,
                ElementsAre(Aggiornamento{10000, 2100, 40}, Aggiornamento{10000, 2100, 40}));
}

TEST(ModFiltro, UnBufferOltreLUltimoBloccoAspettaLaFine)
{
    std::vector<Colonna> aColonne = Prime(15000);
    Scarta(aColonne, 6000, 13000);
    CorsaProva corsa({Senza90()});
    EXPECT_EQ(corsa.Filtra(aColonne, kClasse), Buone(aColonne));
    EXPECT_EQ(corsa.avanzamento.aMostrati.back(), (Aggiornamento{15000, 8000, 100}));
}

TEST(ModFiltro, UnBufferSottoLUltimoBloccoSiScriveAllaSuaSoglia)
{
    std::vector<Colonna> aColonne = Prime(15000);
    Scarta(aColonne, 3000, 10000);
    CorsaProva corsa({Senza90()});
    EXPECT_EQ(corsa.Filtra(aColonne, kClasse), Buone(aColonne));
    EXPECT_EQ(corsa.avanzamento.aMostrati.back(), (Aggiornamento{15000, 3000, 100}));
}

TEST(ModFiltro, UnBufferTroppoPienoFallisceELasciaQuantoScritto)
{
    std::vector<Colonna> aColonne = Prime(25000);
    Scarta(aColonne, 16000, 20000);
    CorsaProva corsa({Senza90()});
    const std::vector<Colonna> aTenute = corsa.Filtra(aColonne, kClasse);
    aColonne.resize(10000);
    EXPECT_EQ(aTenute, aColonne) << "il primo blocco era scritto";
    ASSERT_EQ(corsa.avanzamento.fallimenti.aMostrati.size(), std::size_t{1});
    EXPECT_EQ(corsa.avanzamento.fallimenti.aMostrati[0].sOrigine, "ModSistemiCond.FiltraFile");
    EXPECT_EQ(corsa.avanzamento.fallimenti.aMostrati[0].nNumero, 9);
    EXPECT_EQ(corsa.stato.nSviluppate, 24000);
    EXPECT_FALSE(corsa.stato.bStopSviluppo);
}

TEST(ModFiltro, UnaCondizioneCheFallisceFermaIlFiltroELoMostra)
{
    CorsaProva corsa({prove::ConParametro(prove::Lista(TipoCondizione::resto, {1}), 0)});
    EXPECT_THAT(corsa.Filtra(Prime(3), kClasse), IsEmpty());
    ASSERT_EQ(corsa.avanzamento.fallimenti.aMostrati.size(), std::size_t{1});
    EXPECT_EQ(corsa.avanzamento.fallimenti.aMostrati[0].nNumero, 11);
    EXPECT_THAT(corsa.avanzamento.aMostrati, IsEmpty());
}

TEST(ModFiltro, UnOrigineCheMancaSiMostra)
{
    const prove::CartellaProva cartella;
    StatoSviluppo stato;
    prove::AvanzamentoProva avanzamento;
    FileBinario file(cartella / "c", eApertura::scrittura);
    FiltraFile(cartella / "manca", 4, 4, file, stato, avanzamento);
    ASSERT_EQ(avanzamento.fallimenti.aMostrati.size(), std::size_t{1});
    EXPECT_EQ(avanzamento.fallimenti.aMostrati[0].nNumero, 53);
}

} // namespace
} // namespace ordavel
