// OrdavelRiduzione.cpp - the reduction of a column file into the working file, and the dialog for other files.

#include "ordavel/Ordavel.hpp"

#include "analisi/F_Riduzione.hpp"
#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "riduzione/ModRiduci.hpp"

namespace ordavel {

/// No other run may begin for as long as it lives.
class Ordavel::RiduzioneInCorso {
public:
    explicit RiduzioneInCorso(Ordavel& ordavel) : m_Ordavel(ordavel) { m_Ordavel.m_bInCorso = true; }
    RiduzioneInCorso(const RiduzioneInCorso&) = delete;
    RiduzioneInCorso& operator=(const RiduzioneInCorso&) = delete;
    ~RiduzioneInCorso() { m_Ordavel.m_bInCorso = false; }

private:
    Ordavel& m_Ordavel;
};

F_Riduzione& Ordavel::FinestraRiduzione()
{
    if (!m_Riduzione) {
        m_Riduzione = std::make_shared<F_Riduzione>(*m_Ospite);
    }
    return *m_Riduzione;
}

void Ordavel::PremiRiduzione()
{
    if (m_Riduzione && (m_Riduzione->Visibile.Valore() || !m_Riduzione->PuoChiudersi())) {
        return; // events of the dialog itself have come here
    }
    F_Riduzione& finestra = FinestraRiduzione();
    // It may be closed before its run begins, then shown and closed again by events, and still has to run.
    const std::shared_ptr<F_Riduzione> viva = m_Riduzione;
    if (FileEsiste(m_FileColonne)) {
        finestra.labFile.Testo.Poni(m_FileColonne);
    }
    m_Piattaforma.MostraModale(finestra);
    m_Riduzione.reset();
    AggiornaComandiColonne();
}

void Ordavel::StopRiduciColonne() noexcept
{
    m_StatoRiduzione->StopRiduzione = true;
}

void Ordavel::RiduciInterno(const std::string& sFileCol, std::int32_t nPuntiRichiesti, std::int64_t nColonne)
{
    std::vector<Colonna> aColonne = LeggiColonne(sFileCol, nColonne);
    RiduzioneColonne(sFileCol, nPuntiRichiesti, aColonne, *m_StatoRiduzione,
                     FinestraRiduzione().Avanzamento());
    if (KillFile(m_FileColonne, m_Piattaforma)) {
        FileBinario file(m_FileColonne, eApertura::scrittura);
        AccodaColonne(file, aColonne);
        file.Chiudi();
    }
}

void Ordavel::RiduciColonne(const std::string& sFileCol, std::int32_t nPuntiRichiesti)
{
    if (m_bInCorso) {
        return;
    }
    ConGestore(m_Piattaforma, "OrdavelSisG.RiduciColonne", [&] {
        if (!FileEsiste(sFileCol)) {
            m_Piattaforma.MostraMessaggio({.icona = eIcona::critico,
                                           .sTitolo = {},
                                           .sTesto = "Il file delle colonne non esiste",
                                           .pulsanti = ePulsanti::ok});
            return;
        }
        const double nColonne = NumeroColonneFile(sFileCol);
        if (nColonne > kColonneInMemoria) {
            Avvisa("Le colonne da ridurre superano il limite massimo gestibile di " +
                   std::to_string(kColonneInMemoria));
            return;
        }
        const RiduzioneInCorso corsa(*this);
        if (m_MotoreSviluppo == eMotoreSviluppo::interno) {
            RiduciInterno(sFileCol, nPuntiRichiesti, static_cast<std::int64_t>(ArrotondaPari(nColonne)));
        } else {
            LibreriaRiduzione().RiduzioneColonneDll(sFileCol, m_FileColonne, nPuntiRichiesti,
                                                    [this] { m_Piattaforma.LasciaEventi(); });
        }
        m_Controlli.LabCondizionate.Testo.Poni(FormattaNumero(NumeroColonneFile(m_FileColonne)));
        AggiornaComandiColonne();
    });
}

} // namespace ordavel
