// VistaGriglia.hpp - the grid of conditions: number and kind stay above, the labels to the left, the rest scrolls.
//
// It scrolls by whole conditions, and follows the state of the grid both ways: which condition is the leftmost, how many
// are seen as a whole, how wide they are and which is highlighted. What is written into the grid itself is shown at the
// next aggiorna(), which the owner calls whenever the event loop has nothing to do.
//
// It takes for itself the one place of a view at the states of Controlli().GrdCond, and none at LabColoreColSel.

#pragma once

#include "qt/Legami.hpp"
#include "qt/ModelloGriglia.hpp"

#include <QTableView>

namespace ordavel::qt {

class AngoloGriglia;
class ContoVivo;
class TestataGriglia;

class VistaGriglia : public QTableView {
    Q_OBJECT

public:
    /// Takes    componente    outlives it
    ///          segnalatore   where failures are shown; outlives it
    VistaGriglia(Ordavel& componente, Segnalatore& segnalatore, QWidget* padre = nullptr);
    VistaGriglia(const VistaGriglia&) = delete;
    VistaGriglia& operator=(const VistaGriglia&) = delete;
    ~VistaGriglia() override;

    /// Shows what was written into the grid since; costs nothing when nothing was.
    void aggiorna();

    /// Shows what each condition cuts, as a count tells it.
    void segui(const ContoVivo& conto);

    [[nodiscard]] ModelloGriglia& modello() noexcept { return m_Modello; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// A typed letter goes to the next condition whose kind begins with it.
    void keyboardSearch(const QString& sTesto) override;

Q_SIGNALS:
    /// The selected condition is to be edited (double click, F2, Enter), deleted (Del); an empty one is to be put in front
    /// of it (Ins). A menu for it is asked for by customContextMenuRequested, in coordinates of the viewport, without
    /// any policy being set.
    void modificaChiesta();
    void eliminaChiesta();
    void inserisciChiesta();
    /// The user has selected a condition.
    void condizioneScelta(int nCondizione);

protected:
    void currentChanged(const QModelIndex& corrente, const QModelIndex& precedente) override;
    QModelIndex moveCursor(CursorAction azione, Qt::KeyboardModifiers tasti) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void updateGeometries() override;

private:
    void preparaTestate();
    void legaStati();
    void poniLarghezze();
    void tieniPrimaColonna();
    void poniAltezze();
    void seguiCorrente();
    void seguiPrimaColonna();
    void notaScorrimento();
    void mostraEvidenziata();
    void entra(int nCondizione);
    void scegliDaTestata(int nCondizione);
    void chiediMenu(const QPoint& posto);
    [[nodiscard]] int altezzaRiga(int nRiga) const;
    [[nodiscard]] int altezzaMinimaParametri() const;
    [[nodiscard]] int colonneIntere() const;
    [[nodiscard]] int fine(int nColonna, bool bTutte) const;

    Ordavel& m_Componente;
    VistaCondizioni& m_Stato;
    Legami m_Legami;
    ModelloGriglia m_Modello;
    TestataGriglia* m_Testata;
    AngoloGriglia* m_Angolo;
    bool m_bSegue = false; ///< the logic has moved something, not the user
    bool m_bTasti = false; ///< a key is being obeyed
};

} // namespace ordavel::qt
