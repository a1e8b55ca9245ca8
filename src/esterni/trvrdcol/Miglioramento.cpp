// Miglioramento.cpp - local search, regions and symmetry side by side.

#include "Miglioramento.hpp"

#include "Avido.hpp"
#include "Gruppi.hpp"
#include "Orbite.hpp"
#include "Regioni.hpp"
#include "RicercaLocale.hpp"
#include "core/Fili.hpp"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <optional>
#include <utility>

namespace ordavel::trvrdcol {

namespace {

/// The best cover of all threads.
class Primato {
public:
    explicit Primato(std::vector<Indice> aScelti) : m_nQuanti(aScelti.size()), m_aScelti(std::move(aScelti))
    {}

    [[nodiscard]] std::size_t Quanti() const noexcept { return m_nQuanti; }
    /// When it last became smaller, in seconds of the clock.
    [[nodiscard]] double Quando() const noexcept { return m_nQuando; }

    [[nodiscard]] std::vector<Indice> Scelti() const
    {
        const std::scoped_lock presa(m_Serratura);
        return m_aScelti;
    }

    void Offri(std::vector<Indice> aScelti, const Tempo& tempo)
    {
        const std::scoped_lock presa(m_Serratura);
        if (aScelti.size() < m_aScelti.size()) {
            m_aScelti = std::move(aScelti);
            m_nQuanti = m_aScelti.size();
            m_nQuando = tempo.Trascorsi();
        }
    }

private:
    mutable std::mutex m_Serratura;
    std::atomic<std::size_t> m_nQuanti;
    std::atomic<double> m_nQuando{0};
    std::vector<Indice> m_aScelti;
};

/// The symmetric side of a problem, or of the complete one that it is nearly.
class Regolare {
public:
    explicit Regolare(const Problema& problema, const Vicini& vicini, const Incidenza* incidenza)
        : m_Problema(problema), m_Vicini(vicini)
    {
        Problema completo = problema;
        if (completo.Completa()) {
            m_Completo = std::move(completo);
            m_ViciniCompleti.emplace(*m_Completo);
        }
        const Problema& base = m_Completo ? *m_Completo : problema;
        m_Dizionario = Dizionario(base.Quanti());
        for (Indice i = 0; i < base.Quanti(); ++i) {
            m_Dizionario.Aggiungi(base.aInsiemi, i);
        }
        m_aClassi = ClassiDiPosti(base, m_Dizionario);
        m_Terreno.emplace(Terreno{base, m_Completo ? *m_ViciniCompleti : vicini,
                                  m_Completo ? nullptr : incidenza, m_Dizionario, m_aClassi});
    }

    /// Is there symmetry enough to look for covers with it?
    [[nodiscard]] bool Promette() const
    {
        constexpr std::size_t kInsiemiMinimi = 30;
        return m_Problema.Quanti() >= kInsiemiMinimi &&
               std::ranges::any_of(m_aClassi, [](const Classe& c) { return c.size() >= 4; });
    }

    [[nodiscard]] const Terreno& Dove() const { return *m_Terreno; }

    /// A cover of the problem out of a cover of the complete one: what is missing in the problem stands behind its sets.
    [[nodiscard]] std::vector<Indice> Riporta(std::vector<Indice> aScelti, const Tempo& tempo) const
    {
        if (!m_Completo || aScelti.empty()) {
            return aScelti;
        }
        std::erase_if(aScelti, [&](Indice i) { return i >= m_Problema.Quanti(); });
        return Ripara(m_Problema, m_Vicini, std::move(aScelti), tempo);
    }

private:
    const Problema& m_Problema;
    const Vicini& m_Vicini;
    std::optional<Problema> m_Completo;
    std::optional<Vicini> m_ViciniCompleti;
    Dizionario m_Dizionario;
    std::vector<Classe> m_aClassi;
    std::optional<Terreno> m_Terreno;
};

/// What all threads work on; each part is null when it is of no use here.
struct Cantiere {
    const Problema& problema;
    const Vicini& vicini;
    const Incidenza* incidenza;
    const Regolare* regolare;
    CoperturaComune* copertura;
    Primato& primato;
    const Tempo& tempo;
};

/// One thread of the search. It gives turns of like length to symmetry, to the local search and to regions.
class Lavoratore {
public:
    Lavoratore(const Cantiere& cantiere, unsigned nFilo)
        : m_Regolare(cantiere.regolare), m_Primato(cantiere.primato), m_Tempo(cantiere.tempo)
    {
        // Beyond this size the moves of a local search are lost in the whole.
        constexpr std::size_t kSceltiLocale = 5000;
        if (m_Regolare != nullptr) {
            m_Simmetrica.emplace(m_Regolare->Dove(), nFilo);
        }
        if (cantiere.incidenza != nullptr && m_Primato.Quanti() <= kSceltiLocale) {
            m_Locale.emplace(*cantiere.incidenza, nFilo);
        }
        if (cantiere.copertura != nullptr) {
            Fonte fonte(cantiere.vicini, cantiere.incidenza, cantiere.problema.Quanti());
            m_Regioni.emplace(*cantiere.copertura, std::move(fonte), nFilo);
        }
    }

