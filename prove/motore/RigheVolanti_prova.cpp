// RigheVolanti_prova.cpp - rows made for a beginning against the plain form, column by column.

#include "motore/RigheVolanti.hpp"

#include "calcoli/ModCifre.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/RecordProva.hpp"
#include "motore/ModVerifica.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

namespace ordavel {
namespace {

using prove::Lista;
using prove::Tra;
using testing::ElementsAre;
using testing::IsEmpty;

/// What rows are made from.
struct Sistema {
    std::int16_t nClasse = 0;
    std::vector<std::uint8_t> aScelti;
    RecordCondizione record;
    RigheEmulatore aEmulatore;
};

StatoSviluppo StatoDi(const Sistema& sistema)
{
    StatoSviluppo stato;
    stato.aCondizioni = {sistema.record};
    stato.aEmulatore = sistema.aEmulatore;
    return stato;
}

RigheVolanti RigheDi(const Sistema& sistema, eNucleo nucleo)
{
    const StatoSviluppo stato = StatoDi(sistema);
    return {sistema.record, sistema.nClasse, sistema.aScelti, stato, nucleo};
}

/// The instruction sets of this processor.
std::vector<eNucleo> Nuclei()
{
    std::vector<eNucleo> aNuclei;
    for (int n = 0; n <= static_cast<int>(NucleoMigliore()); ++n) {
        aNuclei.push_back(static_cast<eNucleo>(n));
    }
    return aNuclei;
}

/// A beginning: its numbers, and the place behind the last of them.
struct Inizio {
    Colonna colonna;
    std::size_t nPrimo = 0;
};

/// The beginning at some places.
Inizio InizioDi(const Sistema& sistema, const std::vector<std::size_t>& aPosti)
{
    Inizio inizio;
    for (std::size_t i = 0; i < aPosti.size(); ++i) {
        inizio.colonna[static_cast<std::int64_t>(i) + 1] = sistema.aScelti[aPosti[i]];
        inizio.nPrimo = aPosti[i] + 1;
    }
    return inizio;
}

/// The row that the plain form gives, column by column.
RigaAutoma RigaPiana(const Sistema& sistema, const Inizio& inizio)
{
    StatoSviluppo stato = StatoDi(sistema);
    const std::size_t nScelti = sistema.aScelti.size();
    RigaAutoma riga;
    Colonna colonna = inizio.colonna;
    for (std::size_t y = inizio.nPrimo; y + 1 < nScelti; ++y) {
        Maschera ok;
        Maschera rec;
        colonna[sistema.nClasse - 1] = sistema.aScelti[y];
        for (std::size_t x = y + 1; x < nScelti; ++x) {
            colonna[sistema.nClasse] = sistema.aScelti[x];
            const Maschera bit = BitDelPosto(nScelti, x);
            ValutaCondizioni(sistema.nClasse, colonna, stato);
            if (stato.aCondizioni[0].Esito != kFalso) {
                ok = {ok.nAlta | bit.nAlta, ok.nBassa | bit.nBassa};
            }
            if (stato.aCondizioni[0].EsitoRec != kFalso) {
                rec = {rec.nAlta | bit.nAlta, rec.nBassa | bit.nBassa};
            }
        }
        riga.ok.Poni(y, ok);
        riga.rec.Poni(y, rec);
        riga.bRecuperi = riga.bRecuperi || !rec.Vuota();
    }
    return riga;
}

/// Words from a place on, to the end of the padding.
std::vector<std::uint64_t> Parole(const MaschereRiga& maschere, std::size_t nPrimo)
{
    std::vector<std::uint64_t> aParole(maschere.aBasse.begin() + static_cast<std::ptrdiff_t>(nPrimo),
                                       maschere.aBasse.end());
    for (std::size_t y = nPrimo; y < kPostiAlti; ++y) {
        aParole.push_back(maschere.aAlte[y]);
    }
    return aParole;
}

bool Uguali(const RigaAutoma& una, const RigaAutoma& altra, std::size_t nPrimo)
{
    return Parole(una.ok, nPrimo) == Parole(altra.ok, nPrimo) &&
           Parole(una.rec, nPrimo) == Parole(altra.rec, nPrimo) && una.bRecuperi == altra.bRecuperi &&
           una.rotti.Vuota() && altra.rotti.Vuota();
}

/// Number in the last place of each column of a mask.
std::vector<int> Ultimi(const Sistema& sistema, Maschera maschera)
{
    std::vector<int> aUltimi;
    for (std::size_t x = 0; x < sistema.aScelti.size(); ++x) {
        if (!(maschera & BitDelPosto(sistema.aScelti.size(), x)).Vuota()) {
            aUltimi.push_back(sistema.aScelti[x]);
        }
    }
    return aUltimi;
}

std::vector<std::size_t> PostiCasuali(std::size_t nScelti, std::size_t nQuanti)
{
    auto aPosti =
        *rc::gen::unique<std::vector<std::size_t>>(nQuanti, rc::gen::inRange<std::size_t>(0, nScelti - 2));
    std::ranges::sort(aPosti);
    return aPosti;
}

std::vector<std::uint8_t> SceltiCasuali(int nQuanti)
{
    auto aScelti = *rc::gen::unique<std::vector<std::uint8_t>>(
        static_cast<std::size_t>(nQuanti), rc::gen::inRange<std::uint8_t>(1, kNumeroMassimo + 1));
    std::ranges::sort(aScelti);
    return aScelti;
}

/// Many picks as often as few.
int QuantiScelti(int nClasse)
{
    return *rc::gen::element(nClasse, Tra(nClasse, 90), Tra(60, 90), 90);
}

/// Flags of any value, so that none is as frequent as all others.
FlagPunti FlagCasuali()
{
    FlagPunti aFlag;
    for (std::int16_t& nFlag : aFlag.aElementi) {
        nFlag =
            *rc::gen::element<std::int16_t>(0, 0, 0, -1, 1, 256, std::numeric_limits<std::int16_t>::min());
    }
    return aFlag;
}

Sistema SistemaCasuale(TipoCondizione tipo)
{
    Sistema sistema;
    sistema.nClasse = static_cast<std::int16_t>(Tra(kClasseMinima, kClasseMassima));
    sistema.aScelti = SceltiCasuali(QuantiScelti(sistema.nClasse));
    sistema.record.Tipo = tipo;
    return sistema;
}

/// Some beginnings of one object, so that what it keeps from one to the next is put to the test as well.
void ConfrontaInizi(const Sistema& sistema)
{
    RigheVolanti righe = RigheDi(sistema, *rc::gen::elementOf(Nuclei()));
    const auto nDati = static_cast<std::size_t>(sistema.nClasse) - 2;
    for (int nVolta = 0; nVolta < 4; ++nVolta) {
        const Inizio inizio = InizioDi(sistema, PostiCasuali(sistema.aScelti.size(), nDati));
        const RigaAutoma& riga = righe.Riga(inizio.colonna, inizio.nPrimo);
        RC_ASSERT(Uguali(riga, RigaPiana(sistema, inizio), inizio.nPrimo));
    }
}

RC_GTEST_PROP(RigheVolanti, CompagniComeLaFormaPiana, ())
{
    Sistema sistema =
        SistemaCasuale(*rc::gen::element(TipoCondizione::simmetrieNum, TipoCondizione::paralleliNum));
    sistema.record.PuntiOk = FlagCasuali();
    sistema.record.PuntiRec = FlagCasuali();
    ConfrontaInizi(sistema);
}

/// Picks in which every number has its partner.
RC_GTEST_PROP(RigheVolanti, CompagniTuttiSceltiComeLaFormaPiana, ())
{
    const auto tipo = *rc::gen::element(TipoCondizione::simmetrieNum, TipoCondizione::paralleliNum);
    Sistema sistema = SistemaCasuale(tipo);
    std::set<std::uint8_t> aScelti(sistema.aScelti.begin(), sistema.aScelti.end());
    for (const std::uint8_t n : sistema.aScelti) {
        const int nLontano = n > 45 ? n - 45 : n + 45;
        aScelti.insert(static_cast<std::uint8_t>(tipo == TipoCondizione::simmetrieNum ? 91 - n : nLontano));
    }
    sistema.aScelti.assign(aScelti.begin(), aScelti.end());
    sistema.record.PuntiOk = FlagCasuali();
    sistema.record.PuntiRec = FlagCasuali();
    ConfrontaInizi(sistema);
}

RigheEmulatore EstrazioniCasuali()
{
    std::vector<RigaEmulatore> aRighe(
        static_cast<std::size_t>(*rc::gen::element(0, 1, Tra(2, 70), Tra(2, 2000))));
    const int nNumeri = *rc::gen::element(0, 5, 20, 60, 120);
    for (RigaEmulatore& aRiga : aRighe) {
        for (int n = 0; n < nNumeri; ++n) {
            aRiga(Tra(0, 90)) = static_cast<std::uint8_t>(Tra(1, 255));
        }
    }
    return RigheEmulatore(std::move(aRighe));
}

/// A bound near a count that occurs, or any number.
std::int16_t Limite(int nConto)
{
    using Limiti = std::numeric_limits<std::int16_t>;
    const std::vector<int> aLimiti{nConto, nConto - Tra(0, 9), nConto + Tra(0, 9),
                                   0,      Limiti::min(),      Limiti::max()};
    return static_cast<std::int16_t>(*rc::gen::elementOf(aLimiti));
}

/// Bounds around the counts of a column, so that others keep them and break them.
void PoniLimiti(Sistema& sistema)
{
    const auto aPosti = PostiCasuali(sistema.aScelti.size() + 2, static_cast<std::size_t>(sistema.nClasse));
    const Colonna colonna = InizioDi(sistema, aPosti).colonna;
    const ContatoriEmulatore aConti =
        CalcolaEmulatore(sistema.nClasse, colonna, std::span(sistema.aEmulatore.Righe()));
    for (std::int16_t k = 0; k <= kValoreListaMassimo; ++k) {
        const bool bStretti = Tra(0, 3) != 0;
        sistema.record.PuntiOk[k] =
            bStretti ? static_cast<std::int16_t>(aConti[k] - Tra(0, 9)) : Limite(aConti[k]);
        sistema.record.PuntiRec[k] =
            bStretti ? static_cast<std::int16_t>(aConti[k] + Tra(0, 9)) : Limite(aConti[k]);
    }
    for (int nSenza = Tra(0, 11); nSenza > 0; --nSenza) {
        const int k = Tra(0, 10);
        sistema.record.PuntiOk[k] = 0;
        sistema.record.PuntiRec[k] = std::numeric_limits<std::int16_t>::max();
    }
}

RC_GTEST_PROP(RigheVolanti, EmulatoreComeLaFormaPiana, ())
{
    Sistema sistema = SistemaCasuale(TipoCondizione::emulatore);
    sistema.aEmulatore = EstrazioniCasuali();
    PoniLimiti(sistema);
    ConfrontaInizi(sistema);
}

/// Beginnings in the order of the enumeration: each takes over what it shares with the one before.
RC_GTEST_PROP(RigheVolanti, EmulatoreInOrdineComeLaFormaPiana, ())
{
    Sistema sistema = SistemaCasuale(TipoCondizione::emulatore);
    sistema.aEmulatore = EstrazioniCasuali();
    PoniLimiti(sistema);
    RigheVolanti righe = RigheDi(sistema, *rc::gen::elementOf(Nuclei()));
    const auto nDati = static_cast<std::size_t>(sistema.nClasse) - 2;
    auto aPosti = PostiCasuali(sistema.aScelti.size(), nDati);
    for (int nVolta = 0; nVolta < 5; ++nVolta) {
        const Inizio inizio = InizioDi(sistema, aPosti);
        RC_ASSERT(
            Uguali(righe.Riga(inizio.colonna, inizio.nPrimo), RigaPiana(sistema, inizio), inizio.nPrimo));
        std::size_t i = nDati;
        while (i > 0 && aPosti[i - 1] + nDati - i + 3 >= sistema.aScelti.size()) {
            --i;
        }
        if (i == 0) {
            return;
        }
        for (++aPosti[i - 1]; i < nDati; ++i) {
            aPosti[i] = aPosti[i - 1] + 1;
        }
    }
}

TEST(RigheVolanti, SimmetrieDiUnInizio)
{
    Sistema sistema{4, {1, 2, 3, 40, 51, 89, 90}, Lista(TipoCondizione::simmetrieNum, {1}, {2}), {}};
    for (const eNucleo nucleo : Nuclei()) {
        RigheVolanti righe = RigheDi(sistema, nucleo);
        const Inizio inizio = InizioDi(sistema, {0, 1}); // 1 waits for 90, 2 for 89
        const RigaAutoma& riga = righe.Riga(inizio.colonna, inizio.nPrimo);
        EXPECT_THAT(Ultimi(sistema, riga.ok[2]), ElementsAre(89, 90));
        EXPECT_THAT(Ultimi(sistema, riga.ok[3]), ElementsAre(51, 89, 90)); // 40 and 51 are a pair
        EXPECT_THAT(Ultimi(sistema, riga.ok[4]), ElementsAre(89, 90));
        EXPECT_THAT(Ultimi(sistema, riga.ok[5]), IsEmpty());
        EXPECT_THAT(Ultimi(sistema, riga.rec[5]), ElementsAre(90)); // both partners last
        EXPECT_TRUE(riga.bRecuperi);
    }
}

TEST(RigheVolanti, NessunRecuperoSenzaColonneInZona)
{
    Sistema sistema{4, {1, 2, 3, 40, 51, 89, 90}, Lista(TipoCondizione::simmetrieNum, {1}, {2}), {}};
    RigheVolanti righe = RigheDi(sistema, eNucleo::comune);
    const Inizio prima = InizioDi(sistema, {0, 1});
    EXPECT_TRUE(righe.Riga(prima.colonna, prima.nPrimo).bRecuperi);
    const Inizio dopo = InizioDi(sistema, {2, 3});
    EXPECT_FALSE(righe.Riga(dopo.colonna, dopo.nPrimo).bRecuperi);
}

TEST(RigheVolanti, QuarantacinqueENovantaSonoParalleli)
{
    Sistema sistema{3, {10, 44, 45, 46, 89, 90}, Lista(TipoCondizione::paralleliNum, {1}), {}};
    for (const eNucleo nucleo : Nuclei()) {
        RigheVolanti righe = RigheDi(sistema, nucleo);
        const Inizio inizio = InizioDi(sistema, {0});
        const RigaAutoma& riga = righe.Riga(inizio.colonna, inizio.nPrimo);
        EXPECT_THAT(Ultimi(sistema, riga.ok[1]), ElementsAre(89));
        EXPECT_THAT(Ultimi(sistema, riga.ok[2]), ElementsAre(90));
        EXPECT_THAT(Ultimi(sistema, riga.ok[3]), IsEmpty()); // 46 waits for 1
        const Inizio altro = InizioDi(sistema, {2});
        EXPECT_THAT(Ultimi(sistema, righe.Riga(altro.colonna, altro.nPrimo).ok[3]), ElementsAre(90));
    }
}

RigheEmulatore Estrazioni(std::initializer_list<std::initializer_list<int>> aEstrazioni)
{
    std::vector<RigaEmulatore> aRighe;
    for (const auto& aNumeri : aEstrazioni) {
        RigaEmulatore& aRiga = aRighe.emplace_back();
        for (const int n : aNumeri) {
            aRiga(n) = 1;
        }
    }
    return RigheEmulatore(std::move(aRighe));
}

/// An emulator without bounds.
RecordCondizione Emulatore()
{
    RecordCondizione record;
    record.Tipo = TipoCondizione::emulatore;
    record.PuntiRec.aElementi.fill(std::numeric_limits<std::int16_t>::max());
    return record;
}

TEST(RigheVolanti, EmulatoreDiTreEstrazioni)
{
    Sistema sistema{2, {1, 2, 3, 4, 5, 6, 7}, Emulatore(), Estrazioni({{1, 2, 3}, {4, 5, 6}, {1, 5, 7}})};
    sistema.record.PuntiOk[2] = 1;  // both numbers in one draw
    sistema.record.PuntiRec[0] = 0; // and no draw without a number
    for (const eNucleo nucleo : Nuclei()) {
        RigheVolanti righe = RigheDi(sistema, nucleo);
        const RigaAutoma& riga = righe.Riga({}, 0);
        EXPECT_THAT(Ultimi(sistema, riga.ok[0]), ElementsAre(5)); // 1, 5: hits 1, 1, 2
        EXPECT_THAT(Ultimi(sistema, riga.ok[1]), IsEmpty());
        EXPECT_THAT(Ultimi(sistema, riga.ok[4]), IsEmpty());
        EXPECT_FALSE(riga.bRecuperi);
    }
}

TEST(RigheVolanti, EmulatoreSenzaEstrazioniCaricate)
{
    Sistema sistema{3, {1, 2, 3, 4, 5}, Emulatore(), {}}; // one row of no number
    sistema.record.PuntiRec[0] = 1;
    const Inizio inizio = InizioDi(sistema, {0});
    for (const eNucleo nucleo : Nuclei()) {
        RigheVolanti passano = RigheDi(sistema, nucleo);
        EXPECT_THAT(Ultimi(sistema, passano.Riga(inizio.colonna, 1).ok[1]), ElementsAre(3, 4, 5));
        Sistema vuoto = sistema;
        vuoto.record.PuntiRec[0] = 0;
        RigheVolanti mancano = RigheDi(vuoto, nucleo);
        EXPECT_THAT(Ultimi(vuoto, mancano.Riga(inizio.colonna, 1).ok[1]), IsEmpty());
    }
}

TEST(RigheVolanti, LimitiOltreIConteggiNonTagliano)
{
    Sistema sistema{2, {7, 8, 9}, Emulatore(), Estrazioni({{7, 8}, {9}})};
    sistema.record.PuntiOk.aElementi.fill(-5);
    sistema.record.PuntiRec.aElementi.fill(2);
    RigheVolanti righe = RigheDi(sistema, eNucleo::comune);
    EXPECT_THAT(Ultimi(sistema, righe.Riga({}, 0).ok[0]), ElementsAre(8, 9));
    sistema.record.PuntiRec[1] = -1;
    RigheVolanti nessuna = RigheDi(sistema, eNucleo::comune);
    EXPECT_THAT(Ultimi(sistema, nessuna.Riga({}, 0).ok[0]), IsEmpty());
}

TEST(RigheVolanti, TanteEstrazioniQuanteNeContaLaMetrica)
{
    Sistema sistema{3, {2, 3, 50, 88}, Emulatore(), RigheEmulatore(std::vector<RigaEmulatore>(32767))};
    sistema.record.PuntiOk[0] = 32767;
    EXPECT_TRUE(RigheVolanti::Adatte(sistema.record, StatoDi(sistema)));
    RigheVolanti righe = RigheDi(sistema, NucleoMigliore());
    const Inizio inizio = InizioDi(sistema, {0});
    EXPECT_TRUE(Uguali(righe.Riga(inizio.colonna, 1), RigaPiana(sistema, inizio), 1));
    EXPECT_THAT(Ultimi(sistema, righe.Riga(inizio.colonna, 1).ok[1]), ElementsAre(50, 88));
    sistema.aEmulatore = RigheEmulatore(std::vector<RigaEmulatore>(32768));
    EXPECT_FALSE(RigheVolanti::Adatte(sistema.record, StatoDi(sistema)));
}

/// All draws have all numbers: the greatest counts that there are.
TEST(RigheVolanti, TutteLeEstrazioniColpite)
{
    RigaEmulatore aTutti;
    aTutti.aElementi.fill(1);
    Sistema sistema{
        4, {2, 3, 50, 88, 90}, Emulatore(), RigheEmulatore(std::vector<RigaEmulatore>(32767, aTutti))};
    sistema.record.PuntiOk[4] = 32767;
    const Inizio inizio = InizioDi(sistema, {0, 2});
    for (const eNucleo nucleo : Nuclei()) {
        RigheVolanti righe = RigheDi(sistema, nucleo);
        EXPECT_TRUE(Uguali(righe.Riga(inizio.colonna, 3), RigaPiana(sistema, inizio), 3));
        EXPECT_THAT(Ultimi(sistema, righe.Riga(inizio.colonna, 3).ok[3]), ElementsAre(90));
    }
}

TEST(RigheVolanti, SoloITipiSenzaChiave)
{
    const StatoSviluppo stato;
    for (std::int16_t nTipo = 0; nTipo <= kTipiCondizione; ++nTipo) {
        RecordCondizione record;
        record.Tipo = static_cast<TipoCondizione>(nTipo);
        EXPECT_EQ(RigheVolanti::Adatte(record, stato), nTipo >= 26 && nTipo <= 28) << nTipo;
    }
}

} // namespace
} // namespace ordavel
