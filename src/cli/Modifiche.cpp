// Modifiche.cpp - the commands that change the conditions of a system file.

#include "cli/Modifiche.hpp"

#include "cli/ControlloParametri.hpp"
#include "cli/Rispondi.hpp"
#include "condizioni/ModCatalogo.hpp"
#include "condizioni/ModColonneTesto.hpp"
#include "condizioni/ModRighe.hpp"
#include "core/FileBinario.hpp"
#include "core/ModTesti.hpp"
#include "core/TestoErrato.hpp"
#include "editor/F_ApriCondizioni.hpp"
#include "editor/F_InsColonne.hpp"
#include "editor/F_QuadroRecuperi.hpp"
#include "editor/F_SalvaCondizioni.hpp"
#include "persistenza/FileAlPosto.hpp"

#include <algorithm>
#include <iostream>

namespace ordavel::cli {

namespace {

std::int32_t Condizioni(Sessione& sessione)
{
    return UltimaRigaOccupata(sessione.Sistema().GetGridCond());
}

std::string Quante(std::int32_t nCondizioni)
{
    return nCondizioni == 1 ? "1 condizione" : std::to_string(nCondizioni) + " condizioni";
}

/// Is there room for so many more conditions?
void ControllaPosto(Sessione& sessione, std::size_t nNuove)
{
    const std::int32_t nPresenti = Condizioni(sessione);
    if (nNuove > static_cast<std::size_t>(kCondizioniMassime - nPresenti)) {
        throw TestoErrato("il sistema ha " + Quante(nPresenti) + ": ne entrano altre " +
                          std::to_string(kCondizioniMassime - nPresenti) + ", non di più");
    }
}

void AggiungiCondizione(Sessione& sessione, const OpzioniAggiungi& opzioni)
{
    const VoceCatalogo& voce = *TrovaChiaveSenzaCaso(opzioni.sTipo);
    if (!PrendeParametri(voce.Tipo)) {
        throw TestoErrato("\"" + std::string(voce.sChiave) +
                          "\" non si dà con --parametri: scrivila in un file .cnd e usa --file");
    }
    ControllaPosto(sessione, 1);
    const std::string sParam = ConRigheIntere(opzioni.sParametri);
    ControllaParametri(voce.Tipo, sParam, sessione.Sistema().classe());
    sessione.Sistema().InsCondizione(voce.Tipo, sParam);
    const std::string& sCella = sessione.Sistema().GetGridCond().Riga(Condizioni(sessione)).sParametri;
    if (voce.parametri == eParametri::casella || voce.parametri == eParametri::cifra) {
        sessione.Desktop().Avvisa(
            "la condizione non dice ancora " +
            std::string(voce.parametri == eParametri::casella ? "la casella" : "la cifra") +
            ": nei suoi parametri c'è \"" + Sostituisci(sCella, kCrLf, "") + "\"");
    }
}

/// So much of a text as can be shown on a line.
std::string Inizio(std::string_view sTesto)
{
    constexpr std::size_t kMostrati = 40;
    const auto controllo = std::find_if(sTesto.begin(), sTesto.end(),
                                        [](char c) { return static_cast<unsigned char>(c) < ' '; });
    sTesto = sTesto.substr(0, static_cast<std::size_t>(controllo - sTesto.begin()));
    std::size_t nFine = std::min(sTesto.size(), kMostrati);
    // Not inside a character of several bytes.
    while (nFine > 0 && nFine < sTesto.size() &&
           (static_cast<unsigned char>(sTesto[nFine]) & 0xC0U) == 0x80U) {
        --nFine;
    }
    return std::string(sTesto.substr(0, nFine));
}

/// The bytes of any file make rows of some kind; conditions have keys that are known.
void ControllaRighe(const GrigliaCondizioni& griglia, const std::string& sFile)
{
    if (griglia.Vuota(1)) {
        throw TestoErrato(sFile + " non contiene condizioni");
    }
    for (std::int32_t nRiga = 1; !griglia.Vuota(nRiga); ++nRiga) {
        const std::string_view sChiave = TogliBlank(griglia.Riga(nRiga).sCondizione);
        if (!sChiave.empty() && TrovaChiave(sChiave) == nullptr) {
            throw TestoErrato(sFile + " non è un file di condizioni: nella riga " + std::to_string(nRiga) +
                              " c'è \"" + Inizio(sChiave) + "\"");
        }
    }
}

void AggiungiFile(Sessione& sessione, const std::string& sFile)
{
    Rispondi<F_ApriCondizioni>(sessione, [&](F_ApriCondizioni& finestra) {
        finestra.Apri(sFile);
        if (sessione.Desktop().Critico()) {
            return;
        }
        ControllaRighe(finestra.GrdCond, sFile);
        ControllaPosto(sessione, static_cast<std::size_t>(UltimaRigaOccupata(finestra.GrdCond)));
        finestra.Premi(ePulsanteDialogo::conferma);
    });
    sessione.Sistema().InsCondizioni();
}

/// The columns of a text are counted before the list takes them, and no further than they can matter.
void ControllaColonne(Sessione& sessione, const std::string& sFile)
{
    std::size_t nColonne = 0;
    FileBinario file(sFile, eApertura::lettura);
    LeggiColonneTesto(file, [&](std::string_view, const NumeriScelti&) {
        return ++nColonne <= static_cast<std::size_t>(kCondizioniMassime);
    });
    if (nColonne == 0) {
        throw TestoErrato(sFile + " non contiene colonne");
    }
    ControllaPosto(sessione, nColonne);
}

void Spunta(SerieSpunte& serie, const std::vector<std::int32_t>& aValori, std::int16_t nClasse)
{
    for (const std::int32_t nValore : aValori) {
        if (nValore < 0 || nValore > nClasse) {
            throw TestoErrato("i punti vanno da 0 a " + std::to_string(nClasse) + ", la classe, non " +
                              std::to_string(nValore));
        }
        serie(nValore).Segnata.Poni(true);
    }
}

void AggiungiColonne(Sessione& sessione, const OpzioniAggiungi& opzioni)
{
    ControllaColonne(sessione, opzioni.sColonne);
    const std::int16_t nClasse = sessione.Sistema().classe();
    Rispondi<F_InsColonne>(sessione, [&](F_InsColonne& finestra) {
        finestra.LoadLVColonne(opzioni.sColonne);
        finestra.ListView1.SelezionaTutte(true);
        finestra.Pannello.CmbRecupero.Indice.Poni(opzioni.nQuadro);
        Spunta(finestra.Pannello.ChkPunti, opzioni.aPunti, nClasse);
        Spunta(finestra.Pannello.ChkRecupero, opzioni.aRecupero, nClasse);
        finestra.XPButton2();
        finestra.Premi(ePulsanteDialogo::conferma);
    });
    sessione.Sistema().InserisciColonneDaFile();
}

/// The run of conditions that is meant, which the system must have.
OpzioniRighe Tratto(Sessione& sessione, OpzioniRighe opzioni)
{
    const std::int32_t nCondizioni = Condizioni(sessione);
    opzioni.nDa = opzioni.nDa == 0 ? 1 : opzioni.nDa;
    opzioni.nA = opzioni.nA == 0 ? nCondizioni : opzioni.nA;
    if (nCondizioni == 0) {
        throw TestoErrato("il sistema non ha condizioni");
    }
    if (opzioni.nDa > opzioni.nA || opzioni.nA > nCondizioni) {
        throw TestoErrato("non c'è il tratto da " + std::to_string(opzioni.nDa) + " a " +
                          std::to_string(opzioni.nA) + ": il sistema ha " + Quante(nCondizioni));
    }
    return opzioni;
}

bool ApriSistema(Sessione& sessione, const std::string& sSistema)
{
    if (!sessione.Apri(sSistema, {})) {
        return false;
    }
    if (sessione.Sistema().classe() == 0) {
        throw TestoErrato("la classe di " + sSistema + " non è da 2 a 10: forse non è un file di sistema");
    }
    return true;
}

/// Opens a system, has it changed, and writes it back when no box of failure was shown.
template <typename Lavoro> eUscita Modifica(const std::string& sSistema, Lavoro&& lavoro)
{
    Sessione sessione(false);
    const bool bFatto = Protetto(sessione, sSistema, [&] {
        ControllaUscita(sSistema, {});
        if (!ApriSistema(sessione, sSistema)) {
            return false;
        }
        const bool bColonne = sessione.Sistema().QuantitaColonne() > 0;
        lavoro(sessione);
        if (sessione.Desktop().Critico() || !SalvaAlPosto(sessione, sSistema)) {
            return false;
        }
        if (bColonne) {
            sessione.Desktop().Avvisa("le colonne che il sistema portava non valgono più e non ci sono più");
        }
        static_cast<void>(sessione.Sistema().VerificaCoerenzaLink());
        std::cout << sSistema << ": " << Quante(Condizioni(sessione)) << '\n';
        return true;
    });
    return Uscita(bFatto);
}

} // namespace

eUscita Aggiungi(const OpzioniAggiungi& opzioni)
{
    return Modifica(opzioni.sSistema, [&](Sessione& sessione) {
        if (!opzioni.sTipo.empty()) {
            AggiungiCondizione(sessione, opzioni);
        } else if (!opzioni.sFile.empty()) {
            AggiungiFile(sessione, opzioni.sFile);
        } else {
            AggiungiColonne(sessione, opzioni);
        }
    });
}

eUscita Togli(const OpzioniRighe& opzioni)
{
    return Modifica(opzioni.sSistema, [&](Sessione& sessione) {
        const OpzioniRighe tratto = Tratto(sessione, opzioni);
        // One by one: the dialog for a run offers nothing when the grid is full.
        for (std::int32_t n = tratto.nDa; n <= tratto.nA; ++n) {
            sessione.Sistema().SetColonnaGrid(tratto.nDa);
            sessione.Sistema().EliminaCondizione();
        }
    });
}

eUscita ImpostaQuadro(const OpzioniQuadro& opzioni)
{
    return Modifica(opzioni.sSistema, [&](Sessione& sessione) {
        Rispondi<F_QuadroRecuperi>(sessione, [&](F_QuadroRecuperi& finestra) {
            F_QuadroRecuperi::Linea& linea = finestra.Gruppo(opzioni.nGruppo);
            if (!linea.TxtMin.Abilitato.Valore() && !opzioni.bTogli) {
                sessione.Desktop().Avvisa("nessuna condizione è nel gruppo " +
                                          std::to_string(opzioni.nGruppo));
            }
            linea.TxtMin.Testo.Poni(opzioni.bTogli ? std::string() : std::to_string(opzioni.nMinimo));
            linea.TxtMax.Testo.Poni(opzioni.bTogli ? std::string() : std::to_string(opzioni.nMassimo));
            finestra.Premi(ePulsanteDialogo::conferma);
        });
        sessione.Sistema().GestQuadroRecuperi();
    });
}

eUscita SalvaCondizioni(const OpzioniRighe& opzioni)
{
    Sessione sessione(false);
    return Uscita(Protetto(sessione, opzioni.sSistema, [&] {
        ControllaUscita(opzioni.sFile, opzioni.sSistema);
        if (!ApriSistema(sessione, opzioni.sSistema)) {
            return false;
        }
        const OpzioniRighe tratto = Tratto(sessione, opzioni);
        Rispondi<F_SalvaCondizioni>(sessione, [&](F_SalvaCondizioni& finestra) {
            finestra.CmbCondInizio.Indice.Poni(tratto.nDa - 1);
            finestra.CmbCondFine.Indice.Poni(tratto.nA - 1);
            finestra.Premi(ePulsanteDialogo::conferma);
        });
        const bool bScritto =
            ScriviAlPosto(sessione.Desktop(), tratto.sFile, [&](const std::string& sProvvisorio) {
                sessione.Desktop().RispondiSalva(sProvvisorio);
                sessione.Sistema().SalvaCondizioni();
                return !sessione.Desktop().Critico();
            });
        if (bScritto) {
            std::cout << tratto.sFile << ": " << Quante(tratto.nA - tratto.nDa + 1) << '\n';
        }
        return bScritto;
    }));
}

} // namespace ordavel::cli
