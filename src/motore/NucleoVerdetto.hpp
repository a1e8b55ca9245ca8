// NucleoVerdetto.hpp - recovery and links over some words of columns, one bit a column. V is a vector of them.

#pragma once

#include "motore/VerdettoBlocchi.hpp"

namespace ordavel {

[[gnu::always_inline]] inline void AzzeraCifre(LavoroVerdetto& lavoro)
{
    for (Corsie& cifra : lavoro.aCifre) {
        cifra = {};
    }
}

/// Adds one to the count of each bit that is set.
/// Takes    nCifre   how many digits the sum may need
template <typename V>
[[gnu::always_inline]] inline void Aggiungi(const Corsie& corsie, std::size_t nCifre, LavoroVerdetto& lavoro)
{
    V riporto;
    Prendi(riporto, corsie.data());
    for (std::size_t c = 0; c < nCifre; ++c) {
        V cifra;
        Prendi(cifra, lavoro.aCifre[c].data());
        Posa(cifra ^ riporto, lavoro.aCifre[c].data());
        riporto &= cifra;
    }
}

/// Counts, for each bit, in how many slots it is set.
template <typename V>
[[gnu::always_inline]] inline void ContaPosti(const std::vector<std::size_t>& aPosti,
                                              const std::vector<Corsie>& aCorsie, LavoroVerdetto& lavoro)
{
    AzzeraCifre(lavoro);
    std::size_t nContati = 0;
    for (const std::size_t nPosto : aPosti) {
        Aggiungi<V>(aCorsie[nPosto], static_cast<std::size_t>(std::bit_width(++nContati)), lavoro);
    }
}

/// The bits whose count is nValore or more.
template <typename V>
[[gnu::always_inline]] inline void Almeno(std::int64_t nValore, const LavoroVerdetto& lavoro, V& almeno)
{
    almeno = V{};
    if (nValore >> lavoro.aCifre.size() > 0) {
        return;
    }
    almeno = ~almeno;
    if (nValore <= 0) {
        return;
    }
    for (std::size_t c = 0; c < lavoro.aCifre.size(); ++c) { // of the digits so far, from the lowest on
        V cifra;
        Prendi(cifra, lavoro.aCifre[c].data());
        almeno = ((nValore >> c) & 1) != 0 ? cifra & almeno : cifra | almeno;
    }
}

/// The bits whose count is nValore, from 0 on.
template <typename V>
[[gnu::always_inline]] inline void Uguale(std::size_t nValore, const LavoroVerdetto& lavoro, V& uguale)
{
    uguale = ~V{};
    for (std::size_t c = 0; c < lavoro.aCifre.size(); ++c) {
        V cifra;
        Prendi(cifra, lavoro.aCifre[c].data());
        uguale &= ((nValore >> c) & 1U) != 0 ? cifra : ~cifra;
    }
}

/// Those of a group that may be forgiven are.
template <typename V>
[[gnu::always_inline]] inline void Recupera(const PianoVerdetto::GruppoRecupero& gruppo,
                                            LavoroVerdetto& lavoro)
{
    ContaPosti<V>(gruppo.aMembri, lavoro.aRec, lavoro);
    V perdona;
    V troppi;
    Almeno(gruppo.nMinimo, lavoro, perdona);
    Almeno(gruppo.nMassimo + 1, lavoro, troppi);
    perdona &= ~troppi;
    for (const std::size_t i : gruppo.aMembri) {
        V ok;
        V rec;
        Prendi(ok, lavoro.aPosti[i].data());
        Prendi(rec, lavoro.aRec[i].data());
        Posa(ok | (rec & perdona), lavoro.aPosti[i].data());
    }
}

template <typename V>
[[gnu::always_inline]] inline void Collassa(const PianoVerdetto::BloccoLink& blocco, Corsie& esito,
                                            LavoroVerdetto& lavoro)
{
    ContaPosti<V>(blocco.aPosti, lavoro.aPosti, lavoro);
    V passa{};
    for (const std::size_t nConto : blocco.aAccettati) {
        V uguale;
        Uguale(nConto, lavoro, uguale);
        passa |= uguale;
    }
    Posa(passa, esito.data());
}

/// Takes from `tenute` what recovery and links do not let through.
/// Takes    lavoro   the words of the records that the plan uses
template <typename V>
[[gnu::always_inline]] inline void Giudica(const PianoVerdetto& piano, LavoroVerdetto& lavoro, V& tenute)
{
    for (const PianoVerdetto::GruppoRecupero& gruppo : piano.aGruppi) {
        Recupera<V>(gruppo, lavoro);
    }
    std::size_t nLink = piano.aRuoli.size();
    for (const PianoVerdetto::BloccoLink& blocco : piano.aLink) {
        Collassa<V>(blocco, lavoro.aPosti[nLink++], lavoro);
    }
    for (const std::size_t nPosto : piano.aFinali) {
        V passa;
        Prendi(passa, lavoro.aPosti[nPosto].data());
        tenute &= passa;
    }
}

} // namespace ordavel
