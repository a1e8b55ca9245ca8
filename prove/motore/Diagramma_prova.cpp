// Diagramma_prova.cpp - sets of columns as diagrams, against the same sets written out.

#include "motore/Diagramma.hpp"

#include "comune/GeneratoriSistema.hpp"
#include "core/ModBinomiali.hpp"
#include "motore/ContaCondizione.hpp"
#include "motore/CorsaProva.hpp"
#include "motore/ModVerifica.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <utility>
#include <vector>

namespace ordavel {
namespace {

using prove::Tra;

constexpr std::size_t kNodi = 1'000'000;

/// Picks and a class, with all columns by their places.
struct Spazio {
    Spazio(std::size_t nQuanti, std::size_t nNumeri) : nClasse(nNumeri)
    {
        for (std::size_t i = 0; i < nQuanti; ++i) {
            aScelti.push_back(static_cast<std::uint8_t>(3 * i + 2));
        }
        std::vector<std::size_t> aPosti;
        Riempi(aPosti, 0);
    }

    void Riempi(std::vector<std::size_t>& aPosti, std::size_t nDa)
    {
        if (aPosti.size() == nClasse) {
            aColonne.push_back(aPosti);
            return;
        }
        for (std::size_t i = nDa; i < aScelti.size(); ++i) {
            aPosti.push_back(i);
            Riempi(aPosti, i + 1);
            aPosti.pop_back();
        }
    }

    [[nodiscard]] Colonna ColonnaDi(const std::vector<std::size_t>& aPosti) const
    {
        Colonna colonna;
        for (std::size_t k = 0; k < nClasse; ++k) {
            colonna.aNumeri[k] = aScelti[aPosti[k]];
        }
        return colonna;
    }

    [[nodiscard]] Automa AutomaDi(const RecordCondizione& record) const
    {
        Automa automa(record, static_cast<std::int16_t>(nClasse), aScelti, StatoSviluppo());
        EXPECT_TRUE(automa.Prepara(kNodi * 100));
        return automa;
    }

    std::size_t nClasse;
    std::vector<std::uint8_t> aScelti;
    std::vector<std::vector<std::size_t>> aColonne;
};

Spazio SpazioCasuale()
{
    const auto nClasse = static_cast<std::size_t>(Tra(2, 6));
    return {nClasse + static_cast<std::size_t>(Tra(0, 6)), nClasse};
}

/// A condition with keys.
RecordCondizione RecordCasuale(std::size_t nClasse)
{
    const auto n = static_cast<std::int16_t>(nClasse);
    RecordCondizione record = prove::Compila(*prove::GenCondizione(n));
    while (FormaChiave(record.Tipo) == eChiave::nessuna) {
        record = prove::Compila(*prove::GenCondizione(n));
    }
    return record;
}

/// What the plain form says of a column.
std::pair<bool, bool> Giudica(const Spazio& spazio, const RecordCondizione& record,
                              const std::vector<std::size_t>& aPosti)
{
    StatoSviluppo stato;
    stato.aCondizioni = {record};
    ValutaCondizioni(static_cast<std::int16_t>(spazio.nClasse), spazio.ColonnaDi(aPosti), stato);
    return {stato.aCondizioni[0].Esito != kFalso, stato.aCondizioni[0].EsitoRec != kFalso};
}

/// Every column has the value that a function gives it, and the count is that of the values other than 0.
void Confronta(Diagrammi& diagrammi, const Spazio& spazio, Diagramma a,
               const std::function<Diagramma(const std::vector<std::size_t>&)>& valore)
{
    std::int64_t nAttese = 0;
    for (const auto& aPosti : spazio.aColonne) {
        const Diagramma nAtteso = valore(aPosti);
        RC_ASSERT(diagrammi.Valore(a, aPosti) == nAtteso);
        nAttese += nAtteso != 0 ? 1 : 0;
    }
    RC_ASSERT(diagrammi.Conta(a) == nAttese);
}

struct Stanza {
    explicit Stanza(const Spazio& spazio) : diagrammi(spazio.aScelti.size(), spazio.nClasse, kNodi, guardia)
    {}

    GuardiaConteggio guardia;
    Diagrammi diagrammi;
};

RC_GTEST_PROP(Diagramma, UnaCondizioneComeLaFormaPiana, ())
{
    const Spazio spazio = SpazioCasuale();
    const RecordCondizione record = RecordCasuale(spazio.nClasse);
    Automa automa = spazio.AutomaDi(record);
    RC_PRE(!automa.RottiDa(Automa::kIniziale, 0));
    Stanza stanza(spazio);
    const Diagramma ok = stanza.diagrammi.Passano(automa);
    const Diagramma rec = stanza.diagrammi.Recuperano(automa);
    Confronta(stanza.diagrammi, spazio, ok,
              [&](const auto& aPosti) { return Giudica(spazio, record, aPosti).first ? 1U : 0U; });
    Confronta(stanza.diagrammi, spazio, rec,
              [&](const auto& aPosti) { return Giudica(spazio, record, aPosti).second ? 1U : 0U; });
}

/// Three sets as bits of one number, column by column.
struct Tre {
    explicit Tre(const Spazio& spazio) : stanza(spazio)
    {
        for (Diagramma& insieme : aInsiemi) {
            Automa automa = spazio.AutomaDi(RecordCasuale(spazio.nClasse));
            RC_PRE(!automa.RottiDa(Automa::kIniziale, 0));
            insieme = stanza.diagrammi.Passano(automa);
        }
    }

