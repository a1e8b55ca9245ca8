// DialoghiProva.hpp - a user at the windows of dialogs: opens one by its menu, fills its widgets, answers its boxes.

#pragma once

#include "ordavel/Ordavel.hpp"
#include "ordavel/OrdavelWidget.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "qt/Legami.hpp"
#include "qt/PiattaformaQt.hpp"
#include "qt/VistaDialogo.hpp"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <ostream>
#include <string_view>

inline void PrintTo(const QString& sTesto, std::ostream* uscita)
{
    *uscita << '"' << sTesto.toStdString() << '"';
}

namespace ordavel::qt::prove {

/// A control of a window, by its name. It fails the test when there is none.
template <typename W = QWidget> W& Trova(const QWidget& finestra, const QString& sNome)
{
    auto* widget = finestra.findChild<W*>(sNome);
    if (widget == nullptr) {
        throw std::runtime_error("manca il widget " + sNome.toStdString());
    }
    return *widget;
}

/// A click where a box or a button is sure to take it.
inline void Clicca(const QWidget& finestra, const QString& sNome)
{
    auto& bottone = Trova<QAbstractButton>(finestra, sNome);
    QTest::mouseClick(&bottone, Qt::LeftButton, {}, QPoint(bottone.height() / 2, bottone.height() / 2));
}

/// A mnemonic that presses a button of the window, which is shown pressed for a moment; then the window is gone.
inline void MnemonicaChiude(VistaDialogo& vista, Qt::Key tasto)
{
    QTest::keyClick(&vista, tasto, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !vista.isVisible(); }));
}

/// Text typed in a box, in place of what is there.
inline void Scrivi(const QWidget& finestra, const QString& sNome, const QString& sTesto)
{
    auto& casella = Trova<QLineEdit>(finestra, sNome);
    casella.setFocus();
    casella.selectAll();
    QTest::keyClick(&casella, Qt::Key_Delete);
    QTest::keyClicks(&casella, sTesto);
}

/// The entry of a combo, looked for with the arrows.
inline void Scegli(const QWidget& finestra, const QString& sNome, const QString& sVoce)
{
    auto& combo = Trova<QComboBox>(finestra, sNome);
    QTest::keyClick(&combo, Qt::Key_Home);
    for (int i = 0; i < combo.count() && combo.currentText() != sVoce; ++i) {
        QTest::keyClick(&combo, Qt::Key_Down);
    }
    EXPECT_EQ(combo.currentText(), sVoce) << sNome.toStdString();
}

/// What the controls of a window show, by their names; what is hidden shows nothing.
inline std::map<QString, QString> Mostrato(const QWidget& finestra)
{
    std::map<QString, QString> aMostrati;
    for (const QWidget* widget : finestra.findChildren<QWidget*>()) {
        QString& sValore = aMostrati[widget->objectName()];
        if (!widget->isVisibleTo(&finestra)) {
            continue;
        }
        if (const auto* bottone = qobject_cast<const QAbstractButton*>(widget)) {
            sValore = bottone->isChecked() ? "X" : "";
        } else if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
            sValore = combo->currentText();
        } else if (const auto* casella = qobject_cast<const QLineEdit*>(widget)) {
            sValore = casella->text();
        }
        if (!sValore.isEmpty() && !widget->isEnabled()) {
            sValore += " (disabilitato)";
        }
    }
    return aMostrati;
}

/// The controls that the keyboard may come to, visible now.
inline QList<QWidget*> DaTastiera(const QWidget& finestra)
{
    QList<QWidget*> aWidget;
    for (QWidget* widget : finestra.findChildren<QWidget*>()) {
        if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            aWidget.push_back(widget);
        }
    }
    return aWidget;
}

inline QString Identita(const QWidget& widget)
{
    return QString("%1 %2").arg(widget.metaObject()->className(), widget.objectName());
}

/// The controls that the keyboard may come to and that are read out without a name, or that have none for tests.
inline QStringList SenzaNome(QWidget& finestra)
{
    QStringList aSenza;
    for (QWidget* widget : DaTastiera(finestra)) {
        QAccessibleInterface* interfaccia = QAccessible::queryAccessibleInterface(widget);
        const bool bLetto = interfaccia != nullptr && !interfaccia->text(QAccessible::Name).isEmpty();
        if (!bLetto || widget->objectName().isEmpty()) {
            aSenza << Identita(*widget);
        }
    }
    return aSenza;
}

