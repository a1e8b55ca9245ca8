// F_NavigaSistema_vista.hpp - the window of the conditions as a tree.

#pragma once

#include "analisi/F_NavigaSistema.hpp"
#include "qt/VistaSoloChiudi.hpp"

#include <QSet>
#include <QString>

#include <optional>

class QTreeWidget;

namespace ordavel::qt {

class F_NavigaSistemaVista : public VistaSoloChiudi {
    Q_OBJECT

public:
    F_NavigaSistemaVista(F_NavigaSistema& dialogo, PiattaformaQt& piattaforma, QWidget* padre);

private:
    /// What the user has opened, and where he looks.
    struct Aspetto {
        QSet<QString> aAperti;
        QString sCorrente;
        int nInVista = 0;
    };

    void Ricorda();
    void Ripristina();

    QTreeWidget* m_Albero;
    std::optional<Aspetto> m_Aspetto; ///< of the tree that is being made anew
};

} // namespace ordavel::qt
