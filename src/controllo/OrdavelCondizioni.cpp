// OrdavelCondizioni.cpp - what a user does with conditions: insert, edit, delete, board, files of conditions.

#include "ordavel/Ordavel.hpp"

#include "analisi/F_NavigaSistema.hpp"
#include "condizioni/ModRighe.hpp"
#include "condizioni/ModTestoCelle.hpp"
#include "core/ModGestore.hpp"
#include "editor/DialogoCondizione.hpp"
#include "editor/F_ApriCondizioni.hpp"
#include "editor/F_DelCondizioni.hpp"
#include "editor/F_ImpostaPunti.hpp"
#include "editor/F_InsColonne.hpp"
#include "editor/F_QuadroRecuperi.hpp"
#include "editor/F_SalvaCondizioni.hpp"

namespace ordavel {

namespace {

constexpr bool IsLink(TipoCondizione tipo) noexcept
{
    return tipo == TipoCondizione::linkOpen || tipo == TipoCondizione::linkClose;
}

} // namespace

void Ordavel::InsCondizione(TipoCondizione t, std::string_view sParam)
{
    if (m_bInCorso) {
        return;
    }
    ConGestore(m_Piattaforma, "OrdavelSis.InsCondizione", [&] {
        std::int32_t nRiga = 0;
        InserisciCondizione(t, nRiga, sParam);
    });
}

/// Takes    nRiga     0 for the free row, which it becomes
///          dialogo   one that is loaded and filled; without it the kind's is loaded
void Ordavel::InserisciCondizione(TipoCondizione tipo, std::int32_t& nRiga, std::string_view sParam,
                                  std::unique_ptr<DialogoCondizione> dialogo)
{
    if (nRiga == 0) {
        nRiga = TrovaRigaLibera(m_GrdCond);
    }
    if (nRiga > 0 && !m_Controlli.GrdCond.IsVisibile(nRiga)) {
        m_Controlli.GrdCond.PrimaColonna.Poni(nRiga);
    }
    m_GrdCond.PoniAltezza(nRiga, eAltezza::normale);
    if (!dialogo) {
        dialogo = CreaDialogo(*m_Ospite, tipo);
    }
    Condizione celle = CelleDaDialogo(tipo, {});
    if (dialogo) {
        MostraORiempi(*dialogo, nRiga, sParam);
        if (dialogo->sTag.empty()) {
            return;
        }
        celle = dialogo->GetParametri();
    }
    if (IsLink(tipo)) {
        m_GrdCond.PoniAltezza(nRiga, eAltezza::link);
    }
    m_GrdCond.Riga(nRiga) = std::move(celle);
    SetColonnaGrid(nRiga);
    SegnaModificato();
}

/// Brings a loaded dialog to its tag.
void Ordavel::MostraORiempi(DialogoCondizione& dialogo, std::int32_t nRiga, std::string_view sParam)
{
    dialogo.GuardaRighe(m_GrdCond, nRiga);
    dialogo.AbilitaNum(m_Controlli.SelnovoNumeri1);
    if (sParam.empty() || dialogo.SempreMostrato()) {
        m_Piattaforma.MostraModale(dialogo);
    } else {
        dialogo.SetPuntiSuFrm(sParam);
    }
}

void Ordavel::ModificaCondizione()
{
    if (m_bInCorso) {
        return;
    }
    std::int32_t nRiga = m_GrdCond.Corrente();
    const VoceCatalogo* voce = TrovaChiaveSenzaCaso(m_GrdCond.Riga(nRiga).sCondizione);
    if (voce == nullptr) {
        return;
    }
    auto dialogo = CreaDialogo(*m_Ospite, voce->Tipo);
    if (!dialogo) {
        return;
    }
    // The rows are looked at once here and once more before the dialog is shown: a link's counts are offered twice.
    dialogo->GuardaRighe(m_GrdCond, nRiga);
    dialogo->LeggiPunti(m_GrdCond);
    InserisciCondizione(voce->Tipo, nRiga, {}, std::move(dialogo));
}

void Ordavel::InserisciRiga()
{
    if (!m_bInCorso) {
        ordavel::InserisciRiga(m_GrdCond);
    }
}

void Ordavel::EliminaCondizione()
{
    if (!m_bInCorso) {
        ordavel::EliminaCondizione(m_GrdCond);
        SegnaModificato();
        if (m_NavigaSistema && m_NavigaSistema->Visibile.Valore()) {
            m_NavigaSistema->LoadTree();
        }
    }
}

void Ordavel::EliminaRangeCondizioni()
{
    if (m_bInCorso) {
        return;
    }
    F_DelCondizioni dialogo(*m_Ospite);
    dialogo.LoadCombo(TrovaRigaLibera(m_GrdCond) - 1);
    m_Piattaforma.MostraModale(dialogo);
    if (!dialogo.sTag.empty()) {
        SetColonnaGrid(ordavel::EliminaRangeCondizioni(m_GrdCond, dialogo.Dalla(), dialogo.Alla()));
    }
}

void Ordavel::ApplicaImpostaPunti()
{
    if (m_bInCorso) {
        return;
    }
    F_ImpostaPunti dialogo(*m_Ospite);
    dialogo.LoadCombo(TrovaRigaLibera(m_GrdCond) - 1);
    m_Piattaforma.MostraModale(dialogo);
    if (!dialogo.sTag.empty()) {
        ordavel::ApplicaImpostaPunti(m_GrdCond, dialogo.Dalla(), dialogo.Alla(), dialogo.Pannello.Punti(),
                                     dialogo.Pannello.Recupero(), dialogo.Pannello.CmbRecupero.Testo());
        SetColonnaGrid(dialogo.Alla());
    }
}

void Ordavel::InserisciColonneDaFile()
{
    if (m_bInCorso) {
        return;
    }
    const std::int32_t nRiga = TrovaRigaLibera(m_GrdCond);
    F_InsColonne dialogo(*m_Ospite);
    m_Piattaforma.MostraModale(dialogo);
    if (dialogo.sTag.empty()) {
        return;
    }
    const auto aColonne = dialogo.Colonne();
    const std::int32_t nScritte = InserisciColonne(m_GrdCond, nRiga, aColonne, dialogo.Quadro());
    if (static_cast<std::size_t>(nScritte) < aColonne.size()) {
        Avvisa("Superato il numero di condizioni impostabili");
    }
    SetColonnaGrid(nRiga + nScritte - 1);
    SegnaModificato();
}

void Ordavel::GestQuadroRecuperi()
{
    if (m_bInCorso) {
        return;
    }
    F_QuadroRecuperi dialogo(*m_Ospite);
    dialogo.LeggiRecuperiInseriti(m_GrdCond, m_Controlli.LbQuadroRec);
    m_Piattaforma.MostraModale(dialogo);
    if (!dialogo.sTag.empty()) {
        m_Controlli.LbQuadroRec.Voci.Poni(dialogo.RigheQuadro());
        SegnaModificato();
    }
}

void Ordavel::SalvaCondizioni()
{
    if (!m_bInCorso) {
        F_SalvaCondizioni dialogo(*m_Ospite);
        m_Piattaforma.MostraModale(dialogo);
    }
}

void Ordavel::InsCondizioni()
{
    if (!m_bInCorso) {
        F_ApriCondizioni dialogo(*m_Ospite);
        m_Piattaforma.MostraModale(dialogo);
    }
}

std::int16_t Ordavel::GetQuantitaColDaEmulareFromGrid() const
{
    return ordavel::GetQuantitaColDaEmulareFromGrid(m_GrdCond);
}

void Ordavel::SegnaModificato() noexcept
{
    m_Modificato = true;
    m_ColonneValide = false;
}

} // namespace ordavel