/// The controls that Tab never comes to. One of a group of radio buttons stands for the others.
inline QStringList NonRaggiunti(QWidget& finestra)
{
    const QList<QWidget*> aTutti = DaTastiera(finestra);
    QList<QObject*> aRaggiunti;
    for (qsizetype i = 0; i <= aTutti.size(); ++i) {
        QWidget* fuoco = finestra.focusWidget();
        aRaggiunti.push_back(fuoco);
        const auto* bottone = qobject_cast<QAbstractButton*>(fuoco);
        if (bottone != nullptr && bottone->group() != nullptr) {
            aRaggiunti.push_back(bottone->group());
        }
        QTest::keyClick(fuoco == nullptr ? &finestra : fuoco, Qt::Key_Tab);
    }
    QStringList aMancati;
    for (QWidget* widget : aTutti) {
        const auto* bottone = qobject_cast<QAbstractButton*>(widget);
        const bool bGruppo =
            bottone != nullptr && bottone->group() != nullptr && aRaggiunti.contains(bottone->group());
        if (widget->isEnabled() && !bGruppo && !aRaggiunti.contains(widget)) {
            aMancati << Identita(*widget);
        }
    }
    return aMancati;
}

/// The letters that two captions of a window share as mnemonics.
inline QString MnemonicheDoppie(const QWidget& finestra)
{
    QString sViste;
    QString sDoppie;
    for (const QWidget* widget : finestra.findChildren<QWidget*>()) {
        const QString sTesto = widget->isVisible() ? widget->property("text").toString() : QString();
        const auto nPosto = sTesto.indexOf('&');
        if (nPosto < 0 || qobject_cast<const QLineEdit*>(widget) != nullptr) {
            continue;
        }
        const QChar cLettera = sTesto.at(nPosto + 1).toUpper();
        (sViste.contains(cLettera) ? sDoppie : sViste) += cLettera;
    }
    return sDoppie;
}

/// Does something that a message box answers, and closes it with Enter.
/// Gives    its text; empty when none came
inline QString Avviso(const std::function<void()>& azione)
{
    QString sTesto;
    QTimer::singleShot(0, [&] {
        if (auto* scatola = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            sTesto = scatola->text();
            QTest::keyClick(scatola, Qt::Key_Return);
        }
    });
    azione();
    QCoreApplication::processEvents();
    return sTesto;
}

/// A component of "Lotto" in class 5 over Qt's desktop, with the numbers 1 to 20 selected.
class DialoghiProva : public testing::Test {
protected:
    using Azione = std::function<void(VistaDialogo&)>;

    DialoghiProva()
    {
        for (std::int16_t n = 1; n <= 20; ++n) {
            sistema.SelezionaNumero(n, true);
        }
    }

    /// Opens the dialog of a kind by its button or its entry of the menu: the one place where that is done.
    void Premi(TipoCondizione tipo) { widget.findChild<QAction*>(Testo(TrovaTipo(tipo)->sMenu))->trigger(); }

    /// Opens a window and does something in it. One that is still open afterwards is closed by Esc.
    static void Dentro(const std::function<void()>& apre, const Azione& azione)
    {
        bool bAperta = false;
        QTimer::singleShot(0, [&] {
            const QPointer<VistaDialogo> vista =
                qobject_cast<VistaDialogo*>(QApplication::activeModalWidget());
            if (!vista) {
                return;
            }
            bAperta = true;
            EXPECT_TRUE(QTest::qWaitForWindowActive(vista));
            EseguiConGuardia(*vista, azione);
            if (vista && vista->isVisible()) {
                QTest::keyClick(vista, Qt::Key_Escape);
            }
        });
        apre();
        QCoreApplication::processEvents();
        EXPECT_TRUE(bAperta) << "nessuna finestra";
    }

    void Apri(TipoCondizione tipo, const Azione& azione)
    {
        Dentro([&] { Premi(tipo); }, azione);
    }

    /// The dialog of a row that is there.
    void Modifica(std::int32_t nRiga, const Azione& azione)
    {
        sistema.SetColonnaGrid(nRiga);
        Dentro([&] { sistema.ModificaCondizione(); }, azione);
    }

    [[nodiscard]] const Condizione& Riga(std::int32_t nRiga) { return sistema.GetGridCond().Riga(nRiga); }

    PiattaformaQt piattaforma{nullptr}; ///< for windows of the tests' own
    OrdavelWidget widget;
    Ordavel& sistema = widget.componente();

private:
    /// A box that nobody waits for must not hold the tests up; what fails here must not cross the event loop.
    static void EseguiConGuardia(VistaDialogo& vista, const Azione& azione)
    {
        QTimer guardia;
        guardia.setInterval(5000);
        QObject::connect(&guardia, &QTimer::timeout, &guardia, [] {
            if (auto* scatola = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ADD_FAILURE() << "scatola inattesa: " << scatola->text().toStdString();
                scatola->close();
            }
        });
        guardia.start();
        try {
            azione(vista);
        } catch (const std::exception& errore) {
            ADD_FAILURE() << errore.what();
        }
    }
};

} // namespace ordavel::qt::prove
