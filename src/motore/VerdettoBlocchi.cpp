// VerdettoBlocchi.cpp - the plan of recovery and links.

#include "motore/VerdettoBlocchi.hpp"

#include "condizioni/ModCatalogo.hpp"

#include <algorithm>
#include <bit>

namespace ordavel {

namespace {

using GruppoRecupero = PianoVerdetto::GruppoRecupero;
using BloccoLink = PianoVerdetto::BloccoLink;

bool HaGruppo(const RecordCondizione& record)
{
    return QuadroRecuperi::Contiene(record.IdRecupero);
}

GruppoRecupero GruppoDi(const StatoSviluppo& stato, std::int16_t nGruppo)
{
    const VoceRecupero& voce = stato.aQuadroRec[nGruppo];
    GruppoRecupero gruppo{{}, voce.MinPunti, voce.MaxPunti};
    for (std::size_t i = 0; i < stato.aCondizioni.size(); ++i) {
        if (stato.aCondizioni[i].IdRecupero == nGruppo) {
            gruppo.aMembri.push_back(i);
        }
    }
    return gruppo;
}

std::vector<GruppoRecupero> GruppiAttivi(const StatoSviluppo& stato)
{
    std::vector<GruppoRecupero> aGruppi;
    for (std::int16_t g = 1; g <= kGruppiRecupero; ++g) {
        if (stato.aQuadroRec[g].Attiva != 0) {
            aGruppi.push_back(GruppoDi(stato, g));
        }
    }
    std::erase_if(aGruppi, [](const GruppoRecupero& gruppo) { return gruppo.aMembri.empty(); });
    return aGruppi;
}

/// Links, and what is left to hold when all have collapsed.
struct Collasso {
    std::vector<std::vector<std::size_t>> aBlocchi; ///< slots that each link counts
    std::vector<std::size_t> aListe;                ///< record whose list each link is judged by
    std::vector<std::size_t> aFinali;
};

/// Follows the collapse of the links; the place of a "LinkClose" in the working copy is where its list is read.
Collasso Segui(const StatoSviluppo& stato)
{
    struct Voce {
        std::size_t nPosto;
        bool bApre;
    };
    Collasso collasso;
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
        std::vector<std::size_t>& aPosti = collasso.aBlocchi.emplace_back();
        for (std::size_t n = nAperto; n <= nChiuso; ++n) {
            aPosti.push_back(aVoci[n].nPosto);
        }
        collasso.aListe.push_back(nChiuso);
        aVoci.resize(nAperto, {});
        aVoci.push_back({nRecord + collasso.aBlocchi.size() - 1, false});
    }
    for (const Voce& voce : aVoci) {
        if (!voce.bApre) {
            collasso.aFinali.push_back(voce.nPosto);
        }
    }
    return collasso;
}

BloccoLink BloccoDi(const std::vector<std::size_t>& aPosti, const FlagNumeri& aLista)
{
    BloccoLink blocco{aPosti, {}};
    for (std::size_t nConto = 0; nConto <= aPosti.size(); ++nConto) {
        if (aLista[static_cast<std::int64_t>(nConto)] != 0) {
            blocco.aAccettati.push_back(nConto);
        }
    }
    return blocco;
}

/// A record that must hold by itself, or with its group.
void SegnaFinale(const StatoSviluppo& stato, std::size_t nRecord, bool bInGruppo, PianoVerdetto& piano)
{
    if (!SiMisura(stato.aCondizioni[nRecord].Tipo)) {
        return; // it holds always
    }
    piano.aRuoli[nRecord] = bInGruppo ? eRuolo::recuperabile : eRuolo::indispensabile;
    if (bInGruppo) {
        piano.aFinali.push_back(nRecord);
    }
}

/// The records that groups and links read.
std::vector<std::size_t> Usati(const PianoVerdetto& piano)
{
    std::vector<std::size_t> aUsati;
    for (std::size_t i = 0; i < piano.aRuoli.size(); ++i) {
        const bool bInLink = std::ranges::any_of(piano.aLink, [i](const BloccoLink& blocco) {
            return std::ranges::find(blocco.aPosti, i) != blocco.aPosti.end();
        });
        if (bInLink || piano.InGruppo(i)) {
            aUsati.push_back(i);
        }
    }
    return aUsati;
}

} // namespace

bool PianoVerdetto::InGruppo(std::size_t nRecord) const
{
    return std::ranges::any_of(aGruppi, [nRecord](const GruppoRecupero& gruppo) {
        return std::ranges::find(gruppo.aMembri, nRecord) != gruppo.aMembri.end();
    });
}

bool VerdettoPuoFallire(const StatoSviluppo& stato)
{
    const auto troppi = [](const std::vector<std::size_t>& aPosti) {
        return !FlagNumeri::Contiene(static_cast<std::int64_t>(aPosti.size()));
    };
    return !std::ranges::all_of(stato.aCondizioni, HaGruppo) ||
           std::ranges::any_of(Segui(stato).aBlocchi, troppi);
}

PianoVerdetto PianificaVerdetto(const StatoSviluppo& stato)
{
    const std::size_t nRecord = stato.aCondizioni.size();
    PianoVerdetto piano;
    piano.aGruppi = GruppiAttivi(stato);
    piano.aRuoli.assign(nRecord, eRuolo::libero);
    const Collasso collasso = Segui(stato);
    for (std::size_t n = 0; n < collasso.aBlocchi.size(); ++n) {
        piano.aLink.push_back(BloccoDi(collasso.aBlocchi[n], stato.aCondizioni[collasso.aListe[n]].Numeri));
    }
    for (const std::size_t nPosto : collasso.aFinali) {
        nPosto < nRecord ? SegnaFinale(stato, nPosto, piano.InGruppo(nPosto), piano)
                         : piano.aFinali.push_back(nPosto);
    }
    piano.aUsati = Usati(piano);
    piano.nCifre = static_cast<std::size_t>(std::bit_width(nRecord + piano.aLink.size() + 1));
    return piano;
}

} // namespace ordavel
