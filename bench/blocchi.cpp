// blocchi.cpp - columns judged and counted, nothing kept: by whole blocks, and one by one.
//
// The last argument of a line is an instruction set, -1 for the plain form. Each line checks its counts against those
// known for 1 to 90, or against the other lines, and becomes an error when they are wrong.

#include "comune/RecordProva.hpp"
#include "motore/ContaBlocchi.hpp"
#include "motore/ModSviluppo.hpp"
#include "motore/ModVerifica.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <random>
#include <vector>

namespace ordavel {
namespace {

using enum TipoCondizione;
using prove::ConParametro;
using prove::Intervallo;
using prove::Lista;

std::vector<std::uint8_t> TuttiINumeri()
{
    std::vector<std::uint8_t> aScelti(static_cast<std::size_t>(kNumeroMassimo));
    std::iota(aScelti.begin(), aScelti.end(), std::uint8_t{1});
    return aScelti;
}

/// Random draws of six numbers, always the same ones.
RigheEmulatore Estrazioni(std::size_t nRighe)
{
    std::mt19937 sorte(1);
    std::vector<RigaEmulatore> aRighe(nRighe);
    for (RigaEmulatore& aRiga : aRighe) {
        for (int n = 0; n < 6; ++n) {
            aRiga(static_cast<std::int64_t>(sorte() % kNumeroMassimo + 1)) = 1;
        }
    }
    return RigheEmulatore(std::move(aRighe));
}

/// What a count gives.
struct Contato {
    std::uint64_t nPassano = 0;
    std::vector<double> aOk; ///< by condition

