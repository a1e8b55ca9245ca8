// OrdavelRigheCasuali_prova.cpp - random work on the list of conditions, beside a plain vector of rows.

#include "ordavel/Ordavel.hpp"

#include "controllo/CondizioniProva.hpp"
#include "editor/F_DelCondizioni.hpp"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <map>

namespace ordavel {
namespace {

using prove::Tra;
using prove::UnaVoltaSu;
using prove::Verticale;

/// The list as a vector: the headings, then the rows as far as the last one with a condition.
struct Modello {
    std::vector<Condizione> aRighe{{"Condizione", "Parametri", "Punti", "Recupero", "Quadro Rec."}};
    std::map<std::int32_t, eAltezza> aAltezze; ///< of the rows that have been given one
    std::int32_t nCorrente = 1;
    bool bModificato = false;

    [[nodiscard]] std::int32_t Ultima() const { return static_cast<std::int32_t>(aRighe.size()) - 1; }
    [[nodiscard]] bool Piena(std::int32_t nRiga) const
    {
        return nRiga <= Ultima() && !aRighe[static_cast<std::size_t>(nRiga)].sCondizione.empty();
    }
    [[nodiscard]] bool Libera(std::int32_t nRiga) const
    {
        return nRiga >= 1 && nRiga <= kCondizioniMassime && !Piena(nRiga) && Piena(nRiga - 1);
    }
    [[nodiscard]] auto Posto(std::int32_t nRiga) { return aRighe.begin() + nRiga; }

    /// The hole that is selected; else the end; in a full list the last hole; else the headings.
    [[nodiscard]] std::int32_t RigaLibera() const
    {
        if (Libera(nCorrente)) {
            return nCorrente;
        }
        std::int32_t nRiga = std::min(Ultima() + 1, kCondizioniMassime);
        while (nRiga > 0 && !Libera(nRiga)) {
            --nRiga;
        }
        return nRiga;
    }

    void Scrivi(std::int32_t nRiga, const Condizione& celle)
    {
        aRighe.resize(std::max(aRighe.size(), static_cast<std::size_t>(nRiga) + 1));
        aRighe[static_cast<std::size_t>(nRiga)] = celle;
        aAltezze[nRiga] = celle.sCondizione == "LinkOpen" ? eAltezza::link : eAltezza::normale;
        nCorrente = nRiga;
        bModificato = true;
    }

    void Apri()
    {
        if (nCorrente <= Ultima()) {
            aRighe.insert(Posto(nCorrente), Condizione{});
            aRighe.resize(std::min<std::size_t>(aRighe.size(), kCondizioniMassime + 1));
            Accorcia();
        }
    }

    void Elimina()
    {
        bModificato = true;
        if (Ultima() > 0) {
            aAltezze[nCorrente] = eAltezza::normale;
            aRighe.erase(Posto(std::min(nCorrente, Ultima())));
            Accorcia();
        }
    }

    /// What stands behind the run moves up as far as the next hole, which grows by the run.
    void EliminaTratto(std::int32_t nDalla, std::int32_t nAlla)
    {
        const auto buco = std::find_if(Posto(nAlla) + 1, aRighe.end(),
                                       [](const Condizione& celle) { return celle.sCondizione.empty(); });
        std::fill(Posto(nDalla), Posto(nAlla) + 1, Condizione{});
        const auto fine = std::rotate(Posto(nDalla), Posto(nAlla) + 1, buco);
        nCorrente = static_cast<std::int32_t>(fine - aRighe.begin()) - 1;
        Accorcia();
    }

    void Accorcia()
    {
        while (Ultima() > 0 && !Piena(Ultima())) {
            aRighe.pop_back();
        }
    }
};

/// A user who works on a list, and a model that follows.
class Utente {
public:
    /// Takes    nRighe   conditions that are there before
    explicit Utente(int nRighe)
    {
        sistema.PoniClasse(6);
        for (std::int32_t nRiga = 1; nRiga <= nRighe; ++nRiga) {
            Griglia().Riga(nRiga) = {"Ponte", "", std::to_string(nRiga % 7), "", " "};
            modello.aRighe.push_back(Griglia().Riga(nRiga));
        }
    }

    void Inserisci()
    {
        const std::string sValore = std::to_string(Tra(0, 6));
        if (UnaVoltaSu(4)) {
            sistema.InsCondizione(TipoCondizione::linkOpen, "");
            modello.Scrivi(modello.RigaLibera(), {"LinkOpen", Verticale("LinkOpen"), "", "", ""});
        } else {
            sistema.InsCondizione(TipoCondizione::consecutivi, sValore);
            modello.Scrivi(modello.RigaLibera(), {"Consecutivi", Verticale("Consecutivi"), sValore, "", " "});
        }
    }

    void Scegli(std::int32_t nRiga)
    {
        sistema.SetColonnaGrid(nRiga);
        modello.nCorrente = nRiga;
    }

    void Apri()
    {
        sistema.InserisciRiga();
        modello.Apri();
    }

    void Elimina()
    {
        sistema.EliminaCondizione();
        modello.Elimina();
    }

