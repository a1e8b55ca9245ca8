// F_EffettoCond.cpp - "Effetto condizioni".

#include "analisi/F_EffettoCond.hpp"

#include "analisi/ModConfronto.hpp"
#include "core/ModNumeri.hpp"

namespace ordavel {

namespace {

RigaElenco RigaEffetto(const RecordCondizione& record, std::size_t nIndice, double nTotale)
{
    RigaElenco riga{.sChiave = {},
                    .sTesto = std::to_string(nIndice + 1),
                    .aSotto = {std::string(NomeCondizione(record.Tipo))},
                    .bScelta = false};
    if (record.Tipo != TipoCondizione::linkOpen && record.Tipo != TipoCondizione::linkClose) {
        for (const double nQuante : {record.ContaOk, record.ContaKo, record.ContaRec}) {
            riga.aSotto.push_back(FormattaNumero(nQuante));
            riga.aSotto.push_back(std::to_string(PercentualeProgress(nQuante, nTotale)));
        }
    }
    return riga;
}

} // namespace

F_EffettoCond::F_EffettoCond(OspiteDialoghi& ospite)
    : DialogoConferma(ospite, "F_EffettoCond", "Effetto condizioni")
{
    ListView1.aTestate = {"Id", "Condizione", "Superate", "%", "Scartate", "%", "Recuperate", "%"};
}

void F_EffettoCond::LoadList()
{
    const double nTotale = Ospite().ColonneIntegrali();
    // A copy: what is shown is what the run counted, whatever happens behind it.
    const std::vector<RecordCondizione> aCondizioni = Ospite().UltimoSviluppo().aCondizioni;
    std::vector<RigaElenco> aRighe;
    for (const RecordCondizione& record : aCondizioni) {
        if (record.Tipo == TipoCondizione::nessuno) {
            break;
        }
        aRighe.push_back(RigaEffetto(record, aRighe.size(), nTotale));
    }
    ListView1.Righe.Poni(std::move(aRighe));
}

void F_EffettoCond::DblClick(std::size_t nRiga)
{
    const auto& aRighe = ListView1.Righe.Valore();
    if (nRiga >= aRighe.size()) {
        Solleva(eErrore::indice);
    }
    Ospite().SetColonnaGrid(LeggiIntero<std::int32_t>(aRighe[nRiga].sTesto));
}

} // namespace ordavel