    /// Takes    nSecondi   about how long
    void TurnoSimmetrico(double nSecondi)
    {
        const double nFine = m_Tempo.Trascorsi() + nSecondi;
        while (m_Simmetrica && !m_Tempo.Finito() && m_Tempo.Trascorsi() < nFine) {
            const std::size_t nPrimato = m_Primato.Quanti();
            std::vector<Indice> aTrovati = m_Simmetrica->Prova(nPrimato + nPrimato / 50 + 1, m_Tempo);
            aTrovati = m_Regolare->Riporta(std::move(aTrovati), m_Tempo);
            if (aTrovati.empty()) {
                continue;
            }
            m_aSpunto = aTrovati;
            m_Primato.Offri(std::move(aTrovati), m_Tempo);
        }
    }

    void TurnoLocale(double nSecondi)
    {
        if (!m_Locale) {
            return;
        }
        Riparti();
        const double nFine = m_Tempo.Trascorsi() + nSecondi;
        ++m_nTurniVani;
        do {
            constexpr std::size_t kFetta = 100;
            if (m_Locale->Cerca(kFetta)) {
                m_nTurniVani = 0;
            }
        } while (!m_Tempo.Finito() && m_Tempo.Trascorsi() < nFine);
        if (m_Locale->CostoMigliore() < m_Primato.Quanti()) {
            m_Primato.Offri(m_Locale->Migliore(), m_Tempo);
        }
    }

    void TurnoRegioni(double nSecondi)
    {
        if (!m_Regioni) {
            return;
        }
        if (m_bRegioniDaIniziare || m_Primato.Quanti() < m_Regioni->Quanti()) {
            m_Regioni->Parti(m_Primato.Scelti());
            m_bRegioniDaIniziare = false;
        }
        const double nFine = m_Tempo.Trascorsi() + nSecondi;
        while (!m_Tempo.Finito() && m_Tempo.Trascorsi() < nFine) {
            m_Regioni->Prova(m_Tempo);
        }
        if (m_Regioni->Quanti() < m_Primato.Quanti()) {
            m_Primato.Offri(m_Regioni->Scelti(), m_Tempo);
        }
    }

private:
    /// A new start: from the best cover when it came from elsewhere, and after many turns without gain from a
    /// symmetric one that is nearly as good.
    void Riparti()
    {
        constexpr unsigned kTurniPazienti = 20;
        if (!m_bPartita || m_Primato.Quanti() < m_Locale->CostoMigliore()) {
            m_Locale->Parti(m_Primato.Scelti());
        } else if (m_nTurniVani > kTurniPazienti && !m_aSpunto.empty()) {
            m_Locale->Parti(m_aSpunto);
            m_aSpunto.clear();
        } else {
            return;
        }
        m_bPartita = true;
        m_nTurniVani = 0;
    }

    const Regolare* m_Regolare;
    Primato& m_Primato;
    const Tempo& m_Tempo;
    std::optional<RicercaSimmetrica> m_Simmetrica;
    std::optional<RicercaLocale> m_Locale;
    std::optional<RicercaRegioni> m_Regioni;
    std::vector<Indice> m_aSpunto;
    unsigned m_nTurniVani = 0;
    bool m_bPartita = false;
    bool m_bRegioniDaIniziare = true;
};

/// Seconds without gain after which small problems are given up: by then the search has been everywhere.
double Pazienza(const Incidenza* incidenza)
{
    constexpr double kVociAlSecondo = 2000;
    return incidenza == nullptr ? 1e9
                                : 0.2 + static_cast<double>(incidenza->copre.aVoci.size()) / kVociAlSecondo;
}

} // namespace

std::vector<Indice> Migliora(const Problema& problema, const Vicini& vicini, const Incidenza* incidenza,
                             std::vector<Indice> aScelti, unsigned nFili, Tempo& tempo)
{
    // Smaller covers are better served by a search over the whole.
    constexpr std::size_t kSceltiRegioni = 1500;
    // Without a table, regions with more neighbours would take too long to cut out.
    constexpr double kGradoRegioni = 1000;
    const std::size_t nLimite = incidenza == nullptr ? 1 : LimiteInferiore(*incidenza);
    if (aScelti.size() <= nLimite) {
        return aScelti;
    }
    const Regolare regolare(problema, vicini, incidenza);
    std::optional<CoperturaComune> copertura;
    const bool bVicinanzaPoca = incidenza != nullptr || vicini.GradoMedio() <= kGradoRegioni;
    if (bVicinanzaPoca && aScelti.size() >= kSceltiRegioni) {
        copertura.emplace(problema.Quanti());
    }
    Primato primato(std::move(aScelti));
    const Cantiere cantiere{problema,
                            vicini,
                            incidenza,
                            regolare.Promette() ? &regolare : nullptr,
                            copertura ? &*copertura : nullptr,
                            primato,
                            tempo};
    if (cantiere.regolare == nullptr && cantiere.copertura == nullptr && incidenza == nullptr) {
        return primato.Scelti();
    }
    const double nPazienza = Pazienza(incidenza);
    InParallelo(nFili, [&](unsigned nFilo) {
        constexpr double kTurno = 0.1;
        Lavoratore lavoratore(cantiere, nFilo);
        while (!tempo.Finito()) {
            lavoratore.TurnoSimmetrico(2 * kTurno);
            lavoratore.TurnoLocale(2 * kTurno);
            lavoratore.TurnoRegioni(kTurno);
            tempo.Mostra(0, 0);
            if (primato.Quanti() <= nLimite || tempo.Trascorsi() - primato.Quando() > nPazienza) {
                tempo.Basta();
            }
        }
    });
    return primato.Scelti();
}

} // namespace ordavel::trvrdcol
