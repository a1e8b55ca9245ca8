// ModRiduci2.cpp - first fit in the order of the file.

#include "riduzione/ModRiduci2.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModNumeri.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "riduzione/BlocchiColonne.hpp"
#include "riduzione/ColonneViste.hpp"
#include "riduzione/ConfrontoPiano.hpp"

#include <algorithm>
#include <filesystem>
#include <span>
#include <system_error>

namespace ordavel {

namespace {

/// Columns between two looks at the user.
constexpr std::size_t kColonnePasso = 10000;

/// Shows how many of all columns are settled.
class Percorso {
public:
    Percorso(std::int64_t nTotale, AvanzamentoRiduzione& avanzamento)
        : m_nTotale(nTotale), m_Avanzamento(avanzamento)
    {}

    void Avanza(std::int64_t nDecise)
    {
        m_nDecise += nDecise;
        m_Avanzamento.MostraPercentuale(
            PercentualeProgress(static_cast<double>(m_nDecise), static_cast<double>(m_nTotale)));
        m_Avanzamento.LasciaEventi();
    }

private:
    std::int64_t m_nTotale;
    std::int64_t m_nDecise = 0;
    AvanzamentoRiduzione& m_Avanzamento;
};

/// Calls passo(columns) for each run of at most 10000 columns; it gives how many of them are settled.
template <typename Passo> void PerOgniPasso(BlocchiColonne& origine, Percorso& percorso, const Passo& passo)
{
    for (auto aColonne = origine.Prossimo(); !aColonne.empty(); aColonne = origine.Prossimo()) {
        while (!aColonne.empty()) {
            const auto aParte = aColonne.first(std::min(kColonnePasso, aColonne.size()));
            percorso.Avanza(passo(aParte));
            aColonne = aColonne.subspan(aParte.size());
        }
    }
}

void RiduciPiano(BlocchiColonne& origine, Percorso& percorso, ConfrontoPiano& confronto)
{
    PerOgniPasso(origine, percorso, [&confronto](std::span<const Colonna> aColonne) {
        for (const Colonna& colonna : aColonne) {
            confronto.ConfrontaColonnaRidotta(colonna);
        }
        return std::ssize(aColonne);
    });
}

/// One pass: writes what the table does not rule out. Columns are settled until the table is full; behind that only
/// those ruled out are.
class Passata {
public:
    Passata(ColonneViste& viste, ColonneRidotte& ridotte) : m_Viste(viste), m_Ridotte(ridotte) {}

    [[nodiscard]] std::int64_t Giudica(std::span<const Colonna> aColonne)
    {
        const std::int64_t nCandidatePrima = m_nCandidate;
        for (const Colonna& colonna : aColonne) {
            if (!m_Viste.Copre(colonna)) {
                Tieni(colonna);
            }
        }
        return std::ssize(aColonne) - (m_nCandidate - nCandidatePrima);
    }

    /// Columns at the end of the output that wait for another pass.
    [[nodiscard]] std::int64_t Candidate() const noexcept { return m_nCandidate; }

private:
    void Tieni(const Colonna& colonna)
    {
        if (m_nCandidate > 0 || !m_Viste.Aggiungi(colonna)) {
            ++m_nCandidate;
        }
        m_Ridotte.Tieni(colonna);
    }

