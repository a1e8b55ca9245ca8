// TrattiInOrdine.cpp - tasks out of the list of stretches.

#include "motore/TrattiInOrdine.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ordavel {

TrattiInOrdine::TrattiInOrdine(std::int64_t nColonne, const LimitiCoda& limiti,
                               const std::atomic<bool>& bFerma)
    : m_Limiti(limiti), m_bFerma(bFerma), m_nTratto(std::max<std::int64_t>(limiti.nPrimoTratto, 1))
{
    if (nColonne > 0) {
        m_aTratti.push_back({.nDa = 0, .nA = nColonne});
    }
}

TrattiInOrdine::Tratto* TrattiInOrdine::Prossimo()
{
    std::unique_lock presa(m_Serratura);
    while (!m_bFinito && !m_aTratti.empty() && !m_bFerma.load(std::memory_order_relaxed)) {
        const auto tratto = Scegli();
        if (tratto == m_aTratti.end()) {
            m_Cambiato.wait(presa);
            continue;
        }
        if (tratto->stato == eStato::fatto) {
            tratto->stato = eStato::inScrittura;
        } else {
            Spezza(tratto, std::min(tratto->nA, tratto->nDa + m_nTratto));
            tratto->stato = eStato::preso;
        }
        return &*tratto;
    }
    m_bFinito = true;
    m_Cambiato.notify_all();
    return nullptr;
}

/// The first stretch, to be written, or the first one that nobody has; the end when others must do something first.
TrattiInOrdine::Posto TrattiInOrdine::Scegli()
{
    if (m_aTratti.front().stato == eStato::fatto) {
        return m_aTratti.begin();
    }
    const auto libero = std::ranges::find(m_aTratti, eStato::libero, &Tratto::stato);
    // What is in front must be walked, however much waits behind it.
    return libero == m_aTratti.begin() || !Troppi() ? libero : m_aTratti.end();
}

bool TrattiInOrdine::Troppi() const noexcept
{
    return m_nInAttesa >= m_Limiti.nTenuteInAttesa || m_aTratti.size() > m_Limiti.nTrattiInAttesa;
}

/// Ends a stretch earlier; its rest belongs to nobody.
void TrattiInOrdine::Spezza(Posto tratto, std::int64_t nA)
{
    if (nA == tratto->nA) {
        return;
    }
    const auto dietro = std::next(tratto);
    if (dietro != m_aTratti.end() && dietro->stato == eStato::libero) {
        dietro->nDa = nA;
    } else {
        m_aTratti.insert(dietro, {.nDa = nA, .nA = tratto->nA});
    }
    tratto->nA = nA;
}

void TrattiInOrdine::Camminato(Tratto& tratto, TrattoFatto fatto)
{
    const std::scoped_lock presa(m_Serratura);
    const auto posto = std::ranges::find_if(m_aTratti, [&](const Tratto& t) { return &t == &tratto; });
    if (fatto.nFine < tratto.nA) {
        m_nTratto = std::max<std::int64_t>(fatto.nFine - tratto.nDa, 1);
    } else if (!fatto.bLungo) {
        m_nTratto = std::min(2 * m_nTratto, m_aTratti.back().nA);
    }
    Spezza(posto, fatto.nFine);
    m_nInAttesa += fatto.aTenute.size();
    tratto.fatto = std::move(fatto);
    tratto.stato = eStato::fatto;
    m_Cambiato.notify_all();
}

void TrattiInOrdine::Scritto()
{
    const std::scoped_lock presa(m_Serratura);
    m_nInAttesa -= m_aTratti.front().fatto.aTenute.size();
    m_aTratti.pop_front();
    m_Cambiato.notify_all();
}

void TrattiInOrdine::Finisci()
{
    const std::scoped_lock presa(m_Serratura);
    m_bFinito = true;
    m_Cambiato.notify_all();
}

} // namespace ordavel
