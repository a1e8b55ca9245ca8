// ModMetriche.cpp - the table from kind to metric.

#include "motore/ModMetriche.hpp"

#include "calcoli/ModCifre.hpp"
#include "calcoli/ModSimmetria.hpp"

namespace ordavel {

namespace {

using Record = RecordCondizione;

/// Metrics that read the numbers alone.
template <std::int32_t (*Funzione)(std::int16_t, const Colonna&)>
ValoriMetrica Numeri(ColonnaInProva& c, const Record& /*record*/)
{
    return {Funzione(c.Classe(), c.Numeri())};
}

/// Metrics that read the numbers and the record's flags.
template <std::int32_t (*Funzione)(std::int16_t, const Colonna&, const FlagNumeri&)>
ValoriMetrica Flag(ColonnaInProva& c, const Record& record)
{
    return {Funzione(c.Classe(), c.Numeri(), record.Numeri)};
}

/// Metrics that read the parities alone.
template <std::int32_t (*Funzione)(std::int16_t, const SequenzaParita&)>
ValoriMetrica Parita(ColonnaInProva& c, const Record& /*record*/)
{
    return {Funzione(c.Classe(), c.Parita())};
}

/// Metrics that read the parities and the record's parameter.
template <std::int32_t (*Funzione)(std::int16_t, const SequenzaParita&, std::int16_t)>
ValoriMetrica ParitaParametro(ColonnaInProva& c, const Record& record)
{
    return {Funzione(c.Classe(), c.Parita(), record.Parametro)};
}

ValoriMetrica RestoSomma(ColonnaInProva& c, const Record& record)
{
    return {Resto(c.Somma(), record.Parametro)};
}

ValoriMetrica PosizioneVortice(ColonnaInProva& c, const Record& record)
{
    return {CalcolaVortice(c.Classe(), c.Parita(), record.Parametro).nPos};
}

ValoriMetrica MediaInferiore(ColonnaInProva& c, const Record& /*record*/)
{
    return {BaricentroInferiore(c.Classe(), c.Somma())};
}

ValoriMetrica NumeroInPosizione(ColonnaInProva& c, const Record& record)
{
    return {c.Numeri()(record.Parametro)};
}

ValoriMetrica Scansione(ColonnaInProva& c, const Record& record)
{
    const EsitoSequenze esito =
        CalcolaSequenzeScansione(c.Classe(), c.Parita(), record.Numeri, record.Parametro, record.Passo);
    return {esito.nQuante, esito.nCatena};
}

ValoriMetrica Gruppi(ColonnaInProva& c, const Record& record)
{
    return {CalcolaGruppiDiConsecutivi(c.Classe(), c.Numeri(), record.Parametro, record.Passo)};
}

using enum TipoCondizione;

struct VoceMetrica {
    TipoCondizione Tipo;
    Metrica metrica;
};

constexpr std::array kMetriche = std::to_array<VoceMetrica>({
    {puntiColonna, Flag<ContaPuntiColonna>},
    {pariDispari, Flag<ContaPuntiColonna>},
    {peso, Flag<CalcolaPeso>},
    {resto, RestoSomma},
    {ampiezza, Numeri<CalcolaAmpiezza>},
    {vortice, PosizioneVortice},
    {simmetrie, ParitaParametro<CalcolaSimmetrie>},
    {consecutivi, Numeri<CalcolaConsecutivi>},
    {interruzioniPD, Parita<CalcolaInterruzioniPD>},
    {baricentro, MediaInferiore},
    {distanzaMinima, Numeri<CalcolaDistanzaMinima>},
    {distanzaMassima, Numeri<CalcolaDistanzaMassima>},
    {posizioni, NumeroInPosizione},
    {ponte, Numeri<CalcolaPonte>},
    {sequenze, Scansione},
    {paralleli, ParitaParametro<CalcolaParalleli>},
    {gruppiDiConsecutivi, Gruppi},
    {interruzioni, Numeri<CalcolaInterruzioni>},
    {consecutiviPD, Parita<CalcolaConsecutiviPD>},
    {cadenze, Numeri<CalcolaCadenze>},
    {decine, Numeri<CalcolaDecine>},
    {figure, Numeri<CalcolaFigure>},
    {simmetrieNum, Numeri<CalcolaSimmetrieNum>},
    {paralleliNum, Numeri<CalcolaParalleliNum>},
    {fulcro, ParitaParametro<CalcolaFulcro>},
    {sommaCadenze, Flag<CalcolaSommaCadenze>},
    {sommaDecine, Flag<CalcolaSommaDecine>},
    {sommaFigure, Flag<CalcolaSommaFigure>},
    {sommaNumeretti, Flag<CalcolaSommaNumeretti>},
    {sommaComplessiva, Flag<CalcolaSommaComplessiva>},
});

using TabellaMetriche = Tabella<Metrica, 0, kTipiCondizione>;

constexpr TabellaMetriche PerTipo()
{
    TabellaMetriche aMetriche;
    for (const VoceMetrica& voce : kMetriche) {
        aMetriche[static_cast<std::int16_t>(voce.Tipo)] = voce.metrica;
    }
    return aMetriche;
}

constexpr TabellaMetriche kMetrichePerTipo = PerTipo();

} // namespace

Metrica MetricaDiTipo(TipoCondizione tipo) noexcept
{
    const auto nTipo = static_cast<std::int16_t>(tipo);
    return TabellaMetriche::Contiene(nTipo) ? kMetrichePerTipo[nTipo] : nullptr;
}

} // namespace ordavel
