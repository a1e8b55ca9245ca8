// StimaSistema.cpp - drawing, judging, and the interval of a share.

#include "motore/StimaSistema.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "motore/ModVerifica.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace ordavel {

namespace {

/// Half the width of the normal distribution's middle 95 %.
constexpr double kMeta95 = 1.959964;
constexpr int kColonneDavanti = 64;
/// Whether to go on is asked after so many conditions were judged, about.
constexpr std::size_t kGiudizi = 1000;

/// Random numbers that are the same everywhere.
class Sorte {
public:
    explicit Sorte(std::uint64_t nSeme) : m_nStato(nSeme) {}

    /// A number below nTetto.
    [[nodiscard]] std::size_t Sotto(std::size_t nTetto)
    {
        m_nStato += 0x9E3779B97F4A7C15U;
        std::uint64_t n = m_nStato;
        n = (n ^ n >> 30U) * 0xBF58476D1CE4E5B9U;
        n = (n ^ n >> 27U) * 0x94D049BB133111EBU;
        n ^= n >> 31U;
        return static_cast<std::size_t>((n >> 32U) * nTetto >> 32U);
    }

private:
    std::uint64_t m_nStato;
};

/// A column by the places of its numbers.
using Posti = std::array<std::size_t, kNumeriColonna>;

class Estrattore {
public:
    Estrattore(const StatoSviluppo& stato, std::span<const std::uint8_t> aScelti, std::int16_t nClasse,
               std::uint64_t nSeme)
        : m_aScelti(aScelti), m_nClasse(nClasse), m_Sorte(nSeme), m_Stato(stato)
    {
        for (std::size_t i = 0; i < stato.aCondizioni.size(); ++i) {
            RecordCondizione& record = m_Stato.aCondizioni[i];
            record.ContaOk = record.ContaKo = record.ContaRec = 0;
            record.EsitoRec = kFalso;
            if (Tramanda(record)) {
                m_aCoppie.push_back(i);
            }
        }
        m_Davanti.aCondizioni.resize(1);
    }

    /// Draws a column and judges it.
    /// Changes  campione
    void Prova(Campione& campione)
    {
        Pesca();
        const Colonna colonna = ColonnaDi(m_aPosti);
        try {
            for (const std::size_t i : m_aCoppie) {
                m_Stato.aCondizioni[i].EsitoRec = RecuperoDavanti(m_Stato.aCondizioni[i]);
            }
            campione.nPassano += VerificaColonna(m_nClasse, colonna, m_Stato) ? 1 : 0;
        } catch (const Errore& errore) {
            campione.guasto = errore;
            return;
        }
        ++campione.nProve;
        Somma(campione);
    }

private:
    /// Does a record's verdict of the column in front play a part?
    [[nodiscard]] bool Tramanda(const RecordCondizione& record) const
    {
        return FormaDiTipo(record.Tipo) == eForma::coppia && record.IdRecupero != 0 &&
               QuadroRecuperi::Contiene(record.IdRecupero) &&
               m_Stato.aQuadroRec[record.IdRecupero].Attiva != 0;
    }

    /// Different places, ascending: each is drawn among those that are left.
    void Pesca()
    {
        const auto nClasse = static_cast<std::size_t>(m_nClasse);
        for (std::size_t k = 0; k < nClasse; ++k) {
            std::size_t nPosto = m_Sorte.Sotto(m_aScelti.size() - k);
            std::size_t j = 0;
            for (; j < k && m_aPosti[j] <= nPosto; ++j) {
                ++nPosto;
            }
            std::copy_backward(m_aPosti.begin() + static_cast<std::ptrdiff_t>(j),
                               m_aPosti.begin() + static_cast<std::ptrdiff_t>(k),
                               m_aPosti.begin() + static_cast<std::ptrdiff_t>(k + 1));
            m_aPosti[j] = nPosto;
        }
    }

    [[nodiscard]] Colonna ColonnaDi(const Posti& aPosti) const
    {
        Colonna colonna;
        for (std::size_t k = 0; k < static_cast<std::size_t>(m_nClasse); ++k) {
            colonna.aNumeri[k] = m_aScelti[aPosti[k]];
        }
        return colonna;
    }

    /// Makes places those of the column in front.
    /// Gives    false when there is none
    [[nodiscard]] bool Arretra(Posti& aPosti) const
    {
        const auto nClasse = static_cast<std::size_t>(m_nClasse);
        std::size_t k = nClasse;
        while (k > 0 && aPosti[k - 1] == (k > 1 ? aPosti[k - 2] + 1 : 0)) {
            --k;
        }
        if (k == 0) {
            return false;
        }
        --aPosti[k - 1];
        for (std::size_t j = k; j < nClasse; ++j) {
            aPosti[j] = m_aScelti.size() - nClasse + j;
        }
        return true;
    }

    /// The recovery verdict that the columns in front of the present one have left in a pair.
    [[nodiscard]] Booleano RecuperoDavanti(const RecordCondizione& record)
    {
        Posti aPosti = m_aPosti;
        RecordCondizione& davanti = m_Davanti.aCondizioni[0];
        davanti = record;
        for (int n = 0; n < kColonneDavanti && Arretra(aPosti); ++n) {
            ValutaCondizioni(m_nClasse, ColonnaDi(aPosti), m_Davanti);
            if (davanti.Esito == kFalso) {
                return davanti.EsitoRec;
            }
        }
        return kFalso;
    }

    void Somma(Campione& campione)
    {
        for (std::size_t i = 0; i < m_Stato.aCondizioni.size(); ++i) {
            RecordCondizione& record = m_Stato.aCondizioni[i];
            campione.aOk[i] = static_cast<std::int64_t>(record.ContaOk);
            campione.aRec[i] += record.ContaRec > 0 ? 1 : 0;
            record.ContaRec = 0;
        }
    }

    std::span<const std::uint8_t> m_aScelti;
    std::int16_t m_nClasse;
    Sorte m_Sorte;
    StatoSviluppo m_Stato;
    StatoSviluppo m_Davanti;            ///< one pair alone, for the columns in front
    std::vector<std::size_t> m_aCoppie; ///< records whose recovery verdict is handed on
    Posti m_aPosti{};
};

} // namespace

Quota QuotaDi(std::int64_t nColpi, std::int64_t nProve) noexcept
{
    const auto n = static_cast<double>(nProve);
    const double nQuota = static_cast<double>(nColpi) / n;
    const double z2 = kMeta95 * kMeta95;
    const double nCentro = (nQuota + z2 / (2 * n)) / (1 + z2 / n);
    const double nMeta = kMeta95 / (1 + z2 / n) * std::sqrt(nQuota * (1 - nQuota) / n + z2 / (4 * n * n));
    return {nQuota, std::abs(nCentro - nQuota) + nMeta};
}

Campione Sorteggia(const StatoSviluppo& stato, std::span<const std::uint8_t> aScelti, std::int16_t nClasse,
                   std::uint64_t nSeme, const std::function<bool(std::int64_t nProve)>& continua)
{
    Campione campione;
    campione.aOk.resize(stato.aCondizioni.size());
    campione.aRec.resize(stato.aCondizioni.size());
    Estrattore estrattore(stato, aScelti, nClasse, nSeme);
    const std::size_t nOgni = std::max<std::size_t>(1, kGiudizi / stato.aCondizioni.size());
    while (!campione.guasto && continua(campione.nProve)) {
        for (std::size_t n = 0; n < nOgni && !campione.guasto; ++n) {
            estrattore.Prova(campione);
        }
    }
    return campione;
}

} // namespace ordavel
