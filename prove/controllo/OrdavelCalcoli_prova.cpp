// OrdavelCalcoli_prova.cpp - the fifteen measures of a column, as a host asks the component for them.

#include "ordavel/Ordavel.hpp"

#include "calcoli/ModForma.hpp"
#include "calcoli/ModSimmetria.hpp"
#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/PiattaformaProva.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <ostream>

namespace ordavel {
namespace {

using prove::ColonnaDi;
using prove::ColonnaProva;
using prove::GeneraColonna;
using prove::GeneraParita;
using prove::NumeroErrore;
using testing::IsEmpty;

/// A measure of the component, the function that it stands for, and what it says of 3, 4, 6, 17, 19.
struct Misura {
    std::string_view sNome;
    std::int32_t (*membro)(std::int16_t, const Colonna&);
    std::int32_t (*libera)(std::int16_t, const Colonna&);
    std::int32_t nEsempio;

    friend std::ostream& operator<<(std::ostream& uscita, const Misura& m) { return uscita << m.sNome; }
};

constexpr auto kMisure = std::to_array<Misura>({
    {"CalcolaBaricentro", &Ordavel::CalcolaBaricentro, CalcolaBaricentro, 10},
    {"CalcolaPonte", &Ordavel::CalcolaPonte, CalcolaPonte, 2},
    {"CalcolaAmpiezza", &Ordavel::CalcolaAmpiezza, CalcolaAmpiezza, 16},
    {"CalcolaDistanzaMinima", &Ordavel::CalcolaDistanzaMinima, CalcolaDistanzaMinima, 1},
    {"CalcolaDistanzaMassima", &Ordavel::CalcolaDistanzaMassima, CalcolaDistanzaMassima, 11},
    {"CalcolaConsecutivi", &Ordavel::CalcolaConsecutivi, CalcolaConsecutivi, 1},
    {"CalcolaInterruzioniPD", &Ordavel::CalcolaInterruzioniPD, CalcolaInterruzioniPD, 2},
    {"CalcolaVorticeDiretto", &Ordavel::CalcolaVorticeDiretto, CalcolaVorticeDiretto, 4},
    {"CalcolaVorticeInverso", &Ordavel::CalcolaVorticeInverso, CalcolaVorticeInverso, 4},
    {"CalcolaSimmetrieDirette", &Ordavel::CalcolaSimmetrieDirette, CalcolaSimmetrieDirette, 1},
    {"CalcolaSimmetrieInverse", &Ordavel::CalcolaSimmetrieInverse, CalcolaSimmetrieInverse, 1},
    {"CalcolaParalleliDiretti", &Ordavel::CalcolaParalleliDiretti, CalcolaParalleliDiretti, 0},
    {"CalcolaParalleliInversi", &Ordavel::CalcolaParalleliInversi, CalcolaParalleliInversi, 2},
});

/// How a calculation ends: the number of its failure, or its value.
struct Esito {
    std::optional<int> nErrore;
    std::int32_t nValore = 0;
    std::int32_t nConsec = 0;

    [[nodiscard]] friend bool operator==(const Esito&, const Esito&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const Esito& e)
    {
        return uscita << "{errore " << e.nErrore.value_or(0) << ", " << e.nValore << ", " << e.nConsec << "}";
    }
};

template <typename Calcolo> Esito EsitoDi(Calcolo calcolo)
{
    Esito esito;
    esito.nErrore = NumeroErrore([&] { esito.nValore = calcolo(esito.nConsec); });
    return esito;
}

struct Banco {
    /// What the component says of a column, and what the function says.
    void Confronta(std::int16_t nClasse, const Colonna& colonna) const
    {
        for (const Misura& misura : kMisure) {
            const Esito chiesto = EsitoDi([&](auto&) { return misura.membro(nClasse, colonna); });
            const Esito atteso = EsitoDi([&](auto&) { return misura.libera(nClasse, colonna); });
            RC_ASSERT(chiesto == atteso);
        }
    }

    void ConfrontaSequenze(std::int16_t nClasse, const Colonna& colonna, std::string_view sSeq) const
    {
        RC_ASSERT(EsitoDi([&](auto&) { return sistema.CalcolaSequenze(nClasse, colonna, sSeq); }) ==
                  EsitoDi([&](auto&) { return CalcolaSequenze(nClasse, colonna, sSeq); }));
        RC_ASSERT(EsitoDi([&](auto& nConsec) {
                      return sistema.CalcolaPuntiSequenze(nClasse, colonna, sSeq, nConsec);
                  }) == EsitoDi([&](auto& nConsec) {
                      return CalcolaPuntiSequenze(nClasse, colonna, sSeq, nConsec);
                  }));
    }

