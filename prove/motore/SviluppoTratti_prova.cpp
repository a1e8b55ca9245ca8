// SviluppoTratti_prova.cpp - several threads against one: files, counters, last values, stops, failures.

#include "motore/SviluppoTratti.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/RecordProva.hpp"
#include "condizioni/ModCompila.hpp"
#include "motore/CorsaCasuale.hpp"
#include "motore/CorsaProva.hpp"
#include "motore/ModVerifica.hpp"
#include "motore/RangoColonne.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <numeric>
#include <thread>

namespace ordavel {
namespace {

using prove::Corsa;
using prove::CorsaCasuale;
using prove::Tra;
using enum TipoCondizione;

/// All that a run leaves.
struct Lasciato {
    std::vector<Colonna> aColonne;
    std::vector<RecordCondizione> aCondizioni;
    std::int64_t nSviluppate = 0;
    std::int64_t nCondizionate = 0;
    bool bContatori = true;
    std::optional<int> nErrore;
};

StatoSviluppo StatoDi(const Corsa& corsa)
{
    StatoSviluppo stato = prove::StatoDi(corsa.aCondizioni);
    stato.aQuadroRec = corsa.aQuadro;
    stato.aEmulatore = corsa.aEmulatore;
    return stato;
}

/// One run into a file of its own.
template <typename Azione> Lasciato Esegui(const Corsa& corsa, Azione&& azione)
{
    const prove::CartellaProva cartella;
    StatoSviluppo stato = StatoDi(corsa);
    Lasciato lasciato;
    {
        FileBinario file(cartella / "Sviluppo.col", eApertura::scrittura);
        lasciato.nErrore = prove::NumeroErrore([&] { azione(file, stato, lasciato); });
    }
    lasciato.aColonne = prove::ColonneDelFile(cartella / "Sviluppo.col");
    lasciato.aCondizioni = stato.aCondizioni;
    return lasciato;
}

std::int16_t Classe(const Corsa& corsa)
{
    return static_cast<std::int16_t>(corsa.nClasse);
}

std::int16_t Limite(const Corsa& corsa)
{
    return static_cast<std::int16_t>(corsa.nLimite);
}

/// By one thread, in order.
Lasciato InUno(const Corsa& corsa, std::optional<eNucleo> nucleo = NucleoMigliore())
{
    return Esegui(corsa, [&](FileBinario& file, StatoSviluppo& stato, Lasciato& lasciato) {
        prove::AvanzamentoProva avanzamento;
        SviluppaColonne(prove::Pronostico(corsa.aScelti), Classe(corsa), Limite(corsa), file, stato,
                        avanzamento, nucleo);
        lasciato.nSviluppate = stato.nSviluppate;
        lasciato.nCondizionate = stato.nCondizionate;
    });
}

/// By stretches. `accanto` runs beside it in a thread of its own.
template <typename Accanto>
Lasciato ATratti(const Corsa& corsa, const OpzioniTratti& opzioni, Accanto&& accanto)
{
    return Esegui(corsa, [&](FileBinario& file, StatoSviluppo& stato, Lasciato& lasciato) {
        ComandiTratti comandi;
        const auto svolgi = [&] {
            const std::jthread filo([&] { accanto(comandi); });
            lasciato.bContatori = SviluppaTratti(prove::Pronostico(corsa.aScelti), Classe(corsa),
                                                 Limite(corsa), file, stato, comandi, opzioni)
                                      .bContatori;
        };
        try {
            svolgi();
        } catch (...) {
            lasciato.nSviluppate = comandi.nSviluppate;
            throw;
        }
        lasciato.nSviluppate = comandi.nSviluppate;
        lasciato.nCondizionate = comandi.nCondizionate;
    });
}

Lasciato ATratti(const Corsa& corsa, const OpzioniTratti& opzioni)
{
    return ATratti(corsa, opzioni, [](ComandiTratti&) {});
}

/// Any division: stretches of one column to all, few columns in wait, little room for states.
OpzioniTratti OpzioniCasuali()
{
    OpzioniTratti opzioni;
    opzioni.nFili = static_cast<unsigned>(*rc::gen::element(1, 2, 3, 8));
    opzioni.nucleo = *rc::gen::elementOf(prove::Nuclei());
    opzioni.coda.nPrimoTratto = *rc::gen::element(1, 2, 7, 50, 1000, 1000000000);
    opzioni.coda.nTenuteInAttesa = static_cast<std::size_t>(*rc::gen::element(1, 100, 800000));
    opzioni.coda.nTrattiInAttesa = static_cast<std::size_t>(*rc::gen::element(1, 3, 1000));
    opzioni.limiti.nTenute = static_cast<std::size_t>(*rc::gen::element(1, 20, 100000));
    opzioni.limiti.durata = std::chrono::microseconds(*rc::gen::element(0, 50, 10000));
    if (prove::UnaVoltaSu(3)) {
        opzioni.nByteAutomi = static_cast<std::size_t>(Tra(0, 200000));
    }
    return opzioni;
}

void ConfrontaRecord(const std::vector<RecordCondizione>& aUno, const std::vector<RecordCondizione>& aAltro)
{
    RC_ASSERT(aUno.size() == aAltro.size());
    for (std::size_t i = 0; i < aUno.size(); ++i) {
        if (!(aUno[i] == aAltro[i])) {
            RC_LOG() << "record " << i << ": " << aUno[i] << " ok " << aUno[i].ContaOk << "/"
                     << aAltro[i].ContaOk << " ko " << aUno[i].ContaKo << "/" << aAltro[i].ContaKo << " rec "
                     << aUno[i].ContaRec << "/" << aAltro[i].ContaRec << '\n';
        }
        RC_ASSERT(aUno[i] == aAltro[i]);
    }
}

void Confronta(const Corsa& corsa, const OpzioniTratti& opzioni)
{
    const Lasciato uno = InUno(corsa);
    const Lasciato tratti = ATratti(corsa, opzioni);
    RC_ASSERT(tratti.nErrore == uno.nErrore);
    RC_ASSERT(tratti.aColonne == uno.aColonne);
    RC_ASSERT(uno.nErrore || tratti.nSviluppate == uno.nSviluppate);
    RC_ASSERT(uno.nErrore || tratti.nCondizionate == uno.nCondizionate);
    RC_ASSERT(tratti.bContatori);
    ConfrontaRecord(tratti.aCondizioni, uno.aCondizioni);
}

RC_GTEST_PROP(SviluppoTratti, UnaCondizioneSolaComeUnFiloSolo, ())
{
    Confronta(CorsaCasuale(1), OpzioniCasuali());
}

RC_GTEST_PROP(SviluppoTratti, SistemiInteriComeUnFiloSolo, ())
{
    Confronta(CorsaCasuale(20), OpzioniCasuali());
}

RC_GTEST_PROP(SviluppoTratti, SistemiGuastiComeUnFiloSolo, ())
{
    Corsa corsa = CorsaCasuale(3);
    prove::Guasta(corsa.aCondizioni);
    Confronta(corsa, OpzioniCasuali());
}

/// A scan that passes for one count and recovers for others.
RecordCondizione SequenzaNelGruppo()
{
    RecordCondizione record = prove::Sequenza({Tra(0, 1)}, {Tra(0, 3)}, {Tra(0, 3), Tra(0, 3)});
    record.IdRecupero = 1;
    return record;
}

/// Sequences in a group in force, beside members that need them: their verdict may be that of the column before.
Corsa SequenzeNeiGruppi()
{
    Corsa corsa = CorsaCasuale(0);
    corsa.aCondizioni = {SequenzaNelGruppo()};
    if (prove::UnaVoltaSu(2)) {
        corsa.aCondizioni.push_back(SequenzaNelGruppo());
    }
    corsa.aCondizioni.push_back(prove::Recuperabile(1));
    EstendiRecuperiSequenze(corsa.aCondizioni);
    const auto nMembri = static_cast<std::int16_t>(Tra(1, 2));
    corsa.aQuadro(1) = {-1, nMembri, nMembri};
    if (prove::UnaVoltaSu(2)) {
        corsa.aCondizioni.push_back(prove::Lista(consecutivi, {Tra(0, 2)}));
    } else if (prove::UnaVoltaSu(2)) {
        const int nMedia = 45 * corsa.nClasse;
        corsa.aCondizioni.push_back(prove::Intervallo(peso, nMedia - Tra(0, 60), nMedia + Tra(0, 60)));
    }
    return corsa;
}

RC_GTEST_PROP(SviluppoTratti, SequenzeNeiGruppiComeUnFiloSolo, ())
{
    Confronta(SequenzeNeiGruppi(), OpzioniCasuali());
}

/// Stretches cut anywhere and walked in any order, by two that share their automata.
RC_GTEST_PROP(CamminataTratto, TrattiInQualunqueOrdine, ())
{
    Corsa corsa = prove::UnaVoltaSu(2) ? SequenzeNeiGruppi() : CorsaCasuale(6);
    corsa.nLimite = 0;
    StatoSviluppo stato = StatoDi(corsa);
    const std::vector<std::uint8_t> aScelti(corsa.aScelti.begin(), corsa.aScelti.end());
    RC_PRE(BlocchiPossibili(aScelti.size(), Classe(corsa), stato));
    const LimitiTratto limiti{.durata = std::chrono::hours(1)}; // nobody cuts but the test
    const std::atomic<bool> bFerma{false};
    const CorsaBlocchi blocchi{.aScelti = aScelti, .nClasse = Classe(corsa)};
    CamminataTratto una(blocchi, stato, limiti, bFerma);
    CamminataTratto altra(blocchi, stato, limiti, bFerma, &una);
    static_cast<void>(una.Condizioni().DividiInTratti(true));
    static_cast<void>(altra.Condizioni().DividiInTratti(true));

    const std::int64_t nColonne =
        QuanteColonne(aScelti.size(), static_cast<std::size_t>(corsa.nClasse), 0, 0);
    std::vector<std::int64_t> aTagli{0, nColonne};
    for (int n = Tra(0, 12); n > 0; --n) {
        aTagli.push_back(Tra(0, static_cast<int>(nColonne)));
    }
    std::ranges::sort(aTagli);
    std::vector<std::size_t> aOrdine(aTagli.size() - 1);
    std::iota(aOrdine.begin(), aOrdine.end(), std::size_t{0});
    for (std::size_t i = aOrdine.size(); i > 1; --i) {
        std::swap(aOrdine[i - 1], aOrdine[static_cast<std::size_t>(Tra(0, static_cast<int>(i) - 1))]);
    }
    std::vector<std::vector<Colonna>> aTenute(aOrdine.size());
    for (const std::size_t n : aOrdine) {
        TrattoFatto fatto = (prove::UnaVoltaSu(2) ? una : altra).Cammina(aTagli[n], aTagli[n + 1]);
        RC_ASSERT(fatto.nFine == aTagli[n + 1]);
        aTenute[n] = std::move(fatto.aTenute);
    }
    std::vector<Colonna> aTutte;
    for (const std::vector<Colonna>& aParte : aTenute) {
        aTutte.insert(aTutte.end(), aParte.begin(), aParte.end());
    }
    RC_ASSERT(aTutte == InUno(corsa).aColonne);
}

/// More columns than the buffer holds, thinned or not.
RC_GTEST_PROP(SviluppoTratti, PiuDiUnBufferComeUnFiloSolo, ())
{
    Corsa corsa = CorsaCasuale(2);
    corsa.nClasse = Tra(3, 5);
    corsa.nLimite = Tra(0, corsa.nClasse);
    corsa.aScelti = prove::SceltiCasuali(corsa.nClasse == 3 ? 60 : corsa.nClasse == 4 ? 32 : 24);
    OpzioniTratti opzioni = OpzioniCasuali();
    opzioni.coda.nPrimoTratto = Tra(1000, 20000);
    opzioni.limiti = {};
    Confronta(corsa, opzioni);
}

/// What a run leaves that is stopped behind so many columns.
Lasciato FinoA(const Corsa& corsa, std::int64_t nColonne)
{
    return Esegui(corsa, [&](FileBinario& file, StatoSviluppo& stato, Lasciato& lasciato) {
        BufferColonne buffer(file, Classe(corsa),
                             Limite(corsa) < Classe(corsa) ? Limite(corsa) : std::int16_t{0});
        Enumeratore enumeratore(prove::Pronostico(corsa.aScelti), Classe(corsa));
        bool bAvanti = enumeratore.Presente();
        for (; lasciato.nSviluppate < nColonne && bAvanti; bAvanti = enumeratore.Avanza()) {
            enumeratore.Componi(buffer.Candidata());
            if (VerificaColonna(Classe(corsa), buffer.Candidata(), stato) && buffer.SuperaRiduzione()) {
                buffer.Tieni(kColonneBuffer);
                ++lasciato.nCondizionate;
            }
            ++lasciato.nSviluppate;
        }
        buffer.ScriviResto();
    });
}

RC_GTEST_PROP(SviluppoTratti, UnoStopLasciaLInizioDelRisultato, ())
{
    Corsa corsa = CorsaCasuale(4);
    corsa.nClasse = 4;
    corsa.nLimite = Tra(0, 4);
    corsa.aScelti = prove::SceltiCasuali(26);
    OpzioniTratti opzioni = OpzioniCasuali();
    const int nDopo = Tra(0, 15000);
    const Lasciato tratti = ATratti(corsa, opzioni, [&](ComandiTratti& comandi) {
        const auto fine = std::chrono::steady_clock::now() + std::chrono::milliseconds(200);
        while (comandi.nSviluppate < nDopo && std::chrono::steady_clock::now() < fine) {
            std::this_thread::yield();
        }
        comandi.bFerma = true;
    });
    RC_PRE(!tratti.nErrore);
    const Lasciato piana = FinoA(corsa, tratti.nSviluppate);
    RC_ASSERT(tratti.aColonne == piana.aColonne);
    RC_ASSERT(tratti.nCondizionate == piana.nCondizionate);
    if (tratti.nSviluppate > 0) {
        ConfrontaRecord(tratti.aCondizioni, piana.aCondizioni);
    }
}

/// A system that passes over what leads nowhere, although a condition is counted by looking at columns alone.
RC_GTEST_PROP(SviluppoTratti, SenzaGuardareTuttoRestanoLeColonneGiuste, ())
{
    Corsa corsa = CorsaCasuale(3);
    OpzioniTratti opzioni = OpzioniCasuali();
    opzioni.nByteAutomi = OpzioniTratti{}.nByteAutomi;
    opzioni.nColonneGuardate = 0;
    const bool bEmulatore =
        std::ranges::any_of(corsa.aCondizioni, [](const auto& r) { return r.Tipo == emulatore; });
    const Lasciato uno = InUno(corsa);
    const Lasciato tratti = ATratti(corsa, opzioni);
    RC_ASSERT(tratti.aColonne == uno.aColonne);
    RC_ASSERT(tratti.nSviluppate == uno.nSviluppate || uno.nErrore);
    RC_ASSERT(tratti.bContatori != bEmulatore || uno.nErrore);
    for (std::size_t i = 0; i < uno.aCondizioni.size(); ++i) {
        RC_ASSERT(uno.aCondizioni[i].Tipo == emulatore || tratti.aCondizioni[i] == uno.aCondizioni[i]);
    }
}

RC_GTEST_PROP(RangoColonne, PostiDiOgniColonna, ())
{
    const auto nClasse = static_cast<std::size_t>(Tra(2, 10));
    const auto nScelti = nClasse + static_cast<std::size_t>(Tra(0, 5));
    std::vector<int> aScelti = prove::Fila(1, static_cast<int>(nScelti));
    Enumeratore enumeratore(prove::Pronostico(aScelti), static_cast<std::int16_t>(nClasse));
    Enumeratore altro(prove::Pronostico(aScelti), static_cast<std::int16_t>(nClasse));
    std::int64_t nRango = 0;
    do {
        Colonna colonna;
        Colonna messa;
        enumeratore.Componi(colonna);
        const PostiColonna aPosti = PostiDi(nScelti, nClasse, nRango++);
        altro.Vai(aPosti);
        altro.Componi(messa);
        RC_ASSERT(messa == colonna);
        for (std::size_t k = 0; k < nClasse; ++k) {
            RC_ASSERT(aPosti[k] + 1 == colonna.aNumeri[k]);
        }
    } while (enumeratore.Avanza());
    RC_ASSERT(nRango == QuanteColonne(nScelti, nClasse, 0, 0));
}

RC_GTEST_PROP(ContiCompagni, FinoAOgniColonnaComeContandole, ())
{
    const auto nClasse = static_cast<std::int16_t>(Tra(2, 6));
    // Picks around both kinds of partners.
    const auto aScelti = *rc::gen::element(prove::Fila(40, 51), prove::SceltiCasuali(11),
                                           std::vector<int>{1, 2, 3, 10, 45, 46, 47, 48, 55, 88, 89, 90});
    RecordCondizione record = prove::Lista(*rc::gen::element(simmetrieNum, paralleliNum), {});
    record.PuntiOk = FlagPunti{};
    for (int v = 0; v <= 5; ++v) {
        record.PuntiOk(v) = ComeBooleano(prove::UnaVoltaSu(2));
        record.PuntiRec(v) = ComeBooleano(prove::UnaVoltaSu(2));
    }
    StatoSviluppo stato = prove::StatoDi({record});
    const std::vector<std::uint8_t> aNumeri(aScelti.begin(), aScelti.end());
    const ContiCompagni conti(record, nClasse, aNumeri);
    Enumeratore enumeratore(prove::Pronostico(aScelti), nClasse);
    std::int64_t nRango = 0;
    do {
        Colonna colonna;
        enumeratore.Componi(colonna);
        ValutaCondizioni(nClasse, colonna, stato);
        const Conti fino = conti.FinoA(PostiDi(aNumeri.size(), static_cast<std::size_t>(nClasse), nRango++));
        RC_ASSERT(static_cast<double>(fino.nOk) == stato.aCondizioni[0].ContaOk);
        RC_ASSERT(static_cast<double>(fino.nRec) == stato.aCondizioni[0].ContaRec);
    } while (enumeratore.Avanza());
}

/// A system of all numbers in class 10, of which only the beginnings are walked that lead somewhere.
Corsa NovantaInDieci()
{
    Corsa corsa;
    corsa.aScelti = prove::Fila(1, kNumeroMassimo);
    corsa.nClasse = 10;
    corsa.aCondizioni = {prove::Intervallo(peso, 55, 70), prove::Lista(simmetrieNum, {0}),
                         prove::Lista(paralleliNum, {0, 2})};
    return corsa;
}

TEST(SviluppoTrattiGrande, NovantaNumeriInClasseDieci)
{
    const Lasciato tratti = ATratti(NovantaInDieci(), {.nFili = 2});
    ASSERT_EQ(tratti.nErrore, std::nullopt);
    EXPECT_EQ(tratti.nSviluppate, 5720645481903);
    // Partitions of 0 to 15 into at most 10 parts.
    EXPECT_EQ(tratti.nCondizionate, 658);
    EXPECT_EQ(tratti.aCondizioni[0].ContaOk, 658);
    EXPECT_EQ(tratti.aCondizioni[0].ContaKo, 5720645481903.0 - 658);
    EXPECT_EQ(tratti.aCondizioni[1].ContaOk, 3190187286.0 * 1024);
    EXPECT_EQ(tratti.aCondizioni[2].ContaOk + tratti.aCondizioni[2].ContaKo, 5720645481903.0);
    EXPECT_TRUE(tratti.bContatori);
}

TEST(SviluppoTrattiGrande, UnaClasseMaggioreDeiNumeriFallisce)
{
    Corsa corsa;
    corsa.aScelti = prove::Fila(1, 3);
    corsa.nClasse = 4;
    EXPECT_EQ(ATratti(corsa, {}).nErrore, 11);
    corsa.nClasse = 0;
    EXPECT_EQ(ATratti(corsa, {}).nErrore, 9);
    corsa.nClasse = 21;
    EXPECT_EQ(ATratti(corsa, {}).nErrore, 9);
}

TEST(SviluppoTrattiGrande, ClassiFuoriDaiBlocchiComeUnFiloSolo)
{
    for (const int nClasse : {1, 11, 20}) {
        Corsa corsa;
        corsa.aScelti = prove::Fila(1, nClasse + 4);
        corsa.nClasse = nClasse;
        corsa.nLimite = nClasse - 1;
        corsa.aCondizioni = {prove::Lista(consecutivi, {0, 1, 2, 3, 4, 5})};
        const Lasciato uno = InUno(corsa);
        const Lasciato tratti = ATratti(corsa, {.nFili = 3});
        EXPECT_EQ(tratti.nErrore, uno.nErrore) << nClasse;
        EXPECT_EQ(tratti.aColonne, uno.aColonne) << nClasse;
        EXPECT_EQ(tratti.aCondizioni, uno.aCondizioni) << nClasse;
    }
}

} // namespace
} // namespace ordavel
