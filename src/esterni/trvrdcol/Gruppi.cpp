// Gruppi.cpp - permutations out of rings and fields.

#include "Gruppi.hpp"

#include "Campo.hpp"

#include <algorithm>
#include <numeric>
#include <optional>

namespace ordavel::trvrdcol {

namespace {

Permutazione Identita()
{
    Permutazione permutazione;
    std::iota(permutazione.begin(), permutazione.end(), std::uint8_t{0});
    return permutazione;
}

/// The places of a class in blocks, and what is left.
struct Disposti {
    std::vector<Classe> aBlocchi;
    Classe aResto;
};

using Disposizione = std::vector<Disposti>;

/// Blocks of m places, mostly as many as there is room for.
Disposizione Disponi(const std::vector<Classe>& aClassi, std::size_t m, Sorte& sorte)
{
    Disposizione disposizione;
    for (const Classe& classe : aClassi) {
        std::size_t nBlocchi = classe.size() / m;
        if (nBlocchi > 1 && sorte.Capita(20)) {
            nBlocchi -= sorte.Sotto(nBlocchi);
        }
        Disposti disposti;
        auto qui = classe.begin();
        for (std::size_t b = 0; b < nBlocchi; ++b, qui += static_cast<std::ptrdiff_t>(m)) {
            disposti.aBlocchi.emplace_back(qui, qui + static_cast<std::ptrdiff_t>(m));
        }
        disposti.aResto.assign(qui, classe.end());
        disposizione.push_back(std::move(disposti));
    }
    return disposizione;
}

/// Moves element x of block b of each class to element azione(x) of block b + nSalto.
template <typename Azione>
Permutazione Muovi(const Disposizione& disposizione, std::size_t nSalto, const Azione& azione)
{
    Permutazione permutazione = Identita();
    for (const Disposti& disposti : disposizione) {
        const std::size_t nBlocchi = disposti.aBlocchi.size();
        for (std::size_t b = 0; b < nBlocchi; ++b) {
            const Classe& da = disposti.aBlocchi[b];
            const Classe& a = disposti.aBlocchi[(b + nSalto) % nBlocchi];
            for (std::size_t x = 0; x < da.size(); ++x) {
                permutazione[da[x]] = a[azione(static_cast<unsigned>(x))];
            }
        }
    }
    return permutazione;
}

/// Turns what is left in circles whose length divides m.
void TurnaResto(Permutazione& permutazione, const Disposizione& disposizione, std::size_t m, Sorte& sorte)
{
    for (const Disposti& disposti : disposizione) {
        const Classe& aResto = disposti.aResto;
        std::size_t d = std::min(m, aResto.size());
        while (d > 1 && m % d != 0) {
            --d;
        }
        for (std::size_t nDa = 0; d > 1 && nDa + d <= aResto.size() && sorte.Capita(70); nDa += d) {
            for (std::size_t x = 0; x < d; ++x) {
                permutazione[aResto[nDa + x]] = aResto[nDa + (x + 1) % d];
            }
        }
    }
}

/// A jump between blocks for a permutation that need not have one.
std::size_t Salto(Sorte& sorte)
{
    return sorte.Capita(40) ? 1 + sorte.Sotto(2) : 0;
}

/// One permutation as two: one that moves the places of some blocks, and one that moves the others.
Gruppo Spezzata(const Permutazione& permutazione, const Disposizione& disposizione, Sorte& sorte)
{
    Gruppo parti(2, Identita());
    std::vector<std::uint8_t> aParte(kPostiMassimi, 0);
    for (const Disposti& disposti : disposizione) {
        for (const Classe& blocco : disposti.aBlocchi) {
            const std::size_t nParte = sorte.Sotto(2);
            std::ranges::for_each(blocco, [&](std::uint8_t p) { parti[nParte][p] = permutazione[p]; });
        }
        std::ranges::for_each(disposti.aResto, [&](std::uint8_t p) { parti[0][p] = permutazione[p]; });
    }
    return parti;
}

Gruppo GruppoAnello(const Disposizione& disposizione, unsigned m, Sorte& sorte)
{
    Permutazione giro = Muovi(disposizione, 0, [m](unsigned x) { return (x + 1) % m; });
    TurnaResto(giro, disposizione, m, sorte);
    Gruppo gruppo = sorte.Capita(20) ? Spezzata(giro, disposizione, sorte) : Gruppo{giro};
    const auto a = static_cast<unsigned>(1 + sorte.Sotto(m));
    if (a % m != 1 && std::gcd(a, m) == 1 && sorte.Capita(70)) {
        gruppo.push_back(Muovi(disposizione, Salto(sorte), [a, m](unsigned x) { return a * x % m; }));
    }
    if (sorte.Capita(35)) {
        const auto b = static_cast<unsigned>(sorte.Sotto(m));
        gruppo.push_back(Muovi(disposizione, 1, [b, m](unsigned x) { return (x + b) % m; }));
    }
    return gruppo;
}

/// x to -1/x, 0 to infinity and back; infinity is the first number left in the class of a block.
/// Gives    nothing when a class has not exactly one block and such a number
std::optional<Permutazione> Inversione(const Disposizione& disposizione, const Campo& campo)
{
    Permutazione permutazione = Identita();
    for (const Disposti& disposti : disposizione) {
        if (disposti.aBlocchi.empty()) {
            continue;
        }
        if (disposti.aBlocchi.size() > 1 || disposti.aResto.empty()) {
            return {};
        }
        const Classe& blocco = disposti.aBlocchi.front();
        permutazione[blocco[0]] = disposti.aResto[0];
        permutazione[disposti.aResto[0]] = blocco[0];
        for (unsigned x = 1; x < campo.Quanti(); ++x) {
            permutazione[blocco[x]] = blocco[campo.Opposto(campo.Inverso(x))];
        }
    }
    return permutazione;
}

/// A divisor of n by chance.
unsigned Divisore(unsigned n, Sorte& sorte)
{
    auto d = static_cast<unsigned>(1 + sorte.Sotto(n));
    while (n % d != 0) {
        --d;
    }
    return d;
}

Gruppo GruppoCampo(const Disposizione& disposizione, const Campo& campo, Sorte& sorte)
{
    const unsigned q = campo.Quanti();
    Gruppo gruppo;
    const unsigned nTraslazioni =
        sorte.Capita(80) ? campo.Grado() : static_cast<unsigned>(sorte.Sotto(campo.Grado() + 1));
    for (unsigned n = 0; n < nTraslazioni; ++n) {
        const unsigned b = campo.Potenza(n);
        gruppo.push_back(Muovi(disposizione, 0, [&](unsigned x) { return campo.Somma(x, b); }));
    }
    if (!gruppo.empty()) {
        TurnaResto(gruppo.front(), disposizione, campo.Caratteristica(), sorte);
    }
    if (q > 2 && sorte.Capita(75)) {
        const unsigned a = campo.Potenza(Divisore(q - 1, sorte));
        gruppo.push_back(Muovi(disposizione, Salto(sorte), [&](unsigned x) { return campo.Prodotto(a, x); }));
    }
    if (campo.Grado() > 1 && sorte.Capita(30)) {
        gruppo.push_back(Muovi(disposizione, Salto(sorte), [&](unsigned x) {
            unsigned nPotenza = 1;
            for (unsigned n = 0; n < campo.Caratteristica(); ++n) {
                nPotenza = campo.Prodotto(nPotenza, x);
            }
            return nPotenza;
        }));
    }
    if (const auto inversione = Inversione(disposizione, campo); inversione && sorte.Capita(35)) {
        gruppo.push_back(*inversione);
    }
    if (gruppo.empty() || sorte.Capita(20)) {
        gruppo.push_back(Muovi(disposizione, 1, [](unsigned x) { return x; }));
    }
    return gruppo;
}

/// May two places be exchanged? Tried on sets spread over the problem.
bool Scambiabili(const Problema& problema, const Dizionario& dizionario, std::uint8_t p, std::uint8_t q)
{
    constexpr std::size_t kTentativi = 4000;
    Permutazione scambio = Identita();
    std::swap(scambio[p], scambio[q]);
    const std::size_t nPasso = std::max<std::size_t>(1, problema.Quanti() / kTentativi);
    for (std::size_t i = 0; i < problema.Quanti(); i += nPasso) {
        const Maschera& insieme = problema.aInsiemi[i];
        if (insieme.Contiene(p) != insieme.Contiene(q) &&
            dizionario.Trova(problema.aInsiemi, Immagine(insieme, scambio)) == kNessuno) {
            return false;
        }
    }
    return true;
}

Permutazione Potenza(const Permutazione& permutazione, unsigned nEsponente)
{
    Permutazione potenza = Identita();
    for (unsigned n = 0; n < nEsponente; ++n) {
        std::ranges::for_each(potenza, [&](std::uint8_t& p) { p = permutazione[p]; });
    }
    return potenza;
}

} // namespace

std::vector<Classe> ClassiDiPosti(const Problema& problema, const Dizionario& dizionario)
{
    std::vector<Classe> aClassi;
    for (std::uint8_t p = 0; p < problema.nPosti; ++p) {
        const auto classe = std::ranges::find_if(
            aClassi, [&](const Classe& c) { return Scambiabili(problema, dizionario, c.front(), p); });
        if (classe != aClassi.end()) {
            classe->push_back(p);
        } else {
            aClassi.push_back({p});
        }
    }
    return aClassi;
}

Gruppo GruppoACaso(const std::vector<Classe>& aClassi, Sorte& sorte)
{
    const std::size_t nMassimo =
        std::ranges::max_element(aClassi, {}, [](const Classe& c) { return c.size(); })->size();
    if (nMassimo < 2) {
        return {};
    }
    auto m = static_cast<unsigned>(2 + sorte.Sotto(nMassimo - 1));
    const bool bCampo = sorte.Capita(45);
    while (bCampo && !Campo::Esiste(m)) {
        --m;
    }
    const Disposizione disposizione = Disponi(aClassi, m, sorte);
    return bCampo ? GruppoCampo(disposizione, Campo(m), sorte) : GruppoAnello(disposizione, m, sorte);
}

Gruppo Sottogruppo(Gruppo gruppo, Sorte& sorte)
{
    const auto quale = gruppo.begin() + static_cast<std::ptrdiff_t>(sorte.Sotto(gruppo.size()));
    if (gruppo.size() > 1 && sorte.Capita(50)) {
        gruppo.erase(quale);
    } else {
        *quale = Potenza(*quale, sorte.Capita(60) ? 2 : 3);
    }
    return gruppo;
}

Maschera Immagine(const Maschera& insieme, const Permutazione& permutazione) noexcept
{
    Maschera immagine;
    for (std::uint64_t n = insieme.nBassa; n != 0; n &= n - 1) {
        immagine.Metti(permutazione[static_cast<std::size_t>(std::countr_zero(n))]);
    }
    for (std::uint64_t n = insieme.nAlta; n != 0; n &= n - 1) {
        immagine.Metti(permutazione[64 + static_cast<std::size_t>(std::countr_zero(n))]);
    }
    return immagine;
}

} // namespace ordavel::trvrdcol
