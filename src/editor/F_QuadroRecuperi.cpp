// F_QuadroRecuperi.cpp - "Quadro recuperi".

#include "editor/F_QuadroRecuperi.hpp"

#include "condizioni/ModRighe.hpp"
#include "core/ModNumeri.hpp"

#include <algorithm>

namespace ordavel {

F_QuadroRecuperi::F_QuadroRecuperi(OspiteDialoghi& ospite)
    : DialogoConferma(ospite, "F_QuadroRecuperi", "Quadro recuperi")
{
    std::int32_t nGruppo = 0;
    for (Linea& linea : m_aLinee) {
        linea.LabQuadroRec.Testo.Poni(std::to_string(++nGruppo));
        linea.LabRecInseriti.Testo.AlCambio([&linea] {
            const bool bRighe = LeggiNumero(linea.LabRecInseriti.Testo.Valore()) > 0;
            linea.TxtMin.Abilitato.Poni(bRighe);
            linea.TxtMax.Abilitato.Poni(bRighe);
        });
        for (CasellaTesto* casella : {&linea.TxtMin, &linea.TxtMax}) {
            casella->bSoloCifre = true;
            casella->Abilitato.Poni(false);
        }
    }
}

void F_QuadroRecuperi::LeggiRecuperiInseriti(const GrigliaCondizioni& griglia, const Lista& listaQuadro)
{
    const ConteggioRecuperi aConteggio = ContaRecuperi(griglia);
    for (std::int32_t nGruppo = 1; nGruppo <= kGruppiRecupero; ++nGruppo) {
        const std::int32_t nRighe = aConteggio(nGruppo);
        Gruppo(nGruppo).LabRecInseriti.Testo.Poni(nRighe < 1 ? std::string() : std::to_string(nRighe));
    }
    std::int32_t nGruppo = 0;
    for (const std::string& sRiga : listaQuadro.Voci.Valore()) {
        ++nGruppo;
        const RigaQuadro quadro = LeggiRigaQuadro(sRiga);
        if (quadro.bInUso) {
            Gruppo(nGruppo).TxtMin.Testo.Poni(quadro.sMinimo);
            Gruppo(nGruppo).TxtMax.Testo.Poni(quadro.sMassimo);
        }
    }
}

std::vector<std::string> F_QuadroRecuperi::RigheQuadro() const
{
    std::vector<std::string> aRighe;
    std::transform(m_aLinee.begin(), m_aLinee.end(), std::back_inserter(aRighe), [](const Linea& linea) {
        return ScriviRigaQuadro(linea.TxtMin.Testo.Valore(), linea.TxtMax.Testo.Valore());
    });
    return aRighe;
}

F_QuadroRecuperi::Linea& F_QuadroRecuperi::Gruppo(std::int32_t nGruppo)
{
    if (nGruppo < 1 || nGruppo > kGruppiRecupero) {
        Solleva(eErrore::indice);
    }
    return m_aLinee[static_cast<std::size_t>(nGruppo - 1)];
}

} // namespace ordavel
