// Legami.hpp - the binding of controls' state to widgets, both ways.
//
// A view makes one Legami and binds its widgets through it:
//
//     m_Legami.collega(dialogo.TxtMin, m_TxtMin);
//
// From then on the widget shows the state and what the user does goes back into it; enabled and visible follow.
// A state rings only when its value really changes, so that both directions come to rest by themselves. The binding
// ends with the Legami or with the widget, whichever goes first; the state may also go before either, as long as the
// Legami is cut at that moment (Taglia). What an owner's rule fails with inside a user's action is shown as a failure
// of the view and goes no further: no exception crosses an event loop.

#pragma once

#include "ordavel/Controlli.hpp"
#include "ordavel/Piattaforma.hpp"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <string>
#include <type_traits>
#include <utility>

class QAbstractButton;
class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QSlider;
class QTabBar;
class QTreeWidget;
class QWidget;

namespace ordavel::qt {

/// UTF-8 of the logic, UTF-16 of the widgets.
[[nodiscard]] inline QString Testo(std::string_view sTesto)
{
    return QString::fromUtf8(sTesto.data(), static_cast<qsizetype>(sTesto.size()));
}
[[nodiscard]] inline std::string Testo(const QString& sTesto)
{
    return sTesto.toStdString();
}

class Legami : public QObject {
    Q_OBJECT

public:
    /// Takes    segnalatore   where failures are shown; outlives it
    ///          sOrigine      the name under which they are shown, "F_PuntiSuPeso"
    Legami(Segnalatore& segnalatore, std::string sOrigine, QObject* padre = nullptr);

    /// Ends all bindings at once: nothing bound is touched any more.
    void Taglia();
    [[nodiscard]] bool Tagliati() const noexcept { return m_bTagliati; }

    /// Runs something that the user asked for; what it fails with is shown.
    /// Gives    whether it came to its end
    bool Protetto(const std::function<void()>& azione) const;

    /// Enabled and visible.
    void collega(Controllo& controllo, QWidget* widget);
    void collega(Etichetta& etichetta, QLabel* widget);
    void collega(Pulsante& pulsante, QAbstractButton* widget);
    void collega(CasellaTesto& casella, QLineEdit* widget);
    void collega(Spunta& spunta, QAbstractButton* widget);
    void collega(Barra& barra, QProgressBar* widget);
    void collega(Cursore& cursore, QSlider* widget);
    void collega(Combo& combo, QComboBox* widget);
    /// Entries as radio buttons: the button of an entry has its place from 0 as its id. The group's owner makes the
    /// buttons.
    void collega(Combo& combo, QButtonGroup* gruppo);
    /// Entries as the tabs of pages.
    void collega(Combo& combo, QTabBar* widget);
    void collega(Lista& lista, QListWidget* widget);
    void collega(ListaMultipla& lista, QListWidget* widget);
    /// Nodes by their keys; a click on one calls alClic with its key.
    void collega(Albero& albero, QTreeWidget* widget, const std::function<void(std::string)>& alClic);
    /// Ticks as long as events run.
    void collega(Temporizzatore& temporizzatore);

    /// Shows a value now and at each change, as long as the widget lives.
    template <typename T, typename Mostra> void Segui(Stato<T>& stato, QObject* widget, Mostra mostra)
    {
        mostra(stato.Valore());
        stato.Ascolta([qui = QPointer<Legami>(this), chi = QPointer<QObject>(widget), &stato, mostra] {
            if (qui && !qui->m_bTagliati && chi) {
                mostra(stato.Valore());
            }
        });
    }

    /// Does something at a widget's signal, protected; what wants no arguments gets none.
    template <typename Mittente, typename Segnale, typename Azione>
    void Al(Mittente* mittente, Segnale segnale, Azione azione)
    {
        connect(mittente, segnale, this, [this, azione](auto... aArgomenti) -> void {
            Protetto([&] { Chiama(azione, aArgomenti...); });
        });
    }

private:
    /// With the arguments, or without any. A function of its own, since Clang 14 looks at both ways of a choice that is
    /// made inside a lambda.
    template <typename Azione, typename... Argomenti>
    static void Chiama(const Azione& azione, const Argomenti&... aArgomenti)
    {
        if constexpr (std::is_invocable_v<const Azione&, const Argomenti&...>) {
            azione(aArgomenti...);
        } else {
            azione();
        }
    }

    Segnalatore& m_Segnalatore;
    std::string m_sOrigine;
    bool m_bTagliati = false;
};

} // namespace ordavel::qt
