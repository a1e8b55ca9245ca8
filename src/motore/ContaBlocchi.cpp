// ContaBlocchi.cpp - the walk that counts.

#include "motore/ContaBlocchi.hpp"

#include "core/ModBinomiali.hpp"
#include "motore/ModVerifica.hpp"

namespace ordavel {

namespace {

class Camminata {
public:
    Camminata(const CorsaBlocchi& corsa, StatoSviluppo& stato, const Automa::Continua& continua)
        : m_aScelti(corsa.aScelti),
          m_nClasse(static_cast<std::size_t>(corsa.nClasse)),
          m_Stato(stato),
          m_Continua(continua),
          m_Condizioni(corsa.aScelti, corsa.nClasse, stato, corsa.nucleo, corsa.nByteAutomi, continua)
    {
        for (std::size_t y = 0; y < m_aScelti.size(); ++y) {
            m_Tutte.Poni(y, PostiSopra(m_aScelti.size(), y));
        }
    }

    std::optional<std::uint64_t> Conta()
    {
        if (m_Condizioni.Interrotte()) {
            return std::nullopt;
        }
        if (const std::optional<PostiColonna> rotta = m_Condizioni.PrimaRotta()) {
            static_cast<void>(VerificaColonna(Classe(), ColonnaDi(*rotta), m_Stato));
        }
        if (!Scendi(0, 0, {.bVuoto = m_Condizioni.Vuote()})) {
            return std::nullopt;
        }
        m_Condizioni.PoniConti(kBinomiali[m_aScelti.size()][m_nClasse], UltimiPosti());
        return m_nPassano;
    }

private:
    using Seguito = CondizioniBlocchi::Seguito;

    [[nodiscard]] std::int16_t Classe() const noexcept { return static_cast<std::int16_t>(m_nClasse); }

    [[nodiscard]] Colonna ColonnaDi(const PostiColonna& aPosti) const
    {
        Colonna colonna;
        for (std::size_t k = 0; k < m_nClasse; ++k) {
            colonna.aNumeri[k] = m_aScelti[aPosti[k]];
        }
        return colonna;
    }

    [[nodiscard]] PostiColonna UltimiPosti() const
    {
        PostiColonna aPosti{};
        for (std::size_t k = 0; k < m_nClasse; ++k) {
            aPosti[k] = m_aScelti.size() - m_nClasse + k;
        }
        return aPosti;
    }

    /// Gives    false when it was not to go on
    [[nodiscard]] bool Scendi(std::size_t nDati, std::size_t nDa, Seguito seguito)
    {
        if (nDati == m_nClasse - 2) {
            ContaBlocco(nDa, seguito);
            return true;
        }
        for (std::size_t i = nDa; i + m_nClasse - nDati <= m_aScelti.size(); ++i) {
            m_Inizio.aNumeri[nDati] = m_aScelti[i];
            const Seguito dopo = m_Condizioni.Passo(nDati, i, seguito);
            const bool bAvanti = ++m_nPassi % kPassiInsieme != 0 || m_Continua();
            if (!bAvanti || (!SiSa(nDati + 1, i + 1, dopo) && !Scendi(nDati + 1, i + 1, dopo))) {
                return false;
            }
        }
        return true;
    }

    /// Is it known what follows a beginning? Then it is counted.
    [[nodiscard]] bool SiSa(std::size_t nDati, std::size_t nDa, Seguito seguito)
    {
        if (m_Condizioni.OgniBlocco() || !(seguito.bVuoto || seguito.bPieno)) {
            return false;
        }
        m_nPassano += seguito.bPieno ? kBinomiali[m_aScelti.size() - nDa][m_nClasse - nDati] : 0;
        return true;
    }

    void ContaBlocco(std::size_t nPrimo, Seguito seguito)
    {
        if (!m_Condizioni.PrendiRighe(m_Inizio, nPrimo)) {
            Fallisci(nPrimo);
        }
        m_nPassano += seguito.bVuoto ? 0 : m_Condizioni.QuantePassano(nPrimo);
        m_Condizioni.ContaBlocco(nPrimo, m_Tutte);
    }

    /// Some column of the block fails: the first that does is found by judging them.
    void Fallisci(std::size_t nPrimo)
    {
        Colonna colonna = m_Inizio;
        for (std::size_t y = nPrimo; y < m_aScelti.size(); ++y) {
            colonna.aNumeri[m_nClasse - 2] = m_aScelti[y];
            for (std::size_t x = y + 1; x < m_aScelti.size(); ++x) {
                colonna.aNumeri[m_nClasse - 1] = m_aScelti[x];
                static_cast<void>(VerificaColonna(Classe(), colonna, m_Stato));
            }
        }
    }

    static constexpr std::size_t kPassiInsieme = 16; ///< between two questions whether to go on

    std::span<const std::uint8_t> m_aScelti;
    std::size_t m_nClasse;
    StatoSviluppo& m_Stato;
    const Automa::Continua& m_Continua;
    CondizioniBlocchi m_Condizioni;
    MaschereRiga m_Tutte; ///< all columns of a beginning
    Colonna m_Inizio;     ///< the numbers of the present beginning
    std::size_t m_nPassi = 0;
    std::uint64_t m_nPassano = 0;
};

} // namespace

std::optional<std::uint64_t> ContaPassano(const CorsaBlocchi& corsa, StatoSviluppo& stato,
                                          const Automa::Continua& continua)
{
    return Camminata(corsa, stato, continua).Conta();
}

} // namespace ordavel
