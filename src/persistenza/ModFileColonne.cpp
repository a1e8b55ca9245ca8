// ModFileColonne.cpp - the column file.

#include "persistenza/ModFileColonne.hpp"

#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"
#include "persistenza/CampiRecord.hpp"

#include <algorithm>

namespace ordavel {

namespace {

constexpr std::string_view kOrigine = "Mod_Sviluppo.GetNumeroColonneInFile";

/// How far into a system file the columns are looked for.
constexpr std::int64_t kByteRicercaColonne = 66800;

double ColonneInByte(std::int64_t nByte)
{
    return static_cast<double>(nByte) / static_cast<double>(kByteColonna);
}

std::int16_t ClasseDi(const Colonna& colonna)
{
    std::int16_t nClasse = kClasseMassima;
    while (nClasse > 0 && colonna[nClasse] == 0) {
        --nClasse;
    }
    return nClasse;
}

/// The first bytes of a file as text, at most nMassimo of them.
std::string LeggiInizio(FileBinario& file, std::int64_t nMassimo)
{
    std::string sInizio(static_cast<std::size_t>(std::min(file.Lunghezza(), nMassimo)), '\0');
    sInizio.resize(file.Leggi(1, std::as_writable_bytes(std::span(sInizio))));
    return sInizio;
}

} // namespace

double NumeroColonneFile(const std::string& sPath)
{
    return ColonneInByte(DimensioneFile(sPath));
}

std::optional<double> GetNumeroColonneInFile(const std::string& sPath, Segnalatore& segnalatore)
{
    std::optional<double> nColonne;
    if (FileEsiste(sPath)) {
        ConGestore(segnalatore, kOrigine,
                   [&] { nColonne = ColonneInByte(FileBinario(sPath, eApertura::lettura).Lunghezza()); });
    }
    return nColonne;
}

std::int16_t GetClasseColonneInFile(const std::string& sPath, Segnalatore& segnalatore)
{
    std::int16_t nClasse = 0;
    if (FileEsiste(sPath)) {
        ConGestore(segnalatore, kOrigine, [&] {
            FileBinario file(sPath, eApertura::lettura);
            nClasse = ClasseDi(LeggiColonna(file, 1));
        });
    }
    return nClasse;
}

std::string FormattaColonna(std::span<const std::uint8_t> aNumeri, bool bTutti)
{
    // Places of three characters, two digits and a blank. The three digits of a byte above 99, which only a
    // damaged file holds, fill the place of their blank; behind the last place there is none.
    std::string sTesto(3 * aNumeri.size(), ' ');
    std::size_t nPosto = 0;
    for (const std::uint8_t nNumero : aNumeri) {
        if (bTutti || nNumero > 0) {
            const std::string sCifre = Formatta00(nNumero);
            sTesto.replace(nPosto, sCifre.size(), sCifre);
            nPosto += 3;
        }
    }
    if (!sTesto.empty()) {
        sTesto.pop_back();
    }
    return std::string(TogliBlank(sTesto));
}

Colonna LeggiColonna(FileBinario& file, std::int64_t nId)
{
    if (nId < 1) {
        Solleva(eErrore::dispositivo);
    }
    Colonna colonna;
    // Compared as a quotient: the position of a very large nId would not fit.
    if (nId - 1 <= file.Lunghezza() / kByteColonna) {
        file.Leggi((nId - 1) * kByteColonna + 1, std::as_writable_bytes(std::span(colonna.aNumeri)));
    }
    return colonna;
}

std::vector<Colonna> LeggiColonne(const std::string& sPath, std::int64_t nColonne)
{
    if (nColonne < 0) {
        Solleva(eErrore::argomento);
    }
    FileBinario file(sPath, eApertura::lettura);
    std::vector<Colonna> aColonne(static_cast<std::size_t>(nColonne));
    file.Leggi(1, std::as_writable_bytes(std::span(aColonne)));
    return aColonne;
}

void AccodaColonne(FileBinario& file, std::span<const Colonna> aColonne)
{
    file.Accoda(std::as_bytes(aColonne));
}

std::int64_t TrovaInizioColonne(FileBinario& sistema)
{
    const std::size_t nPosto = CercaSenzaCaso(LeggiInizio(sistema, kByteRicercaColonne), kMarcaColonne);
    return nPosto == std::string::npos ? 0 : static_cast<std::int64_t>(nPosto + kMarcaColonne.size()) + 1;
}

std::int64_t LunghezzaParteSistema(FileBinario& sistema)
{
    constexpr auto nMarca = static_cast<std::int64_t>(kMarcaColonne.size());
    const std::size_t nPosto = LeggiInizio(sistema, kByteParteMassima + nMarca).find(kMarcaColonne);
    return nPosto == std::string::npos ? sistema.Lunghezza() : static_cast<std::int64_t>(nPosto);
}

void AppendiColonne(const std::string& sFileColonne, FileBinario& sistema)
{
    FileBinario colonne(sFileColonne, eApertura::lettura);
    sistema.Accoda(std::as_bytes(std::span(kMarcaColonne)));
    CopiaBlocco(colonne, 1, colonne.Lunghezza(), sistema);
}

void EstraiColonne(FileBinario& sistema, std::int64_t nDa, const std::string& sFileColonne)
{
    FileBinario colonne(sFileColonne, eApertura::scrittura);
    CopiaBlocco(sistema, nDa, sistema.Lunghezza() - (nDa - 1), colonne);
    colonne.Chiudi();
}

} // namespace ordavel
