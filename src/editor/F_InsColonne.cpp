// F_InsColonne.cpp - "Inserimento colonne da file".

#include "editor/F_InsColonne.hpp"

#include "condizioni/ModColonneTesto.hpp"
#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"

#include <algorithm>

namespace ordavel {

namespace {

/// The subitems of a line, behind the column itself.
enum eSotto : std::size_t { kColonna = 0, kPunti = 1, kRecupero = 2, kQuadro = 3, kSotto = 4 };

RigaElenco NuovaRiga(std::size_t nNumero, std::string_view sTesto)
{
    const std::string sNumero = std::to_string(nNumero);
    RigaElenco riga{.sChiave = "k" + sNumero, .sTesto = sNumero, .aSotto = {}, .bScelta = false};
    riga.aSotto.resize(kSotto);
    riga.aSotto[kColonna] = sTesto;
    return riga;
}

} // namespace

F_InsColonne::F_InsColonne(OspiteDialoghi& ospite)
    : DialogoConferma(ospite, "F_InsColonne", "Inserimento colonne da file"), Pannello(ospite.classe())
{
    ListView1.aTestate = {"", "Colonna", "Punti", "Recupero", "Quadro Rec"};
    PanPunti.Visibile.Poni(false);
}

void F_InsColonne::Toolbar1(std::string_view sChiave)
{
    if (sChiave == "open") {
        ApriFile();
    } else if (sChiave == "delete") {
        EliminaRecord();
    } else if (sChiave == "punti") {
        PanPunti.Visibile.Poni(true);
    }
}

void F_InsColonne::ApriFile()
{
    LoadLVColonne(Ospite().Desktop().DialogoApri({.sTitolo = "Apri file",
                                                  .sFiltro = "File di testo (*.txt)|*.txt",
                                                  .sEstensione = {},
                                                  .sNomeFile = {},
                                                  .sCartella = Ospite().PercorsoSalvaColonne()}));
}

void F_InsColonne::LoadLVColonne(const std::string& sFile)
{
    if (!FileEsiste(sFile)) {
        return;
    }
    std::vector<RigaElenco> aRighe;
    m_aNumeri.clear();
    ConGestore(Ospite().Desktop(), "F_InsColonne.LoadLvColonne", [&] {
        FileBinario file(sFile, eApertura::lettura);
        LeggiColonneTesto(file, [&](std::string_view sTesto, const NumeriScelti& aNumeri) {
            if (aRighe.size() == kColonneInElenco) {
                throw Errore(eErrore::memoria, sFile);
            }
            aRighe.push_back(NuovaRiga(aRighe.size() + 1, sTesto));
            m_aNumeri.push_back(aNumeri);
            return true;
        });
    });
    ListView1.Righe.Poni(std::move(aRighe));
}

void F_InsColonne::EliminaRecord()
{
    ConGestore(Ospite().Desktop(), "F_InsColonne.EliminaRecord", [&] {
        auto aRighe = ListView1.Righe.Valore();
        std::erase_if(aRighe, [](const RigaElenco& riga) { return riga.bScelta; });
        ListView1.Righe.Poni(std::move(aRighe));
    });
}

void F_InsColonne::ImpostaPunti()
{
    auto aRighe = ListView1.Righe.Valore();
    for (RigaElenco& riga : aRighe) {
        if (riga.bScelta) {
            riga.aSotto[kPunti] = Pannello.Punti();
            riga.aSotto[kRecupero] = Pannello.Recupero();
            riga.aSotto[kQuadro] = Quadro();
        }
    }
    ListView1.Righe.Poni(std::move(aRighe));
}

void F_InsColonne::XPButton2()
{
    ImpostaPunti();
    PanPunti.Visibile.Poni(false);
}

void F_InsColonne::XPButton3()
{
    PanPunti.Visibile.Poni(false);
}

std::vector<ColonnaInGriglia> F_InsColonne::Colonne() const
{
    std::vector<ColonnaInGriglia> aColonne;
    for (const RigaElenco& riga : ListView1.Righe.Valore()) {
        // The text on show may be the beginning of a longer line; the numbers are those of the whole.
        const auto nNumero = static_cast<std::size_t>(LeggiIntero<std::int32_t>(riga.sTesto));
        aColonne.push_back({.aNumeri = m_aNumeri.at(nNumero - 1),
                            .sPunti = riga.aSotto[kPunti],
                            .sRecupero = riga.aSotto[kRecupero]});
    }
    return aColonne;
}

} // namespace ordavel
