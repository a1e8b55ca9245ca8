// ContiAutoma_prova.cpp - counts by position against the columns one by one.

#include "motore/ContiAutoma.hpp"

#include "comune/RecordProva.hpp"
#include "core/ModBinomiali.hpp"
#include "motore/CorsaCasuale.hpp"
#include "motore/ModVerifica.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <functional>

namespace ordavel {
namespace {

using prove::Corsa;

constexpr std::size_t kMoltiByte = std::size_t{1} << 26;

/// Every column of a run in order, by places.
void PerOgniColonna(std::size_t nScelti, std::size_t nClasse,
                    const std::function<void(const PostiColonna&)>& azione)
{
    PostiColonna aPosti{};
    const std::function<void(std::size_t, std::size_t)> scendi = [&](std::size_t k, std::size_t nDa) {
        if (k == nClasse) {
            azione(aPosti);
            return;
        }
        for (std::size_t p = nDa; p < nScelti; ++p) {
            aPosti[k] = p;
            scendi(k + 1, p + 1);
        }
    };
    scendi(0, 0);
}

/// The one condition of a run, judged by the plain form.
class Prova {
public:
    explicit Prova(const Corsa& corsa)
        : aScelti(corsa.aScelti.begin(), corsa.aScelti.end()),
          nClasse(static_cast<std::int16_t>(corsa.nClasse))
    {
        m_Stato.aCondizioni = {corsa.aCondizioni[0]};
        m_Stato.aEmulatore = corsa.aEmulatore;
    }

    [[nodiscard]] Automa FaiAutoma() const { return {m_Stato.aCondizioni[0], nClasse, aScelti, m_Stato}; }

    /// Fails as the plain form does.
    Conti Giudica(const PostiColonna& aPosti)
    {
        Colonna colonna;
        for (std::size_t k = 0; k < static_cast<std::size_t>(nClasse); ++k) {
            colonna.aNumeri[k] = aScelti[aPosti[k]];
        }
        RecordCondizione& record = m_Stato.aCondizioni[0];
        record.EsitoRec = kFalso;
        ValutaCondizioni(nClasse, colonna, m_Stato);
        return {record.Esito != kFalso ? 1U : 0U, record.EsitoRec != kFalso ? 1U : 0U};
    }

    std::vector<std::uint8_t> aScelti;
    std::int16_t nClasse;

private:
    StatoSviluppo m_Stato;
};

/// The first position at which two columns differ.
std::size_t PrimaDiversa(const PostiColonna& a, const PostiColonna& b)
{
    return static_cast<std::size_t>(std::ranges::mismatch(a, b).in1 - a.begin());
}

RC_GTEST_PROP(ContiAutoma, FinoAOgniColonnaComeUnaPerUna, ())
{
    Prova prova(prove::CorsaCasuale(1));
    Automa automa = prova.FaiAutoma();
    RC_ASSERT(automa.Prepara(kMoltiByte));
    RC_PRE(automa.ConStati());
    ContiAutoma conti(automa);
    Conti attesi;
    PostiColonna aPrima{};
    std::size_t nColonne = 0;
    PerOgniColonna(prova.aScelti.size(), automa.Classe(), [&](const PostiColonna& aPosti) {
        attesi = attesi + prova.Giudica(aPosti);
        RC_ASSERT(conti.FinoA(aPosti, nColonne++ == 0 ? 0 : PrimaDiversa(aPosti, aPrima)) == attesi);
        aPrima = aPosti;
    });
    RC_ASSERT(automa.ContiDa(Automa::kIniziale, 0) == attesi);
}

/// Of kind 17, whose recoveries count from what passed in front of them.
RC_GTEST_PROP(ContiAutoma, LeCoppieComeUnaPerUna, ())
{
    Corsa corsa = prove::CorsaCasuale(1);
    corsa.aCondizioni = {prove::Sequenza({prove::Tra(0, 1), prove::Tra(0, 1)}, {prove::Tra(0, 2)},
                                         {prove::Tra(0, 2), prove::Tra(0, 2)})};
    Prova prova(corsa);
    Automa automa = prova.FaiAutoma();
    RC_ASSERT(automa.Prepara(kMoltiByte));
    RC_ASSERT(automa.ConStati());
    const ContiAutoma conti(automa);
    Conti finora;
    std::uint64_t nColonne = 0;
    std::optional<bool> riporto;
    PerOgniColonna(prova.aScelti.size(), automa.Classe(), [&](const PostiColonna& aPosti) {
        const Conti qui = prova.Giudica(aPosti);
        ++nColonne;
        finora = finora + qui;
        riporto = qui.nOk == 0 ? std::optional(qui.nRec != 0) : riporto;
        RC_ASSERT(conti.UltimaRecupera(nColonne, finora) == riporto);
        RC_ASSERT(qui.nRec == 0 || conti.OkDavanti(finora.nRec) == finora.nOk);
    });
}

RC_GTEST_PROP(ContiAutoma, LaPrimaRottaÈQuellaDellaFormaPiana, ())
{
    Corsa corsa = prove::CorsaCasuale(1);
    prove::Guasta(corsa.aCondizioni);
    Prova prova(corsa);
    Automa automa = prova.FaiAutoma();
    RC_ASSERT(automa.Prepara(kMoltiByte));
    RC_PRE(automa.ConStati());
    std::optional<PostiColonna> attesa;
    PerOgniColonna(prova.aScelti.size(), automa.Classe(), [&](const PostiColonna& aPosti) {
        try {
            static_cast<void>(prova.Giudica(aPosti));
        } catch (const Errore&) {
            attesa = attesa ? attesa : std::optional(aPosti);
        }
    });
    RC_ASSERT(ContiAutoma(automa).PrimaRotta() == attesa);
}

TEST(ContiAutoma, UnAutomaSenzaPostoNonHaStati)
{
    Corsa corsa{.aScelti = {1, 2, 3, 4, 5, 6}, .nClasse = 3, .aCondizioni = {prove::Dispari({2})}};
    Automa automa = Prova(corsa).FaiAutoma();
    EXPECT_TRUE(automa.Prepara(100));
    EXPECT_FALSE(automa.ConStati());
    EXPECT_TRUE(automa.Prepara(kMoltiByte));
    ASSERT_TRUE(automa.ConStati());
    EXPECT_EQ(automa.ContiDa(Automa::kIniziale, 0).nOk, 9U); // two of 1, 3, 5 and one of 2, 4, 6
}

TEST(ContiAutoma, UnAutomaInterrottoNonHaStati)
{
    Corsa corsa{.aScelti = {1, 2, 3, 4, 5, 6}, .nClasse = 3, .aCondizioni = {prove::Dispari({2})}};
    for (int nDomande = 0; nDomande < 4; ++nDomande) {
        Automa automa = Prova(corsa).FaiAutoma();
        EXPECT_FALSE(automa.Prepara(kMoltiByte, [n = nDomande]() mutable { return n-- > 0; }));
        EXPECT_FALSE(automa.ConStati());
    }
}

} // namespace
} // namespace ordavel
