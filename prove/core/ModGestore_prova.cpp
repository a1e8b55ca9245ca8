// ModGestore_prova.cpp - failures trapped and shown.

#include "core/ModGestore.hpp"

#include "comune/Fallimenti.hpp"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace ordavel {
namespace {

using prove::SegnalatoreProva;

TEST(ModGestore, UnOperazioneRiuscitaNonMostraNulla)
{
    SegnalatoreProva segnalatore;
    bool bEseguita = false;
    EXPECT_TRUE(ConGestore(segnalatore, "Modulo.Nome", [&] { bEseguita = true; }));
    EXPECT_TRUE(bEseguita);
    EXPECT_TRUE(segnalatore.aMostrati.empty());
}

TEST(ModGestore, UnFallimentoSiMostraSottoLaSuaOrigine)
{
    SegnalatoreProva segnalatore;
    EXPECT_FALSE(ConGestore(segnalatore, "Modulo.Nome", [] { throw Errore(eErrore::overflow, 30); }));
    ASSERT_EQ(segnalatore.aMostrati.size(), 1U);
    EXPECT_EQ(segnalatore.aMostrati[0].sOrigine, "Modulo.Nome");
    EXPECT_EQ(segnalatore.aMostrati[0].sTesto, "6- Numero troppo grande Linea errore 30");
}

TEST(ModGestore, LaMemoriaCheMancaEIlFallimento7)
{
    SegnalatoreProva segnalatore;
    EXPECT_FALSE(ConGestore(segnalatore, "Uno", [] { throw std::bad_alloc(); }));
    EXPECT_FALSE(ConGestore(segnalatore, "Due", [] { throw std::length_error("troppo"); }));
    ASSERT_EQ(segnalatore.aMostrati.size(), 2U);
    EXPECT_EQ(segnalatore.aMostrati[0].nNumero, 7);
    EXPECT_EQ(segnalatore.aMostrati[1].nNumero, 7);
}

TEST(ModGestore, UnDifettoNostroNonSiNasconde)
{
    SegnalatoreProva segnalatore;
    EXPECT_THROW(ConGestore(segnalatore, "Uno", [] { throw std::logic_error("difetto"); }), std::logic_error);
    EXPECT_TRUE(segnalatore.aMostrati.empty());
}

} // namespace
} // namespace ordavel
