// F_PuntiSuFormule.cpp - "Punti su formule".

#include "editor/F_PuntiSuFormule.hpp"

#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "editor/RegolaEsclusione.hpp"

#include <algorithm>
#include <numeric>

namespace ordavel {

namespace {

using Terna = std::array<Combo, 3>;

std::array<std::string, 3> Testi(const Terna& aCombo)
{
    std::array<std::string, 3> aTesti;
    std::transform(aCombo.begin(), aCombo.end(), aTesti.begin(), [](const Combo& c) { return c.Testo(); });
    return aTesti;
}

/// Selects the counts of a cell in order. They are told by their number, since a cell that comes from a file has
/// two digits for each; an empty one is none.
void Seleziona(Terna& aCombo, std::string_view sCella)
{
    auto aParti = Dividi(sCella, "-");
    aParti.resize(aCombo.size());
    for (std::size_t i = 0; i < aCombo.size(); ++i) {
        const std::string sVoce =
            aParti[i].empty() ? std::string() : std::to_string(LeggiIntero<std::int32_t>(aParti[i]));
        aCombo[i].Indice.Poni(-1);
        if (aCombo[i].Contiene(sVoce)) {
            SelezionaCombo(sVoce, aCombo[i]);
        }
    }
}

} // namespace

F_PuntiSuFormule::F_PuntiSuFormule(OspiteDialoghi& ospite)
    : DialogoCondizione(ospite, TipoCondizione::formule, "Punti su formule")
{
    LoadCombo();
    LoadComboquadroRec(CmbRecupero);
    CmbRecupero.Indice.AlCambio([this] { AbilitaComboFormule(); });
    AbilitaComboFormule();
}

void F_PuntiSuFormule::LoadCombo()
{
    for (Terna* aCombo : {&CmbFormula, &CmbFormulaR}) {
        for (Combo& combo : *aCombo) {
            combo.Svuota();
            combo.AggiungiNumeri(0, Ospite().classe());
        }
    }
}

void F_PuntiSuFormule::AbilitaComboFormule()
{
    const bool bGruppo = ConGruppo(CmbRecupero);
    for (Combo& combo : CmbFormulaR) {
        if (!bGruppo) {
            combo.Indice.Poni(-1);
        }
        combo.Abilitato.Poni(bGruppo);
    }
}

bool F_PuntiSuFormule::DaLaClasse(const Terna& aCombo) const
{
    const auto nSomma = std::accumulate(aCombo.begin(), aCombo.end(), 0.0, [](double nFin, const Combo& c) {
        return nFin + LeggiNumero(c.Testo());
    });
    return nSomma == Ospite().classe();
}

std::string F_PuntiSuFormule::MessaggioCoerenza() const
{
    std::string sMessaggio;
    if (!DaLaClasse(CmbFormula)) {
        sMessaggio = "Impostare la formula in modo che la somma delle 3 sezioni dia la classe di sviluppo";
    }
    if (ConGruppo(CmbRecupero) && !DaLaClasse(CmbFormulaR)) {
        sMessaggio = "Impostare la formula in recupero in modo che la somma delle 3 sezioni dia la classe di "
                     "sviluppo";
    }
    return sMessaggio;
}

ValoriDialogo F_PuntiSuFormule::Valori() const
{
    ValoriDialogo valori;
    valori.aTerna = Testi(CmbFormula);
    valori.aTernaRec = Testi(CmbFormulaR);
    valori.sQuadro = CmbRecupero.Testo();
    return valori;
}

void F_PuntiSuFormule::LeggiPunti(const GrigliaCondizioni& griglia)
{
    const Condizione& celle = griglia.Riga(griglia.Corrente());
    Seleziona(CmbFormula, celle.sPunti);
    Seleziona(CmbFormulaR, celle.sRecupero);
    SelezionaCombo(celle.sQuadro, CmbRecupero);
}

} // namespace ordavel
