// DefinizioneRiduzione.hpp - reductions written down as they are defined, and columns to try them on.

#pragma once

#include "ordavel/records.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"
#include "riduzione/AvanzamentoRiduzione.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <numeric>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordavel::prove {

using Colonne = std::vector<Colonna>;

/// The user's side of a reduction, recorded.
class AvanzamentoRiduzioneProva : public AvanzamentoRiduzione {
public:
    void MostraPercentuale(std::int16_t nPercentuale) override { aPercentuali.push_back(nPercentuale); }
    void MostraFase(std::string_view sFase) override { aFasi.emplace_back(sFase); }
    void MostraInterruzione() override { ++nInterruzioni; }

    void LasciaEventi() override
    {
        ++nEventi;
        if (eventi) {
            eventi();
        }
    }

    void MostraFallimento(std::string_view sOrigine, const Errore& errore) override
    {
        fallimenti.MostraFallimento(sOrigine, errore);
    }

    std::vector<std::int16_t> aPercentuali;
    std::vector<std::string> aFasi;
    SegnalatoreProva fallimenti;
    int nEventi = 0;
    int nInterruzioni = 0;
    std::function<void()> eventi;
};

/// The column of some numbers.
inline Colonna Record(std::initializer_list<int> aNumeri)
{
    Colonna colonna;
    std::transform(aNumeri.begin(), aNumeri.end(), colonna.aNumeri.begin(),
                   [](int n) { return static_cast<std::uint8_t>(n); });
    return colonna;
}

/// Last position up to nDa that is not 0.
inline std::int16_t UltimaPosizione(const Colonna& colonna, std::int16_t nDa)
{
    while (nDa > 0 && colonna[nDa] == 0) {
        --nDa;
    }
    return nDa;
}

/// Marks the numbers of one column from nPrimo to 90, then counts the entries of the other that are marked.
inline int Comuni(const Colonna& marcata, const Colonna& contata, std::int16_t nClasse, int nPrimo)
{
    std::array<bool, kNumeroMassimo + 1> aMarchi{};
    for (std::int16_t k = 1; k <= nClasse; ++k) {
        if (marcata[k] >= nPrimo && marcata[k] <= kNumeroMassimo) {
            aMarchi[marcata[k]] = true;
        }
    }
    int nComuni = 0;
    for (std::int16_t k = 1; k <= nClasse; ++k) {
        nComuni += contata[k] <= kNumeroMassimo && aMarchi[contata[k]] ? 1 : 0;
    }
    return nComuni;
}

/// The streaming reduction: every column, in order, that has fewer than nPunti numbers in common with every column
/// kept before it. The new column is marked, the kept one counted; 0 is a number.
inline Colonne RiduciInFila(const Colonne& aColonne, int nRiduzione)
{
    Colonne aTenute;
    if (aColonne.empty()) {
        return aTenute;
    }
    const std::int16_t nClasse = UltimaPosizione(aColonne.front(), kClasseMassima);
    const int nPunti = nClasse - nRiduzione;
    for (const Colonna& colonna : aColonne) {
        if (std::none_of(aTenute.begin(), aTenute.end(), [&](const Colonna& tenuta) {
                return Comuni(colonna, tenuta, nClasse, 0) >= nPunti;
            })) {
            aTenute.push_back(colonna);
        }
    }
    return aTenute;
}

/// The columns, by place from 0, that no reduced one covers. The reduced column is marked, the other counted; 0 is no
/// number.
inline std::vector<std::size_t> Scoperte(const Colonne& aColonne, const Colonne& aRidotte, int nPunti)
{
    std::vector<std::size_t> aScoperte;
    for (std::size_t i = 0; i < aColonne.size(); ++i) {
        const std::int16_t nClasse = UltimaPosizione(aColonne.front(), kNumeriColonna);
        if (std::none_of(aRidotte.begin(), aRidotte.end(), [&](const Colonna& ridotta) {
                return Comuni(ridotta, aColonne[i], nClasse, 1) >= nPunti;
            })) {
            aScoperte.push_back(i);
        }
    }
    return aScoperte;
}

/// The bytes of columns, as a column file has them.
inline std::string Byte(const Colonne& aColonne)
{
    std::string sByte(aColonne.size() * sizeof(Colonna), '\0');
    if (!aColonne.empty()) {
        std::memcpy(sByte.data(), aColonne.data(), sByte.size());
    }
    return sByte;
}

/// Writes a file anew. A file that is emptied and written again waits for the disk; one that was deleted does not.
inline void ScriviNuovo(const std::string& sPath, std::string_view sContenuto)
{
    std::filesystem::remove(sPath);
    ScriviFile(sPath, sContenuto);
}

