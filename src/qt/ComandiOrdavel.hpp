// ComandiOrdavel.hpp - the commands of the component as actions: a toolbar, menus and keys out of one table.

#pragma once

#include "qt/Legami.hpp"

#include <QAction>
#include <QHash>
#include <QList>

class QMenu;
class QMenuBar;
class QToolBar;

namespace ordavel {
class Ordavel;
} // namespace ordavel

namespace ordavel::qt {

class ComandiOrdavel : public QObject {
    Q_OBJECT

public:
    /// Makes an action for every button of the toolbar and every entry of its menus, bound to their state. The actions
    /// belong to `padre`, whose keys they are.
    ComandiOrdavel(Ordavel& ordavel, Legami& legami, QWidget* padre);

    /// The action of a key, as the dispatchers know it; null for an unknown one.
    [[nodiscard]] QAction* Azione(const QString& sChiave) const { return m_aAzioni.value(sChiave); }
    /// The menu of a button; null for one that has none.
    [[nodiscard]] QMenu* Menu(const QString& sChiave) const { return m_aMenu.value(sChiave); }

    /// The buttons in their order, in groups.
    void RiempiBarra(QToolBar* barra) const;

    /// Takes another action among the commands, by its object name.
    void Registra(QAction* azione) { m_aAzioni.insert(azione->objectName(), azione); }

    /// Menus with every command.
    void RiempiMenu(QMenuBar* barra) const;

Q_SIGNALS:
    /// A command is about to begin, and has come to its end.
    void inizia(const QString& sChiave);
    void eseguito(const QString& sChiave);

private:
    void CreaPulsante(PulsanteStrumento& pulsante, Legami& legami);
    void CreaVoce(VoceMenu& voce, QMenu* menu, const QString& sTesto, Legami& legami);
    QAction* NuovaAzione(const QString& sChiave, const QString& sTesto);
    void Esegui(const QString& sChiave, bool bVoce);

    Ordavel& m_Ordavel;
    QWidget* m_Padre;
    QHash<QString, QAction*> m_aAzioni;
    QHash<QString, QMenu*> m_aMenu;
};

/// Gives each text a mnemonic of its own, as long as letters last: "Peso" -> "&Peso".
[[nodiscard]] QStringList ConMnemonici(const QStringList& aTesti);

} // namespace ordavel::qt
