// StampaSchedine.hpp - the columns of a file as slips: on a printer, in a PDF, in a preview.
//
// The columns are read page by page and never held together: a file may have millions.

#pragma once

#include "analisi/ModSchedine.hpp"
#include "core/FileBinario.hpp"

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

class QPainter;
class QPrinter;
class QWidget;

namespace ordavel::qt {

class StampaSchedine {
public:
    /// Told after each page: pages done, pages in all. False stops the job.
    using Avanzamento = std::function<bool(std::int64_t nFatte, std::int64_t nTotale)>;

    /// Takes    sFileColonne   a column file; it stays open
    ///          nClasse        numbers of each column that are marked, at most 20
    ///          sGioco         name of the game
    /// Fails    53, 70, 75, 76
    StampaSchedine(const QString& sFileColonne, int nClasse, QString sGioco);

    [[nodiscard]] std::int64_t Colonne() const noexcept { return m_nColonne; }
    [[nodiscard]] std::int64_t Pagine(const FoglioMm& foglio) const noexcept;
    [[nodiscard]] const QString& Gioco() const noexcept { return m_sGioco; }

    /// Paints one page, from 0; its upper left corner is the painter's origin.
    /// Takes    nPerMm   the painter's units in a millimetre
    /// Fails    57
    void Dipingi(QPainter& pittore, double nPerMm, const FoglioMm& foglio, std::int64_t nPagina);

    /// Writes all slips to a PDF on A4. The file stands there only when all of it was written.
    /// Gives    false when it was stopped; an older file of that name is then as it was
    /// Fails    57, 61, 70, 75 (something that is no file has that name), 76
    bool StampaPdf(const QString& sFile, const Avanzamento& avanzamento = {});

    /// Prints with the settings of a printer, its range of pages and its paper.
    /// Gives    false when it was stopped
    /// Fails    57
    bool Stampa(QPrinter& stampante, const Avanzamento& avanzamento = {});

    /// Asks for printer and pages, then prints; a long job shows how far it is and can be stopped.
    /// Fails    as Stampa
    void ChiediEStampa(QWidget* padre);
    /// Asks for a file, then writes the PDF; likewise.
    /// Fails    as StampaPdf
    void ChiediEStampaPdf(QWidget* padre);
    /// Shows the pages, with ways to print them; what fails there is shown in a box.
    void Anteprima(QWidget* padre);

private:
    void LeggiPagina(const PaginaSchedine& pagina, std::int64_t nPagina);

    FileBinario m_File;
    std::int64_t m_nColonne = 0;
    std::int16_t m_nClasse;
    QString m_sGioco;
    QString m_sNomeFile;
    std::vector<Colonna> m_aColonne; ///< of the page at hand
};

} // namespace ordavel::qt