/// All sets of nClasse of the numbers 1 to nNumeri, in lexicographic order.
inline Colonne Completo(int nNumeri, int nClasse)
{
    Colonne aColonne;
    std::vector<int> aScelti(static_cast<std::size_t>(nClasse));
    std::iota(aScelti.begin(), aScelti.end(), 1);
    for (bool bAltri = true; bAltri;) {
        Colonna& colonna = aColonne.emplace_back();
        std::transform(aScelti.begin(), aScelti.end(), colonna.aNumeri.begin(),
                       [](int n) { return static_cast<std::uint8_t>(n); });
        int i = nClasse - 1;
        while (i >= 0 && aScelti[static_cast<std::size_t>(i)] == nNumeri - (nClasse - 1 - i)) {
            --i;
        }
        bAltri = i >= 0;
        if (bAltri) {
            std::iota(aScelti.begin() + i, aScelti.end(), aScelti[static_cast<std::size_t>(i)] + 1);
        }
    }
    return aColonne;
}

/// A random ascending column of different numbers of 1 to nNumeri.
inline Colonna ColonnaCasuale(std::mt19937& sorte, int nNumeri, int nClasse)
{
    std::array<bool, kNumeroMassimo + 1> aPresi{};
    for (int nPresi = 0; nPresi < nClasse;) {
        bool& bPreso = aPresi[sorte() % static_cast<unsigned>(nNumeri) + 1];
        nPresi += bPreso ? 0 : 1;
        bPreso = true;
    }
    Colonna colonna;
    std::int64_t k = 0;
    for (int n = 1; n <= nNumeri; ++n) {
        if (aPresi[static_cast<std::size_t>(n)]) {
            colonna[++k] = static_cast<std::uint8_t>(n);
        }
    }
    return colonna;
}

/// A column that no development writes: shorter or longer than its class, with zeros, repetitions, numbers above 90, out
/// of order.
inline Colonna ColonnaIrregolare(std::mt19937& sorte, int nNumeri, int nClasse)
{
    Colonna colonna = ColonnaCasuale(sorte, nNumeri, nClasse);
    for (auto nGuasti = sorte() % 4 + 1; nGuasti > 0; --nGuasti) {
        const auto k = static_cast<std::int64_t>(sorte() % static_cast<unsigned>(nClasse + 2)) + 1;
        const auto da = static_cast<std::int64_t>(sorte() % static_cast<unsigned>(nClasse)) + 1;
        const std::array<int, 5> aGuasti{0, colonna[da], 90, 91, 255};
        colonna[k] = static_cast<std::uint8_t>(aGuasti[sorte() % aGuasti.size()]);
    }
    return colonna;
}

/// What stands in a random file.
struct MisturaColonne {
    int nNumeri = kNumeroMassimo; ///< 1 to this
    int nClasse = 6;
    std::size_t nQuante = 100;
    unsigned nIrregolariSuCento = 0;
    unsigned nDoppieSuCento = 0; ///< repeats of an earlier column
};

inline Colonne ColonneCasuali(std::mt19937& sorte, const MisturaColonne& mistura)
{
    Colonne aColonne;
    while (aColonne.size() < mistura.nQuante) {
        if (!aColonne.empty() && sorte() % 100 < mistura.nDoppieSuCento) {
            aColonne.push_back(Colonna(aColonne[sorte() % aColonne.size()]));
        } else if (sorte() % 100 < mistura.nIrregolariSuCento) {
            aColonne.push_back(ColonnaIrregolare(sorte, mistura.nNumeri, mistura.nClasse));
        } else {
            aColonne.push_back(ColonnaCasuale(sorte, mistura.nNumeri, mistura.nClasse));
        }
    }
    return aColonne;
}

/// Spoils about every third column: zeros inside, numbers above 90, numbers out of order, a longer column; no number
/// stands twice.
inline void SporcaSenzaRipetere(std::mt19937& sorte, Colonne& aColonne, int nClasse)
{
    for (Colonna& colonna : aColonne) {
        const auto k = static_cast<std::int64_t>(sorte() % static_cast<unsigned>(nClasse)) + 1;
        switch (sorte() % 12) {
        case 0:
            colonna[k] = 0;
            break;
        case 1:
            colonna[k] = 200;
            break;
        case 2:
            std::swap(colonna[k], colonna[1]);
            break;
        case 3:
            colonna[nClasse + 1] = kNumeroMassimo;
            break;
        default:
            break;
        }
    }
}

} // namespace ordavel::prove
