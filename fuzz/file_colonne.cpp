// file_colonne.cpp - any bytes as a file: its columns are looked for, taken out, read, and put back.

#include "PathProvvisorio.hpp"
#include "Pretende.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "persistenza/ModFileSistema.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace {

using namespace ordavel;
using fuzz::PathProvvisorio;
using fuzz::Pretende;

std::vector<std::byte> Contenuto(FileBinario& file)
{
    std::vector<std::byte> aByte(static_cast<std::size_t>(file.Lunghezza()));
    file.Leggi(1, aByte);
    return aByte;
}

/// The columns one by one are the columns all at once, and their texts are never longer than their places.
void ProvaColonne(const std::string& sPath)
{
    FileBinario file(sPath, eApertura::lettura);
    const auto aColonne = LeggiColonne(sPath, file.Lunghezza() / kByteColonna + 1);
    for (std::size_t i = 0; i < aColonne.size(); ++i) {
        Pretende(LeggiColonna(file, static_cast<std::int64_t>(i) + 1) == aColonne[i],
                 "una a una come insieme");
        Pretende(FormattaColonna(aColonne[i].aNumeri, i % 2 == 0).size() < 3 * kNumeriColonna, "testo breve");
    }
}

/// Columns taken out of a system and put behind another are the same bytes.
void ProvaBlocco(FileBinario& sistema, std::int64_t nInizio)
{
    const PathProvvisorio colonne("colonne");
    const PathProvvisorio pathCopia("copia");
    EstraiColonne(sistema, nInizio, colonne.Testo());
    ProvaColonne(colonne.Testo());
    FileBinario copia(pathCopia.Testo(), eApertura::scrittura);
    AppendiColonne(colonne.Testo(), copia);
    const auto aOrigine = Contenuto(sistema);
    const auto aCopia = Contenuto(copia);
    Pretende(std::equal(aOrigine.begin() + (nInizio - 1), aOrigine.end(), aCopia.begin() + 7, aCopia.end()),
             "il blocco resta uguale");
}

void Prova(std::span<const std::byte> aByte)
{
    const PathProvvisorio path("sistema");
    FileBinario sistema(path.Testo(), eApertura::scrittura);
    sistema.Accoda(aByte);
    const std::int64_t nParte = LunghezzaParteSistema(sistema);
    Pretende(nParte >= 0 && nParte <= std::ssize(aByte), "la parte sta nel file");
    const auto parte = LeggiParteSistema(sistema);
    Pretende(parte.has_value() ==
                 LeggiParteSistema(aByte.first(static_cast<std::size_t>(nParte))).has_value(),
             "dal file come dai byte");
    const std::int64_t nInizio = TrovaInizioColonne(sistema);
    Pretende(nInizio == 0 || (nInizio > 7 && nInizio - 8 <= nParte), "le colonne non seguono una marca dopo");
    if (nInizio > 0) {
        ProvaBlocco(sistema, nInizio);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aDati, std::size_t nDati)
{
    Prova(std::as_bytes(std::span(aDati, nDati)));
    return 0;
}
