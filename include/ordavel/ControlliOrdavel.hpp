// ControlliOrdavel.hpp - the controls of the component, by their names.

#pragma once

#include "ordavel/Controlli.hpp"
#include "ordavel/VistaCondizioni.hpp"

#include <deque>

namespace ordavel {

/// What the panels are labelled with; the texts beside the controls that change.
inline constexpr std::string_view kTestoIntegrale = "Integrali :";
inline constexpr std::string_view kTestoSviluppate = "Sviluppate :";
inline constexpr std::string_view kTestoCondizionate = "Condizionate :";
inline constexpr std::string_view kTestoNumSel = "Numeri :";
inline constexpr std::string_view kTestoClasse = "Classe";
inline constexpr std::string_view kTestoRid = "Rid N-K";
inline constexpr std::string_view kTestoMotore = "Motore";
inline constexpr std::string_view kTestoSviluppo = "SVILUPPO IN CORSO";

/// The highlight of the selected condition, until a view chooses another: a pale yellow.
inline constexpr Colore kColoreEvidenza = 0x80FFFF;

struct ControlliOrdavel {
    Controllo Componente; ///< all of it: disabled while columns are exported
    Combo CmbTipoGioco;
    Combo CmbClasse;
    Combo CmbRid;
    Combo CmbMotSviluppo;
    Etichetta LabIntegrale;    ///< columns of the whole system, or of the file to be filtered
    Etichetta LabSviluppate;   ///< columns examined
    Etichetta LabCondizionate; ///< columns kept
    Etichetta LabNumSel;       ///< count of picks, or "File"
    Etichetta LabGaranzia;     ///< the guarantee in words
    Stato<Colore> LabColoreColSel{kColoreEvidenza}; ///< colour of the highlight
    Barra ProgBarXP1;                               ///< 0 to 100
    Barra PanPerc;                                  ///< percentage of a text export, visible during it
    Controllo PanSviluppo;                          ///< visible during a run
    Temporizzatore Timer1;                          ///< asks a run of the external engine how far it is
    BarraStrumenti Toolbar2;                        ///< keys, tips and menus
    SelettoreNumeri SelnovoNumeri1;
    Disegno PicProno;                 ///< the picks as a strip of two lines
    Lista LbQuadroRec;                ///< the recovery board, a line "minimum,maximum,flag" per group from 1
    VistaCondizioni GrdCond;          ///< how the list of conditions looks
    std::deque<CasellaTesto> TxtPMin; ///< columns examined by each thread of an outside writer, thread 1 at 0
    std::deque<CasellaTesto> TxtPMax; ///< columns kept by each
};

} // namespace ordavel
