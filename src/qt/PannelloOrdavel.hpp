// PannelloOrdavel.hpp - the panels of the component: game and class, counts, the progress of a run.

#pragma once

#include "ordavel/ControlliOrdavel.hpp"

#include "qt/Legami.hpp"

#include <QWidget>

class QAction;

namespace ordavel::qt {

/// Game, class, reduction and engine, and what is guaranteed.
class PannelloClasse : public QWidget {
    Q_OBJECT

public:
    PannelloClasse(ControlliOrdavel& controlli, Legami& legami, QWidget* padre = nullptr);
};

/// Numbers, columns of the whole system, examined and kept; the colour of the highlight.
class PannelloConti : public QWidget {
    Q_OBJECT

public:
    PannelloConti(ControlliOrdavel& controlli, Legami& legami, QWidget* padre = nullptr);

Q_SIGNALS:
    /// The highlight has another colour.
    void coloreCambiato();

private:
    void ScegliColore(Stato<Colore>& colore);
};

/// What is seen of a run while it lasts, with a way to stop it; and of a text export.
class PannelloSviluppo : public QWidget {
    Q_OBJECT

public:
    /// Takes    stop   the command that stops a run
    PannelloSviluppo(ControlliOrdavel& controlli, Legami& legami, QAction* stop, QWidget* padre = nullptr);
};

} // namespace ordavel::qt
