// Legami.cpp - the binding of controls' state to widgets, kind by kind.

#include "qt/Legami.hpp"

#include "core/ModGestore.hpp"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabBar>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>
#include <map>
#include <vector>

namespace ordavel::qt {

namespace {

/// A widget that nobody has hidden is left alone: to show one that has no parent yet would open a window. One that is
/// to be hidden is told so also before it has a parent, which would show it with all its children.
void MostraWidget(QWidget* widget, bool bVisibile)
{
    if (!bVisibile || widget->testAttribute(Qt::WA_WState_ExplicitShowHide)) {
        widget->setVisible(bVisibile);
    }
}

/// Lets only the keys through that a box for figures takes, as long as the box is there.
class FiltroCifre : public QObject {
public:
    FiltroCifre(const Legami& legami, const CasellaTesto& casella, QObject* padre)
        : QObject(padre), m_Legami(&legami), m_Casella(casella)
    {}

    bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override
    {
        if (evento->type() != QEvent::KeyPress || m_Legami.isNull() || m_Legami->Tagliati()) {
            return false;
        }
        const QString sTasto = static_cast<QKeyEvent*>(evento)->text();
        return !sTasto.isEmpty() && sTasto.front().isPrint() && !m_Casella.Accetta(sTasto.front().unicode());
    }

private:
    QPointer<const Legami> m_Legami;
    const CasellaTesto& m_Casella;
};

std::vector<bool> SceltiDi(const QListWidget& lista)
{
    std::vector<bool> aScelte;
    aScelte.reserve(static_cast<std::size_t>(lista.count()));
    for (int i = 0; i < lista.count(); ++i) {
        aScelte.push_back(lista.item(i)->isSelected());
    }
    return aScelte;
}

template <typename Aggiungi> void RiempiVoci(const std::vector<std::string>& aVoci, Aggiungi aggiungi)
{
    for (const std::string& sVoce : aVoci) {
        aggiungi(Testo(sVoce));
    }
}

constexpr int kRuoloChiave = Qt::UserRole;

void RiempiAlbero(const std::vector<NodoAlbero>& aNodi, QTreeWidget& albero)
{
    albero.clear();
    std::map<std::string, QTreeWidgetItem*, std::less<>> aPosti;
    for (const NodoAlbero& nodo : aNodi) {
        const auto padre = aPosti.find(nodo.sPadre);
        auto* voce =
            padre == aPosti.end() ? new QTreeWidgetItem(&albero) : new QTreeWidgetItem(padre->second);
        voce->setText(0, Testo(nodo.sTesto));
        voce->setData(0, kRuoloChiave, Testo(nodo.sChiave));
        voce->setExpanded(nodo.bEspanso);
        aPosti.emplace(nodo.sChiave, voce);
    }
}

} // namespace

Legami::Legami(Segnalatore& segnalatore, std::string sOrigine, QObject* padre)
    : QObject(padre), m_Segnalatore(segnalatore), m_sOrigine(std::move(sOrigine))
{}

void Legami::Taglia()
{
    m_bTagliati = true;
}

bool Legami::Protetto(const std::function<void()>& azione) const
{
    return !m_bTagliati && ConGestore(m_Segnalatore, m_sOrigine, azione);
}

void Legami::collega(Controllo& controllo, QWidget* widget)
{
    Segui(controllo.Abilitato, widget, [widget](bool b) { widget->setEnabled(b); });
    Segui(controllo.Visibile, widget, [widget](bool b) { MostraWidget(widget, b); });
}

void Legami::collega(Etichetta& etichetta, QLabel* widget)
{
    collega(static_cast<Controllo&>(etichetta), widget);
    Segui(etichetta.Testo, widget, [widget](const std::string& s) { widget->setText(Testo(s)); });
    Segui(etichetta.Suggerimento, widget, [widget](const std::string& s) { widget->setToolTip(Testo(s)); });
}

void Legami::collega(Pulsante& pulsante, QAbstractButton* widget)
{
    collega(static_cast<Controllo&>(pulsante), widget);
    Segui(pulsante.Testo, widget, [widget](const std::string& s) { widget->setText(Testo(s)); });
}

void Legami::collega(CasellaTesto& casella, QLineEdit* widget)
{
    collega(static_cast<Controllo&>(casella), widget);
    widget->installEventFilter(new FiltroCifre(*this, casella, widget));
    // A text that is there already is not set again, which would move the cursor.
    Segui(casella.Testo, widget, [widget](const std::string& s) {
        if (widget->text() != Testo(s)) {
            widget->setText(Testo(s));
        }
    });
    Segui(casella.Fuoco, widget, [widget](std::int32_t nVolte) {
        if (nVolte > 0) {
            widget->setFocus();
            widget->selectAll();
        }
    });
    Al(widget, &QLineEdit::textChanged, [&casella](const QString& s) { casella.Testo.Poni(Testo(s)); });
}

void Legami::collega(Spunta& spunta, QAbstractButton* widget)
{
    collega(static_cast<Controllo&>(spunta), widget);
    widget->setCheckable(true);
    Segui(spunta.Segnata, widget, [widget](bool b) { widget->setChecked(b); });
    Al(widget, &QAbstractButton::toggled, [&spunta](bool b) { spunta.Segnata.Poni(b); });
}

void Legami::collega(Barra& barra, QProgressBar* widget)
{
    collega(static_cast<Controllo&>(barra), widget);
    widget->setRange(0, 100);
    Segui(barra.Valore, widget, [widget](std::int32_t n) { widget->setValue(n); });
}

void Legami::collega(Cursore& cursore, QSlider* widget)
{
    collega(static_cast<Controllo&>(cursore), widget);
    // The widget cuts its value to the range of the moment; the state's own comes back when the range does.
    const auto mostra = [widget, &cursore](std::int32_t) {
        const QSignalBlocker muto(widget);
        widget->setRange(cursore.Minimo.Valore(), cursore.Massimo.Valore());
        widget->setValue(cursore.Valore.Valore());
    };
    Segui(cursore.Minimo, widget, mostra);
    Segui(cursore.Massimo, widget, mostra);
    Segui(cursore.Valore, widget, mostra);
    Al(widget, &QSlider::valueChanged, [&cursore](int n) { cursore.Valore.Poni(n); });
}

void Legami::collega(Combo& combo, QComboBox* widget)
{
    collega(static_cast<Controllo&>(combo), widget);
    Segui(combo.Voci, widget, [widget, &combo](const std::vector<std::string>& aVoci) {
        const QSignalBlocker muto(widget);
        widget->clear();
        RiempiVoci(aVoci, [widget](const QString& s) { widget->addItem(s); });
        widget->setCurrentIndex(combo.Indice.Valore());
    });
    Segui(combo.Indice, widget, [widget](std::int32_t n) {
        const QSignalBlocker muto(widget);
        widget->setCurrentIndex(n);
    });
    Al(widget, qOverload<int>(&QComboBox::currentIndexChanged), [&combo](int n) { combo.Indice.Poni(n); });
}

void Legami::collega(Combo& combo, QButtonGroup* gruppo)
{
    Segui(combo.Abilitato, gruppo, [gruppo](bool b) {
        for (QAbstractButton* pulsante : gruppo->buttons()) {
            pulsante->setEnabled(b);
        }
    });
    Segui(combo.Indice, gruppo, [gruppo](std::int32_t n) {
        if (QAbstractButton* pulsante = gruppo->button(n)) {
            pulsante->setChecked(true);
        } else if (QAbstractButton* scelto = gruppo->checkedButton()) {
            gruppo->setExclusive(false);
            scelto->setChecked(false);
            gruppo->setExclusive(true);
        }
    });
    Al(gruppo, &QButtonGroup::idToggled, [&combo](int nId, bool bSegnato) {
        if (bSegnato) {
            combo.Indice.Poni(nId);
        }
    });
}

void Legami::collega(Combo& combo, QTabBar* widget)
{
    collega(static_cast<Controllo&>(combo), widget);
    Segui(combo.Voci, widget, [widget, &combo](const std::vector<std::string>& aVoci) {
        const QSignalBlocker muto(widget);
        while (widget->count() > 0) {
            widget->removeTab(0);
        }
        RiempiVoci(aVoci, [widget](const QString& s) { widget->addTab(s); });
        widget->setCurrentIndex(combo.Indice.Valore());
    });
    Segui(combo.Indice, widget, [widget](std::int32_t n) { widget->setCurrentIndex(n); });
    Al(widget, &QTabBar::currentChanged, [&combo](int n) { combo.Indice.Poni(n); });
}

void Legami::collega(Lista& lista, QListWidget* widget)
{
    collega(static_cast<Controllo&>(lista), widget);
    Segui(lista.Voci, widget, [widget](const std::vector<std::string>& aVoci) {
        const QSignalBlocker muto(widget);
        widget->clear();
        RiempiVoci(aVoci, [widget](const QString& s) { widget->addItem(s); });
    });
}

void Legami::collega(ListaMultipla& lista, QListWidget* widget)
{
    collega(static_cast<Lista&>(lista), widget);
    widget->setSelectionMode(QAbstractItemView::ExtendedSelection);
    const auto mostra = [widget, &lista] {
        const QSignalBlocker muto(widget);
        const std::vector<bool>& aScelte = lista.Scelte.Valore();
        for (int i = 0; i < widget->count(); ++i) {
            const auto nPosto = static_cast<std::size_t>(i);
            widget->item(i)->setSelected(nPosto < aScelte.size() && aScelte[nPosto]);
        }
    };
    Segui(lista.Scelte, widget, [mostra](const std::vector<bool>&) { mostra(); });
    Al(widget, &QListWidget::itemSelectionChanged,
       [&lista, widget] { lista.Scelte.Poni(SceltiDi(*widget)); });
}

void Legami::collega(Albero& albero, QTreeWidget* widget, const std::function<void(std::string)>& alClic)
{
    collega(static_cast<Controllo&>(albero), widget);
    Segui(albero.Nodi, widget,
          [widget](const std::vector<NodoAlbero>& aNodi) { RiempiAlbero(aNodi, *widget); });
    const auto sceglie = [alClic](QTreeWidgetItem* voce, int) {
        alClic(Testo(voce->data(0, kRuoloChiave).toString()));
    };
    Al(widget, &QTreeWidget::itemClicked, sceglie);
    Al(widget, &QTreeWidget::itemActivated, sceglie);
}

void Legami::collega(Temporizzatore& temporizzatore)
{
    auto* orologio = new QTimer(this);
    Segui(temporizzatore.Acceso, orologio, [orologio, &temporizzatore](bool bAcceso) {
        if (bAcceso) {
            orologio->start(temporizzatore.nMillisecondi);
        } else {
            orologio->stop();
        }
    });
    Al(orologio, &QTimer::timeout, [&temporizzatore] {
        if (temporizzatore.scatto) {
            temporizzatore.scatto();
        }
    });
}

} // namespace ordavel::qt