    prove::PiattaformaProva piattaforma;
    Ordavel sistema{piattaforma};
};

/// Any bytes at all.
Colonna GeneraByte()
{
    Colonna colonna;
    for (std::uint8_t& nByte : colonna.aNumeri) {
        nByte = *rc::gen::arbitrary<std::uint8_t>();
    }
    return colonna;
}

RC_GTEST_PROP(OrdavelCalcoliCasuali, DiUnaColonnaDiconoQuelCheDiconoLeFunzioni, ())
{
    const ColonnaProva c = *GeneraColonna();
    Banco().Confronta(c.nClasse, c.colonna);
}

RC_GTEST_PROP(OrdavelCalcoliCasuali, AncheIFallimentiSonoGliStessi, ())
{
    Banco().Confronta(*rc::gen::inRange<std::int16_t>(-3, 25), GeneraByte());
}

RC_GTEST_PROP(OrdavelCalcoliCasuali, LeSequenzeSonoQuelleDelleFunzioni, ())
{
    const ColonnaProva c = *GeneraColonna();
    Banco().ConfrontaSequenze(c.nClasse, c.colonna, *GeneraParita(6));
}

RC_GTEST_PROP(OrdavelCalcoliCasuali, AncheNelleSequenzeIFallimentiSonoGliStessi, ())
{
    const auto nClasse = *rc::gen::inRange<std::int16_t>(-3, 25);
    Banco().ConfrontaSequenze(nClasse, GeneraByte(), *GeneraParita(100));
}

class OrdavelCalcoli : public testing::TestWithParam<Misura>, protected Banco {
protected:
    [[nodiscard]] std::int32_t Chiedi(std::int16_t nClasse, const std::vector<int>& aNumeri) const
    {
        return GetParam().membro(nClasse, ColonnaDi(aNumeri).colonna);
    }
};

TEST_P(OrdavelCalcoli, DiUnEsempioConLaMano)
{
    EXPECT_EQ(Chiedi(5, {3, 4, 6, 17, 19}), GetParam().nEsempio);
}

TEST_P(OrdavelCalcoli, UnaClasseOltreVentiFallisceSenzaFinestre)
{
    EXPECT_EQ(NumeroErrore([&] { (void)Chiedi(21, {1, 2}); }), 9);
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Tutte, OrdavelCalcoli, testing::ValuesIn(kMisure),
                         [](const auto& caso) { return std::string(caso.param.sNome); });

class OrdavelCalcoliFallimenti : public testing::Test, protected Banco {};

TEST_F(OrdavelCalcoliFallimenti, ArrivanoAChiChiede)
{
    const Colonna discende = ColonnaDi({5, 3}).colonna;
    EXPECT_EQ(NumeroErrore([&] { (void)sistema.CalcolaBaricentro(0, discende); }), 11);
    EXPECT_EQ(NumeroErrore([&] { (void)sistema.CalcolaAmpiezza(0, discende); }), 9);
    EXPECT_EQ(NumeroErrore([&] { (void)sistema.CalcolaAmpiezza(2, discende); }), 6);
    EXPECT_EQ(NumeroErrore([&] { (void)sistema.CalcolaDistanzaMinima(2, discende); }), 6);
    EXPECT_EQ(NumeroErrore([&] { (void)sistema.CalcolaDistanzaMassima(2, discende); }), 6);
    EXPECT_EQ(NumeroErrore([&] { (void)sistema.CalcolaSequenze(2, discende, std::string(91, 'P')); }), 9);
}

TEST_F(OrdavelCalcoliFallimenti, UnFallimentoLasciaLaCatenaComeEra)
{
    std::int32_t nConsec = 77;
    const Colonna colonna = ColonnaDi({3, 5}).colonna;
    EXPECT_EQ(
        NumeroErrore([&] { (void)sistema.CalcolaPuntiSequenze(2, colonna, std::string(91, 'P'), nConsec); }),
        9);
    EXPECT_EQ(NumeroErrore([&] { (void)sistema.CalcolaPuntiSequenze(21, colonna, "P", nConsec); }), 9);
    EXPECT_EQ(nConsec, 77);
}

TEST_F(OrdavelCalcoliFallimenti, LeSequenzeDiUnEsempio)
{
    std::int32_t nConsec = 0;
    const Colonna colonna = ColonnaDi({2, 4, 7, 8, 10}).colonna;
    EXPECT_EQ(sistema.CalcolaSequenze(5, colonna, "P"), 4);
    EXPECT_EQ(sistema.CalcolaPuntiSequenze(5, colonna, "P", nConsec), 4);
    EXPECT_EQ(nConsec, 2);
}

} // namespace
} // namespace ordavel
