// DipingeSchedina.hpp - the strokes of a slip: frame, headings, the box of numbers, the marks.

#pragma once

#include "analisi/ModSchedine.hpp"

#include <QFont>
#include <QString>

#include <cstdint>
#include <span>

class QPainter;
class QRectF;

namespace ordavel::qt {

/// Paints slips of one page. All is black on white, so that any printer shows it.
class DipingeSchedina {
public:
    /// Takes    pittore, pagina   outlive it
    DipingeSchedina(QPainter& pittore, double nPerMm, const PaginaSchedine& pagina, const QString& sGioco);

    /// The frame and the heading of a slip.
    /// Takes    nPosto     on the page, from 0
    ///          nSchedina  its number among all, from 1
    void Dipingi(std::int32_t nPosto, std::int64_t nSchedina, std::int64_t nTotale) const;

    /// A panel: the number of its column, and the numbers 1 to 90 with the column's own marked.
    /// Takes    aNumeri   what is not from 1 to 90 marks nothing
    void DipingiPannello(std::int32_t nPosto, std::int32_t nPannello, std::int64_t nColonna,
                         std::span<const std::uint8_t> aNumeri) const;

    /// The line at the foot of the page: file and page.
    void DipingiPiede(const FoglioMm& foglio, const QString& sFile, std::int64_t nPagina,
                      std::int64_t nPagine) const;

private:
    [[nodiscard]] QRectF Punti(const RettangoloMm& rettangolo) const;
    [[nodiscard]] QFont Carattere(double nAltezzaMm, bool bGrassetto) const;
    void DipingiGriglia(std::int32_t nPosto, std::int32_t nPannello) const;

    QPainter& m_Pittore;
    double m_nPerMm;
    const PaginaSchedine& m_Pagina;
    QString m_sGioco;
    QFont m_Titolo;
    QFont m_Piccolo;
    QFont m_Numero;
    QFont m_Segnato;
};

} // namespace ordavel::qt
