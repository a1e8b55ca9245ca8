// ModChiavi.cpp - the make of every kind's key.

#include "motore/ModChiavi.hpp"

#include "core/ModTabelle.hpp"
#include "motore/ModMetriche.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace ordavel {

namespace {

using enum TipoCondizione;

constexpr unsigned kBitNumero = 7; ///< a number, 0 to 90
constexpr unsigned kBitConto = 4;  ///< a count, 0 to 10

using TabellaChiavi = Tabella<eChiave, 0, kTipiCondizione>;

struct VoceChiave {
    TipoCondizione Tipo;
    eChiave forma;
};

constexpr auto kVoci = std::to_array<VoceChiave>({
    {nessuno, eChiave::costante},
    {puntiColonna, eChiave::parziale},
    {pariDispari, eChiave::parziale},
    {peso, eChiave::parziale},
    {resto, eChiave::resto},
    {ampiezza, eChiave::primo},
    {vortice, eChiave::parita},
    {simmetrie, eChiave::parita},
    {consecutivi, eChiave::ultimo},
    {interruzioniPD, eChiave::parita},
    {baricentro, eChiave::somma},
    {distanzaMinima, eChiave::soglie},
    {distanzaMassima, eChiave::soglie},
    {posizioni, eChiave::posizione},
    {ponte, eChiave::ultimo},
    {sequenze, eChiave::parita},
    {paralleli, eChiave::parita},
    {gruppiDiConsecutivi, eChiave::vicini},
    {interruzioni, eChiave::ultimo},
    {consecutiviPD, eChiave::parita},
    {cadenze, eChiave::cifre},
    {decine, eChiave::cifre},
    {figure, eChiave::cifre},
    {formule, eChiave::cifre},
    {fulcro, eChiave::parita},
    {sommaCadenze, eChiave::parziale},
    {sommaDecine, eChiave::parziale},
    {sommaFigure, eChiave::parziale},
    {sommaNumeretti, eChiave::parziale},
    {sommaComplessiva, eChiave::parziale},
    {figureSpecifiche, eChiave::costante},
    {cadenzeSpecifiche, eChiave::costante},
    {decineSpecifiche, eChiave::costante},
});

constexpr TabellaChiavi PerTipo()
{
    TabellaChiavi aForme;
    for (const VoceChiave& voce : kVoci) {
        aForme[static_cast<std::int16_t>(voce.Tipo)] = voce.forma;
    }
    return aForme;
}

constexpr TabellaChiavi kForme = PerTipo();

std::uint64_t Parita(std::int16_t nDati, const Colonna& colonna)
{
    std::uint64_t nBit = 0;
    for (std::int16_t k = 1; k <= nDati; ++k) {
        nBit = nBit << 1U | (colonna[k] & 1U);
    }
    return nBit;
}

std::uint64_t Vicini(std::int16_t nDati, const Colonna& colonna)
{
    std::uint64_t nBit = 0;
    for (std::int16_t k = 2; k <= nDati; ++k) {
        nBit = nBit << 1U | (colonna[k] == colonna[k - 1] + 1 ? 1U : 0U);
    }
    return nBit << kBitNumero | (nDati > 0 ? colonna[nDati] : 0U);
}

std::uint64_t Somma(std::int16_t nDati, const Colonna& colonna)
{
    return static_cast<std::uint64_t>(SommaColonna(nDati, colonna));
}

/// The metric of the beginning, as a whole column of its own.
std::uint64_t Parziale(const RecordCondizione& record, std::int16_t nDati, const Colonna& colonna)
{
    ColonnaInProva inProva(nDati, colonna);
    return static_cast<std::uint32_t>(MetricaDiTipo(record.Tipo)(inProva, record).nValore);
}

/// A smallest or largest gap only ever passes the bounds of the record one way, so that nothing but their order with it
/// matters to the numbers to come.
std::uint64_t Soglie(const RecordCondizione& record, std::uint64_t nParziale)
{
    const std::array<std::int64_t, 4> aSoglie{record.OkMin, std::int64_t{record.OkMax} + 1, record.RecMin,
                                              std::int64_t{record.RecMax} + 1};
    const auto nValore = static_cast<std::int64_t>(nParziale);
    return static_cast<std::uint64_t>(
        std::ranges::count_if(aSoglie, [nValore](std::int64_t nSoglia) { return nSoglia <= nValore; }));
}

const TabellaNumeri& ClassiCifre(TipoCondizione tipo)
{
    switch (tipo) {
    case cadenze:
        return kTabelle.TabCadenze;
    case decine:
        return kTabelle.TabDecine;
    case figure:
        return kTabelle.TabFigure;
    default:
        return kTabelle.TabFormule;
    }
}

std::uint64_t Cifre(TipoCondizione tipo, std::int16_t nDati, const Colonna& colonna)
{
    const TabellaNumeri& aClassi = ClassiCifre(tipo);
    std::uint64_t nConti = 0;
    for (std::int16_t k = 1; k <= nDati; ++k) {
        nConti += std::uint64_t{1} << (static_cast<unsigned>(aClassi(colonna[k])) * kBitConto);
    }
    return nConti;
}

} // namespace

eChiave FormaChiave(TipoCondizione tipo) noexcept
{
    const auto nTipo = static_cast<std::int16_t>(tipo);
    return TabellaChiavi::Contiene(nTipo) ? kForme[nTipo] : eChiave::costante;
}

std::uint64_t ChiaveDi(const RecordCondizione& record, std::int16_t nDati, const Colonna& colonna)
{
    switch (FormaChiave(record.Tipo)) {
    case eChiave::parita:
        return Parita(nDati, colonna);
    case eChiave::parziale:
        return Parziale(record, nDati, colonna);
    case eChiave::resto:
        return record.Parametro == 0
                   ? 0
                   : Somma(nDati, colonna) % static_cast<std::uint64_t>(std::abs(int{record.Parametro}));
    case eChiave::somma:
        return Somma(nDati, colonna);
    case eChiave::primo:
        return nDati > 0 ? colonna[1] : 0U;
    case eChiave::ultimo:
        return Parziale(record, nDati, colonna) << kBitNumero | (nDati > 0 ? colonna[nDati] : 0U);
    case eChiave::soglie:
        return Soglie(record, Parziale(record, nDati, colonna)) << kBitNumero |
               (nDati > 0 ? colonna[nDati] : 0U);
    case eChiave::vicini:
        return Vicini(nDati, colonna);
    case eChiave::posizione:
        return record.Parametro >= 1 && record.Parametro <= nDati ? colonna[record.Parametro] : 0U;
    case eChiave::cifre:
        return Cifre(record.Tipo, nDati, colonna);
    case eChiave::nessuna:
    case eChiave::costante:
        break;
    }
    return 0;
}

} // namespace ordavel
