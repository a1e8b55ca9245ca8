// RiduzioneProva.hpp - the module as a host loads it, column files of every kind, and what a reduction means, literally.

#pragma once

#include "comune/CartellaProva.hpp"
#include "esterni/trvrdcol/trvrdcol.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <numeric>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace ordavel::prove {

using RecordColonna = std::array<std::uint8_t, 20>;
using FileColonne = std::vector<RecordColonna>;

/// The functions of the module, loaded at run time.
class ModuloRiduzione {
public:
    ModuloRiduzione() : m_Modulo(dlopen(ORDAVEL_TRVRDCOL, RTLD_NOW | RTLD_LOCAL))
    {
        if (m_Modulo == nullptr) {
            ADD_FAILURE() << dlerror();
            std::abort();
        }
        Trova("RiduzioneColonneDll", m_Riduci);
        Trova("GetPercProgRiduzione", Percentuale);
        Trova("StopRiduzioneDll", Ferma);
    }
    ModuloRiduzione(const ModuloRiduzione&) = delete;
    ModuloRiduzione& operator=(const ModuloRiduzione&) = delete;
    ~ModuloRiduzione() { dlclose(m_Modulo); }

    /// Reduces a file.
    [[nodiscard]] int Riduci(const std::string& sInput, const std::string& sOutput, std::int32_t nPunti) const
    {
        const char* sDa = sInput.c_str();
        const char* sA = sOutput.c_str();
        return m_Riduci(&sDa, &sA, &nPunti);
    }

    decltype(&GetPercProgRiduzione) Percentuale = nullptr;
    decltype(&StopRiduzioneDll) Ferma = nullptr;

private:
    template <typename Funzione> void Trova(const char* sNome, Funzione& funzione)
    {
        void* const simbolo = dlsym(m_Modulo, sNome);
        ASSERT_NE(simbolo, nullptr) << sNome;
        std::memcpy(&funzione, &simbolo, sizeof simbolo);
    }

    void* m_Modulo;
    decltype(&RiduzioneColonneDll) m_Riduci = nullptr;
};

/// The seconds granted to reductions while it lives.
class SecondiConcessi {
public:
    explicit SecondiConcessi(const char* sSecondi) { setenv(kNome, sSecondi, 1); }
    SecondiConcessi(const SecondiConcessi&) = delete;
    SecondiConcessi& operator=(const SecondiConcessi&) = delete;
    ~SecondiConcessi() { unsetenv(kNome); }

private:
    static constexpr const char* kNome = "ORDAVEL_RIDUZIONE_SECONDI";
};

inline void ScriviColonne(const std::string& sPath, const FileColonne& aColonne)
{
    std::string sByte;
    for (const RecordColonna& colonna : aColonne) {
        sByte.append(colonna.begin(), colonna.end());
    }
    ScriviFile(sPath, sByte);
}

inline FileColonne LeggiTutte(const std::string& sPath)
{
    const std::string sByte = LeggiFile(sPath);
    EXPECT_EQ(sByte.size() % 20, 0U);
    FileColonne aColonne(sByte.size() / 20);
    for (std::size_t n = 0; n < aColonne.size(); ++n) {
        std::copy_n(sByte.begin() + static_cast<std::ptrdiff_t>(20 * n), 20, aColonne[n].begin());
    }
    return aColonne;
}

/// All columns of nClasse of the first nNumeri numbers.
inline FileColonne TutteLeColonne(int nNumeri, int nClasse)
{
    FileColonne aColonne;
    std::vector<bool> aDentro(static_cast<std::size_t>(nNumeri), false);
    std::fill_n(aDentro.begin(), nClasse, true);
    do {
        RecordColonna colonna{};
        std::size_t k = 0;
        for (int n = 1; n <= nNumeri; ++n) {
            if (aDentro[static_cast<std::size_t>(n - 1)]) {
                colonna[k++] = static_cast<std::uint8_t>(n);
            }
        }
        aColonne.push_back(colonna);
    } while (std::prev_permutation(aDentro.begin(), aDentro.end()));
    return aColonne;
}

// What a reduction means.

inline std::size_t ClasseDi(const FileColonne& aColonne)
{
    std::size_t nClasse = aColonne.empty() ? 0 : 20;
    while (nClasse > 0 && aColonne.front()[nClasse - 1] == 0) {
        --nClasse;
    }
    return nClasse;
}

inline std::set<int> NumeriDi(const RecordColonna& colonna, std::size_t nClasse)
{
    std::set<int> aNumeri;
    for (std::size_t k = 0; k < nClasse; ++k) {
        if (colonna[k] >= 1 && colonna[k] <= 90) {
            aNumeri.insert(colonna[k]);
        }
    }
    return aNumeri;
}

inline bool Copre(const std::set<int>& a, const std::set<int>& b, int nPunti)
{
    return std::ranges::count_if(a, [&](int n) { return b.contains(n); }) >= nPunti;
}

inline std::vector<std::set<int>> NumeriDi(const FileColonne& aColonne, std::size_t nClasse)
{
    std::vector<std::set<int>> aNumeri;
    for (const RecordColonna& colonna : aColonne) {
        aNumeri.push_back(NumeriDi(colonna, nClasse));
    }
    return aNumeri;
}

