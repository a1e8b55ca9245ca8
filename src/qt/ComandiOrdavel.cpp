// ComandiOrdavel.cpp - the commands of the component as actions.

#include "qt/ComandiOrdavel.hpp"

#include "ordavel/Ordavel.hpp"

#include "qt/Icone.hpp"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QWidget>

#include <algorithm>
#include <array>

namespace ordavel::qt {

namespace {

struct RigaTasto {
    const char* sChiave;
    const char* sTasto;
};

struct RigaMenu {
    const char* sMenu;   ///< caption of the menu; empty for the one above
    const char* sChiave; ///< key of a command; empty for a line between groups
};

// clang-format off
constexpr std::array kTasti = std::to_array<RigaTasto>({
    {"Open",               "Ctrl+O"},
    {"Save",               "Ctrl+S"},
    {"SalvaConNome",       "Ctrl+Shift+S"},
    {"New",                "Ctrl+N"},
    {"SelNumeri",          "F4"},
    {"Condizioni",         "Ctrl+R"},
    {"puntimassivi",       "Ctrl+M"},
    {"GestCondizioni",     "Ctrl+Shift+O"},
    {"SalvaCondizioni",    "Ctrl+Shift+C"},
    {"Inserisci",          "Ctrl+I"},
    {"Edit",               "Ctrl+E"},
    {"Delete",             "Ctrl+Del"},
    {"DelCondizioni",      "Ctrl+Shift+Del"},
    {"QuadroRecuperi",     "F6"},
    {"LinkOpen",           "Ctrl+K"},
    {"LinkClose",          "Ctrl+Shift+K"},
    {"SviluppaCond",       "F5"},
    {"FiltraSvilPrec",     "Shift+F5"},
    {"FiltraFileCol",      "Ctrl+F5"},
    {"Stop",               "Ctrl+."},
    {"VisualizzaColonne",  "F7"},
    {"DecrGrid",           "Ctrl+-"},
    {"IncrGrid",           "Ctrl++"},
    {"Naviga",             "F8"},
    {"EffettoCondizioni",  "F9"},
    {"ConfrontoCondSuCol", "Ctrl+F9"},
    {"Riduzione",          "F12"},
    {"StampaSk",           "Ctrl+P"},
});

constexpr std::array kMenu = std::to_array<RigaMenu>({
    {"&Sistema",    "New"},
    {"",            "Open"},
    {"",            ""},
    {"",            "Save"},
    {"",            "SalvaConNome"},
    {"",            ""},
    {"",            "StampaSk"},
    {"&Modifica",   "Annulla"},
    {"",            "Ripeti"},
    {"",            ""},
    {"",            "SelNumeri"},
    {"",            ""},
    {"",            "Inserisci"},
    {"",            "Edit"},
    {"",            "Delete"},
    {"",            "DelCondizioni"},
    {"",            "puntimassivi"},
    {"&Condizioni", "+Condizioni"},
    {"",            "Condizioni"},
    {"",            ""},
    {"",            "LinkOpen"},
    {"",            "LinkClose"},
    {"",            "QuadroRecuperi"},
    {"",            ""},
    {"",            "InsCondizioni"},
    {"",            "SalvaCondizioni"},
    {"Svi&luppo",   "SviluppaCond"},
    {"",            "FiltraSvilPrec"},
    {"",            "FiltraFileCol"},
    {"",            "Stop"},
    {"C&olonne",    "VisualizzaColonne"},
    {"",            "SalvaColonne"},
    {"",            "SalvaColonneTesto"},
    {"",            ""},
    {"",            "EffettoCondizioni"},
    {"",            "ConfrontoCondSuCol"},
    {"",            "Riduzione"},
    {"&Vista",      "IncrGrid"},
    {"",            "DecrGrid"},
    {"",            "Naviga"},
});
// clang-format on

/// In front of which buttons of the toolbar a line stands.
constexpr std::array kGruppi = {"SelNumeri",         "Inserisci", "QuadroRecuperi", "SviluppaCond",
                                "VisualizzaColonne", "DecrGrid",  "Naviga",         "StampaSk"};

QKeySequence TastoDi(const QString& sChiave)
{
    const auto* riga = std::find_if(kTasti.begin(), kTasti.end(),
                                    [&](const RigaTasto& r) { return sChiave == QLatin1String(r.sChiave); });
    return riga == kTasti.end() ? QKeySequence() : QKeySequence(QLatin1String(riga->sTasto));
}

QString Suggerimento(const QString& sTesto, const QKeySequence& tasto)
{
    return tasto.isEmpty() ? sTesto
                           : QString("%1 (%2)").arg(sTesto, tasto.toString(QKeySequence::NativeText));
}

/// The letters that come first in words make the better mnemonics.
QList<qsizetype> PostiMnemonico(const QString& sTesto)
{
    QList<qsizetype> aInizi;
    QList<qsizetype> aAltri;
    for (qsizetype i = 0; i < sTesto.size(); ++i) {
        if (sTesto.at(i).isLetterOrNumber()) {
            (i == 0 || sTesto.at(i - 1) == u' ' ? aInizi : aAltri).append(i);
        }
    }
    return aInizi + aAltri;
}

/// Every entry of a menu gets its letter.
void DaiMnemonici(const QMenu& menu)
{
    QStringList aTesti;
    for (const QAction* azione : menu.actions()) {
        aTesti.append(azione->text().remove(u'&'));
    }
    aTesti = ConMnemonici(aTesti);
    for (qsizetype i = 0; i < aTesti.size(); ++i) {
        menu.actions().at(i)->setText(aTesti.at(i));
    }
}

} // namespace

QStringList ConMnemonici(const QStringList& aTesti)
{
    QString sUsate;
    QStringList aFatti;
    for (const QString& sTesto : aTesti) {
        const QList<qsizetype> aPosti = PostiMnemonico(sTesto);
        const auto posto = std::find_if(aPosti.begin(), aPosti.end(), [&](qsizetype i) {
            return !sUsate.contains(sTesto.at(i), Qt::CaseInsensitive);
        });
        aFatti.append(sTesto);
        if (posto != aPosti.end()) {
            sUsate.append(sTesto.at(*posto));
            aFatti.last().insert(*posto, u'&');
        }
    }
    return aFatti;
}

ComandiOrdavel::ComandiOrdavel(Ordavel& ordavel, Legami& legami, QWidget* padre)
    : QObject(padre), m_Ordavel(ordavel), m_Padre(padre)
{
    for (PulsanteStrumento& pulsante : ordavel.Controlli().Toolbar2.aPulsanti) {
        CreaPulsante(pulsante, legami);
    }
}

QAction* ComandiOrdavel::NuovaAzione(const QString& sChiave, const QString& sTesto)
{
    auto* azione = new QAction(sTesto, m_Padre);
    const QKeySequence tasto = TastoDi(sChiave);
    azione->setObjectName(sChiave);
    azione->setShortcut(tasto);
    azione->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    azione->setToolTip(Suggerimento(QString(sTesto).remove(u'&'), tasto));
    m_Padre->addAction(azione);
    m_aAzioni.insert(sChiave, azione);
    return azione;
}

void ComandiOrdavel::CreaPulsante(PulsanteStrumento& pulsante, Legami& legami)
{
    const QString sChiave = Testo(pulsante.sChiave);
    QAction* azione = NuovaAzione(sChiave, Testo(pulsante.sSuggerimento));
    azione->setIcon(Icona(Testo(pulsante.sImmagine)));
    azione->setCheckable(pulsante.bTiene);
    legami.Segui(pulsante.Abilitato, azione, [azione](bool b) { azione->setEnabled(b); });
    legami.Segui(pulsante.Premuto, azione, [azione](bool b) { azione->setChecked(b); });
    legami.Al(azione, &QAction::triggered, [this, sChiave, &pulsante](bool bPremuto) {
        if (pulsante.bTiene) {
            pulsante.Premuto.Poni(bPremuto);
        }
        Esegui(sChiave, false);
    });
    if (pulsante.aMenu.empty()) {
        return;
    }
    auto* menu = new QMenu(azione->text(), m_Padre);
    menu->setObjectName("Menu" + sChiave);
    menu->setAccessibleName(azione->text());
    m_aMenu.insert(sChiave, menu);
    QStringList aTesti;
    for (const VoceMenu& voce : pulsante.aMenu) {
        aTesti.append(Testo(voce.sTesto));
    }
    aTesti = ConMnemonici(aTesti);
    for (std::size_t i = 0; i < pulsante.aMenu.size(); ++i) {
        CreaVoce(pulsante.aMenu[i], menu, aTesti.at(static_cast<qsizetype>(i)), legami);
    }
}

void ComandiOrdavel::CreaVoce(VoceMenu& voce, QMenu* menu, const QString& sTesto, Legami& legami)
{
    const QString sChiave = Testo(voce.sChiave);
    QAction* azione = NuovaAzione(sChiave, sTesto);
    legami.Segui(voce.Abilitato, azione, [azione](bool b) { azione->setEnabled(b); });
    legami.Al(azione, &QAction::triggered, [this, sChiave] { Esegui(sChiave, true); });
    menu->addAction(azione);
}

void ComandiOrdavel::Esegui(const QString& sChiave, bool bVoce)
{
    Q_EMIT inizia(sChiave);
    if (bVoce) {
        m_Ordavel.Toolbar2_ButtonMenuClick(Testo(sChiave));
    } else {
        m_Ordavel.Toolbar2_ButtonClick(Testo(sChiave));
    }
    Q_EMIT eseguito(sChiave);
}

void ComandiOrdavel::RiempiBarra(QToolBar* barra) const
{
    for (const PulsanteStrumento& pulsante : m_Ordavel.Controlli().Toolbar2.aPulsanti) {
        const QString sChiave = Testo(pulsante.sChiave);
        if (std::find(kGruppi.begin(), kGruppi.end(), pulsante.sChiave) != kGruppi.end()) {
            barra->addSeparator();
        }
        QAction* azione = Azione(sChiave);
        barra->addAction(azione);
        auto* tasto = qobject_cast<QToolButton*>(barra->widgetForAction(azione));
        tasto->setObjectName("Tasto" + sChiave);
        tasto->setAccessibleName(azione->text());
        tasto->setFocusPolicy(Qt::TabFocus);
        if (QMenu* menu = Menu(sChiave)) {
            tasto->setMenu(menu);
            tasto->setPopupMode(QToolButton::MenuButtonPopup);
        }
    }
}

void ComandiOrdavel::RiempiMenu(QMenuBar* barra) const
{
    QMenu* menu = nullptr;
    for (const RigaMenu& riga : kMenu) {
        const QString sChiave = QString::fromLatin1(riga.sChiave);
        if (*riga.sMenu != '\0') {
            menu = barra->addMenu(QString::fromLatin1(riga.sMenu));
        }
        if (menu == nullptr) {
            continue; // the table begins with a menu
        }
        if (sChiave.isEmpty()) {
            menu->addSeparator();
        } else if (sChiave.startsWith(u'+')) {
            QMenu* sotto = Menu(sChiave.mid(1));
            menu->addMenu(sotto)->setText("&Nuova condizione");
        } else {
            menu->addAction(Azione(sChiave));
        }
    }
    for (const QAction* titolo : barra->actions()) {
        DaiMnemonici(*titolo->menu());
    }
}

} // namespace ordavel::qt
