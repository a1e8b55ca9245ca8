// ModFileColonne.cpp - the column file.

#include "persistenza/ModFileColonne.hpp"

#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModTesti.hpp"
#include "persistenza/CampiRecord.hpp"

#include <algorithm>
#include <array>

namespace ordavel {

namespace {

constexpr std::string_view kOrigine = "Mod_Sviluppo.GetNumeroColonneInFile";

/// How far into a system file the columns are looked for.
constexpr std::int64_t kByteRicercaColonne = 66800;

/// The place of a number in a column's text: two digits and a blank. The three digits of a byte above 99, which
/// only a damaged file holds, fill the place of their blank; the last place of a full column loses its third.
using PostoNumero = std::array<char, 3>;

constexpr std::array<PostoNumero, 256> PostiNumeri() noexcept
{
    constexpr std::string_view kCifre = "0123456789";
    std::array<PostoNumero, 256> aPosti{};
    for (std::size_t n = 0; n < aPosti.size(); ++n) {
        const char cUnita = kCifre[n % 10];
        aPosti[n] = n < 100 ? PostoNumero{kCifre[n / 10], cUnita, ' '}
                            : PostoNumero{kCifre[n / 100], kCifre[n / 10 % 10], cUnita};
    }
    return aPosti;
}

constexpr auto kPosti = PostiNumeri();

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

void AccodaColonnaFormattata(std::span<const std::uint8_t> aNumeri, bool bTutti, std::string& sTesto)
{
    std::size_t nPosti = 0;
    for (const std::uint8_t nNumero : aNumeri) {
        if (bTutti || nNumero > 0) {
            sTesto.append(kPosti[nNumero].data(), kPosti[nNumero].size());
            ++nPosti;
        }
    }
    if (nPosti > 0 && (nPosti == aNumeri.size() || sTesto.back() == ' ')) {
        sTesto.pop_back();
    }
}

std::string FormattaColonna(std::span<const std::uint8_t> aNumeri, bool bTutti)
{
    std::string sTesto;
    AccodaColonnaFormattata(aNumeri, bTutti, sTesto);
    return sTesto;
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
