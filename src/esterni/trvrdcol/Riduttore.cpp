// Riduttore.cpp - greedy cover, search, check.

#include "Riduttore.hpp"

#include "Avido.hpp"
#include "Incidenza.hpp"
#include "Miglioramento.hpp"
#include "Vicini.hpp"

#include <algorithm>
#include <numeric>
#include <optional>
#include <thread>

namespace ordavel::trvrdcol {

namespace {

/// Neighbours that are written out at most, 4 bytes each.
constexpr std::size_t kVociMassime = 110'000'000;
constexpr unsigned kFiliMassimi = 16;

std::vector<Indice> Tutti(std::size_t nQuanti)
{
    std::vector<Indice> aTutti(nQuanti);
    std::iota(aTutti.begin(), aTutti.end(), Indice{0});
    return aTutti;
}

/// The chosen sets as records, with those that have no set, and any that a check of the plain definition finds
/// uncovered.
std::vector<Indice> Controllati(std::span<const Record> aRecord, const Problema& problema,
                                const Vicini& vicini, const std::vector<Indice>& aScelti, std::size_t nClasse)
{
    std::vector<Indice> aResta = problema.aFissi;
    const std::vector<Indice> aTestimoni = Testimoni(problema, vicini, aScelti);
    std::vector<bool> aDentro(aRecord.size());
    for (const Indice i : aScelti) {
        aDentro[problema.aRecordDi[i]] = true;
    }
    for (Indice r = 0; r < aRecord.size(); ++r) {
        const Indice nInsieme = problema.aInsiemeDi[r];
        if (nInsieme == kNessuno) {
            continue;
        }
        const Indice nTestimone =
            aTestimoni[nInsieme] == kNessuno ? kNessuno : problema.aRecordDi[aTestimoni[nInsieme]];
        const bool bCoperto = nTestimone != kNessuno && aDentro[nTestimone] &&
                              NumeriComuni(aRecord[r], aRecord[nTestimone], nClasse) >= problema.nPunti;
        if (aDentro[r] || !bCoperto) {
            aResta.push_back(r);
        }
    }
    std::ranges::sort(aResta);
    return aResta;
}

} // namespace

std::vector<Indice> Riduci(std::span<const Record> aRecord, std::int32_t nPuntiRichiesti, double nSecondi,
                           Comandi& comandi)
{
    const std::size_t nClasse = ClasseRecord(aRecord);
    if (nPuntiRichiesti <= 0) {
        return Tutti(std::min<std::size_t>(aRecord.size(), 1));
    }
    if (nPuntiRichiesti > static_cast<std::int32_t>(nClasse)) {
        return Tutti(aRecord.size());
    }
    Tempo tempo(comandi, nSecondi);
    const Problema problema(aRecord, nPuntiRichiesti, nClasse);
    const Vicini vicini(problema);
    const unsigned nFili = std::clamp(std::thread::hardware_concurrency(), 1U, kFiliMassimi);
    std::optional<Incidenza> incidenza;
    if (vicini.GradoMedio() * static_cast<double>(problema.Quanti()) < 1.2 * kVociMassime) {
        incidenza = ScriviIncidenza(problema, vicini, kVociMassime, nFili, tempo);
    }
    const Incidenza* const scritta = incidenza ? &*incidenza : nullptr;
    std::vector<Indice> aScelti = CopriAvido(problema, vicini, scritta, tempo);
    aScelti = TogliSuperflui(problema, vicini, std::move(aScelti), tempo);
    if (!tempo.Finito() && aScelti.size() > 1) {
        aScelti = Migliora(problema, vicini, scritta, std::move(aScelti), nFili, tempo);
    }
    return Controllati(aRecord, problema, vicini, aScelti, nClasse);
}

} // namespace ordavel::trvrdcol