    [[nodiscard]] Diagramma Quanti(const std::vector<std::size_t>& aPosti) const
    {
        return Di(0, aPosti) + Di(1, aPosti) + Di(2, aPosti);
    }
    [[nodiscard]] Diagramma Di(std::size_t i, const std::vector<std::size_t>& aPosti) const
    {
        return stanza.diagrammi.Valore(aInsiemi[i], aPosti);
    }

    Stanza stanza;
    std::array<Diagramma, 3> aInsiemi{};
};

RC_GTEST_PROP(Diagramma, LeOperazioniColonnaPerColonna, ())
{
    const Spazio spazio = SpazioCasuale();
    Tre tre(spazio);
    Diagrammi& d = tre.stanza.diagrammi;
    const auto [a, b, c] = tre.aInsiemi;
    Confronta(d, spazio, d.E(a, b), [&](const auto& p) { return tre.Di(0, p) & tre.Di(1, p); });
    Confronta(d, spazio, d.Oppure(a, b), [&](const auto& p) { return tre.Di(0, p) | tre.Di(1, p); });
    const Diagramma somma = d.Somma(d.Somma(a, b, 9), c, 9);
    Confronta(d, spazio, somma, [&](const auto& p) { return tre.Quanti(p); });
    Confronta(d, spazio, d.Somma(d.Somma(a, b, 2), c, 2),
              [&](const auto& p) { return std::min(tre.Quanti(p), Diagramma{2}); });
    Confronta(d, spazio, d.Dove(somma, [](Diagramma n) { return n == 0 || n == 2; }),
              [&](const auto& p) { return tre.Quanti(p) % 2 == 0 ? 1U : 0U; });
    Confronta(d, spazio, d.Tutti({a, b, c}), [&](const auto& p) { return tre.Quanti(p) == 3 ? 1U : 0U; });
}

RC_GTEST_PROP(Diagramma, InsiemiUgualiHannoLaStessaRadice, ())
{
    const Spazio spazio = SpazioCasuale();
    Tre tre(spazio);
    Diagrammi& d = tre.stanza.diagrammi;
    const auto [a, b, c] = tre.aInsiemi;
    RC_ASSERT(d.E(a, b) == d.E(b, a));
    RC_ASSERT(d.E(a, d.E(b, c)) == d.E(d.E(a, b), c));
    RC_ASSERT(d.Oppure(a, d.E(a, b)) == a);
    RC_ASSERT(d.E(a, d.Oppure(b, c)) == d.Oppure(d.E(a, b), d.E(a, c)));
    RC_ASSERT(d.Dove(d.Somma(a, b, 9), [](Diagramma n) { return n == 2; }) == d.E(a, b));
    const Diagramma contrario = d.Dove(a, [](Diagramma n) { return n == 0; });
    RC_ASSERT(d.E(a, contrario) == 0U);
    RC_ASSERT(d.Oppure(a, contrario) == 1U);
}

TEST(Diagramma, TutteENessuna)
{
    const Spazio spazio(8, 3);
    Stanza stanza(spazio);
    EXPECT_EQ(stanza.diagrammi.Conta(1), 56);
    EXPECT_EQ(stanza.diagrammi.Conta(0), 0);
    EXPECT_EQ(stanza.diagrammi.Tutti({}), 1U);
    EXPECT_EQ(stanza.diagrammi.Nodi(), 0U);
}

TEST(Diagramma, OltreIlPostoConcessoFinisce)
{
    const Spazio spazio(30, 4);
    GuardiaConteggio guardia;
    Diagrammi diagrammi(30, 4, 5, guardia);
    Automa automa =
        spazio.AutomaDi(prove::Compila(Condizione{"Peso", "Caselle :\r\n1-2-3-4", "150-180", "-", " "}));
    EXPECT_THROW(static_cast<void>(diagrammi.Passano(automa)), TroppiNodi);
}

TEST(Diagramma, ChiAnnullaLoFerma)
{
    const Spazio spazio(60, 4);
    int nVolte = 0;
    GuardiaConteggio guardia([&] { return ++nVolte == 3; });
    Diagrammi diagrammi(60, 4, kNodi, guardia);
    Automa automa =
        spazio.AutomaDi(prove::Compila(Condizione{"Peso", "Caselle :\r\n1-2-3-4", "150-380", "-", " "}));
    EXPECT_THROW(static_cast<void>(diagrammi.Passano(automa)), ConteggioAnnullato);
}

TEST(Diagramma, Combinazioni)
{
    EXPECT_EQ(Combinazioni(90, 5), 43949268);
    EXPECT_EQ(Combinazioni(90, 10), 5720645481903);
    EXPECT_EQ(Combinazioni(4, 5), 0);
    EXPECT_EQ(Combinazioni(0, 0), 1);
    EXPECT_EQ(Combinazioni(10, 10), 1);
}

} // namespace
} // namespace ordavel
