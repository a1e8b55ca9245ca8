// UtenteCasuale.hpp - a user who answers every dialog by chance, the same way again for the same seed.

#pragma once

#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"
#include "comune/PiattaformaProva.hpp"
#include "controllo/F_VisualizzaColonne.hpp"
#include "editor/DialogoCondizione.hpp"
#include "editor/F_ApriCondizioni.hpp"
#include "editor/F_InsColonne.hpp"
#include "editor/F_LinkClose.hpp"
#include "editor/F_QuadroRecuperi.hpp"
#include "editor/F_SalvaCondizioni.hpp"
#include "editor/F_ScegliRuota.hpp"
#include "editor/LimitiRighe.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace ordavel::prove {

class UtenteCasuale : public PiattaformaProva {
public:
    explicit UtenteCasuale(unsigned nSeme) : m_Caso(nSeme) {}

    /// A number from nMinimo to nMassimo.
    int Tra(int nMinimo, int nMassimo)
    {
        return nMinimo + static_cast<int>(m_Caso() % static_cast<unsigned>(nMassimo - nMinimo + 1));
    }

    bool UnaVoltaSu(int nVolte) { return Tra(1, nVolte) == 1; }

    /// Cells of a kind that a dialog in the system's class can hold.
    Condizione Celle(TipoCondizione tipo)
    {
        const auto celle =
            rc::gen::exec([this, tipo] { return CelleDaDialogo(tipo, ValoriCasuali(tipo, nClasse)); });
        return celle(rc::Random(m_Caso()), rc::kNominalSize).value();
    }

    eRisposta MostraMessaggio(const Messaggio& messaggio) override
    {
        aVisti.push_back(messaggio);
        if (messaggio.pulsanti == ePulsanti::ok) {
            return eRisposta::ok;
        }
        bSi = UnaVoltaSu(2);
        return bSi ? eRisposta::si : eRisposta::no;
    }

    std::string DialogoApri(const RichiestaFile& richiesta) override { return Scelto(richiesta); }
    std::string DialogoSalva(const RichiestaFile& richiesta) override { return Scelto(richiesta); }

    void MostraModale(Dialogo& dialogo) override
    {
        if (auto* ruota = dynamic_cast<F_ScegliRuota*>(&dialogo)) {
            // A question in front of a run, not a work of the step.
            return ruota->CmbRuota.Indice.Poni(Tra(0, 10));
        }
        aMostrati.push_back(dialogo.sNome);
        dialogo.Mostra();
        Lavora(dynamic_cast<DialogoConferma&>(dialogo));
        dialogo.Visibile.Poni(false);
    }

    /// A new step: nothing was seen, chosen or confirmed.
    void Ricomincia()
    {
        aVisti.clear();
        aMostrati.clear();
        sFile.clear();
        bSi = bConfermato = false;
        nTratto = 0;
    }

    std::vector<Messaggio> aVisti; ///< boxes that nobody has expected yet
    std::map<std::string, std::vector<std::string>>
        aFile;                ///< files to choose from, by the end of their filter
    std::string sFile;        ///< the file chosen last, empty for none
    bool bSi = false;         ///< the last question was answered with yes
    bool bConfermato = false; ///< the dialog of the step was confirmed
    int nTratto = 0;          ///< conditions in the run that was chosen
    std::int16_t nClasse = 5; ///< class of the system

private:
    std::string Scelto(const RichiestaFile& richiesta)
    {
        const auto& aPossibili = aFile.at(richiesta.sFiltro.substr(richiesta.sFiltro.rfind("*.")));
        sFile = UnaVoltaSu(5) ? "" : aPossibili[m_Caso() % aPossibili.size()];
        return sFile;
    }

    void Lavora(DialogoConferma& dialogo)
    {
        Riempi(dialogo);
        Premi(dialogo, UnaVoltaSu(5) ? ePulsanteDialogo::chiudi : ePulsanteDialogo::conferma);
        if (dialogo.Visibile.Valore()) {
            Premi(dialogo, ePulsanteDialogo::chiudi);
        }
        bConfermato = !dialogo.sTag.empty();
    }

