// DefinizioneInMemoria.hpp - the reduction in memory as it is defined, step by step and pair by pair.

#pragma once

#include "ordavel/records.hpp"

#include "core/ModOrdina.hpp"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

/// One run over a few columns. Everything is indexed from 1, entry 0 unused.
class DefinizioneInMemoria {
public:
    struct Record {
        ordavel::Colonna Numeri;
        std::int32_t Punteggio = 0;
    };

    DefinizioneInMemoria(std::span<const ordavel::Colonna> aColonne, std::int32_t nPunti)
        : m_nPunti(nPunti), m_aCoperta(aColonne.size() + 1), m_aScelta(aColonne.size() + 1)
    {
        for (const ordavel::Colonna& colonna : aColonne) {
            m_aRecord.push_back({colonna, 0});
        }
        for (std::int16_t k = ordavel::kNumeriColonna; k >= 1 && m_nClasse == 0 && !aColonne.empty(); --k) {
            m_nClasse = aColonne.front()[k] != 0 ? k : std::int16_t{0};
        }
    }

    std::vector<ordavel::Colonna> Riduci()
    {
        for (std::size_t i = 1; i <= m_aRecord.size(); ++i) {
            Record_(i).Punteggio = static_cast<std::int32_t>(ColonneCoperte(i).size());
        }
        ordavel::OrdinaRapido(m_aRecord,
                              [](const Record& a, const Record& b) { return a.Punteggio > b.Punteggio; });
        std::int32_t nLivello = m_aRecord.empty() ? 0 : Record_(1).Punteggio;
        while (nLivello > 0) {
            nLivello -= Passata(nLivello) ? 0 : 1;
        }
        return Uscita();
    }

    [[nodiscard]] const std::vector<Record>& Ordinati() const { return m_aRecord; }

private:
    Record& Record_(std::size_t i) { return m_aRecord[i - 1]; }

    std::int32_t Comuni(const ordavel::Colonna& a, const ordavel::Colonna& b) const
    {
        std::array<bool, 91> aMarchi{};
        for (std::int16_t k = 1; k <= m_nClasse; ++k) {
            if (a[k] >= 1 && a[k] <= 90) {
                aMarchi[a[k]] = true;
            }
        }
        std::int32_t nComuni = 0;
        for (std::int16_t k = 1; k <= m_nClasse; ++k) {
            nComuni += b[k] <= 90 && aMarchi[b[k]] ? 1 : 0;
        }
        return nComuni;
    }

    std::vector<std::size_t> ColonneCoperte(std::size_t i)
    {
        std::vector<std::size_t> aCoperte;
        for (std::size_t m = 1; m <= m_aRecord.size(); ++m) {
            if (m != i && !m_aCoperta[m] && Comuni(Record_(i).Numeri, Record_(m).Numeri) >= m_nPunti) {
                aCoperte.push_back(m);
            }
        }
        return aCoperte;
    }

    bool Passata(std::int32_t nLivello)
    {
        bool bTrovata = false;
        for (std::size_t i = 1; i <= m_aRecord.size(); ++i) {
            if (m_aScelta[i]) {
                continue;
            }
            const std::vector<std::size_t> aCoperte = ColonneCoperte(i);
            if (static_cast<std::int32_t>(aCoperte.size()) == nLivello) {
                m_aScelta[i] = true;
                m_aCoperta[i] = true; // chosen counts as covered
                for (const std::size_t m : aCoperte) {
                    m_aCoperta[m] = true;
                }
                bTrovata = true;
            }
            if (Record_(i).Punteggio < nLivello) {
                break;
            }
        }
        return bTrovata;
    }

    std::vector<ordavel::Colonna> Uscita()
    {
        std::vector<ordavel::Colonna> aUscita;
        for (std::size_t i = 1; i <= m_aRecord.size(); ++i) {
            if (m_aScelta[i] || !m_aCoperta[i]) {
                aUscita.push_back(Record_(i).Numeri);
            }
        }
        return aUscita;
    }

    std::int32_t m_nPunti;
    std::int16_t m_nClasse = 0;
    std::vector<Record> m_aRecord;
    std::vector<bool> m_aCoperta;
    std::vector<bool> m_aScelta;
};
