// ContiAutoma.cpp - counts by position, and the search for a column by its rank among those of a kind.

#include "motore/ContiAutoma.hpp"

#include "core/ModBinomiali.hpp"

namespace ordavel {

namespace {

/// The first place that a position may have behind those in front of it.
std::size_t PrimoPosto(const PostiColonna& aPosti, std::size_t nPosizione) noexcept
{
    return nPosizione == 0 ? 0 : aPosti[nPosizione - 1] + 1;
}

} // namespace

Conti ContiAutoma::FinoA(const PostiColonna& aPosti, std::size_t nDiversi) noexcept
{
    const std::size_t nUltima = m_Automa->Classe() - 1;
    for (std::size_t k = nDiversi; k < nUltima; ++k) {
        const std::uint32_t nStato = m_aStati[k];
        m_aDavanti[k + 1] = m_aDavanti[k] + m_Automa->ContiDa(nStato, PrimoPosto(aPosti, k)) -
                            m_Automa->ContiDa(nStato, aPosti[k]);
        m_aStati[k + 1] = m_Automa->Passo(nStato, aPosti[k]);
    }
    const std::uint32_t nStato = m_aStati[nUltima];
    return m_aDavanti[nUltima] + m_Automa->ContiDa(nStato, PrimoPosto(aPosti, nUltima)) -
           m_Automa->ContiDa(nStato, aPosti[nUltima] + 1);
}

/// Columns of a kind behind a state of nDati numbers, the next one from a place on.
std::uint64_t ContiAutoma::QuanteDa(eQuali quali, std::size_t nDati, std::uint32_t nStato,
                                    std::size_t nPosto) const noexcept
{
    const Conti conti = m_Automa->ContiDa(nStato, nPosto);
    return quali == eQuali::recuperate
               ? conti.nRec
               : kBinomiali[m_Automa->Scelti() - nPosto][m_Automa->Classe() - nDati] - conti.nOk;
}

/// The column that is number nQuale of its kind, from 1.
PostiColonna ContiAutoma::Trova(eQuali quali, std::uint64_t nQuale) const
{
    PostiColonna aPosti{};
    std::uint32_t nStato = Automa::kIniziale;
    for (std::size_t k = 0; k < m_Automa->Classe(); ++k) {
        std::size_t p = PrimoPosto(aPosti, k);
        std::uint64_t nDopo = QuanteDa(quali, k, nStato, p + 1);
        std::uint64_t nQui = QuanteDa(quali, k, nStato, p) - nDopo;
        while (nQuale > nQui) {
            nQuale -= nQui;
            nQui = nDopo;
            nDopo = QuanteDa(quali, k, nStato, ++p + 1);
            nQui -= nDopo;
        }
        aPosti[k] = p;
        nStato = k + 1 < m_Automa->Classe() ? m_Automa->Passo(nStato, p) : nStato;
    }
    return aPosti;
}

std::optional<PostiColonna> ContiAutoma::PrimaRotta() const
{
    if (!m_Automa->RottiDa(Automa::kIniziale, 0)) {
        return std::nullopt;
    }
    PostiColonna aPosti{};
    std::uint32_t nStato = Automa::kIniziale;
    for (std::size_t k = 0; k + 1 < m_Automa->Classe(); ++k) {
        std::size_t p = PrimoPosto(aPosti, k);
        while (!m_Automa->RottiDa(m_Automa->Passo(nStato, p), p + 1)) {
            ++p;
        }
        aPosti[k] = p;
        nStato = m_Automa->Passo(nStato, p);
    }
    std::size_t& nUltimo = aPosti[m_Automa->Classe() - 1];
    nUltimo = PrimoPosto(aPosti, m_Automa->Classe() - 1);
    while (!Contiene(m_Automa->VerdettiDi(nStato).rotti, m_Automa->Scelti(), nUltimo)) {
        ++nUltimo;
    }
    return aPosti;
}

std::uint64_t ContiAutoma::OkDavanti(std::uint64_t nRec) const
{
    return ContiAutoma(*m_Automa).FinoA(Trova(eQuali::recuperate, nRec), 0).nOk;
}

std::optional<bool> ContiAutoma::UltimaRecupera(std::uint64_t nColonne, Conti conti) const
{
    if (conti.nOk == nColonne) {
        return std::nullopt;
    }
    // None recovers that passes, so that the last of both kinds is the same column or there is one behind it.
    return conti.nRec > 0 &&
           Trova(eQuali::scartate, nColonne - conti.nOk) == Trova(eQuali::recuperate, conti.nRec);
}

} // namespace ordavel
