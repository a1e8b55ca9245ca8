// LunghezzeMaschere_prova.cpp - masks of every length: from no pick to ninety, where they pass from one word to two.

#include "comune/RecordProva.hpp"
#include "motore/Automa.hpp"
#include "motore/CorsaProva.hpp"

#include <gtest/gtest.h>

#include <bitset>
#include <cstddef>

namespace ordavel {
namespace {

constexpr std::size_t kBit = 128;
using Bit = std::bitset<kBit>;

/// A mask, bit by bit.
Bit BitDi(Maschera maschera)
{
    return (Bit(maschera.nAlta) << 64) | Bit(maschera.nBassa);
}

TEST(LunghezzeMaschere, OgniPostoHaIlSuoBit)
{
    for (std::size_t nScelti = 1; nScelti <= kNumeroMassimo; ++nScelti) {
        for (std::size_t nPosto = 0; nPosto < nScelti; ++nPosto) {
            Bit atteso;
            atteso.set(nScelti - 1 - nPosto);
            ASSERT_EQ(BitDi(BitDelPosto(nScelti, nPosto)), atteso) << nPosto << " di " << nScelti;
        }
    }
}

TEST(LunghezzeMaschere, SopraUnPostoStannoQuelliCheLoSeguono)
{
    for (std::size_t nScelti = 1; nScelti <= kNumeroMassimo; ++nScelti) {
        for (std::size_t nPosto = 0; nPosto < nScelti; ++nPosto) {
            Bit attesi;
            for (std::size_t n = nPosto + 1; n < nScelti; ++n) {
                attesi |= BitDi(BitDelPosto(nScelti, n));
            }
            ASSERT_EQ(BitDi(PostiSopra(nScelti, nPosto)), attesi) << nPosto << " di " << nScelti;
        }
    }
}

TEST(LunghezzeMaschere, VuotaSoloQuellaDiZeroPosti)
{
    EXPECT_TRUE(Maschera{}.Vuota());
    for (std::size_t nScelti = 1; nScelti <= kNumeroMassimo; ++nScelti) {
        EXPECT_TRUE(PostiSopra(nScelti, nScelti - 1).Vuota()) << nScelti;
        EXPECT_FALSE(BitDelPosto(nScelti, 0).Vuota()) << nScelti;
    }
}

/// Every how many picks a run is made, and of which class.
struct Lunghezze {
    int nClasse;
    int nPassoScelti;
    int nLimite;
};

class CorseDiOgniLunghezza : public testing::TestWithParam<Lunghezze> {
protected:
    /// A pair, a list and a range, one of them recovered: none passes all columns, and together they keep some.
    static std::vector<RecordCondizione> Condizioni()
    {
        RecordCondizione peso = prove::Intervallo(TipoCondizione::ampiezza, 3, 60, 61, 89);
        peso.IdRecupero = 1;
        return {peso, prove::Dispari({0, 1, 2}), prove::Sequenza({1, 0}, {0}, {1})};
    }

    /// The columns of a run; its state stays in m_Stato.
    std::vector<Colonna> Sviluppa(int nScelti, std::optional<eNucleo> nucleo)
    {
        prove::CorsaProva corsa(Condizioni());
        corsa.stato.aQuadroRec[1] = {.Attiva = kVero, .MinPunti = 1, .MaxPunti = 1};
        // The highest numbers, so that the last of them is always 90.
        auto aColonne = corsa.Sviluppa(prove::Fila(kNumeroMassimo + 1 - nScelti, kNumeroMassimo),
                                       GetParam().nClasse, GetParam().nLimite, nucleo);
        m_aRecord = corsa.stato.aCondizioni;
        m_aMostrati = corsa.avanzamento.aMostrati;
        return aColonne;
    }

    std::vector<RecordCondizione> m_aRecord;
    std::vector<prove::Aggiornamento> m_aMostrati;
};

TEST_P(CorseDiOgniLunghezza, ComeLaFormaPiana)
{
    for (int nScelti = GetParam().nClasse; nScelti <= kNumeroMassimo; nScelti += GetParam().nPassoScelti) {
        const auto aColonne = Sviluppa(nScelti, std::nullopt);
        const auto aRecord = m_aRecord;
        const auto aMostrati = m_aMostrati;
        for (int n = 0; n <= static_cast<int>(CercaNucleo()); ++n) {
            SCOPED_TRACE(std::to_string(nScelti) + " numeri, nucleo " +
                         std::string(NomeNucleo(static_cast<eNucleo>(n))));
            ASSERT_EQ(Sviluppa(nScelti, static_cast<eNucleo>(n)), aColonne);
            ASSERT_EQ(m_aRecord, aRecord);
            ASSERT_EQ(m_aMostrati, aMostrati);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(LunghezzeMaschere, CorseDiOgniLunghezza,
                         testing::Values(Lunghezze{2, 1, 0}, Lunghezze{2, 1, 1}, Lunghezze{3, 7, 0}),
                         [](const auto& caso) {
                             return "Classe" + std::to_string(caso.param.nClasse) + "Limite" +
                                    std::to_string(caso.param.nLimite);
                         });

} // namespace
} // namespace ordavel
