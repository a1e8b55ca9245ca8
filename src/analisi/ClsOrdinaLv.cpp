// ClsOrdinaLv.cpp - sorts a report list by one of its columns.

#include "analisi/ClsOrdinaLv.hpp"

#include "core/ModNumeri.hpp"
#include "core/ModOrdina.hpp"
#include "core/ModTesti.hpp"

#include <algorithm>
#include <limits>

namespace ordavel {

namespace {

struct RigaOrdinata {
    std::int64_t nChiave = 0; ///< four decimals
    std::string sChiave;
    RigaElenco riga;
};

/// "1.234,5" is 1234.5, in ten thousandths 12345000.
std::int64_t ChiaveNumero(std::string_view sTesto)
{
    constexpr double kDecimali = 10000;
    constexpr double kLimite = 9223372036854775808.0;
    const double nChiave =
        ArrotondaPari(LeggiNumero(Sostituisci(Sostituisci(sTesto, ".", ""), ",", ".")) * kDecimali);
    if (!(nChiave >= -kLimite && nChiave < kLimite)) {
        Solleva(eErrore::overflow);
    }
    return static_cast<std::int64_t>(nChiave);
}

/// A line may end before the last heading: what it lacks is empty.
std::string TestoColonna(const RigaElenco& riga, std::size_t nColonna)
{
    if (nColonna == 1) {
        return riga.sTesto;
    }
    return nColonna - 2 < riga.aSotto.size() ? riga.aSotto[nColonna - 2] : std::string();
}

std::vector<RigaOrdinata> Leggi(const Elenco& lista, std::int16_t nIdCol, eTipoOrdine tipo)
{
    const auto nColonna = static_cast<std::size_t>(nIdCol);
    if (nIdCol < 1 || nColonna > lista.aTestate.size()) {
        Solleva(eErrore::indice);
    }
    std::vector<RigaOrdinata> aRighe;
    for (const RigaElenco& riga : lista.Righe.Valore()) {
        std::string sTesto = TestoColonna(riga, nColonna);
        const std::int64_t nChiave = tipo == eTipoOrdine::testo ? 0 : ChiaveNumero(sTesto);
        aRighe.push_back({.nChiave = nChiave, .sChiave = std::move(sTesto), .riga = riga});
    }
    return aRighe;
}

void MostraOrdine(Elenco& lista, std::int16_t nIdCol, bool bCrescente)
{
    std::vector<eOrdine> aIcone(lista.aTestate.size());
    aIcone[static_cast<std::size_t>(nIdCol) - 1] = bCrescente ? eOrdine::crescente : eOrdine::decrescente;
    lista.Icone.Poni(std::move(aIcone));
}

} // namespace

void ClsOrdinaLv::Clic(Elenco& oLista, std::int16_t nIdCol, eTipoOrdine tipo)
{
    m_nTipoSort = nIdCol == m_nCol ? static_cast<std::int16_t>(1 - m_nTipoSort) : std::int16_t{1};
    m_nCol = nIdCol;
    m_Tipo = tipo;
    Riordina(oLista);
}

void ClsOrdinaLv::Riordina(Elenco& oLista)
{
    if (m_nCol != 0) {
        OrdinaLv(oLista, m_nCol, m_Tipo, m_nTipoSort);
    }
}

void ClsOrdinaLv::OrdinaLv(Elenco& oLista, std::int16_t nIdCol, eTipoOrdine tipo, std::int16_t& nTipoSort)
{
    if (oLista.Righe.Valore().size() < 2) {
        return;
    }
    auto aRighe = Leggi(oLista, nIdCol, tipo);
    if (tipo == eTipoOrdine::testo) {
        OrdinaRapido(aRighe, [](const auto& a, const auto& b) { return a.sChiave < b.sChiave; });
    } else {
        OrdinaRapido(aRighe, [](const auto& a, const auto& b) { return a.nChiave < b.nChiave; });
    }
    if (nTipoSort == 0) {
        std::reverse(aRighe.begin(), aRighe.end());
    }
    std::vector<RigaElenco> aOrdinate;
    std::transform(aRighe.begin(), aRighe.end(), std::back_inserter(aOrdinate),
                   [](RigaOrdinata& r) { return std::move(r.riga); });
    oLista.Righe.Poni(std::move(aOrdinate));
    MostraOrdine(oLista, nIdCol, nTipoSort != 0);
}

} // namespace ordavel
