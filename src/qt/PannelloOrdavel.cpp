// PannelloOrdavel.cpp - the panels of the component.

#include "qt/PannelloOrdavel.hpp"

#include "qt/Colori.hpp"
#include "qt/DisposizioneFluida.hpp"

#include <QAction>
#include <QBoxLayout>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include <algorithm>

namespace ordavel::qt {

namespace {

constexpr int kSpazio = 14;
constexpr int kLatoColore = 14;

/// A caption of the system's own with its letter, one that no menu of a host is likely to have.
QString ConMnemonica(std::string_view sDidascalia, char cLettera)
{
    const QString sTesto = Testo(sDidascalia);
    return QString(sTesto).insert(sTesto.indexOf(QLatin1Char(cLettera)), u'&');
}

/// A caption and what it names, side by side and not torn apart.
QWidget* Coppia(const QString& sDidascalia, QWidget* widget, QWidget* padre)
{
    auto* coppia = new QWidget(padre);
    auto* riga = new QHBoxLayout(coppia);
    riga->setContentsMargins(0, 0, 0, 0);
    auto* didascalia = new QLabel(sDidascalia, coppia);
    didascalia->setBuddy(widget);
    riga->addWidget(didascalia);
    riga->addWidget(widget);
    return coppia;
}

QComboBox* NuovaCombo(Combo& combo, const QString& sNome, const QString& sDidascalia, Legami& legami)
{
    auto* widget = new QComboBox;
    widget->setObjectName(sNome);
    widget->setAccessibleName(QString(sDidascalia).remove(u'&'));
    widget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    legami.collega(combo, widget);
    return widget;
}

/// A count in bold, and what it is for who cannot see it.
QLabel* NuovoConto(Etichetta& etichetta, const QString& sNome, const QString& sDidascalia, Legami& legami)
{
    auto* widget = new QLabel;
    QFont carattere = widget->font();
    carattere.setBold(true);
    widget->setFont(carattere);
    widget->setObjectName(sNome);
    widget->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Of a fixed size: a count that changes thirty times a second must not lay the whole window out each time.
    const int nMinimo = widget->fontMetrics().horizontalAdvance("000.000");
    widget->setFixedSize(nMinimo, widget->fontMetrics().height());
    legami.collega(static_cast<Controllo&>(etichetta), widget);
    legami.Segui(etichetta.Testo, widget, [widget, sDidascalia, nMinimo](const std::string& s) {
        widget->setText(Testo(s));
        widget->setAccessibleName(QString(sDidascalia).remove(u':').trimmed() + ": " + Testo(s));
        const int nServe = widget->fontMetrics().horizontalAdvance(widget->text()) + 2;
        if (s.empty() || nServe > widget->width()) {
            widget->setFixedWidth(std::max(nServe, nMinimo));
        }
    });
    return widget;
}

QIcon Campione(Colore nColore)
{
    QPixmap immagine(kLatoColore, kLatoColore);
    immagine.fill(ColoreQt(nColore));
    return immagine;
}

} // namespace

PannelloClasse::PannelloClasse(ControlliOrdavel& controlli, Legami& legami, QWidget* padre) : QWidget(padre)
{
    setObjectName("PanClasse");
    auto* riga = new DisposizioneFluida(kSpazio);
    setLayout(riga);
    struct Voce {
        Combo& combo;
        const char* sNome;
        QString sDidascalia;
    };
    for (const Voce& voce :
         {Voce{controlli.CmbTipoGioco, "CmbTipoGioco", "&Gioco"},
          Voce{controlli.CmbClasse, "CmbClasse", ConMnemonica(kTestoClasse, 'e')},
          Voce{controlli.CmbRid, "CmbRid", ConMnemonica(kTestoRid, 'R')},
          Voce{controlli.CmbMotSviluppo, "CmbMotSviluppo", ConMnemonica(kTestoMotore, 't')}}) {
        riga->addWidget(
            Coppia(voce.sDidascalia, NuovaCombo(voce.combo, voce.sNome, voce.sDidascalia, legami), this));
    }
    auto* garanzia = new QLabel(this);
    garanzia->setObjectName("LabGaranzia");
    legami.collega(controlli.LabGaranzia, garanzia);
    riga->addWidget(garanzia);
}

PannelloConti::PannelloConti(ControlliOrdavel& controlli, Legami& legami, QWidget* padre) : QWidget(padre)
{
    setObjectName("PanBottom");
    auto* riga = new DisposizioneFluida(kSpazio);
    setLayout(riga);
    struct Voce {
        Etichetta& etichetta;
        const char* sNome;
        std::string_view sDidascalia;
    };
    for (const Voce& voce : {Voce{controlli.LabNumSel, "LabNumSel", kTestoNumSel},
                             Voce{controlli.LabIntegrale, "LabIntegrale", kTestoIntegrale},
                             Voce{controlli.LabSviluppate, "LabSviluppate", kTestoSviluppate},
                             Voce{controlli.LabCondizionate, "LabCondizionate", kTestoCondizionate}}) {
        const QString sDidascalia = Testo(voce.sDidascalia);
        riga->addWidget(
            Coppia(sDidascalia, NuovoConto(voce.etichetta, voce.sNome, sDidascalia, legami), this));
    }
    auto* colore = new QToolButton(this);
    colore->setObjectName("LabColoreColSel");
    colore->setAccessibleName("Colore della condizione scelta");
    colore->setToolTip(colore->accessibleName());
    legami.Segui(controlli.LabColoreColSel, colore, [colore](Colore n) { colore->setIcon(Campione(n)); });
    legami.Al(colore, &QToolButton::clicked, [this, &controlli] { ScegliColore(controlli.LabColoreColSel); });
    riga->addWidget(colore);
}

void PannelloConti::ScegliColore(Stato<Colore>& colore)
{
    const QColor scelto =
        QColorDialog::getColor(ColoreQt(colore.Valore()), this, "Colore della condizione scelta");
    if (scelto.isValid()) {
        colore.Poni(ColoreOrdavel(scelto));
        Q_EMIT coloreCambiato();
    }
}

PannelloSviluppo::PannelloSviluppo(ControlliOrdavel& controlli, Legami& legami, QAction* stop, QWidget* padre)
    : QWidget(padre)
{
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    auto* corsa = new QWidget(this);
    corsa->setObjectName("PanSviluppo");
    colonna->addWidget(corsa);
    auto* riga = new QHBoxLayout(corsa);
    riga->setContentsMargins(0, 0, 0, 0);
    auto* messaggio = new QLabel(Testo(kTestoSviluppo), corsa);
    messaggio->setObjectName("PanMsg");
    riga->addWidget(messaggio);
    auto* barra = new QProgressBar(corsa);
    barra->setObjectName("ProgBarXP1");
    barra->setAccessibleName("Avanzamento dello sviluppo");
    riga->addWidget(barra, 1);
    auto* ferma = new QToolButton(corsa);
    ferma->setObjectName("FermaSviluppo");
    ferma->setDefaultAction(stop);
    ferma->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    ferma->setFocusPolicy(Qt::StrongFocus);
    ferma->setAccessibleName("Ferma lo sviluppo");
    riga->addWidget(ferma);
    auto* percentuale = new QProgressBar(this);
    percentuale->setObjectName("PanPerc");
    percentuale->setAccessibleName("Avanzamento della scrittura in testo");
    colonna->addWidget(percentuale);
    legami.collega(controlli.PanSviluppo, corsa);
    legami.collega(controlli.ProgBarXP1, barra);
    legami.collega(controlli.PanPerc, percentuale);
}

} // namespace ordavel::qt
