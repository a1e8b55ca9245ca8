// Avido.cpp - greedy covers.

#include "Avido.hpp"

#include "Guadagni.hpp"

#include <queue>

#include <algorithm>

namespace ordavel::trvrdcol {

namespace {

/// Seconds that a stopped reduction still takes to make its cover smaller than "all that is left".
constexpr double kSecondiDopoFermata = 2;

/// The most valuable set on top, the first of equal ones.
using Coda = std::priority_queue<std::uint64_t>;

std::uint64_t Voce(std::uint32_t nValore, Indice nInsieme) noexcept
{
    return (std::uint64_t{nValore} << 32U) | (kNessuno - nInsieme);
}

/// Takes sets in file order, each when it is not covered; when that takes too long, all that is left.
template <typename Guadagni>
void InOrdine(std::size_t nQuanti, Guadagni& guadagni, const Tempo& tempo, std::vector<Indice>& aScelti)
{
    const double nFine = tempo.Trascorsi() + kSecondiDopoFermata;
    for (Indice i = 0; i < nQuanti && guadagni.Scoperti() > 0; ++i) {
        if (guadagni.Coperto(i)) {
            continue;
        }
        aScelti.push_back(i);
        if (tempo.Trascorsi() < nFine) {
            guadagni.Copri(i);
        }
    }
}

/// Takes the most valuable set until all is covered.
///
/// Values only fall. So a set whose old value is not above those of others need not be looked at again, and one whose
/// value is still what it was when it went into the queue is the best.
template <typename Guadagni>
void Avidamente(Coda coda, Guadagni& guadagni, const Tempo& tempo, std::vector<Indice>& aScelti)
{
    const std::size_t nTutti = guadagni.Scoperti();
    for (std::size_t n = 0; guadagni.Scoperti() > 0 && !tempo.Fermato(); ++n) {
        const std::uint64_t nVoce = coda.top();
        coda.pop();
        const auto nInsieme = static_cast<Indice>(kNessuno - (nVoce & kNessuno));
        const std::uint32_t nValore = guadagni.Valore(nInsieme);
        if (nValore == nVoce >> 32U) {
            aScelti.push_back(nInsieme);
            guadagni.Copri(nInsieme);
        } else if (nValore > 0) {
            coda.push(Voce(nValore, nInsieme));
        }
        if (n % 1024 == 0) {
            tempo.Mostra(nTutti - guadagni.Scoperti(), nTutti);
        }
    }
}

template <typename Guadagni>
std::vector<Indice> Copri(std::size_t nQuanti, Guadagni& guadagni, const Tempo& tempo)
{
    std::vector<std::uint64_t> aVoci(nQuanti);
    for (Indice i = 0; i < nQuanti && !tempo.Fermato(); ++i) {
        aVoci[i] = Voce(guadagni.Valore(i), i);
    }
    std::vector<Indice> aScelti;
    Avidamente(Coda({}, std::move(aVoci)), guadagni, tempo, aScelti);
    InOrdine(nQuanti, guadagni, tempo, aScelti);
    return aScelti;
}

} // namespace

std::vector<Indice> CopriAvido(const Problema& problema, const Vicini& vicini, const Incidenza* incidenza,
                               const Tempo& tempo)
{
    if (incidenza != nullptr) {
        GuadagniScritti guadagni(problema, *incidenza);
        return Copri(problema.Quanti(), guadagni, tempo);
    }
    if (GuadagniContati::Possibile(problema)) {
        GuadagniContati guadagni(problema, vicini);
        return Copri(problema.Quanti(), guadagni, tempo);
    }
    GuadagniCercati guadagni(problema, vicini);
    return Copri(problema.Quanti(), guadagni, tempo);
}

std::vector<Indice> Ripara(const Problema& problema, const Vicini& vicini, std::vector<Indice> aScelti,
                           const Tempo& tempo)
{
    GuadagniCercati guadagni(problema, vicini);
    for (const Indice i : aScelti) {
        guadagni.Copri(i);
    }
    Coda coda;
    for (Indice i = 0; i < problema.Quanti() && guadagni.Scoperti() > 0; ++i) {
        if (!guadagni.Coperto(i)) {
            coda.push(Voce(guadagni.Valore(i), i));
        }
    }
    // Whoever is not covered covers itself, so that the queue cannot run dry before the end.
    Avidamente(std::move(coda), guadagni, tempo, aScelti);
    InOrdine(problema.Quanti(), guadagni, tempo, aScelti);
    return TogliSuperflui(problema, vicini, std::move(aScelti), tempo);
}

std::vector<Indice> TogliSuperflui(const Problema& problema, const Vicini& vicini,
                                   std::vector<Indice> aScelti, const Tempo& tempo)
{
    Segni segni(problema.Quanti());
    std::vector<Indice> aTrovati;
    std::vector<Indice> aQuante(problema.Quanti(), 0);
    for (const Indice i : aScelti) {
        vicini.Trova(i, segni, aTrovati);
        std::ranges::for_each(aTrovati, [&](Indice j) { ++aQuante[j]; });
    }
    // The last were taken for the few that were left, so they are tried first.
    for (std::size_t k = aScelti.size(); k-- > 0 && !tempo.Fermato();) {
        vicini.Trova(aScelti[k], segni, aTrovati);
        if (std::ranges::all_of(aTrovati, [&](Indice j) { return aQuante[j] > 1; })) {
            std::ranges::for_each(aTrovati, [&](Indice j) { --aQuante[j]; });
            aScelti.erase(aScelti.begin() + static_cast<std::ptrdiff_t>(k));
        }
    }
    return aScelti;
}

std::vector<Indice> Testimoni(const Problema& problema, const Vicini& vicini,
                              const std::vector<Indice>& aScelti)
{
    Segni segni(problema.Quanti());
    std::vector<Indice> aTrovati;
    std::vector<Indice> aTestimoni(problema.Quanti(), kNessuno);
    for (const Indice i : aScelti) {
        vicini.Trova(i, segni, aTrovati);
        std::ranges::for_each(aTrovati, [&](Indice j) { aTestimoni[j] = i; });
    }
    for (const Indice i : aScelti) {
        aTestimoni[i] = i;
    }
    return aTestimoni;
}

} // namespace ordavel::trvrdcol
