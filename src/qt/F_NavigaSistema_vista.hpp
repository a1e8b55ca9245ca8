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
    ~F_NavigaSistemaVista() override;

private:
    /// What the user has opened, and where he looks.
    struct Aspetto {
        QSet<QString> aAperti;
        int nInVista = 0;
    };

    void Ricorda();
    void Ripristina();

    QTreeWidget* m_Albero;
    QString m_sCorrente;              ///< key of the node that is current, or was until the tree was emptied
    std::optional<Aspetto> m_Aspetto; ///< of the tree that is being made anew
};

} // namespace ordavel::qt
