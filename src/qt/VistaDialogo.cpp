// VistaDialogo.cpp - the window of a dialog.

#include "qt/VistaDialogo.hpp"

#include "qt/PiattaformaQt.hpp"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QPushButton>

namespace ordavel::qt {

VistaDialogo::VistaDialogo(Dialogo& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : QDialog(padre), m_Dialogo(&dialogo), m_Piattaforma(piattaforma), m_Legami(piattaforma, dialogo.sNome)
{
    TagliaAltre();
    setObjectName(Testo(dialogo.sNome));
    setWindowTitle(dialogo.sTitolo.empty() ? QStringLiteral("Ordavel") : Testo(dialogo.sTitolo));
    setAccessibleName(windowTitle());
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowStaysOnTopHint, dialogo.bSempreDavanti);
    // Not through Segui, which would show the window of a dialog that is already visible before it is laid out.
    dialogo.Visibile.Ascolta([qui = QPointer<VistaDialogo>(this)] {
        if (qui && qui->m_Dialogo != nullptr) {
            qui->SegueVisibile(qui->m_Dialogo->Visibile.Valore());
        }
    });
    dialogo.AlTermine([qui = QPointer<VistaDialogo>(this)] {
        if (qui) {
            qui->DialogoFinito();
        }
    });
}

VistaDialogo::~VistaDialogo() = default;

/// A dialog tells one window of its changes and of its end: an older one would never hear of them.
void VistaDialogo::TagliaAltre()
{
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
        auto* altra = qobject_cast<VistaDialogo*>(finestra);
        if (altra != nullptr && altra != this && altra->m_Dialogo == m_Dialogo) {
            altra->DialogoFinito();
        }
    }
}

void VistaDialogo::SegueVisibile(bool bVisibile)
{
    if (!bVisibile) {
        hide();
    }
}

/// The controls are gone: nothing may reach them, neither by a key nor by the focus that a hidden window loses.
void VistaDialogo::DialogoFinito()
{
    m_Dialogo = nullptr;
    m_Legami.Taglia();
    hide();
    deleteLater();
}

void VistaDialogo::reject()
{
    if (m_Dialogo == nullptr) {
        return QDialog::reject();
    }
    if (m_Dialogo->PuoChiudersi()) {
        m_Dialogo->Visibile.Poni(false);
    }
}

void VistaDialogo::closeEvent(QCloseEvent* evento)
{
    if (m_Dialogo != nullptr && !m_Dialogo->PuoChiudersi()) {
        return evento->ignore();
    }
    evento->accept();
    if (m_Dialogo != nullptr) {
        m_Dialogo->Visibile.Poni(false);
    }
}

QPushButton* VistaDialogo::NuovoPulsante(const QString& sNome, const QString& sTesto)
{
    auto* pulsante = new QPushButton(sTesto, this);
    pulsante->setObjectName(sNome);
    pulsante->setAccessibleName(QString(sTesto).remove('&'));
    pulsante->setAutoDefault(false);
    return pulsante;
}

void VistaDialogo::AggiungiPulsanti(DialogoConferma& dialogo, QBoxLayout* sotto, bool bStatistica)
{
    auto* riga = new QHBoxLayout;
    const auto aggiungi = [&](const char* sNome, const char* sTesto, ePulsanteDialogo quale) {
        QPushButton* pulsante = NuovoPulsante(sNome, sTesto);
        m_Legami.Al(pulsante, &QPushButton::clicked, [&dialogo, quale] { dialogo.Premi(quale); });
        riga->addWidget(pulsante);
        return pulsante;
    };
    if (bStatistica) {
        aggiungi("Statistica", "&STATISTICA", ePulsanteDialogo::statistica);
    }
    riga->addStretch();
    aggiungi("Conferma", "&CONFERMA", ePulsanteDialogo::conferma)->setDefault(true);
    aggiungi("Chiudi", "C&HIUDI", ePulsanteDialogo::chiudi);
    sotto->addLayout(riga);
}

} // namespace ordavel::qt
