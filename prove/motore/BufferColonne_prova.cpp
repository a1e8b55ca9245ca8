// BufferColonne_prova.cpp - columns kept and not yet written.

#include "motore/BufferColonne.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"
#include "motore/CorsaProva.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace ordavel {
namespace {

using prove::ColonnaDi;
using prove::NumeroErrore;

/// A buffer in front of a file of its own.
class BufferColonneProva {
public:
    explicit BufferColonneProva(std::int16_t nLimite = 0)
        : m_File(m_Cartella / "c", eApertura::scrittura), buffer(m_File, 3, nLimite)
    {}

    /// Puts a column in the slot of the candidate; gives whether it survived, and keeps it then.
    bool Offri(const std::vector<int>& aNumeri, std::int32_t nSoglia = kColonneBuffer)
    {
        buffer.Candidata() = ColonnaDi(aNumeri).colonna;
        const bool bTenuta = buffer.SuperaRiduzione();
        if (bTenuta) {
            buffer.Tieni(nSoglia);
        }
        return bTenuta;
    }

    /// Keeps nQuante columns, numbered in their first two bytes.
    void Riempi(std::int32_t nQuante, std::int32_t nSoglia = kColonneBuffer)
    {
        for (std::int32_t i = 0; i < nQuante; ++i) {
            Offri({m_nProgressivo / 256, m_nProgressivo % 256}, nSoglia);
            ++m_nProgressivo;
        }
    }

    [[nodiscard]] std::int64_t Scritte() { return m_File.Lunghezza() / kByteColonna; }

    /// Are the columns of the file numbered from 0 on without a gap?
    [[nodiscard]] bool InOrdine()
    {
        std::vector<Colonna> aColonne(static_cast<std::size_t>(Scritte()));
        m_File.Leggi(1, std::as_writable_bytes(std::span(aColonne)));
        for (std::size_t i = 0; i < aColonne.size(); ++i) {
            if (aColonne[i].aNumeri[0] != i / 256 || aColonne[i].aNumeri[1] != i % 256) {
                return false;
            }
        }
        return true;
    }

private:
    prove::CartellaProva m_Cartella;
    FileBinario m_File;
    std::int32_t m_nProgressivo = 0;

public:
    BufferColonne buffer;
};

TEST(BufferColonne, DiecimilaColonneSiScrivonoSubito)
{
    BufferColonneProva prova;
    prova.Riempi(9999);
    EXPECT_EQ(prova.Scritte(), 0);
    EXPECT_EQ(prova.buffer.Indice(), 10000);
    prova.Riempi(1);
    EXPECT_EQ(prova.Scritte(), 10000);
    EXPECT_EQ(prova.buffer.Indice(), 1);
    prova.buffer.ScriviResto();
    EXPECT_EQ(prova.Scritte(), 10000) << "non resta nulla";
    EXPECT_TRUE(prova.InOrdine());
}

TEST(BufferColonne, IlRestoSiScriveDietroIBlocchi)
{
    BufferColonneProva prova;
    prova.Riempi(10003);
    EXPECT_EQ(prova.buffer.Indice(), 4);
    prova.buffer.ScriviResto();
    EXPECT_EQ(prova.Scritte(), 10003);
    EXPECT_TRUE(prova.InOrdine());
}

TEST(BufferColonne, UnBufferVuotoNonScrive)
{
    BufferColonneProva prova;
    prova.buffer.ScriviResto();
    EXPECT_EQ(prova.Scritte(), 0);
}

TEST(BufferColonne, LaSogliaMancataSiAspetta)
{
    BufferColonneProva prova;
    prova.Riempi(6);
    prova.Riempi(4, 5);
    EXPECT_EQ(prova.Scritte(), 0) << "il buffer ne aveva già più di cinque";
    prova.buffer.ScriviResto();
    EXPECT_EQ(prova.Scritte(), 10);
    EXPECT_TRUE(prova.InOrdine());
}

TEST(BufferColonne, LaSogliaRaggiuntaScriveESiRicomincia)
{
    BufferColonneProva prova;
    prova.Riempi(3);
    prova.Riempi(2, 5);
    EXPECT_EQ(prova.Scritte(), 5);
    EXPECT_EQ(prova.buffer.Indice(), 1);
}

TEST(BufferColonne, UnBufferPienoFallisce)
{
    BufferColonneProva prova;
    prova.Riempi(6);
    prova.Riempi(9994, 5);
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(prova.buffer.Candidata()); }), 9);
    EXPECT_EQ(prova.Scritte(), 0);
}

TEST(BufferColonne, LaRiduzioneGuardaSoloLUltimaTenuta)
{
    BufferColonneProva prova(2);
    EXPECT_TRUE(prova.Offri({1, 2, 3}));
    EXPECT_FALSE(prova.Offri({1, 2, 4})) << "due numeri in comune";
    EXPECT_TRUE(prova.Offri({1, 5, 6})) << "uno solo";
    EXPECT_TRUE(prova.Offri({1, 2, 3})) << "la prima non si guarda più";
}

TEST(BufferColonne, DopoUnaScritturaNonCEUnaPrima)
{
    BufferColonneProva prova(1);
    EXPECT_TRUE(prova.Offri({1, 2, 3}, 1));
    EXPECT_TRUE(prova.Offri({1, 2, 3}, 2)) << "il buffer è vuoto";
    EXPECT_FALSE(prova.Offri({1, 2, 3}, 2));
}

TEST(BufferColonne, UnLimiteNonSopra0TieneTutto)
{
    for (const std::int16_t nLimite : {std::int16_t{0}, std::int16_t{-3}}) {
        BufferColonneProva prova(nLimite);
        EXPECT_TRUE(prova.Offri({1, 2, 3}));
        EXPECT_TRUE(prova.Offri({1, 2, 3}));
    }
}

} // namespace
} // namespace ordavel
