// F_Progress_vista.cpp - the window of the progress of a text export.

#include "qt/F_Progress_vista.hpp"

#include "qt/Disposizione.hpp"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QProgressBar>
#include <QPushButton>

namespace ordavel::qt {

namespace {

constexpr int kCaratteri = 50;

} // namespace

F_ProgressVista::F_ProgressVista(F_Progress& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre), m_Progress(dialogo)
{
    auto* tutto = new QVBoxLayout(this);
    auto* barra = new QProgressBar(this);
    Nomina(barra, "ProgBarXP1", "Avanzamento");
    barra->setMinimumWidth(kCaratteri * fontMetrics().averageCharWidth());
    legami().collega(dialogo.ProgBarXP1, barra);
    tutto->addWidget(barra);
    QPushButton* annulla = NuovoPulsante("Annulla", "&ANNULLA");
    legami().Al(annulla, &QPushButton::clicked, [this] { m_Progress.Annulla(); });
    tutto->addWidget(annulla, 0, Qt::AlignRight);
}

void F_ProgressVista::Annulla()
{
    legami().Protetto([this] { m_Progress.Annulla(); });
}

void F_ProgressVista::reject()
{
    if (Finita()) {
        return VistaDialogo::reject();
    }
    Annulla();
}

void F_ProgressVista::closeEvent(QCloseEvent* evento)
{
    if (Finita()) {
        return VistaDialogo::closeEvent(evento);
    }
    evento->ignore();
    Annulla();
}

} // namespace ordavel::qt