    /// Deletes a run of what is offered; there may be nothing.
    void EliminaTratto()
    {
        const std::int32_t nOfferte = modello.RigaLibera() - 1;
        const std::int32_t nAlla = nOfferte < 1 ? 0 : Tra(1, nOfferte);
        const std::int32_t nDalla = nAlla == 0 ? 0 : Tra(std::max(1, nAlla - 4), nAlla);
        piattaforma.Gioca<F_DelCondizioni>([=](F_DelCondizioni& dialogo) {
            EXPECT_EQ(dialogo.CmbAlla.Voci.Valore().size(), static_cast<std::size_t>(std::max(nOfferte, 0)));
            dialogo.CmbDalla.Indice.Poni(nDalla - 1);
            dialogo.CmbAlla.Indice.Poni(nAlla - 1);
            dialogo.Premi(nAlla == 0 ? ePulsanteDialogo::chiudi : ePulsanteDialogo::conferma);
        });
        sistema.EliminaRangeCondizioni();
        if (nAlla > 0) {
            modello.EliminaTratto(nDalla, nAlla);
        }
    }

    /// Leaves one other value accepted in the selected row, if it has a dialog.
    void Modifica()
    {
        const std::string sChiave = Griglia().Riga(modello.nCorrente).sCondizione;
        const int nValore = Tra(0, 6);
        if (sChiave == "Consecutivi" || sChiave == "Ponte") {
            piattaforma.Gioca<F_PuntiSu>([=](F_PuntiSu& dialogo) {
                for (int i = 0; i <= 6; ++i) {
                    dialogo.ChkPunti(i).Segnata.Poni(i == nValore);
                }
                dialogo.Premi(ePulsanteDialogo::conferma);
            });
            modello.Scrivi(modello.nCorrente == 0 ? modello.RigaLibera() : modello.nCorrente,
                           {sChiave, Verticale(sChiave), std::to_string(nValore), "", " "});
        }
        sistema.ModificaCondizione();
    }

    /// The component and the model are in the same state.
    void Confronta()
    {
        RC_ASSERT(modello.Ultima() <= kCondizioniMassime);
        for (std::int32_t nRiga = 0; nRiga <= kCondizioniMassime; ++nRiga) {
            const Condizione attese = nRiga <= modello.Ultima() ? *modello.Posto(nRiga) : Condizione{};
            RC_ASSERT(Griglia().Riga(nRiga) == attese);
            RC_ASSERT((Griglia().Altezza(nRiga) == eAltezza::link) ==
                      (modello.aAltezze.contains(nRiga) && modello.aAltezze[nRiga] == eAltezza::link));
        }
        RC_ASSERT(Griglia().Corrente() == modello.nCorrente);
        RC_ASSERT(sistema.Modificato() == modello.bModificato);
    }

    /// The conditions are the rows 1 to nRighe, under their headings.
    void ConfrontaBlocco(std::int32_t nRighe)
    {
        for (std::int32_t nRiga = 1; nRiga <= kCondizioniMassime; ++nRiga) {
            RC_ASSERT(Griglia().Vuota(nRiga) == (nRiga > nRighe));
        }
        RC_ASSERT(Griglia().Riga(0) == Modello().aRighe.front());
    }

    Modello modello;

private:
    [[nodiscard]] GrigliaCondizioni& Griglia() { return sistema.GetGridCond(); }

    prove::PiattaformaProva piattaforma;
    Ordavel sistema{piattaforma};
};

/// One command, whatever it does to the list.
void Muovi(Utente& utente)
{
    switch (Tra(0, 7)) {
    case 0:
        return utente.Apri();
    case 1:
        return utente.Elimina();
    case 2:
        return utente.EliminaTratto();
    case 3:
        return utente.Modifica();
    case 4:
    case 5:
        return utente.Scegli(
            std::clamp(utente.modello.Ultima() + Tra(-6, 2), UnaVoltaSu(8) ? 0 : 1, kCondizioniMassime));
    default:
        return utente.Inserisci();
    }
}

/// One command of a user who fills every row that was opened, and stops at 2000 conditions.
/// Gives    how many conditions there are then
std::int32_t MuoviConOrdine(Utente& utente, std::int32_t nRighe)
{
    const int nMossa = Tra(0, 3);
    if (nRighe < kCondizioniMassime && nMossa <= 1) {
        utente.Scegli(Tra(std::max(1, nRighe - 5), nRighe + 1));
        if (nMossa == 0) {
            utente.Apri();
        }
        utente.Inserisci();
        return nRighe + 1;
    }
    if (nRighe == 0) {
        return 0;
    }
    utente.Scegli(Tra(std::max(1, nRighe - 5), nRighe));
    if (nMossa == 2) {
        utente.Modifica();
        return nRighe;
    }
    utente.Elimina();
    return nRighe - 1;
}

int RighePrima()
{
    return *rc::gen::element(0, 1, 6, 1998, 2000);
}

RC_GTEST_PROP(OrdavelRigheCasuali, OgniLavoroSegueUnVettoreDiRighe, ())
{
    Utente utente(RighePrima());
    for (int nMosse = Tra(1, 30); nMosse > 0; --nMosse) {
        Muovi(utente);
        utente.Confronta();
    }
}

RC_GTEST_PROP(OrdavelRigheCasuali, ChiRiempieOgniBucoHaUnBloccoDallaPrimaRiga, ())
{
    std::int32_t nRighe = RighePrima();
    Utente utente(nRighe);
    for (int nMosse = Tra(1, 30); nMosse > 0; --nMosse) {
        nRighe = MuoviConOrdine(utente, nRighe);
        utente.ConfrontaBlocco(nRighe);
    }
    utente.Confronta();
}

} // namespace
} // namespace ordavel
