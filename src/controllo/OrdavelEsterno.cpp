// OrdavelEsterno.cpp - a development by the external engine: what it is handed, its progress, what comes back.

#include "ordavel/Ordavel.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "motore/LibreriaSviluppo.hpp"
#include "persistenza/ModFileSistema.hpp"

#include <algorithm>
#include <limits>

namespace ordavel {

namespace {

/// The library counts further than the counters of a run do.
std::int32_t Contate(double nColonne)
{
    constexpr double kMassimo = std::numeric_limits<std::int32_t>::max();
    return nColonne > 0 ? static_cast<std::int32_t>(std::min(nColonne, kMassimo)) : 0;
}

} // namespace

/// The controls are those of a run for as long as it lives, also when the library turns out to be missing.
class Ordavel::CorsaEsterna {
public:
    explicit CorsaEsterna(Ordavel& ordavel) : m_Ordavel(ordavel)
    {
        m_Ordavel.PreparaCorsa();
        // Nothing of an earlier run is taken for this one's.
        StatoSviluppo& stato = m_Ordavel.m_Stato;
        stato.aCondizioni.assign(1, RecordCondizione{});
        stato.nCondizioni = 1;
        stato.nSviluppate = 0;
        stato.nCondizionate = 0;
        stato.bStopSviluppo = false;
    }
    CorsaEsterna(const CorsaEsterna&) = delete;
    CorsaEsterna& operator=(const CorsaEsterna&) = delete;
    ~CorsaEsterna()
    {
        m_Ordavel.m_Controlli.Timer1.Acceso.Poni(false);
        m_Ordavel.AbilitaComandiSviluppo(false);
    }

private:
    Ordavel& m_Ordavel;
};

/// Writes the system for the library. Its own path leaves the name of the open system as it was.
/// Gives    whether it is there; a failure was shown
bool Ordavel::ConsegnaSistema(const std::string& sColonne, std::string sSistema)
{
    // Files of an earlier run: the library would put its columns behind old ones, or develop another system.
    return KillFile(sColonne, m_Piattaforma) && KillFile(sSistema, m_Piattaforma) &&
           SalvaSistema(sSistema, false);
}

/// Takes    sFileEmulatore   path of the emulated draws, or "-"
void Ordavel::SviluppaCondizionatoEsterno(const std::string& sFileEmulatore)
{
    const CorsaEsterna corsa(*this);
    const std::string sColonne = m_PercorsoTemp + "Sviluppo.col";
    const std::string sSistema = m_PercorsoTemp + "Sviluppo.sic";
    if (!ConsegnaSistema(sColonne, sSistema)) {
        return;
    }
    m_Controlli.Timer1.Acceso.Poni(true);
    m_Esterna->InitSviluppo(m_PercorsoTemp, sSistema, sFileEmulatore,
                            [this] { m_Piattaforma.LasciaEventi(); });
    m_ColonneValide = true; // also after a stop
    m_Controlli.Timer1.Acceso.Poni(false);
    AggiornaProgressSviluppoDll();
    ApriFileColonne(sColonne);
    GetCondizioniFromFile(sSistema);
}

void Ordavel::AggiornaProgressSviluppoDll()
{
    const double nSviluppate = m_Esterna->GetSviluppate();
    m_Stato.nSviluppate = Contate(nSviluppate);
    m_Controlli.LabSviluppate.Testo.Poni(FormattaNumero(nSviluppate));
    const double nCondizionate = m_Esterna->GetCondizionate();
    m_Stato.nCondizionate = Contate(nCondizionate);
    m_Controlli.LabCondizionate.Testo.Poni(FormattaNumero(nCondizionate));
    m_Controlli.ProgBarXP1.Valore.Poni(PercentualeProgress(nSviluppate, m_ColonneDaFiltrare));
    m_Piattaforma.LasciaEventi();
}

void Ordavel::Timer1_Timer()
{
    if (!ConGestore(m_Piattaforma, "OrdavelSis.Timer1_Timer", [this] { AggiornaProgressSviluppoDll(); })) {
        m_Controlli.Timer1.Acceso.Poni(false); // it would fail again every second
    }
}

/// The counters that the library has written. A file that cannot be read is shown and leaves none.
void Ordavel::GetCondizioniFromFile(const std::string& sFile)
{
    ConGestore(m_Piattaforma, "OrdavelSis.Apri", [&] {
        FileBinario file(sFile, eApertura::lettura);
        std::optional<ParteSistema> parte = LeggiParteSistema(file);
        if (!parte) {
            return Avvisa(kFormatoNonSupportato);
        }
        m_Stato.aQuadroRec = parte->aQuadroRec;
        m_Stato.aCondizioni = std::move(parte->aCondizioni);
        if (m_Stato.aCondizioni.empty()) {
            m_Stato.aCondizioni.resize(1);
        }
        m_Stato.nCondizioni = static_cast<std::int32_t>(m_Stato.aCondizioni.size());
    });
}

} // namespace ordavel
