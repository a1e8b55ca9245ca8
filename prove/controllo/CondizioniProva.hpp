// CondizioniProva.hpp - a user at work on the list of conditions: what is chosen in dialogs, what becomes of it.

#pragma once

#include "comune/GeneratoriSistema.hpp"
#include "controllo/SistemaProva.hpp"
#include "editor/F_PuntiSu.hpp"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ordavel::prove {

/// A text of one character a line.
inline std::string Verticale(std::string_view sTesto)
{
    std::string sFin;
    for (const char c : sTesto) {
        sFin += (sFin.empty() ? "" : "\r\n") + std::string(1, c);
    }
    return sFin;
}

/// Kinds as names of tests.
inline std::string NomeTipo(TipoCondizione tipo)
{
    return std::string(TrovaTipo(tipo)->sMenu);
}

/// What a user may choose for any kind in class 6; each uses what it asks for.
inline ValoriDialogo ValoriScelti(TipoCondizione tipo, bool bRecupero)
{
    const VoceCatalogo& voce = *TrovaTipo(tipo);
    ValoriDialogo valori;
    valori.sScelta = voce.sInverso.empty() ? "4" : voce.sInverso;
    valori.sSchema = "PD";
    valori.sPasso = "2";
    valori.sGruppo = "3";
    valori.aTerna = {"2", "1", "3"};
    valori.aRange = {"10", "20"};
    valori.nColonneEmulate = 12;
    valori.aLimitiEmulatore = {{"0", "9"}, {"1", "8"}, {"2", "7"}, {"0", "6"},
                               {"0", "5"}, {"0", "4"}, {"0", "3"}};
    valori.aNumeri(1) = valori.aNumeri(3) = kVero;
    valori.aPunti(1) = valori.aPunti(2) = valori.aConsec(2) = kVero;
    if (bRecupero) {
        valori.aRecupero(3) = valori.aConsecRec(4) = kVero;
        valori.aRangeRec = {"5", "25"};
        valori.aTernaRec = {"1", "2", "3"};
        valori.sQuadro = "7";
    }
    return valori;
}

/// The row that comes of it.
inline Condizione RigaScelta(TipoCondizione tipo, bool bRecupero = false)
{
    return CelleDaDialogo(tipo, ValoriScelti(tipo, bRecupero));
}

/// What counts of a system while its conditions are worked on.
struct StatoLista {
    std::vector<Condizione> aRighe; ///< rows 0 to 2000
    std::vector<eAltezza> aAltezze;
    std::vector<std::string> aQuadro;
    std::int32_t nCorrente = 0;
    std::int32_t nPrimaInVista = 0;
    bool bModificato = false;
    bool bColonneValide = false;

    [[nodiscard]] friend bool operator==(const StatoLista&, const StatoLista&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const StatoLista& s)
    {
        return uscita << "{corrente " << s.nCorrente << ", in vista da " << s.nPrimaInVista << ", modificato "
                      << s.bModificato << ", colonne valide " << s.bColonneValide << ", riga 1 "
                      << s.aRighe[1] << "}";
    }
};

/// A system in class 6 over the numbers 1 to 7, saved and with columns of its own: not changed.
class CondizioniProva : public testing::Test, protected SistemaProva {
protected:
    CondizioniProva()
    {
        Pronostico(6, 1, 7);
        Sviluppa();
    }

    [[nodiscard]] GrigliaCondizioni& Griglia() { return sistema.GetGridCond(); }

    [[nodiscard]] StatoLista Stato()
    {
        StatoLista stato;
        for (std::int32_t nRiga = 0; nRiga <= kCondizioniMassime; ++nRiga) {
            stato.aRighe.push_back(Griglia().Riga(nRiga));
            stato.aAltezze.push_back(Griglia().Altezza(nRiga));
        }
        stato.aQuadro = sistema.GetLbQuadroRec().Voci.Valore();
        stato.nCorrente = Griglia().Corrente();
        stato.nPrimaInVista = PrimaInVista();
        stato.bModificato = sistema.Modificato();
        stato.bColonneValide = sistema.ColonneValide();
        return stato;
    }

    /// Puts rows with these keys into the list, from row 1 on; the cell "Punti" tells where each began.
    void Chiavi(const std::vector<std::string>& aChiavi)
    {
        std::int32_t nRiga = 0;
        for (const std::string& sChiave : aChiavi) {
            ++nRiga;
            Griglia().Riga(nRiga) = {sChiave, "parametri", std::to_string(nRiga), "", " "};
        }
    }

    void Riempi(std::size_t nRighe) { Chiavi(std::vector<std::string>(nRighe, "Ponte")); }

    /// The cells "Punti" of the rows 1 to nRighe.
    [[nodiscard]] std::vector<std::string> Punti(std::int32_t nRighe)
    {
        std::vector<std::string> aPunti;
        for (std::int32_t nRiga = 1; nRiga <= nRighe; ++nRiga) {
            aPunti.push_back(Griglia().Riga(nRiga).sPunti);
        }
        return aPunti;
    }

    [[nodiscard]] std::int32_t PrimaInVista() { return sistema.Controlli().GrdCond.PrimaColonna.Valore(); }

    /// The system counts as changed, and its columns are those of another; or neither.
    void ExpectModificato(bool bAtteso)
    {
        EXPECT_EQ(sistema.Modificato(), bAtteso);
        EXPECT_EQ(sistema.ColonneValide(), !bAtteso);
    }

    /// In the next dialog, of that type, the user does something and confirms.
    template <typename Finestra, typename Azione> void Conferma(Azione azione)
    {
        piattaforma.Gioca<Finestra>([azione](Finestra& dialogo) {
            azione(dialogo);
            dialogo.Premi(ePulsanteDialogo::conferma);
        });
    }

    /// The user does something in the next dialog, and thinks better of it.
    template <typename Finestra, typename Azione> void Annulla(Azione azione)
    {
        piattaforma.Gioca<Finestra>([azione](Finestra& dialogo) {
            azione(dialogo);
            dialogo.Premi(ePulsanteDialogo::chiudi);
        });
    }
};

/// The user ticks 1 and 2.
inline void SegnaUnoEDue(DialogoLista& dialogo)
{
    dialogo.ChkPunti(1).Segnata.Poni(true);
    dialogo.ChkPunti(2).Segnata.Poni(true);
}

} // namespace ordavel::prove
