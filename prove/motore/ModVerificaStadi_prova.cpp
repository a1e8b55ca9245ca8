// ModVerificaStadi_prova.cpp - the column test: recovery groups, links, and the whole against its definition.

#include "comune/ColonneProva.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/RecordProva.hpp"
#include "motore/CorsaProva.hpp"
#include "motore/ModVerifica.hpp"
#include "motore/VerificaLetterale.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <vector>

namespace ordavel {
namespace {

using prove::LinkClose;
using prove::LinkOpen;
using prove::Manca;
using prove::NumeroErrore;
using prove::Passa;
using prove::Recuperabile;
using prove::StatoDi;
using prove::Tra;

using Condizioni = std::vector<RecordCondizione>;

const prove::ColonnaProva kColonna = prove::ColonnaDi({1, 2, 3, 5, 8});

bool Verifica(StatoSviluppo& stato)
{
    return VerificaColonna(kColonna.nClasse, kColonna.colonna, stato);
}

bool Passano(const Condizioni& aCondizioni)
{
    StatoSviluppo stato = StatoDi(aCondizioni);
    return Verifica(stato);
}

/// Verdict over some conditions with one line of the board.
bool PassanoCon(const Condizioni& aCondizioni, std::int16_t nGruppo, const VoceRecupero& voce)
{
    StatoSviluppo stato = StatoDi(aCondizioni);
    stato.aQuadroRec(nGruppo) = voce;
    return Verifica(stato);
}

TEST(ModVerifica, UnGruppoAttivoPerdonaISuoiMembri)
{
    EXPECT_TRUE(PassanoCon({Recuperabile(3), Passa(), Recuperabile(3)}, 3, {kVero, 2, 2}));
    EXPECT_TRUE(PassanoCon({Recuperabile(20)}, 20, {1, 1, 5})) << "attiva è tutto ciò che non è 0";
}

TEST(ModVerifica, UnGruppoSpentoNonPerdona)
{
    EXPECT_FALSE(PassanoCon({Recuperabile(3)}, 3, {kFalso, 1, 1}));
}

TEST(ModVerifica, TreMembriConDaDueADueNonSiPerdonano)
{
    StatoSviluppo stato = StatoDi({Recuperabile(1), Recuperabile(1), Recuperabile(1)});
    stato.aQuadroRec(1) = {kVero, 2, 2};
    EXPECT_FALSE(Verifica(stato));
    for (const RecordCondizione& record : stato.aCondizioni) {
        EXPECT_EQ(record.Esito, kFalso);
    }
}

TEST(ModVerifica, SottoIlMinimoNessunoSiPerdona)
{
    EXPECT_FALSE(PassanoCon({Recuperabile(1)}, 1, {kVero, 2, 3}));
}

TEST(ModVerifica, ChiEFuoriZonaResta)
{
    RecordCondizione fuori = Manca();
    fuori.IdRecupero = 1;
    EXPECT_FALSE(PassanoCon({Recuperabile(1), fuori}, 1, {kVero, 1, 1}));
}

TEST(ModVerifica, UnMembroSoddisfattoContaNelGruppo)
{
    RecordCondizione anche = prove::Intervallo(TipoCondizione::distanzaMinima, 0, 1000, 0, 1000);
    anche.IdRecupero = 1;
    EXPECT_TRUE(PassanoCon({Recuperabile(1), anche}, 1, {kVero, 2, 2}));
    EXPECT_FALSE(PassanoCon({Recuperabile(1), anche}, 1, {kVero, 1, 1}));
}

TEST(ModVerifica, OgniGruppoContaPerSe)
{
    EXPECT_FALSE(PassanoCon({Recuperabile(1), Recuperabile(2)}, 1, {kVero, 2, 2}));
    EXPECT_FALSE(PassanoCon({Recuperabile(1), Recuperabile(2)}, 1, {kVero, 1, 1}));
}

TEST(ModVerifica, IlGruppo0NonPerdonaMai)
{
    EXPECT_FALSE(PassanoCon({Recuperabile(0)}, 0, {kVero, 0, 9}));
}

TEST(ModVerifica, IlRecuperoNonToccaIConteggi)
{
    StatoSviluppo stato = StatoDi({Recuperabile(1)});
    stato.aQuadroRec(1) = {kVero, 1, 1};
    EXPECT_TRUE(Verifica(stato));
    const RecordCondizione& record = stato.aCondizioni[0];
    EXPECT_EQ(record.Esito, kVero);
    EXPECT_EQ(record.ContaOk, 0);
    EXPECT_EQ(record.ContaKo, 1);
    EXPECT_EQ(record.ContaRec, 1);
}

TEST(ModVerifica, UnGruppoFuoriDalQuadroFallisceQuandoConta)
{
    for (const std::int16_t nGruppo : {std::int16_t{21}, std::int16_t{-1}}) {
        EXPECT_EQ(NumeroErrore([&] { Passano({Recuperabile(nGruppo)}); }), 9);
        RecordCondizione fuori = Manca();
        fuori.IdRecupero = nGruppo;
        EXPECT_FALSE(Passano({fuori})) << "fuori zona il gruppo non si legge";
    }
}

TEST(ModVerifica, UnaSequenzaVinceAncheConIlRecuperoDiPrima)
{
    // The stale recovery verdict of the column before makes it a member of its group.
    RecordCondizione sequenza = prove::Sequenza({1, 1}, {1}, {0});
    sequenza.IdRecupero = 1;
    StatoSviluppo stato = StatoDi({sequenza, Recuperabile(1)});
    stato.aQuadroRec(1) = {kVero, 1, 1};
    EXPECT_TRUE(Verifica(stato)) << "la sequenza passa e non conta: un membro solo";
    const prove::ColonnaProva pari = prove::ColonnaDi({2, 4});
    EXPECT_FALSE(VerificaColonna(pari.nClasse, pari.colonna, stato)) << "due membri";
    EXPECT_FALSE(Verifica(stato)) << "la sequenza passa, e conta ancora";
}

TEST(ModVerifica, UnLinkAccettaIConteggiDellaSuaLista)
{
    const auto Blocco = [](std::initializer_list<int> aConteggi) {
        return Condizioni{LinkOpen(), Passa(), Manca(), Passa(), LinkClose(aConteggi)};
    };
    EXPECT_TRUE(Passano(Blocco({2}))) << "una condizione è mancata, il blocco passa";
    EXPECT_FALSE(Passano(Blocco({1})));
    EXPECT_FALSE(Passano(Blocco({3})));
    EXPECT_FALSE(Passano(Blocco({})));
    EXPECT_TRUE(Passano(Blocco({0, 2, 3})));
}

TEST(ModVerifica, UnLinkVuotoContaZero)
{
    EXPECT_TRUE(Passano({LinkOpen(), LinkClose({0})}));
    EXPECT_FALSE(Passano({LinkOpen(), LinkClose({1})}));
}

TEST(ModVerifica, FuoriDalLinkOgniCondizioneResta)
{
    EXPECT_FALSE(Passano({Manca(), LinkOpen(), Manca(), LinkClose({0})}));
    EXPECT_FALSE(Passano({LinkOpen(), Manca(), LinkClose({0}), Manca()}));
    EXPECT_TRUE(Passano({Passa(), LinkOpen(), Manca(), LinkClose({0}), Passa()}));
}

TEST(ModVerifica, UnSecondoLinkLeggeLaListaSpostata)
{
    // The second close stands at 5 and is judged at working index 3: the list of the record there counts.
    Condizioni aCondizioni{LinkOpen(), Manca(), LinkClose({0}), LinkOpen(), Manca(), LinkClose({0})};
    EXPECT_FALSE(Passano(aCondizioni)) << "la lista del LinkOpen al posto 3 è vuota";
    aCondizioni[3].Numeri(0) = kVero;
    aCondizioni[5].Numeri(0) = kFalso;
    EXPECT_TRUE(Passano(aCondizioni));
}

TEST(ModVerifica, ILinkAnnidatiSiChiudonoDaDentroEIlFuoriLeggeLaListaSpostata)
{
    // Inner block 1 to 3, collapsed to one record at 1; the outer close, compiled at 5, is judged at 3.
    Condizioni aCondizioni{LinkOpen(), LinkOpen(), Manca(), LinkClose({0}), Passa(), LinkClose({})};
    EXPECT_FALSE(Passano(aCondizioni)) << "la lista al posto 3 accetta 0, i veri sono 2";
    aCondizioni[3] = LinkClose({0, 2});
    EXPECT_TRUE(Passano(aCondizioni));
    aCondizioni[3] = LinkClose({2});
    EXPECT_FALSE(Passano(aCondizioni)) << "il blocco interno non passa più: resta un vero";
    aCondizioni[3] = LinkClose({1, 2});
    EXPECT_TRUE(Passano(aCondizioni)) << "il blocco mancato non conta";
}

TEST(ModVerifica, IFlagDiUnaCondizioneFannoDaListaSpostata)
{
    // The second close, compiled at 6, is judged at 4: there stands a count of points, satisfied by one number.
    RecordCondizione punti = prove::Lista(TipoCondizione::puntiColonna, {1});
    punti.Numeri(1) = kVero;
    Condizioni aCondizioni{LinkOpen(), Manca(), LinkClose({0}), LinkOpen(), punti, Manca(), LinkClose({})};
    EXPECT_TRUE(Passano(aCondizioni)) << "il flag del numero 1 accetta un vero";
    punti.Numeri = prove::FlagDi({2});
    aCondizioni[4] = punti;
    EXPECT_FALSE(Passano(aCondizioni));
}

TEST(ModVerifica, UnLinkCloseSenzaAperturaPrendeTuttoDaCapo)
{
    EXPECT_TRUE(Passano({Manca(), Passa(), LinkClose({1})}));
    EXPECT_FALSE(Passano({Manca(), Passa(), LinkClose({2})}));
    EXPECT_TRUE(Passano({LinkClose({0})}));
}

TEST(ModVerifica, UnLinkOpenSenzaChiusuraSiSalta)
{
    EXPECT_TRUE(Passano({LinkOpen(), Passa()}));
    EXPECT_FALSE(Passano({LinkOpen(), Manca()}));
}

TEST(ModVerifica, NelLinkContaIlVerdettoDopoIlRecupero)
{
    const Condizioni aCondizioni{LinkOpen(), Recuperabile(1), Manca(), LinkClose({1})};
    EXPECT_TRUE(PassanoCon(aCondizioni, 1, {kVero, 1, 1}));
    EXPECT_FALSE(PassanoCon(aCondizioni, 1, {kFalso, 1, 1}));
}

TEST(ModVerifica, UnLinkConPiuVeriDi90Fallisce)
{
    Condizioni aCondizioni(91, Passa());
    aCondizioni.push_back(LinkClose({}));
    EXPECT_EQ(NumeroErrore([&] { Passano(aCondizioni); }), 9);
    aCondizioni.erase(aCondizioni.begin());
    EXPECT_FALSE(Passano(aCondizioni));
}

TEST(ModVerifica, TrovaLinkOpenCercaAllIndietro)
{
    const auto nO = TipoCondizione::linkOpen;
    const auto nP = TipoCondizione::peso;
    const std::vector<VoceLink> aVoci{{nP, kVero}, {nO, kFalso}, {nO, kFalso}, {nP, kVero}};
    EXPECT_EQ(TrovaLinkOpen(aVoci, 3), std::size_t{2});
    EXPECT_EQ(TrovaLinkOpen(aVoci, 1), std::size_t{1});
    EXPECT_EQ(TrovaLinkOpen(aVoci, 0), std::size_t{0});
    EXPECT_EQ(ContaEsiti(aVoci, 0, 3), 2);
    EXPECT_EQ(ContaEsiti(aVoci, 1, 3), 1);
    EXPECT_EQ(ContaEsiti(aVoci, 1, 2), 0);
}

/// A column of that class among few numbers, so that conditions pass now and then.
Colonna ColonnaCasuale(std::int16_t nClasse)
{
    const auto aNumeri = *rc::gen::unique<std::vector<int>>(static_cast<std::size_t>(nClasse),
                                                            rc::gen::inRange(1, kNumeroMassimo + 1));
    std::vector<int> aOrdinati = aNumeri;
    std::sort(aOrdinati.begin(), aOrdinati.end());
    return prove::ColonnaDi(aOrdinati).colonna;
}

/// A random system with a board and some draws.
StatoSviluppo SistemaCasuale(std::int16_t nClasse)
{
    const auto aRighe = *prove::GenCondizioni(nClasse, 12);
    const auto aQuadro = *prove::GenQuadro();
    StatoSviluppo stato;
    LeggiCondizioniDaGriglia(stato.aCondizioni, prove::GrigliaDi(aRighe), aQuadro, stato.aQuadroRec);
    EstendiRecuperiSequenze(stato.aCondizioni);
    std::vector<RigaEmulatore> aRigheEmulatore(static_cast<std::size_t>(Tra(1, 6)));
    for (RigaEmulatore& aRiga : aRigheEmulatore) {
        for (int n = 1; n <= kNumeroMassimo; ++n) {
            aRiga[n] = static_cast<std::uint8_t>(Tra(0, 3) == 0 ? 1 : 0);
        }
    }
    stato.aEmulatore = RigheEmulatore(std::move(aRigheEmulatore));
    return stato;
}

RC_GTEST_PROP(ModVerifica, LaVerificaUguagliaLaSuaDefinizione, ())
{
    const auto nClasse = static_cast<std::int16_t>(Tra(2, 10));
    StatoSviluppo stato = SistemaCasuale(nClasse);
    StatoSviluppo atteso = stato;
    for (int i = 0; i < 20; ++i) {
        const Colonna colonna = ColonnaCasuale(nClasse);
        RC_ASSERT(VerificaColonna(nClasse, colonna, stato) ==
                  prove::VerificaLetterale(nClasse, colonna, atteso));
        RC_ASSERT(stato.aCondizioni == atteso.aCondizioni);
    }
}

RC_GTEST_PROP(ModVerifica, ILinkUguaglianoLaLoroDefinizione, ())
{
    // Loose links, unbalanced ones included, over verdicts drawn at will.
    const auto aTipi = *rc::gen::container<std::vector<TipoCondizione>>(rc::gen::element(
        TipoCondizione::linkOpen, TipoCondizione::linkClose, TipoCondizione::peso, TipoCondizione::nessuno));
    StatoSviluppo stato;
    stato.aCondizioni.resize(aTipi.size());
    for (std::size_t i = 0; i < aTipi.size(); ++i) {
        RecordCondizione& record = stato.aCondizioni[i];
        record.Tipo = aTipi[i];
        record.Esito = ComeBooleano(aTipi[i] != TipoCondizione::linkOpen &&
                                    aTipi[i] != TipoCondizione::linkClose && prove::UnaVoltaSu(2));
        record.Numeri = prove::FlagCasuali(0, 8, 70);
    }
    RC_ASSERT(ValutaLink(stato) == prove::LinkLetterali(stato.aCondizioni));
}

RC_GTEST_PROP(ModVerifica, OkEKoSommanoAlleColonneEsaminate, ())
{
    const auto nClasse = static_cast<std::int16_t>(Tra(2, 10));
    StatoSviluppo stato = SistemaCasuale(nClasse);
    const int nColonne = Tra(1, 20);
    for (int i = 0; i < nColonne; ++i) {
        static_cast<void>(VerificaColonna(nClasse, ColonnaCasuale(nClasse), stato));
    }
    for (const RecordCondizione& record : stato.aCondizioni) {
        const VoceCatalogo* voce = TrovaTipo(record.Tipo);
        const bool bConta = voce != nullptr && voce->forma != eForma::nessuna && voce->forma != eForma::link;
        RC_ASSERT(record.ContaOk + record.ContaKo == (bConta ? nColonne : 0));
    }
}

} // namespace
} // namespace ordavel