/// What breaks the promise of a reduction; empty when nothing does.
inline std::string Difetto(const FileColonne& aInput, const FileColonne& aOutput, int nPunti)
{
    FileColonne aPrima = aInput;
    FileColonne aDopo = aOutput;
    std::ranges::sort(aPrima);
    std::ranges::sort(aDopo);
    if (!std::ranges::includes(aPrima, aDopo)) {
        return "an output column that the input has not, or not so often";
    }
    const std::size_t nClasse = ClasseDi(aInput);
    const auto aRimasti = NumeriDi(aOutput, nClasse);
    for (const RecordColonna& colonna : aInput) {
        const std::set<int> aNumeri = NumeriDi(colonna, nClasse);
        const bool bCoperta =
            std::ranges::any_of(aRimasti, [&](const std::set<int>& r) { return Copre(aNumeri, r, nPunti); });
        const bool bFuori = static_cast<int>(aNumeri.size()) < nPunti;
        if (bFuori ? std::ranges::count(aInput, colonna) != std::ranges::count(aOutput, colonna)
                   : !bCoperta) {
            return "column " + std::to_string(&colonna - aInput.data() + 1) + " is not covered";
        }
    }
    return {};
}

/// How many columns the greedy choice keeps: always the column that covers the most uncovered ones, itself included,
/// the first of equal ones; columns that cannot cover themselves stay.
inline std::size_t QuanteAvido(const FileColonne& aInput, int nPunti)
{
    if (nPunti <= 0) {
        return std::min<std::size_t>(aInput.size(), 1);
    }
    const auto aNumeri = NumeriDi(aInput, ClasseDi(aInput));
    std::vector<std::size_t> aScoperte;
    std::size_t nScelte = 0;
    for (std::size_t i = 0; i < aInput.size(); ++i) {
        if (static_cast<int>(aNumeri[i].size()) < nPunti) {
            ++nScelte;
        } else {
            aScoperte.push_back(i);
        }
    }
    while (!aScoperte.empty()) {
        std::size_t nMigliore = 0;
        std::ptrdiff_t nMassimo = -1;
        for (std::size_t i = 0; i < aInput.size(); ++i) {
            const auto nValore = std::ranges::count_if(
                aScoperte, [&](std::size_t j) { return Copre(aNumeri[i], aNumeri[j], nPunti); });
            if (nValore > nMassimo) {
                nMassimo = nValore;
                nMigliore = i;
            }
        }
        ++nScelte;
        std::erase_if(aScoperte,
                      [&](std::size_t j) { return Copre(aNumeri[nMigliore], aNumeri[j], nPunti); });
    }
    return nScelte;
}

/// The ways in which a column file can be irregular.
enum class eForma : int { regolare, zeri, doppie, ripetuti, oltre90, lunghezze, primaVuota, completa, tutto };
inline constexpr int kForme = 9;

/// A file of some form, from a seed.
inline FileColonne FileACaso(eForma forma, std::uint32_t nSeme)
{
    std::mt19937 sorte(nSeme);
    const auto fra = [&](int nDa, int nA) {
        return nDa + static_cast<int>(sorte() % static_cast<unsigned>(nA - nDa + 1));
    };
    const auto ha = [&](eForma f) { return forma == f || (forma == eForma::tutto && fra(0, 3) == 0); };
    if (forma == eForma::completa) {
        const int nNumeri = fra(4, 8);
        return TutteLeColonne(nNumeri, fra(2, std::min(nNumeri, 4)));
    }
    const int nClasse = fra(2, fra(0, 3) == 0 ? 20 : 7);
    const int nNumeri = fra(nClasse + 1, std::min(90, 2 * nClasse + 6));
    FileColonne aColonne(static_cast<std::size_t>(fra(1, 60)));
    for (RecordColonna& colonna : aColonne) {
        std::vector<std::uint8_t> aNumeri(static_cast<std::size_t>(nNumeri));
        std::iota(aNumeri.begin(), aNumeri.end(), std::uint8_t{1});
        std::ranges::shuffle(aNumeri, sorte);
        const int nLunga = ha(eForma::lunghezze) ? fra(0, 20) : nClasse;
        std::copy_n(aNumeri.begin(), std::min({nLunga, nNumeri, 20}), colonna.begin());
        std::uint8_t& nUno = colonna[static_cast<std::size_t>(fra(0, nClasse - 1))];
        nUno = ha(eForma::zeri) ? std::uint8_t{0} : nUno;
        nUno = ha(eForma::ripetuti) ? colonna[0] : nUno;
        nUno = ha(eForma::oltre90) ? static_cast<std::uint8_t>(fra(91, 255)) : nUno;
        if (ha(eForma::doppie)) {
            colonna = aColonne[static_cast<std::size_t>(fra(0, static_cast<int>(aColonne.size()) - 1))];
        }
    }
    if (ha(eForma::primaVuota)) {
        aColonne.front().fill(0);
    }
    return aColonne;
}

} // namespace ordavel::prove
