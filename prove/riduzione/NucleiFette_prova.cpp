// NucleiFette_prova.cpp - the loops for every instruction set of this processor against plain counting.

#include "riduzione/NucleiFette.hpp"

#include <gtest/gtest.h>

#include <random>
#include <span>
#include <vector>

namespace ordavel {
namespace {

bool Bit(std::span<const std::uint64_t> aParole, std::size_t i)
{
    return ((aParole[i / 64] >> (i % 64)) & 1U) != 0;
}

class NucleiFetteProva : public testing::TestWithParam<std::uint8_t> {
protected:
    void SetUp() override
    {
        if (GetParam() > static_cast<std::uint8_t>(NucleoMigliore())) {
            // Not every processor has every instruction set.
            GTEST_SKIP() << "this processor lacks the instruction set";
        }
        m_Nuclei = &ScegliNuclei(static_cast<eNucleo>(GetParam()));
    }

    /// About nSuOtto bits of eight.
    Fetta Casuale(unsigned nSuOtto)
    {
        Fetta fetta{};
        for (std::size_t i = 0; i < kColonneFetta; ++i) {
            fetta[i / 64] |= std::uint64_t{m_Sorte() % 8 < nSuOtto ? 1U : 0U} << (i % 64);
        }
        return fetta;
    }

    std::mt19937 m_Sorte{7};
    const NucleiFette* m_Nuclei = nullptr;
};

TEST_P(NucleiFetteProva, GiudicaQuanteRigheBastano)
{
    for (std::size_t nCoppie = 1; nCoppie <= kCoppieRighe; ++nCoppie) {
        std::vector<Fetta> aFette;
        RigheFetta aRighe{};
        for (std::size_t k = 0; k < 2 * nCoppie; ++k) {
            aFette.push_back(Casuale(5));
        }
        for (std::size_t k = 0; k < 2 * nCoppie; ++k) {
            aRighe[k] = aFette[k].data();
        }
        std::vector<int> aComuni(kColonneFetta);
        for (std::size_t i = 0; i < kColonneFetta; ++i) {
            for (const Fetta& fetta : aFette) {
                aComuni[i] += Bit(fetta, i) ? 1 : 0;
            }
        }
        for (const std::int32_t nPunti :
             {-2147483647 - 1, -1, 0, 1, 2, 3, 5, 9, 15, 16, 17, 19, 20, 21, 31, 32, 33, 2147483647}) {
            Fetta verdetti;
            m_Nuclei->giudica[nCoppie - 1](aRighe, CreaSoglia(nPunti), verdetti);
            for (std::size_t i = 0; i < kColonneFetta; ++i) {
                ASSERT_EQ(Bit(verdetti, i), aComuni[i] >= nPunti)
                    << nCoppie << " coppie, punti " << nPunti << ", colonna " << i;
            }
        }
    }
}

TEST_P(NucleiFetteProva, ContaLeColonneCheStannoInTutteEDue)
{
    const Fetta prima = Casuale(4);
    const Fetta seconda = Casuale(3);
    std::int32_t nAttese = 0;
    for (std::size_t i = 0; i < kColonneFetta; ++i) {
        nAttese += Bit(prima, i) && Bit(seconda, i) ? 1 : 0;
    }
    EXPECT_EQ(m_Nuclei->conta(prima, seconda), nAttese);
}

TEST_P(NucleiFetteProva, AccumulaFinoAQuantoTengonoIContatori)
{
    ContatoriFetta contatori{};
    std::vector<std::size_t> aAttesi(kColonneFetta);
    for (std::size_t n = 0; n < kContatoreMassimo; ++n) {
        Fetta fetta = Casuale(4);
        fetta[1] = ~std::uint64_t{0};
        m_Nuclei->accumula(fetta, contatori);
        for (std::size_t i = 0; i < kColonneFetta; ++i) {
            aAttesi[i] += Bit(fetta, i) ? 1U : 0U;
        }
    }
    for (std::size_t i = 0; i < kColonneFetta; ++i) {
        std::size_t nContate = 0;
        for (std::size_t c = 0; c < kCifreContatori; ++c) {
            nContate |= std::size_t{Bit(contatori[c], i)} << c;
        }
        ASSERT_EQ(nContate, aAttesi[i]) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(DelProcessore, NucleiFetteProva, testing::Range(std::uint8_t{0}, std::uint8_t{3}));

} // namespace
} // namespace ordavel
