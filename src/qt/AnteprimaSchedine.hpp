// AnteprimaSchedine.hpp - the pages of slips looked at before they are printed.

#pragma once

#include "qt/Legami.hpp"
#include "qt/PiattaformaQt.hpp"

#include <QCache>
#include <QDialog>
#include <QPixmap>

#include <cstdint>

class QComboBox;
class QLabel;
class QPushButton;
class QScrollArea;
class QSpinBox;

namespace ordavel::qt {

class StampaSchedine;

/// Shows one page at a time and keeps a few painted ones: a job may have millions. Page up and page down turn it, once
/// they have scrolled to its end.
class AnteprimaSchedine : public QDialog {
    Q_OBJECT

public:
    /// Painted pages that are kept.
    static constexpr int kPagineTenute = 6;

    /// Takes    stampa   outlives it
    AnteprimaSchedine(StampaSchedine& stampa, QWidget* padre);

    /// Shows a page, from 0; the nearest when there is none.
    void VaiAPagina(std::int64_t nPagina);
    [[nodiscard]] std::int64_t Pagina() const noexcept { return m_nPagina; }
    [[nodiscard]] std::int64_t Pagine() const noexcept { return m_nPagine; }
    [[nodiscard]] qsizetype PagineTenute() const noexcept { return m_aPagine.size(); }

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    [[nodiscard]] QLayout* Comandi();
    QPushButton* NuovoPulsante(const QString& sNome, const QString& sTesto, std::function<void()> azione);
    [[nodiscard]] double PuntiPerMm() const;
    [[nodiscard]] QPixmap Dipinta(std::int64_t nPagina, double nPerMm);
    bool Sfoglia(int nTasto);
    void Aggiorna();

    StampaSchedine& m_Stampa;
    PiattaformaQt m_Piattaforma;
    Legami m_Legami;
    std::int64_t m_nPagine;
    std::int64_t m_nPagina = 0;
    double m_nPerMm = 0; ///< of the pages kept
    QCache<std::int64_t, QPixmap> m_aPagine{kPagineTenute};
    QLabel* m_Foglio;
    QScrollArea* m_Scorre;
    QSpinBox* m_NumeroPagina;
    QComboBox* m_Ingrandimento;
};

} // namespace ordavel::qt
