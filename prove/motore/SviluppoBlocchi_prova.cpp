// SviluppoBlocchi_prova.cpp - whole blocks against column by column: files, counters, last values, refreshes, stops.

#include "motore/SviluppoBlocchi.hpp"

#include "comune/ColonneProva.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/RecordProva.hpp"
#include "condizioni/ModCompila.hpp"
#include "motore/CorsaCasuale.hpp"
#include "motore/CorsaProva.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

namespace ordavel {
namespace {

using prove::Corsa;
using prove::CorsaCasuale;
using prove::CorsaProva;
using prove::Nuclei;
using prove::SceltiCasuali;
using prove::Tra;

/// All that a run leaves.
struct Lasciato {
    std::vector<Colonna> aColonne;
    std::vector<RecordCondizione> aCondizioni;
    std::vector<prove::Aggiornamento> aMostrati;
    int nEventi = 0;
    std::optional<int> nErrore;
};

Lasciato Esegui(const Corsa& corsa, std::optional<eNucleo> nucleo)
{
    CorsaProva prova(corsa.aCondizioni);
    prova.stato.aQuadroRec = corsa.aQuadro;
    prova.stato.aEmulatore = corsa.aEmulatore;
    prova.avanzamento.eventi = [&] { prova.stato.bStopSviluppo = prova.avanzamento.nEventi == corsa.nStop; };
    Lasciato lasciato;
    lasciato.nErrore = prove::NumeroErrore(
        [&] { lasciato.aColonne = prova.Sviluppa(corsa.aScelti, corsa.nClasse, corsa.nLimite, nucleo); });
    lasciato.aCondizioni = prova.stato.aCondizioni;
    lasciato.aMostrati = prova.avanzamento.aMostrati;
    lasciato.nEventi = prova.avanzamento.nEventi;
    return lasciato;
}

void Confronta(const Corsa& corsa, eNucleo nucleo)
{
    const Lasciato piano = Esegui(corsa, std::nullopt);
    const Lasciato blocchi = Esegui(corsa, nucleo);
    RC_ASSERT(blocchi.nErrore == piano.nErrore);
    RC_ASSERT(blocchi.aColonne == piano.aColonne);
    RC_ASSERT(blocchi.aMostrati == piano.aMostrati);
    RC_ASSERT(blocchi.nEventi == piano.nEventi);
    RC_ASSERT(blocchi.aCondizioni.size() == piano.aCondizioni.size());
    for (std::size_t i = 0; i < piano.aCondizioni.size(); ++i) {
        if (!(blocchi.aCondizioni[i] == piano.aCondizioni[i])) {
            RC_LOG() << "record " << i << ": " << blocchi.aCondizioni[i] << "\n invece di "
                     << piano.aCondizioni[i] << '\n';
        }
        RC_ASSERT(blocchi.aCondizioni[i] == piano.aCondizioni[i]);
    }
}

RC_GTEST_PROP(SviluppoBlocchi, UnaCondizioneSolaComeLaFormaPiana, ())
{
    Confronta(CorsaCasuale(1), *rc::gen::elementOf(Nuclei()));
}

RC_GTEST_PROP(SviluppoBlocchi, SistemiInteriComeLaFormaPiana, ())
{
    Confronta(CorsaCasuale(40), *rc::gen::elementOf(Nuclei()));
}

RC_GTEST_PROP(SviluppoBlocchi, SistemiGuastiComeLaFormaPiana, ())
{
    Corsa corsa = CorsaCasuale(3);
    prove::Guasta(corsa.aCondizioni);
    Confronta(corsa, *rc::gen::elementOf(Nuclei()));
}

RC_GTEST_PROP(SviluppoBlocchi, AggiornamentiEStopComeLaFormaPiana, ())
{
    Corsa corsa = CorsaCasuale(4);
    corsa.nClasse = Tra(3, 5);
    corsa.aScelti = SceltiCasuali(corsa.nClasse == 3 ? 60 : corsa.nClasse == 4 ? 32 : 24);
    corsa.nStop = Tra(0, 4);
    Confronta(corsa, *rc::gen::elementOf(Nuclei()));
}

/// So little room that some conditions have states up to a point of the run, and none from there on.
RC_GTEST_PROP(SviluppoBlocchi, ConPocoPostoPerGliStatiComeLaFormaPiana, ())
{
    const Corsa corsa = CorsaCasuale(3);
    const auto nClasse = static_cast<std::int16_t>(corsa.nClasse);
    const std::vector<std::uint8_t> aScelti(corsa.aScelti.begin(), corsa.aScelti.end());
    const prove::CartellaProva cartella;
    FileBinario file(cartella / "c", eApertura::scrittura);
    BufferColonne buffer(file, nClasse, 0);
    StatoSviluppo stato = prove::StatoDi(corsa.aCondizioni);
    stato.aQuadroRec = corsa.aQuadro;
    stato.aEmulatore = corsa.aEmulatore;
    prove::AvanzamentoProva avanzamento;
    RC_PRE(BlocchiPossibili(aScelti.size(), nClasse, stato));
    const CorsaBlocchi blocchi{.aScelti = aScelti,
                               .nClasse = nClasse,
                               .nTotale = 1,
                               .nucleo = NucleoMigliore(),
                               .nByteAutomi = static_cast<std::size_t>(Tra(0, 100000))};
    const auto nErrore =
        prove::NumeroErrore([&] { SviluppoBlocchi(blocchi, buffer, stato, avanzamento).Esegui(); });
    Corsa piana = corsa;
    piana.nLimite = 0;
    const Lasciato atteso = Esegui(piana, std::nullopt);
    RC_ASSERT(nErrore == atteso.nErrore);
    RC_ASSERT(stato.aCondizioni == atteso.aCondizioni);
    RC_ASSERT(stato.nCondizionate == static_cast<std::int32_t>(atteso.aColonne.size()) || nErrore);
}

} // namespace
} // namespace ordavel
