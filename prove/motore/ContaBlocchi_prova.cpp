// ContaBlocchi_prova.cpp - columns counted without a file against those that a run keeps.

#include "motore/ContaBlocchi.hpp"

#include "comune/Fallimenti.hpp"
#include "comune/RecordProva.hpp"
#include "motore/CorsaCasuale.hpp"
#include "motore/CorsaProva.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <numeric>

namespace ordavel {
namespace {

using prove::Corsa;
using prove::CorsaProva;
using prove::Tra;

StatoSviluppo StatoDellaCorsa(const Corsa& corsa)
{
    StatoSviluppo stato = prove::StatoDi(corsa.aCondizioni);
    stato.aQuadroRec = corsa.aQuadro;
    stato.aEmulatore = corsa.aEmulatore;
    return stato;
}

/// Counts, with so much room for states.
std::optional<std::uint64_t> Conta(const Corsa& corsa, StatoSviluppo& stato, std::size_t nByte,
                                   eNucleo nucleo)
{
    const std::vector<std::uint8_t> aScelti(corsa.aScelti.begin(), corsa.aScelti.end());
    return ContaPassano({.aScelti = aScelti,
                         .nClasse = static_cast<std::int16_t>(corsa.nClasse),
                         .nTotale = 1,
                         .nucleo = nucleo,
                         .nByteAutomi = nByte},
                        stato, [] { return true; });
}

void ConfrontaConto(const Corsa& corsa, std::size_t nByte)
{
    CorsaProva prova;
    prova.stato = StatoDellaCorsa(corsa);
    StatoSviluppo stato = prova.stato;
    RC_PRE(BlocchiPossibili(corsa.aScelti.size(), static_cast<std::int16_t>(corsa.nClasse), stato));
    const auto nAtteso =
        prove::NumeroErrore([&] { prova.Sviluppa(corsa.aScelti, corsa.nClasse, 0, std::nullopt); });
    std::optional<std::uint64_t> nPassano;
    const auto nErrore = prove::NumeroErrore(
        [&] { nPassano = Conta(corsa, stato, nByte, *rc::gen::elementOf(prove::Nuclei())); });
    RC_ASSERT(nErrore == nAtteso);
    if (!nErrore) {
        RC_ASSERT(nPassano == static_cast<std::uint64_t>(prova.stato.nCondizionate));
        for (std::size_t i = 0; i < stato.aCondizioni.size(); ++i) {
            RC_ASSERT(stato.aCondizioni[i].ContaOk == prova.stato.aCondizioni[i].ContaOk);
            RC_ASSERT(stato.aCondizioni[i].ContaKo == prova.stato.aCondizioni[i].ContaKo);
            RC_ASSERT(stato.aCondizioni[i].ContaRec == prova.stato.aCondizioni[i].ContaRec);
        }
    }
}

RC_GTEST_PROP(ContaBlocchi, SistemiInteriComeUnaCorsa, ())
{
    ConfrontaConto(prove::CorsaCasuale(Tra(1, 40)), std::size_t{1} << 26);
}

RC_GTEST_PROP(ContaBlocchi, ConPocoPostoPerGliStatiComeUnaCorsa, ())
{
    ConfrontaConto(prove::CorsaCasuale(3), static_cast<std::size_t>(Tra(0, 100000)));
}

RC_GTEST_PROP(ContaBlocchi, SistemiGuastiComeUnaCorsa, ())
{
    Corsa corsa = prove::CorsaCasuale(3);
    prove::Guasta(corsa.aCondizioni);
    ConfrontaConto(corsa, std::size_t{1} << 26);
}

/// Sum 243 to 303, 3 odd numbers, at most one consecutive pair, over all numbers.
TEST(ContaBlocchi, ConteggiNotiDellaClasse6)
{
    std::vector<int> aScelti(static_cast<std::size_t>(kNumeroMassimo));
    std::iota(aScelti.begin(), aScelti.end(), 1);
    const Corsa corsa{.aScelti = aScelti,
                      .nClasse = 6,
                      .aCondizioni = {prove::Intervallo(TipoCondizione::peso, 243, 303), prove::Dispari({3}),
                                      prove::Lista(TipoCondizione::consecutivi, {0, 1})}};
    for (const eNucleo nucleo : prove::Nuclei()) {
        StatoSviluppo stato = StatoDellaCorsa(corsa);
        EXPECT_EQ(Conta(corsa, stato, std::size_t{1} << 28, nucleo), 72589877U);
        EXPECT_EQ(stato.aCondizioni[0].ContaOk, 230372738);
        EXPECT_EQ(stato.aCondizioni[1].ContaOk, 201356100);
        EXPECT_EQ(stato.aCondizioni[2].ContaOk, 601361145);
        EXPECT_EQ(stato.aCondizioni[2].ContaKo, 622614630 - 601361145);
    }
}

TEST(ContaBlocchi, ChiNonDeveAndareAvantiNonDàNulla)
{
    const Corsa corsa{.aScelti = prove::Fila(1, 60),
                      .nClasse = 6,
                      .aCondizioni = {prove::Dispari({3}), prove::Lista(TipoCondizione::ponte, {0, 1})}};
    const std::vector<std::uint8_t> aScelti(corsa.aScelti.begin(), corsa.aScelti.end());
    for (int nDomande = 0; nDomande < 500; nDomande += 37) {
        StatoSviluppo stato = StatoDellaCorsa(corsa);
        EXPECT_EQ(ContaPassano({.aScelti = aScelti, .nClasse = 6}, stato,
                               [n = nDomande]() mutable { return n-- > 0; }),
                  std::nullopt);
    }
}

} // namespace
} // namespace ordavel
