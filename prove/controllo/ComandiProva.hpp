// ComandiProva.hpp - a system in each state of its life, and a user at its toolbar.

#pragma once

#include "controllo/CondizioniProva.hpp"

#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel::prove {

/// The states in which a system rests.
enum class eStato { nuovo, aperto, sviluppato };

inline std::string NomeStato(eStato stato)
{
    static const std::map<eStato, std::string> kNomi{
        {eStato::nuovo, "Nuovo"}, {eStato::aperto, "Aperto"}, {eStato::sviluppato, "Sviluppato"}};
    return kNomi.at(stato);
}

/// All that a command may change.
struct Foto {
    StatoLista lista;
    std::vector<std::string> aTesti; ///< labels, combos, names of files
    std::vector<std::string> aAccesi;
    std::vector<std::int32_t> aVista;
    SegniNumeri aScelti;
    std::string sColonne; ///< the working file

    [[nodiscard]] friend bool operator==(const Foto&, const Foto&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const Foto& foto)
    {
        return uscita << foto.lista << testing::PrintToString(foto.aTesti)
                      << testing::PrintToString(foto.aAccesi) << testing::PrintToString(foto.aVista)
                      << foto.sColonne.size() << " byte";
    }
};

class ComandiProva : public CondizioniProva {
protected:
    /// Class 6 over 1 to 7, three conditions that keep all columns; in the state asked for, and not changed.
    void Porta(eStato stato)
    {
        ScriviCondizioni();
        if (stato == eStato::aperto) {
            ASSERT_TRUE(Salva(m_sSistema));
            ASSERT_TRUE(Apri(m_sSistema));
        } else if (stato == eStato::sviluppato) {
            Sviluppa();
        } else {
            sistema.NuovoSistema();
            Pronostico(6, 1, 7);
            ScriviCondizioni();
        }
        (void)piattaforma.Dialoghi();
    }

    void ScriviCondizioni()
    {
        for (const std::int32_t nRiga : {1, 2, 3}) {
            Griglia().Riga(nRiga) = {"Ponte", Verticale("Ponte"), "0-1-2-3-4-5-6", "", " "};
        }
        Griglia().Riga(3).sCondizione = "Consecutivi";
    }

    [[nodiscard]] ControlliOrdavel& Controlli() { return sistema.Controlli(); }

    /// Keys of enabled buttons and menu entries.
    [[nodiscard]] std::vector<std::string> Accesi()
    {
        std::vector<std::string> aChiavi = Abilitati();
        for (const PulsanteStrumento& pulsante : Controlli().Toolbar2.aPulsanti) {
            for (const VoceMenu& voce : pulsante.aMenu) {
                if (voce.Abilitato.Valore()) {
                    aChiavi.push_back(voce.sChiave);
                }
            }
        }
        return aChiavi;
    }

    [[nodiscard]] Foto Fotografa()
    {
        ControlliOrdavel& c = Controlli();
        return {.lista = Stato(),
                .aTesti = {c.LabIntegrale.Testo.Valore(), c.LabSviluppate.Testo.Valore(),
                           c.LabCondizionate.Testo.Valore(), c.LabNumSel.Testo.Valore(),
                           c.LabGaranzia.Testo.Valore(), c.CmbClasse.Testo(), c.CmbRid.Testo(),
                           c.CmbTipoGioco.Testo(), c.CmbMotSviluppo.Testo(), sistema.FileSistema(),
                           sistema.FileColonne()},
                .aAccesi = Accesi(),
                .aVista = {c.GrdCond.Larghezza.Valore(), c.GrdCond.Evidenziata.Valore(),
                           c.SelnovoNumeri1.Visibile.Valore(), c.PanSviluppo.Visibile.Valore(),
                           c.PanPerc.Visibile.Valore()},
                .aScelti = c.SelnovoNumeri1.Scelti.Valore(),
                .sColonne = ByteColonne()};
    }

    /// The commands whose enabling follows the state, a letter each: Salva, Filtra, Visualizza, salva Colonne,
    /// colonne in Testo; "-" for a disabled one.
    [[nodiscard]] std::string Lettere()
    {
        std::string sLettere;
        sLettere += VoceAbilitata("Salva") ? 'S' : '-';
        sLettere += Abilitato("FiltraSvilPrec") ? 'F' : '-';
        sLettere += Abilitato("VisualizzaColonne") ? 'V' : '-';
        sLettere += VoceAbilitata("SalvaColonne") ? 'C' : '-';
        return sLettere + (VoceAbilitata("SalvaColonneTesto") ? 'T' : '-');
    }

    /// Something that counts as a change.
    void Modifica() { sistema.InsCondizione(TipoCondizione::linkOpen, ""); }

    /// The user brings the next dialog of a condition to these cells, and confirms.
    void ConfermaCelle(const Condizione& celle)
    {
        GrigliaCondizioni griglia;
        griglia.Riga(1) = celle;
        Conferma<DialogoCondizione>([griglia](DialogoCondizione& dialogo) { dialogo.LeggiPunti(griglia); });
    }

    const Messaggio kPerdita = Domanda("Il sistema è stato modificato ma non ancora salvato.Continuare ?");
    const std::string m_sSistema = cartella / "sistemi/prova.sic";
};

} // namespace ordavel::prove
