// SpunteCasuali_prova.cpp - what a user chooses at random reaches the record, and comes back from the row.

#include "editor/OspiteProva.hpp"
#include "editor/UtenteCasuale.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace ordavel {
namespace {

using prove::Compila;
using prove::OspiteProva;
using prove::Tra;

/// A dialog that was played, and what it must give.
struct Giocata {
    std::unique_ptr<DialogoCondizione> dialogo;
    RecordCondizione atteso;
    bool bConfermata = false;
};

/// CONFERMA: it hides with a tag, or it stays and says why in one box.
bool Conferma(OspiteProva& ospite, DialogoCondizione& dialogo)
{
    dialogo.Visibile.Poni(true);
    dialogo.Premi(ePulsanteDialogo::conferma);
    const bool bPassa = dialogo.sTag == "ooo";
    RC_ASSERT(bPassa || dialogo.sTag.empty());
    RC_ASSERT(dialogo.Visibile.Valore() != bPassa);
    RC_ASSERT(ospite.desktop.Messaggi().size() == std::size_t{bPassa ? 0U : 1U});
    return bPassa;
}

Giocata Gioca(OspiteProva& ospite, TipoCondizione tipo)
{
    Giocata giocata{CreaDialogo(ospite, tipo), {}};
    giocata.atteso = prove::GiocaACaso(*giocata.dialogo);
    giocata.bConfermata = Conferma(ospite, *giocata.dialogo);
    return giocata;
}

/// A dialog for an edit; a link offers as many counts as it did when the row was made.
std::unique_ptr<DialogoCondizione> Riletto(OspiteProva& ospite, const Giocata& giocata,
                                           const Condizione& celle)
{
    auto dialogo = CreaDialogo(ospite, giocata.dialogo->Tipo());
    if (const auto* link = dynamic_cast<F_LinkClose*>(giocata.dialogo.get())) {
        const auto nConteggi = static_cast<std::int32_t>(link->List1.Voci.Valore().size());
        dynamic_cast<F_LinkClose&>(*dialogo).LoadchkPunti(nConteggi - 1);
    }
    dialogo->LeggiPunti(prove::GrigliaDi({&celle, 1}));
    return dialogo;
}

/// Plays each kind that has a dialog, and looks at what was confirmed. Most plays are.
template <typename Esame> void ConOgniTipo(Esame esame)
{
    OspiteProva ospite(static_cast<std::int16_t>(Tra(kClasseMinima, kClasseMassima)));
    ospite.aScelti = {3, 7, 8, 15, 21, 22, 30, 44, 58, 61, 77, 90};
    int nConfermate = 0;
    for (std::int16_t n = 2; n <= kTipiCondizione; ++n) {
        const Giocata giocata = Gioca(ospite, static_cast<TipoCondizione>(n));
        if (giocata.bConfermata) {
            ++nConfermate;
            esame(ospite, giocata);
        }
    }
    RC_ASSERT(nConfermate > kTipiCondizione / 3);
}

RC_GTEST_PROP(SpunteCasuali, LeCelleCompilanoEsattamenteNelleScelte, ())
{
    ConOgniTipo([](OspiteProva&, const Giocata& giocata) {
        RC_ASSERT(Compila(giocata.dialogo->GetParametri()) == giocata.atteso);
    });
}

RC_GTEST_PROP(SpunteCasuali, RilettaEConfermataLaRigaDaLeStesseCelle, ())
{
    ConOgniTipo([](OspiteProva& ospite, const Giocata& giocata) {
        const Condizione celle = giocata.dialogo->GetParametri();
        const auto riletto = Riletto(ospite, giocata, celle);
        RC_ASSERT(Conferma(ospite, *riletto));
        RC_ASSERT(riletto->GetParametri() == celle);
    });
}

FlagPunti SenzaZeri(const FlagPunti& aTerna)
{
    FlagPunti aSenza;
    std::remove_copy(aTerna.aElementi.begin(), aTerna.aElementi.end(), aSenza.aElementi.begin() + 1, 0);
    return aSenza;
}

/// What an edit of a stored row keeps: a formula closes its gaps, and "Paralleli" loses its word.
RecordCondizione Rimasto(RecordCondizione record)
{
    if (record.Tipo == TipoCondizione::formule) {
        record.PuntiOk2 = SenzaZeri(record.PuntiOk2);
        record.PuntiRec2 = SenzaZeri(record.PuntiRec2);
    }
    if (record.Tipo == TipoCondizione::paralleli) {
        record.Parametro = 2;
    }
    return record;
}

RC_GTEST_PROP(SpunteCasuali, LaRigaSalvataRilettaEConfermataCompilaNelloStessoRecord, ())
{
    ConOgniTipo([](OspiteProva& ospite, const Giocata& giocata) {
        const auto riletto = Riletto(ospite, giocata, CelleDaRecord(giocata.atteso));
        RC_ASSERT(Conferma(ospite, *riletto));
        RC_ASSERT(Compila(riletto->GetParametri()) == Rimasto(giocata.atteso));
    });
}

/// A value is accepted or recovered, never both, and without a group none is recovered.
RC_GTEST_PROP(SpunteCasuali, NessunValoreEAccettatoERecuperato, ())
{
    ConOgniTipo([](OspiteProva&, const Giocata& giocata) {
        const RecordCondizione record = Compila(giocata.dialogo->GetParametri());
        const bool bFlag = TrovaTipo(record.Tipo)->punti == ePunti::lista;
        for (int i = 0; bFlag && i <= kValoreListaMassimo; ++i) {
            RC_ASSERT(record.PuntiOk(i) == 0 || record.PuntiRec(i) == 0);
            RC_ASSERT(record.PuntiOk2(i) == 0 || record.PuntiRec2(i) == 0);
            RC_ASSERT(record.IdRecupero > 0 || (record.PuntiRec(i) == 0 && record.PuntiRec2(i) == 0));
        }
    });
}

std::string Virgole(std::string_view sCella)
{
    return Sostituisci(sCella, "-", ",");
}

/// The parameter string of what a common dialog holds; empty for a kind that takes none.
std::string StringaDi(const F_PuntiSu& dialogo, const Condizione& celle)
{
    const std::string sPunti = Virgole(celle.sPunti);
    const std::string sRecupero = celle.sQuadro == " " ? "" : "|" + Virgole(celle.sRecupero);
    switch (dialogo.Riga().riempimento) {
    case eRiempimento::conCombo:
        return dialogo.Combo1.Voci.Valore().empty()
                   ? std::string()
                   : dialogo.Combo1.Testo() + std::string(kCrLf) + sPunti + sRecupero;
    case eRiempimento::valori:
    case eRiempimento::intervallo:
        return sPunti + sRecupero;
    default:
        return {};
    }
}

/// What a string can state of a row: the group is the first, and neither position nor digit is known.
Condizione CelleDiStringa(const F_PuntiSu& dialogo, Condizione celle)
{
    celle.sQuadro = celle.sQuadro == " " ? " " : "1";
    const eControlloParametro parametro = dialogo.Riga().parametro;
    if (parametro == eControlloParametro::casella || parametro == eControlloParametro::cifra) {
        celle.sParametri = CelleDaDialogo(dialogo.Tipo(), {}).sParametri;
    }
    return celle;
}

RC_GTEST_PROP(SpunteCasuali, LaStringaDaLeStesseCelleDelleScelte, ())
{
    ConOgniTipo([](OspiteProva& ospite, const Giocata& giocata) {
        const auto* scelto = dynamic_cast<const F_PuntiSu*>(giocata.dialogo.get());
        const Condizione celle = giocata.dialogo->GetParametri();
        const std::string sParam = scelto == nullptr ? "" : StringaDi(*scelto, celle);
        if (!sParam.empty()) {
            F_PuntiSu riempito(ospite, scelto->Tipo());
            riempito.SetPuntiSuFrm(sParam);
            RC_ASSERT(riempito.sTag == "ttt");
            RC_ASSERT(riempito.GetParametri() == CelleDiStringa(*scelto, celle));
        }
    });
}

} // namespace
} // namespace ordavel
