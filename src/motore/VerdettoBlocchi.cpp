// VerdettoBlocchi.cpp - bits counted as binary digits.

#include "motore/VerdettoBlocchi.hpp"

#include <algorithm>
#include <bit>

namespace ordavel {

VerdettoBlocchi::VerdettoBlocchi(const StatoSviluppo& stato)
{
    PreparaGruppi(stato);
    PreparaLink(stato);
    m_bSemplice = m_aGruppi.empty() && m_aLink.empty();
}

void VerdettoBlocchi::PreparaGruppi(const StatoSviluppo& stato)
{
    for (const RecordCondizione& record : stato.aCondizioni) {
        m_bPossibile = m_bPossibile && QuadroRecuperi::Contiene(record.IdRecupero);
    }
    for (std::int16_t g = 1; g <= kGruppiRecupero && m_bPossibile; ++g) {
        const VoceRecupero& voce = stato.aQuadroRec[g];
        GruppoRecupero gruppo{{}, voce.MinPunti, voce.MaxPunti};
        for (std::size_t i = 0; i < stato.aCondizioni.size(); ++i) {
            if (stato.aCondizioni[i].IdRecupero == g) {
                gruppo.aMembri.push_back(i);
            }
        }
        if (voce.Attiva != 0 && !gruppo.aMembri.empty()) {
            m_aGruppi.push_back(std::move(gruppo));
        }
    }
}

/// Follows the collapse of the links; the place of a "LinkClose" in the working copy is where its list is read.
void VerdettoBlocchi::PreparaLink(const StatoSviluppo& stato)
{
    struct Voce {
        std::size_t nPosto;
        bool bApre;
    };
    std::vector<Voce> aVoci;
    const std::size_t nRecord = stato.aCondizioni.size();
    for (std::size_t i = 0; i < nRecord; ++i) {
        const TipoCondizione tipo = stato.aCondizioni[i].Tipo;
        aVoci.push_back({i, tipo == TipoCondizione::linkOpen});
        if (tipo != TipoCondizione::linkClose) {
            continue;
        }
        const std::size_t nChiuso = aVoci.size() - 1;
        std::size_t nAperto = nChiuso;
        while (nAperto > 0 && !aVoci[nAperto].bApre) {
            --nAperto;
        }
        BloccoLink blocco;
        for (std::size_t n = nAperto; n <= nChiuso; ++n) {
            blocco.aPosti.push_back(aVoci[n].nPosto);
        }
        blocco.aLista = &stato.aCondizioni[nChiuso].Numeri;
        m_bPossibile = m_bPossibile && FlagNumeri::Contiene(static_cast<std::int64_t>(blocco.aPosti.size()));
        m_aLink.push_back(std::move(blocco));
        aVoci.resize(nAperto);
        aVoci.push_back({nRecord + m_aLink.size() - 1, false});
    }
    for (const Voce& voce : aVoci) {
        if (!voce.bApre) {
            m_aFinali.push_back(voce.nPosto);
        }
    }
    m_aPosti.resize(nRecord + m_aLink.size());
    m_aCifre.resize(std::bit_width(nRecord + 1));
}

void VerdettoBlocchi::ContaBit(std::span<const std::size_t> aPosti, std::span<const std::uint64_t> aParole)
{
    std::ranges::fill(m_aCifre, 0);
    for (const std::size_t nPosto : aPosti) {
        std::uint64_t nRiporto = aParole[nPosto];
        for (std::size_t c = 0; nRiporto != 0; ++c) {
            const std::uint64_t nDopo = m_aCifre[c] & nRiporto;
            m_aCifre[c] ^= nRiporto;
            nRiporto = nDopo;
        }
    }
}

/// The bits whose count is nValore or more.
std::uint64_t VerdettoBlocchi::Almeno(std::int64_t nValore) const
{
    if (nValore <= 0) {
        return ~std::uint64_t{0};
    }
    if (nValore >> m_aCifre.size() != 0) {
        return 0;
    }
    std::uint64_t nAlmeno = ~std::uint64_t{0}; // of the digits so far, from the lowest on
    for (std::size_t c = 0; c < m_aCifre.size(); ++c) {
        nAlmeno = ((nValore >> c) & 1) != 0 ? m_aCifre[c] & nAlmeno : m_aCifre[c] | nAlmeno;
    }
    return nAlmeno;
}

std::uint64_t VerdettoBlocchi::Uguale(std::size_t nValore) const
{
    std::uint64_t nUguale = ~std::uint64_t{0};
    for (std::size_t c = 0; c < m_aCifre.size(); ++c) {
        nUguale &= ((nValore >> c) & 1U) != 0 ? m_aCifre[c] : ~m_aCifre[c];
    }
    return nUguale;
}

std::uint64_t VerdettoBlocchi::Giudica(std::span<std::uint64_t> aOk, std::span<const std::uint64_t> aRec)
{
    for (const GruppoRecupero& gruppo : m_aGruppi) {
        ContaBit(gruppo.aMembri, aRec);
        const std::uint64_t nPerdona = Almeno(gruppo.nMinimo) & ~Almeno(std::int64_t{gruppo.nMassimo} + 1);
        for (const std::size_t i : gruppo.aMembri) {
            aOk[i] |= aRec[i] & nPerdona;
        }
    }
    std::ranges::copy(aOk, m_aPosti.begin());
    for (std::size_t n = 0; n < m_aLink.size(); ++n) {
        const BloccoLink& blocco = m_aLink[n];
        ContaBit(blocco.aPosti, m_aPosti);
        std::uint64_t nPassa = 0;
        for (std::size_t nConto = 0; nConto <= blocco.aPosti.size(); ++nConto) {
            nPassa |= (*blocco.aLista)[static_cast<std::int64_t>(nConto)] != 0 ? Uguale(nConto) : 0;
        }
        m_aPosti[aOk.size() + n] = nPassa;
    }
    std::uint64_t nPassano = ~std::uint64_t{0};
    for (const std::size_t nPosto : m_aFinali) {
        nPassano &= m_aPosti[nPosto];
    }
    return nPassano;
}

} // namespace ordavel