    ColonneViste& m_Viste;
    ColonneRidotte& m_Ridotte;
    std::int64_t m_nCandidate = 0;
};

/// Gives    columns at the end of what was written that wait for another pass
std::int64_t Passa(BlocchiColonne& origine, Percorso& percorso, ColonneViste& viste, ColonneRidotte& ridotte)
{
    Passata passata(viste, ridotte);
    PerOgniPasso(origine, percorso,
                 [&passata](std::span<const Colonna> aColonne) { return passata.Giudica(aColonne); });
    ridotte.ScriviResto();
    return passata.Candidate();
}

/// A column is written only after it was read, and never behind the place where it was read: the output may be both
/// source and destination.
void Riduci(BlocchiColonne& origine, Percorso& percorso, ColonneViste& viste, ColonneRidotte& ridotte)
{
    std::int64_t nCandidate = Passa(origine, percorso, viste, ridotte);
    while (nCandidate > 0) {
        const std::int64_t nFine = ridotte.Quante();
        viste.Svuota();
        ridotte.RiprendiDa(nFine - nCandidate);
        BlocchiColonne candidate(ridotte.File(), nFine - nCandidate, nFine);
        nCandidate = Passa(candidate, percorso, viste, ridotte);
    }
}

/// Nothing of the user's may go but a reduced file of that name.
void RifiutaUscita(const std::string& sFileInput, const std::string& sFileOutput)
{
    std::error_code ignorato;
    if (std::filesystem::equivalent(sFileInput, sFileOutput, ignorato)) {
        throw Errore(eErrore::argomento, "il file ridotto è il file da ridurre, " + sFileOutput);
    }
    if (sFileOutput.find('*') != std::string::npos) {
        throw Errore(eErrore::argomento, sFileOutput);
    }
}

void CancellaUscita(const std::string& sFileOutput, Segnalatore& segnalatore)
{
    if (!KillFile(sFileOutput, segnalatore)) {
        throw Errore(eErrore::permesso, sFileOutput);
    }
}

/// Points below 0 mean 0, points above the class are out of reach as one above it is.
std::int32_t Punti(std::int16_t nClasse, std::int32_t nRiduzione)
{
    const std::int64_t nPunti = std::int64_t{nClasse} - nRiduzione;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(nPunti, 0, nClasse + 1));
}

/// Gives    how many columns were kept; more may stand behind them
std::int64_t ScriviRidotte(FileBinario& ingresso, FileBinario& uscita, std::int16_t nClasse,
                           std::int32_t nPunti, AvanzamentoRiduzione& avanzamento, std::size_t nByteTabella)
{
    const std::int64_t nTotale = ColonneArrotondate(ingresso);
    BlocchiColonne origine(ingresso, 0, nTotale);
    ColonneRidotte ridotte(uscita);
    Percorso percorso(nTotale, avanzamento);
    if (nByteTabella == 0) {
        ConfrontoPiano confronto(ridotte, nClasse, nPunti);
        RiduciPiano(origine, percorso, confronto);
        ridotte.ScriviResto();
    } else {
        ColonneViste viste(nClasse, nPunti, nTotale, nByteTabella);
        Riduci(origine, percorso, viste, ridotte);
    }
    return ridotte.Quante();
}

/// Closes the output and cuts off what earlier passes left behind the last column.
void Concludi(FileBinario& uscita, const std::string& sPath, std::int64_t nColonne)
{
    const std::int64_t nByte = nColonne * kByteColonna;
    const bool bTroppo = uscita.Lunghezza() > nByte;
    uscita.Chiudi();
    std::error_code codice;
    if (bTroppo) {
        std::filesystem::resize_file(sPath, static_cast<std::uintmax_t>(nByte), codice);
    }
    if (codice) {
        throw ErroreDiSistema(codice.value(), sPath);
    }
}

} // namespace

void RiduzioneSequenziale(const std::string& sFileInput, const std::string& sFileOutput,
                          std::int32_t nRiduzione, AvanzamentoRiduzione& avanzamento,
                          std::size_t nByteTabella)
{
    // The input is opened before the output goes: without an input, an earlier result stays.
    FileBinario ingresso(sFileInput, eApertura::lettura);
    RifiutaUscita(sFileInput, sFileOutput);
    const std::int16_t nClasse = GetClasseColonneInFile(sFileInput, avanzamento);
    CancellaUscita(sFileOutput, avanzamento);
    FileBinario uscita(sFileOutput, eApertura::scrittura);
    const std::int64_t nTenute =
        ScriviRidotte(ingresso, uscita, nClasse, Punti(nClasse, nRiduzione), avanzamento, nByteTabella);
    Concludi(uscita, sFileOutput, nTenute);
    avanzamento.MostraPercentuale(0);
}

} // namespace ordavel