    /// Presses a button. A dialog that is not coherent says so once and stays.
    void Premi(DialogoConferma& dialogo, ePulsanteDialogo pulsante)
    {
        const std::size_t nVisti = aVisti.size();
        dialogo.Premi(pulsante);
        if (aVisti.size() > nVisti) {
            EXPECT_EQ(aVisti.back().icona, eIcona::avviso) << aVisti.back();
            EXPECT_TRUE(dialogo.Visibile.Valore());
            aVisti.pop_back();
        }
        EXPECT_EQ(aVisti.size(), nVisti);
    }

    void Riempi(Dialogo& dialogo)
    {
        if (auto* link = dynamic_cast<F_LinkClose*>(&dialogo)) {
            // An edit offers every count twice; the places above 90 are for no record.
            const int nVoci = static_cast<int>(link->List1.Voci.Valore().size());
            link->List1.Seleziona(static_cast<std::size_t>(Tra(0, std::min(nVoci - 1, 90))), true);
        } else if (auto* condizione = dynamic_cast<DialogoCondizione*>(&dialogo)) {
            GrigliaCondizioni griglia;
            griglia.Riga(1) = Celle(condizione->Tipo());
            // What the dialog has no box for ends the filling: the user leaves it at that.
            (void)NumeroErrore([&] { condizione->LeggiPunti(griglia); });
        } else if (auto* limiti = dynamic_cast<LimitiRighe*>(&dialogo)) {
            ScegliTratto(limiti->CmbDalla, limiti->CmbAlla);
        } else {
            RiempiFinestra(dialogo);
        }
    }

    void RiempiFinestra(Dialogo& dialogo)
    {
        if (auto* quadro = dynamic_cast<F_QuadroRecuperi*>(&dialogo)) {
            quadro->Gruppo(Tra(1, 3)).TxtMin.Testo.Poni(std::to_string(Tra(0, 2)));
            quadro->Gruppo(Tra(1, 3)).TxtMax.Testo.Poni(std::to_string(Tra(2, 5)));
        } else if (auto* salva = dynamic_cast<F_SalvaCondizioni*>(&dialogo)) {
            ScegliTratto(salva->CmbCondInizio, salva->CmbCondFine);
        } else if (auto* apri = dynamic_cast<F_ApriCondizioni*>(&dialogo)) {
            ScegliVoce(apri->CmbCondizioni, 0);
        } else if (auto* colonne = dynamic_cast<F_InsColonne*>(&dialogo)) {
            colonne->ApriFile();
        } else if (auto* vista = dynamic_cast<F_VisualizzaColonne*>(&dialogo)) {
            vista->Slider1.Valore.Poni(Tra(1, std::max(1, vista->Slider1.Massimo.Valore())));
            EXPECT_FALSE(vista->ListView1.Righe.Valore().empty() && vista->Slider1.Massimo.Valore() > 0);
        }
    }

    /// Any entry from nPrima on, if there is one.
    void ScegliVoce(Combo& combo, int nPrima)
    {
        const int nVoci = static_cast<int>(combo.Voci.Valore().size());
        combo.Indice.Poni(nPrima < nVoci ? Tra(nPrima, std::min(nPrima + 3, nVoci - 1)) : -1);
    }

    void ScegliTratto(Combo& dalla, Combo& alla)
    {
        const int nVoci = static_cast<int>(dalla.Voci.Valore().size());
        ScegliVoce(dalla, nVoci == 0 ? 0 : Tra(0, nVoci - 1));
        ScegliVoce(alla, std::max(0, dalla.Indice.Valore()));
        nTratto = alla.Indice.Valore() - dalla.Indice.Valore() + 1;
    }

    std::mt19937 m_Caso;
};

} // namespace ordavel::prove
