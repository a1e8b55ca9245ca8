// file_colonne.cpp - any bytes as a file: its columns are looked for, taken out, read, and put back.

#include "Pretende.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "persistenza/ModFileSistema.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace {

using namespace ordavel;
using fuzz::Pretende;

/// The path of a file that is gone at the end.
class PathProvvisorio {
public:
    explicit PathProvvisorio(const std::string& sNome)
        : m_Path(std::filesystem::temp_directory_path() /
                 ("ordavel-fuzz-" + std::to_string(getpid()) + "-" + sNome))
    {}
    PathProvvisorio(const PathProvvisorio&) = delete;
    PathProvvisorio& operator=(const PathProvvisorio&) = delete;
    ~PathProvvisorio()
    {
        std::error_code ignorato;
        std::filesystem::remove(m_Path, ignorato);
    }

    [[nodiscard]] std::string Testo() const { return m_Path.string(); }

private:
    std::filesystem::path m_Path;
};

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
