// DoppioControllo_prova.cpp - faults put into a run on purpose, each of which the second opinion must find.

#include "motore/DoppioControllo.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/RecordProva.hpp"
#include "motore/CorsaProva.hpp"
#include "motore/ModVerifica.hpp"

#include <gmock/gmock.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace ordavel {
namespace {

using prove::Intervallo;
using testing::AllOf;
using testing::HasSubstr;

constexpr std::int16_t kClasse = 4;

/// What a fault may do to a run: by default nothing.
struct Guasto {
    /// How often a column that passes is handed over, and whether one that does not is.
    std::function<int(std::int64_t nColonna, bool bPassa)> quante =
        [](std::int64_t /*nColonna*/, bool bPassa) { return bPassa ? 1 : 0; };
    std::function<void(StatoSviluppo&)> dopo = nullptr; ///< before the comparison at the end
};

class DoppioControlloProva : public testing::Test {
protected:
    DoppioControlloProva()
    {
        RecordCondizione recuperabile = prove::Recuperabile(1);
        recuperabile.RecMax = 9;
        stato = prove::StatoDi({Intervallo(TipoCondizione::peso, 20, 34), prove::Dispari({1, 2, 3}),
                                prove::Sequenza({1, 0}, {0}, {1}), recuperabile});
        stato.aCondizioni[2].IdRecupero = 1;
        stato.aQuadroRec[1] = {.Attiva = kVero, .MinPunti = 1, .MaxPunti = 2};
    }

    /// A run over all columns, compared at each nPasso-th of them and at the end.
    void Corri(const Guasto& guasto = {}, std::int64_t nPasso = 50)
    {
        DoppioControllo controllo(aNumeri, kClasse, stato);
        Enumeratore enumeratore(aNumeri, kClasse);
        std::int64_t nColonna = 0;
        do {
            Colonna colonna;
            enumeratore.Componi(colonna);
            ++nColonna;
            const bool bPassa = VerificaColonna(kClasse, colonna, stato);
            nPassate += bPassa ? 1 : 0;
            for (int n = guasto.quante(nColonna, bPassa); n > 0; --n) {
                controllo.Passa(colonna);
            }
            if (nColonna % nPasso == 0) {
                controllo.Confronta(stato, nColonna);
            }
        } while (enumeratore.Avanza());
        if (guasto.dopo) {
            guasto.dopo(stato);
        }
        controllo.Concludi(stato, nColonna);
    }

    /// What the second opinion says of a faulty run.
    std::string Detto(const Guasto& guasto)
    {
        try {
            Corri(guasto);
        } catch (const std::logic_error& errore) {
            return errore.what();
        }
        return "nessuna differenza";
    }

    std::string DettoDopo(const std::function<void(RecordCondizione&)>& guasta, std::size_t nCondizione)
    {
        return Detto({.dopo = [&](StatoSviluppo& s) { guasta(s.aCondizioni[nCondizione]); }});
    }