    friend bool operator==(const Contato&, const Contato&) = default;
};

/// All columns of 1 to 90, one by one.
std::uint64_t ContaPiano(std::int16_t nClasse, StatoSviluppo& stato)
{
    NumeriScelti aNumeri;
    for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
        aNumeri[n] = n;
    }
    Enumeratore enumeratore(aNumeri, nClasse);
    Colonna colonna;
    std::uint64_t nPassano = 0;
    do {
        enumeratore.Componi(colonna);
        nPassano += VerificaColonna(nClasse, colonna, stato) ? 1U : 0U;
    } while (enumeratore.Avanza());
    return nPassano;
}

/// Takes    nNucleo   an instruction set, or -1
Contato Conta(std::int16_t nClasse, StatoSviluppo stato, std::int64_t nNucleo)
{
    const std::vector<std::uint8_t> aScelti = TuttiINumeri();
    Contato contato;
    if (nNucleo < 0) {
        contato.nPassano = ContaPiano(nClasse, stato);
    } else {
        const CorsaBlocchi corsa{
            .aScelti = aScelti, .nClasse = nClasse, .nucleo = static_cast<eNucleo>(nNucleo)};
        contato.nPassano = *ContaPassano(corsa, stato, [] { return true; });
    }
    for (const RecordCondizione& record : stato.aCondizioni) {
        contato.aOk.push_back(record.ContaOk);
    }
    return contato;
}

void Misura(benchmark::State& giri, std::int16_t nClasse, const StatoSviluppo& stato, std::int64_t nNucleo,
            const Contato& atteso)
{
    Contato contato;
    for (auto _ : giri) {
        contato = Conta(nClasse, stato, nNucleo);
    }
    giri.counters["passano"] = static_cast<double>(contato.nPassano);
    if (!(contato == atteso)) {
        giri.SkipWithError("i conteggi non tornano");
    }
}

StatoSviluppo StatoDi(const std::vector<RecordCondizione>& aCondizioni)
{
    StatoSviluppo stato;
    stato.aCondizioni = aCondizioni;
    return stato;
}

void TreCondizioni(benchmark::State& giri)
{
    Misura(giri, 6, StatoDi({Intervallo(peso, 243, 303), prove::Dispari({3}), Lista(consecutivi, {0, 1})}),
           giri.range(0), {72589877, {230372738, 201356100, 601361145}});
}

/// Forty conditions: seven in a list, twelve in a range, the digits and parities, each kind with more than one bound.
std::vector<RecordCondizione> Quaranta()
{
    std::vector<RecordCondizione> aCondizioni;
    for (std::int16_t n = 0; n < 2; ++n) {
        for (const TipoCondizione tipo : {consecutivi, ponte, interruzioniPD, consecutiviPD}) {
            aCondizioni.push_back(Lista(tipo, {0, 1, 2, 3, 4 + n}));
        }
        for (const TipoCondizione tipo : {cadenze, decine, figure}) {
            aCondizioni.push_back(Lista(tipo, {0, 1, 2, 3, 4 + n}));
        }
        for (const TipoCondizione tipo : {simmetrie, paralleli, fulcro, vortice}) {
            aCondizioni.push_back(
                ConParametro(Lista(tipo, {0, 1, 2, 3, 4, 5 + n}), static_cast<std::int16_t>(n + 1)));
        }
        aCondizioni.push_back(Intervallo(peso, 200 - n, 350));
        aCondizioni.push_back(Intervallo(baricentro, 30, 60 + n));
        aCondizioni.push_back(Intervallo(ampiezza, 40, 86 + n));
        aCondizioni.push_back(Intervallo(distanzaMinima, 1, 15 - n));
        aCondizioni.push_back(Intervallo(distanzaMassima, 10, 60 - n));
        aCondizioni.push_back(
            ConParametro(Intervallo(posizioni, 1 + n, 60), static_cast<std::int16_t>(n + 1)));
        aCondizioni.push_back(
            ConParametro(Lista(resto, {0, 1, 2, 3, 4, 5}), static_cast<std::int16_t>(7 + n)));
        aCondizioni.push_back(Intervallo(sommaCadenze, 10, 40 + n));
        aCondizioni.push_back(Intervallo(sommaNumeretti, 0, 12 + n));
    }
    return aCondizioni;
}

/// The count of the first line is what the others are held against.
void QuarantaCondizioni(benchmark::State& giri)
{
    static const Contato atteso = Conta(6, StatoDi(Quaranta()), 0);
    Misura(giri, 6, StatoDi(Quaranta()), giri.range(0), atteso);
}

/// One kind alone, with bounds that some columns pass and some do not.
RecordCondizione Tipica(TipoCondizione tipo)
{
    RecordCondizione record = Intervallo(tipo, 10, 60);
    record.Parametro = tipo == resto ? 7 : 2;
    record.Passo = tipo == gruppiDiConsecutivi ? 2 : 1;
    record.Numeri[0] = tipo == sequenze ? 1 : 0;
    record.PuntiOk(1) = record.PuntiOk2(1) = kVero;
    if (tipo == emulatore) {
        for (int k = 0; k <= kValoreListaMassimo; ++k) {
            record.PuntiRec(k) =
                static_cast<std::int16_t>(k < 3 ? 1000 : 0); // no draw with three hits or more
        }
    }
    return record;
}

/// Takes    range(0)   number of the kind
///          range(1)   draws of the emulator
///          range(2)   instruction set, or -1
void Tipo(benchmark::State& giri)
{
    static std::map<std::pair<std::int64_t, std::int64_t>, Contato> attesi;
    StatoSviluppo stato = StatoDi({Tipica(static_cast<TipoCondizione>(giri.range(0)))});
    stato.aEmulatore = Estrazioni(static_cast<std::size_t>(giri.range(1)));
    const std::pair chiave(giri.range(0), giri.range(1));
    if (!attesi.contains(chiave)) {
        attesi[chiave] = Conta(5, stato, 0);
    }
    Misura(giri, 5, stato, giri.range(2), attesi[chiave]);
}

void Nuclei(benchmark::internal::Benchmark* banco)
{
    banco->DenseRange(0, static_cast<int>(NucleoMigliore()))->Unit(benchmark::kMillisecond);
}

void Tipi(benchmark::internal::Benchmark* banco)
{
    banco->Unit(benchmark::kMillisecond);
    for (std::int64_t nTipo = 3; nTipo <= 34; ++nTipo) {
        for (const std::int64_t nRighe :
             nTipo == 26 ? std::vector<std::int64_t>{50, 500} : std::vector<std::int64_t>{1}) {
            for (std::int64_t n = -1; n <= static_cast<int>(NucleoMigliore()); ++n) {
                banco->Args({nTipo, nRighe, n});
            }
        }
    }
}

BENCHMARK(TreCondizioni)->Apply(Nuclei);
BENCHMARK(QuarantaCondizioni)->Apply(Nuclei);
BENCHMARK(Tipo)->Apply(Tipi);

} // namespace
} // namespace ordavel
