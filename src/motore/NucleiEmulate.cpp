// NucleiEmulate.cpp - hits of many columns in the emulated draws at once.

#include "motore/NucleiEmulate.hpp"

#include <algorithm>
#include <bit>
#include <cstring>

namespace ordavel {

namespace {

/// N last numbers side by side.
template <std::size_t N> struct Vettori {
    using Conti [[gnu::vector_size(N * sizeof(std::uint16_t))]] = std::uint16_t;
    using Byte [[gnu::vector_size(N)]] = std::uint8_t;
    using Parole [[gnu::vector_size(N)]] = std::uint64_t;
    using Bit [[gnu::vector_size(N / 8)]] = std::uint8_t;
};

/// A list of draws ordered by hits: those of j hits end where the j-th says.
using Fini = std::array<std::size_t, static_cast<std::size_t>(kClasseMassima)>;

/// Counts of draws by hits, with zeros on both sides: hits j stand at j + kMargine.
inline constexpr std::size_t kMargine = 3;
template <typename Conti>
using PerColpi = std::array<Conti, static_cast<std::size_t>(kClasseMassima) + 1 + kMargine>;

/// Counts of nothing.
constexpr Fila kNessuna{};

template <typename Vettore>
[[gnu::always_inline]] inline void Prendi(Vettore& vettore, const Fila& fila, std::size_t nDa)
{
    std::memcpy(&vettore, fila.aConti.data() + nDa, sizeof vettore);
}

template <typename Vettore>
[[gnu::always_inline]] inline void Posa(const Vettore& vettore, Fila& fila, std::size_t nDa)
{
    std::memcpy(fila.aConti.data() + nDa, &vettore, sizeof vettore);
}

/// Lists the draws of a set by hits, from one hit on.
[[gnu::always_inline]] inline void Elenca(const Pezzi& aPezzi, std::size_t nDati,
                                          const std::uint64_t* aInsieme, std::vector<std::uint32_t>& aElenco,
                                          Fini& aFini)
{
    std::uint32_t* elenco = aElenco.data();
    aFini[0] = 0;
    for (std::size_t j = 1; j <= nDati; ++j) {
        for (const Pezzo& pezzo : aPezzi[j]) {
            for (std::uint64_t nBit = pezzo.nBit & aInsieme[pezzo.nParola]; nBit != 0; nBit &= nBit - 1) {
                const auto nPosto = static_cast<std::size_t>(std::countr_zero(nBit));
                *elenco++ = static_cast<std::uint32_t>(pezzo.nParola * 64 + nPosto);
            }
        }
        aFini[j] = static_cast<std::size_t>(elenco - aElenco.data());
    }
}

/// Counts the listed draws that have a last number, for those from a lane on.
/// Takes    tutte   the same count without regard to hits
template <typename Conti>
[[gnu::always_inline]] inline void ContaElenco(const EstrazioniPerPosto& estrazioni, const Fila& tutte,
                                               const std::vector<std::uint32_t>& aElenco, const Fini& aFini,
                                               std::size_t nDati, std::size_t nDa, PerColpi<Conti>& aConti)
{
    Conti senzaColpi;
    Prendi(senzaColpi, tutte, nDa);
    for (std::size_t j = 1; j <= nDati; ++j) {
        Conti conti{};
        for (std::size_t i = aFini[j - 1]; i < aFini[j]; ++i) {
            Conti estrazione;
            Prendi(estrazione, estrazioni.aEstrazioni[aElenco[i]], nDa);
            conti += estrazione;
        }
        senzaColpi -= conti;
        aConti[j + kMargine] = conti;
    }
    aConti[kMargine] = senzaColpi;
}

/// The sets behind one more place, and the words of them that are not 0.
inline void Sposta(const EstrazioniPerPosto& estrazioni, const Tappa& prima, std::size_t nPosto, Tappa& dopo)
{
    const std::uint64_t* aInsieme = estrazioni.Insieme(nPosto);
    const std::size_t nParole = estrazioni.nParole;
    for (std::size_t j = 0; j <= dopo.nDati; ++j) {
        dopo.aPezzi[j].clear();
        for (std::size_t p = 0; p < nParole; ++p) {
            const std::uint64_t nRestano =
                j < dopo.nDati ? prima.aInsiemi[j * nParole + p] & ~aInsieme[p] : 0;
            const std::uint64_t nSalgono = j > 0 ? prima.aInsiemi[(j - 1) * nParole + p] & aInsieme[p] : 0;
            dopo.aInsiemi[j * nParole + p] = nRestano | nSalgono;
            if (j > 0 && (nRestano | nSalgono) != 0) {
                dopo.aPezzi[j].push_back({nRestano | nSalgono, p});
            }
        }
    }
}

/// How many draws move on to one hit more, by hits, and how many there are then.
inline void ContaSpostate(const Tappa& prima, std::uint16_t nPresenze, const Fini& aFini, Tappa& dopo)
{
    std::uint16_t nArrivano = 0;
    auto nLasciano = static_cast<std::uint16_t>(nPresenze - aFini[prima.nDati]);
    for (std::size_t j = 0; j <= prima.nDati; ++j) {
        dopo.aQuante[j] = static_cast<std::uint16_t>(prima.aQuante[j] - nLasciano + nArrivano);
        nArrivano = nLasciano;
        nLasciano = static_cast<std::uint16_t>(aFini[j + 1] - aFini[j]);
    }
    dopo.aQuante[dopo.nDati] = nArrivano;
}

template <std::size_t N>
[[gnu::always_inline]] inline void Avanza(const EstrazioniPerPosto& estrazioni, const Tappa& prima,
                                          std::size_t nPosto, LavoroEmulate& lavoro, Tappa& dopo)
{
    using Conti = typename Vettori<N>::Conti;
    Fini aFini{};
    Elenca(prima.aPezzi, prima.nDati, estrazioni.Insieme(nPosto), lavoro.aElenco, aFini);
    ContaSpostate(prima, estrazioni.aPresenze[nPosto], aFini, dopo);
    PerColpi<Conti> aComuni{};
    for (std::size_t nDa = 0; nDa < estrazioni.nScelti; nDa += N) {
        ContaElenco(estrazioni, estrazioni.aCoppie[nPosto], lavoro.aElenco, aFini, prima.nDati, nDa, aComuni);
        for (std::size_t j = 0; j <= dopo.nDati; ++j) {
            Conti conti{};
            if (j <= prima.nDati) {
                Prendi(conti, prima.aConti[j], nDa);
            }
            conti += aComuni[j + kMargine - 1] - aComuni[j + kMargine];
            Posa(conti, dopo.aConti[j], nDa);
        }
    }
    Sposta(estrazioni, prima, nPosto, dopo);
}

/// n(k|x) of a stem.
template <std::size_t N>
[[gnu::always_inline]] inline void ContaTronco(const Tappa& tappa, const Soglia& soglia, std::size_t nCorsie,
                                               Fila& fila)
{
    using Conti = typename Vettori<N>::Conti;
    const std::size_t k = soglia.nColpi;
    const auto nBase = static_cast<std::uint16_t>(tappa.aQuante[k] - soglia.nMinimo);
    for (std::size_t nDa = 0; nDa < nCorsie; nDa += N) {
        Conti arrivano{};
        Conti lasciano{};
        if (k > 0 && k - 1 <= tappa.nDati) {
            Prendi(arrivano, tappa.aConti[k - 1], nDa);
        }
        if (k <= tappa.nDati) {
            Prendi(lasciano, tappa.aConti[k], nDa);
        }
        Posa(arrivano - lasciano + nBase, fila, nDa);
    }
}

/// f(k|yx) of a stem and one y.
template <std::size_t N>
[[gnu::always_inline]] inline void Intreccia(const EstrazioniPerPosto& estrazioni, const Tappa& tappa,
                                             std::span<const Soglia> aSoglie, std::size_t nPosto,
                                             LavoroEmulate& lavoro, FileTronco& file,
                                             PerColpi<typename Vettori<N>::Conti>& aComuni)
{
    using Conti = typename Vettori<N>::Conti;
    Fini aFini;
    Elenca(tappa.aPezzi, tappa.nDati, estrazioni.Insieme(nPosto), lavoro.aElenco, aFini);
    for (std::size_t nDa = 0; nDa + nPosto + 1 < estrazioni.nScelti; nDa += N) {
        ContaElenco(estrazioni, estrazioni.aCoppie[nPosto], lavoro.aElenco, aFini, tappa.nDati, nDa, aComuni);
        for (std::size_t s = 0; s < aSoglie.size(); ++s) {
            const Conti* q = aComuni.data() + kMargine + aSoglie[s].nColpi;
            const Conti intreccio = (q[0] - q[-1]) - (q[-1] - q[-2]);
            Posa(intreccio, file.aIntrecci[s * estrazioni.nScelti + nPosto], nDa);
        }
    }
}

template <std::size_t N>
[[gnu::always_inline]] inline void Tronco(const EstrazioniPerPosto& estrazioni, const Tappa& tappa,
                                          std::span<const Soglia> aSoglie, std::size_t nPrimo,
                                          LavoroEmulate& lavoro, FileTronco& file)
{
    for (std::size_t s = 0; s < aSoglie.size(); ++s) {
        ContaTronco<N>(tappa, aSoglie[s], estrazioni.nScelti - nPrimo, file.aConti[s]);
    }
    PerColpi<typename Vettori<N>::Conti> aComuni{};
    for (std::size_t y = nPrimo; y + 1 < estrazioni.nScelti; ++y) {
        Intreccia<N>(estrazioni, tappa, aSoglie, y, lavoro, file, aComuni);
    }
}

/// The lanes of which all bits are set, a bit for each.
template <std::size_t N>
[[gnu::always_inline]] inline std::uint64_t BitDi(const typename Vettori<N>::Conti& vere)
{
    using Parole = typename Vettori<N>::Parole;
    const auto nPezzi = __builtin_convertvector(vere, typename Vettori<N>::Byte);
    Parole parole;
    std::memcpy(&parole, &nPezzi, sizeof parole);
    parole &= 0x8040201008040201U; // of the i-th byte its i-th bit
    parole |= parole >> 32;
    parole |= parole >> 16;
    parole |= parole >> 8;
    const auto bit = __builtin_convertvector(parole, typename Vettori<N>::Bit);
    std::uint64_t nBit = 0;
    std::memcpy(&nBit, &bit, sizeof bit);
    return nBit;
}

/// What a draw of no hits that has z, y and x adds to the counts, by hits: it leaves 0, and what the pairs take of it
/// or add to it elsewhere is undone.
constexpr std::array<std::uint16_t, static_cast<std::size_t>(kClasseMassima) + 1> kSenzaColpi{0xFFFF, 3,
                                                                                              0xFFFD, 1};

/// One group of listed draws, by pick.
template <std::size_t N>
[[gnu::always_inline]] inline void Raggruppa(const EstrazioniPerPosto& estrazioni,
                                             std::span<const std::uint32_t> aElenco, std::size_t nCorsie,
                                             GruppoEstrazioni& gruppo, Fila& colpiti)
{
    using Conti = typename Vettori<N>::Conti;
    for (std::size_t nDa = 0; nDa < nCorsie; nDa += N) {
        Conti maschere{};
        for (const std::uint32_t nEstrazione : aElenco) {
            Conti estrazione;
            Prendi(estrazione, estrazioni.aEstrazioni[nEstrazione], nDa);
            maschere += maschere;
            maschere |= estrazione;
        }
        Posa(maschere, gruppo.maschere, nDa);
        Conti tutti;
        Prendi(tutti, colpiti, nDa);
        tutti |= maschere;
        Posa(tutti, colpiti, nDa);
    }
}

/// The draws of the stem that have z and at least one hit, in groups.
template <std::size_t N>
[[gnu::always_inline]] inline void RaggruppaZeta(const EstrazioniPerPosto& estrazioni, const Tappa& tappa,
                                                 const InizioEmulate& inizio, LavoroEmulate& lavoro)
{
    constexpr std::size_t kPerGruppo = 16;
    const std::size_t nCorsie = estrazioni.nScelti - 1 - inizio.nZeta;
    const std::span<const std::uint32_t> aElenco = lavoro.aElenco;
    Fini aFini;
    Elenca(tappa.aPezzi, tappa.nDati, estrazioni.Insieme(inizio.nZeta), lavoro.aElenco, aFini);
    for (std::size_t j = 1; j <= tappa.nDati; ++j) {
        for (std::size_t i = aFini[j - 1]; i < aFini[j]; i += kPerGruppo) {
            lavoro.aGruppi.push_back({j, {}});
            Raggruppa<N>(estrazioni, aElenco.subspan(i, std::min(kPerGruppo, aFini[j] - i)), nCorsie,
                         lavoro.aGruppi.back(), lavoro.colpiti);
        }
    }
}

/// The counts behind the numbers of a beginning and x.
/// Takes    aggiunta   those behind z, less those of the stem
///          nTolte     those of the beginning
template <std::size_t N>
[[gnu::always_inline]] inline void ContaInizio(const Fila& tronco, const Fila& intrecci,
                                               std::uint16_t nAggiunta, std::uint16_t nTolte,
                                               std::size_t nCorsie, std::span<Fila, 2> aFile)
{
    using Conti = typename Vettori<N>::Conti;
    for (std::size_t nDa = 0; nDa < nCorsie; nDa += N) {
        Conti quante;
        Conti intreccio;
        Prendi(quante, tronco, nDa);
        Prendi(intreccio, intrecci, nDa);
        quante += intreccio + nAggiunta;
        Posa(quante, aFile[0], nDa);
        Posa(quante - nTolte, aFile[1], nDa);
    }
}

/// The bounds of a beginning, with the counts that they ask for.
template <std::size_t N>
[[gnu::always_inline]] inline void Prepara(const EstrazioniPerPosto& estrazioni, const Tappa& tappa,
                                           std::span<const Soglia> aSoglie, const FileTronco& file,
                                           const InizioEmulate& inizio, LavoroEmulate& lavoro)
{
    const std::size_t nCorsie = estrazioni.nScelti - inizio.nPrimo;
    lavoro.aSoglie.clear();
    for (const std::size_t s : inizio.aSoglie) {
        const Soglia& soglia = aSoglie[s];
        const Fila* intrecci = file.aIntrecci.data() + s * estrazioni.nScelti;
        const std::span<Fila, 2> aConti(lavoro.aConti.data() + 2 * s, 2);
        const auto nTronco = static_cast<std::uint16_t>(tappa.aQuante[soglia.nColpi] - soglia.nMinimo);
        if (inizio.bConZeta) {
            const std::uint16_t nZeta = file.aConti[s].aConti[estrazioni.nScelti - 1 - inizio.nZeta];
            ContaInizio<N>(file.aConti[s], intrecci[inizio.nZeta],
                           static_cast<std::uint16_t>(nZeta - nTronco), nZeta, nCorsie, aConti);
        } else {
            ContaInizio<N>(file.aConti[s], kNessuna, 0, nTronco, nCorsie, aConti);
        }
        lavoro.aSoglie.push_back({aConti.data(), aConti.data() + 1, intrecci, soglia.nColpi, soglia.nAmpiezza,
                                  kSenzaColpi[soglia.nColpi]});
    }
}

/// The bits of each lane.
template <typename Conti> [[gnu::always_inline]] inline void ContaBit(Conti& bit)
{
    bit -= (bit >> 1) & 0x5555U;
    bit = (bit & 0x3333U) + ((bit >> 2) & 0x3333U);
    bit = (bit + (bit >> 4)) & 0x0F0FU;
    bit = (bit + (bit >> 8)) & 0x001FU;
}

/// A next-to-last number y.
struct Penultimo {
    std::size_t nPosto;
    std::size_t nCorsia; ///< its own, and how many stand above
    const Fila* terne;   ///< draws that have z, y and a last number
};

/// r by hits, for last numbers from a lane on.
/// Changes  aConti   0 at all hits of which there is no group
template <typename Conti>
[[gnu::always_inline]] inline void ContaTerne(const LavoroEmulate& lavoro, const Penultimo& y,
                                              std::size_t nDa, PerColpi<Conti>& aConti)
{
    Conti senzaColpi;
    Prendi(senzaColpi, *y.terne, nDa);
    for (const GruppoEstrazioni& gruppo : lavoro.aGruppi) {
        aConti[gruppo.nColpi + kMargine] = Conti{};
    }
    for (const GruppoEstrazioni& gruppo : lavoro.aGruppi) {
        Conti comuni;
        Prendi(comuni, gruppo.maschere, nDa);
        comuni &= gruppo.maschere.aConti[y.nCorsia];
        ContaBit(comuni);
        senzaColpi -= comuni;
        aConti[gruppo.nColpi + kMargine] += comuni;
    }
    aConti[kMargine] = senzaColpi;
}

/// n(k|zyx) less its lower bound, but for the r.
template <typename Conti>
[[gnu::always_inline]] inline void ContaSenzaTerne(const SogliaInizio& soglia, const Penultimo& y,
                                                   std::size_t nDa, Conti& quante)
{
    Conti intreccio;
    Prendi(quante, *soglia.conti, nDa);
    Prendi(intreccio, soglia.intrecci[y.nPosto], nDa);
    quante += intreccio + soglia.aggiunte->aConti[y.nCorsia];
}

/// The last numbers from a lane on that keep all bounds, when no draw of the groups has y.
template <typename Conti>
[[gnu::always_inline]] inline void GiudicaSenzaColpi(const LavoroEmulate& lavoro, const Penultimo& y,
                                                     std::size_t nDa, Conti& vere)
{
    Conti terne;
    Prendi(terne, *y.terne, nDa);
    for (const SogliaInizio& soglia : lavoro.aSoglie) {
        Conti quante;
        ContaSenzaTerne(soglia, y, nDa, quante);
        quante += terne * soglia.nSenzaColpi;
        vere &= static_cast<Conti>(quante <= soglia.nAmpiezza);
    }
}

/// The same when some have.
template <typename Conti>
[[gnu::always_inline]] inline void GiudicaConColpi(const LavoroEmulate& lavoro, const Penultimo& y,
                                                   std::size_t nDa, PerColpi<Conti>& aConti, Conti& vere)
{
    ContaTerne(lavoro, y, nDa, aConti);
    for (const SogliaInizio& soglia : lavoro.aSoglie) {
        const Conti* r = aConti.data() + kMargine + soglia.nColpi;
        const Conti mezzo = r[-1] - r[-2];
        Conti quante;
        ContaSenzaTerne(soglia, y, nDa, quante);
        quante += (r[-3] - r[0]) + (mezzo + mezzo + mezzo);
        vere &= static_cast<Conti>(quante <= soglia.nAmpiezza);
    }
}

template <std::size_t N>
[[gnu::always_inline]] inline void Riga(const EstrazioniPerPosto& estrazioni, const Tappa& tappa,
                                        std::span<const Soglia> aSoglie, const FileTronco& file,
                                        const InizioEmulate& inizio, LavoroEmulate& lavoro, MaschereRiga& ok)
{
    using Conti = typename Vettori<N>::Conti;
    lavoro.aGruppi.clear();
    lavoro.colpiti = {};
    if (inizio.bConZeta) {
        RaggruppaZeta<N>(estrazioni, tappa, inizio, lavoro);
    }
    Prepara<N>(estrazioni, tappa, aSoglie, file, inizio, lavoro);
    PerColpi<Conti> aConti{};
    const Fila* terne = inizio.bConZeta ? estrazioni.Terne(inizio.nZeta) : nullptr;
    for (std::size_t nPosto = inizio.nPrimo; nPosto + 1 < estrazioni.nScelti; ++nPosto) {
        const Penultimo y{nPosto, estrazioni.nScelti - 1 - nPosto,
                          inizio.bConZeta ? terne + (nPosto - inizio.nZeta - 1) : &kNessuna};
        const bool bColpiti = lavoro.colpiti.aConti[y.nCorsia] != 0;
        std::array<std::uint64_t, 2> aMaschera{};
        for (std::size_t nDa = 0; nDa < y.nCorsia; nDa += N) {
            Conti vere = ~Conti{};
            if (bColpiti) {
                GiudicaConColpi(lavoro, y, nDa, aConti, vere);
            } else {
                GiudicaSenzaColpi(lavoro, y, nDa, vere);
            }
            aMaschera[nDa / 64] |= BitDi<N>(vere) << (nDa % 64);
        }
        ok.Poni(nPosto, Maschera{aMaschera[1], aMaschera[0]} & PostiSopra(estrazioni.nScelti, nPosto));
    }
}

void AvanzaComune(const EstrazioniPerPosto& estrazioni, const Tappa& prima, std::size_t nPosto,
                  LavoroEmulate& lavoro, Tappa& dopo)
{
    Avanza<16>(estrazioni, prima, nPosto, lavoro, dopo);
}

void TroncoComune(const EstrazioniPerPosto& estrazioni, const Tappa& tappa, std::span<const Soglia> aSoglie,
                  std::size_t nPrimo, LavoroEmulate& lavoro, FileTronco& file)
{
    Tronco<16>(estrazioni, tappa, aSoglie, nPrimo, lavoro, file);
}

void RigaComune(const EstrazioniPerPosto& estrazioni, const Tappa& tappa, std::span<const Soglia> aSoglie,
                const FileTronco& file, const InizioEmulate& inizio, LavoroEmulate& lavoro, MaschereRiga& ok)
{
    Riga<16>(estrazioni, tappa, aSoglie, file, inizio, lavoro, ok);
}

ORDAVEL_AVX2 void AvanzaAvx2(const EstrazioniPerPosto& estrazioni, const Tappa& prima, std::size_t nPosto,
                             LavoroEmulate& lavoro, Tappa& dopo)
{
    Avanza<16>(estrazioni, prima, nPosto, lavoro, dopo);
}

ORDAVEL_AVX2 void TroncoAvx2(const EstrazioniPerPosto& estrazioni, const Tappa& tappa,
                             std::span<const Soglia> aSoglie, std::size_t nPrimo, LavoroEmulate& lavoro,
                             FileTronco& file)
{
    Tronco<16>(estrazioni, tappa, aSoglie, nPrimo, lavoro, file);
}

ORDAVEL_AVX2 void RigaAvx2(const EstrazioniPerPosto& estrazioni, const Tappa& tappa,
                           std::span<const Soglia> aSoglie, const FileTronco& file,
                           const InizioEmulate& inizio, LavoroEmulate& lavoro, MaschereRiga& ok)
{
    Riga<16>(estrazioni, tappa, aSoglie, file, inizio, lavoro, ok);
}

ORDAVEL_AVX512 void AvanzaAvx512(const EstrazioniPerPosto& estrazioni, const Tappa& prima, std::size_t nPosto,
                                 LavoroEmulate& lavoro, Tappa& dopo)
{
    Avanza<32>(estrazioni, prima, nPosto, lavoro, dopo);
}

ORDAVEL_AVX512 void TroncoAvx512(const EstrazioniPerPosto& estrazioni, const Tappa& tappa,
                                 std::span<const Soglia> aSoglie, std::size_t nPrimo, LavoroEmulate& lavoro,
                                 FileTronco& file)
{
    Tronco<32>(estrazioni, tappa, aSoglie, nPrimo, lavoro, file);
}

ORDAVEL_AVX512 void RigaAvx512(const EstrazioniPerPosto& estrazioni, const Tappa& tappa,
                               std::span<const Soglia> aSoglie, const FileTronco& file,
                               const InizioEmulate& inizio, LavoroEmulate& lavoro, MaschereRiga& ok)
{
    Riga<32>(estrazioni, tappa, aSoglie, file, inizio, lavoro, ok);
}

/// By eNucleo.
constexpr std::array<NucleoEmulate, 3> kNuclei{{
    {AvanzaComune, TroncoComune, RigaComune},
    {AvanzaAvx2, TroncoAvx2, RigaAvx2},
    {AvanzaAvx512, TroncoAvx512, RigaAvx512},
}};

} // namespace

const NucleoEmulate& ScegliNucleoEmulate(eNucleo nucleo) noexcept
{
    return kNuclei[static_cast<std::size_t>(nucleo)];
}

} // namespace ordavel