    NumeriScelti aNumeri = prove::Pronostico(prove::Fila(1, 11)); // 330 columns
    StatoSviluppo stato;
    int nPassate = 0;
};

TEST_F(DoppioControlloProva, UnaCorsaGiustaNonHaDifferenze)
{
    EXPECT_NO_THROW(Corri());
    EXPECT_GT(nPassate, 10);
    EXPECT_LT(nPassate, 320);
}

TEST_F(DoppioControlloProva, UnaColonnaPersaSiTrova)
{
    std::int64_t nPersa = 0;
    const std::string sDetto = Detto({.quante = [&](std::int64_t nColonna, bool bPassa) {
        if (bPassa && nPersa == 0 && nColonna > 120) {
            nPersa = nColonna;
            return 0;
        }
        return bPassa ? 1 : 0;
    }});
    EXPECT_THAT(sDetto, HasSubstr("manca la colonna " + std::to_string(nPersa) + ": "));
}

TEST_F(DoppioControlloProva, LUltimaColonnaPersaSiTrova)
{
    // Nothing is handed over any more behind the middle.
    EXPECT_THAT(Detto({.quante = [](std::int64_t nColonna,
                                    bool bPassa) { return bPassa && nColonna < 150 ? 1 : 0; }}),
                HasSubstr("manca la colonna"));
}

TEST_F(DoppioControlloProva, UnaColonnaDiTroppoSiTrova)
{
    std::int64_t nTroppa = 0;
    const std::string sDetto = Detto({.quante = [&](std::int64_t nColonna, bool bPassa) {
        if (!bPassa && nTroppa == 0 && nColonna > 120) {
            nTroppa = nColonna;
            return 1;
        }
        return bPassa ? 1 : 0;
    }});
    EXPECT_THAT(sDetto, HasSubstr("è di troppo la colonna " + std::to_string(nTroppa) + ": "));
}

TEST_F(DoppioControlloProva, UnaColonnaRipetutaSiTrova)
{
    std::int64_t nRipetuta = 0;
    const std::string sDetto = Detto({.quante = [&](std::int64_t nColonna, bool bPassa) {
        if (bPassa && nRipetuta == 0) {
            nRipetuta = nColonna;
            return 2;
        }
        return bPassa ? 1 : 0;
    }});
    EXPECT_THAT(sDetto, testing::AnyOf(HasSubstr("manca la colonna"), HasSubstr("che non passa")));
}

TEST_F(DoppioControlloProva, UnaColonnaInventataSiTrova)
{
    DoppioControllo controllo(aNumeri, kClasse, stato);
    controllo.Passa(prove::ColonnaDi({1, 2, 3, 90}).colonna);
    EXPECT_THROW(controllo.Confronta(stato, 0), std::logic_error);
}

TEST_F(DoppioControlloProva, UnConteggioSbagliatoSiTrova)
{
    EXPECT_THAT(DettoDopo([](RecordCondizione& r) { r.ContaOk += 1; }, 0),
                AllOf(HasSubstr("condizione 1 (Peso): ContaOk vale "), HasSubstr("colonna 330: 8 9 10 11")));
    EXPECT_THAT(DettoDopo([](RecordCondizione& r) { r.ContaKo -= 1; }, 1),
                HasSubstr("condizione 2 (Pari-Dispari): ContaKo"));
    EXPECT_THAT(DettoDopo([](RecordCondizione& r) { r.ContaRec += 1; }, 2),
                HasSubstr("condizione 3 (Sequenze): ContaRec"));
}

TEST_F(DoppioControlloProva, UnVerdettoVecchioSiTrova)
{
    EXPECT_THAT(DettoDopo([](RecordCondizione& r) { r.Esito = ComeBooleano(r.Esito == kFalso); }, 1),
                HasSubstr("condizione 2 (Pari-Dispari): Esito vale"));
    EXPECT_THAT(DettoDopo([](RecordCondizione& r) { r.EsitoRec = ComeBooleano(r.EsitoRec == kFalso); }, 2),
                HasSubstr("condizione 3 (Sequenze): EsitoRec vale"));
    EXPECT_THAT(DettoDopo([](RecordCondizione& r) { r.Valore += 1; }, 0),
                HasSubstr("(Peso): Valore vale 39 invece di 38"));
    EXPECT_THAT(DettoDopo([](RecordCondizione& r) { r.Valore2 += 1; }, 2),
                HasSubstr("(Sequenze): Valore2 vale"));
}

TEST_F(DoppioControlloProva, ISoliContiNonGuardanoGliUltimiValori)
{
    DoppioControllo controllo(aNumeri, kClasse, stato);
    stato.aCondizioni[0].Valore = 1000;
    EXPECT_NO_THROW(controllo.Confronta(stato, 0, eConfronto::soliConti));
    EXPECT_THROW(controllo.Confronta(stato, 0), std::logic_error);
    stato.aCondizioni[0].ContaOk = 1;
    EXPECT_THROW(controllo.Confronta(stato, 0, eConfronto::soliConti), std::logic_error);
}

TEST_F(DoppioControlloProva, UnFallimentoMancatoSiTrova)
{
    stato.aCondizioni.push_back(prove::ConParametro(prove::Lista(TipoCondizione::resto, {0}), 0));
    DoppioControllo controllo(aNumeri, kClasse, stato);
    try {
        controllo.Confronta(stato, 1);
        FAIL() << "nessuna differenza";
    } catch (const std::logic_error& errore) {
        EXPECT_THAT(errore.what(),
                    AllOf(HasSubstr("manca il fallimento \"11- "), HasSubstr("colonna 1: 1 2 3 4")));
    }
}

/// A run of three columns without conditions.
class DoppioControlloDiTreColonne : public testing::Test {
protected:
    DoppioControlloDiTreColonne() { stato.aCondizioni[0].Esito = kVero; }

    void Passa(int nUno, int nDue) { controllo.Passa(prove::ColonnaDi({nUno, nDue}).colonna); }

    /// What the second opinion says of an operation on it.
    static std::string Detto(const std::function<void()>& operazione)
    {
        try {
            operazione();
        } catch (const std::logic_error& errore) {
            return errore.what();
        }
        return {};
    }

    DoppioControllo controllo{prove::Pronostico({1, 2, 3}), 2, prove::StatoDi({})};
    StatoSviluppo stato; ///< as the block form leaves it
};

TEST_F(DoppioControlloDiTreColonne, TroppeOTroppoPocheEsaminateSiTrovano)
{
    Passa(1, 2);
    Passa(1, 3);
    Passa(2, 3);
    EXPECT_EQ(Detto([&] { controllo.Confronta(stato, 3); }), "");
    EXPECT_EQ(Detto([&] { controllo.Concludi(stato, 3); }), "");
    EXPECT_THAT(Detto([&] { controllo.Confronta(stato, 2); }), HasSubstr("erano 3 e sono 2"));
    EXPECT_THAT(Detto([&] { controllo.Confronta(stato, 4); }),
                HasSubstr("oltre l'ultima colonna, la colonna 3: 2 3"));
}

TEST_F(DoppioControlloDiTreColonne, UnaFineAnticipataSiTrova)
{
    Passa(1, 2);
    EXPECT_EQ(Detto([&] { controllo.Confronta(stato, 1); }), "");
    EXPECT_THAT(Detto([&] { controllo.Concludi(stato, 1); }), HasSubstr("finisce prima dell'ultima colonna"));
}

TEST_F(DoppioControlloProva, CondizioniDiTroppoSiTrovano)
{
    DoppioControllo controllo(aNumeri, kClasse, stato);
    stato.aCondizioni.emplace_back();
    EXPECT_THROW(controllo.Confronta(stato, 0), std::logic_error);
}

} // namespace
} // namespace ordavel
