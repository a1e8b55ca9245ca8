// VistaSpunte.hpp - a control array of check boxes as a grid of them, and the frames of points that most dialogs have.

#pragma once

#include "editor/SerieSpunte.hpp"
#include "qt/Legami.hpp"

#include <QString>
#include <QWidget>

#include <vector>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QGridLayout;

namespace ordavel {
class DialogoLista;
} // namespace ordavel

namespace ordavel::qt {

/// One check box for each value of a series, several in a line. Boxes that come and go, or hide, come and go here.
class VistaSpunte : public QWidget {
    Q_OBJECT

public:
    /// How many boxes stand in a line.
    static constexpr int kPerRiga = 7;

    /// Takes    legami   binds as long as it lives; its dialog owns the series
    ///          sNome    name of the array, "ChkPunti": the box of 3 is "ChkPunti3"
    ///          sLetto   what is read out in front of the value, "Punti"
    VistaSpunte(Legami& legami, SerieSpunte& serie, const QString& sNome, const QString& sLetto);

    /// The box of a value; null where there is none.
    [[nodiscard]] QCheckBox* Casella(std::int32_t nValore) const;

private:
    void Riallinea();
    void Aggancia(std::int32_t nValore);
    QCheckBox* NuovaSpunta(std::int32_t nValore);

    QPointer<Legami> m_Legami;
    SerieSpunte& m_Serie;
    QString m_sLetto;
    QGridLayout* m_Griglia;
    std::vector<QCheckBox*> m_aCaselle; ///< by value, from the first one on; never fewer than there were
};

/// The row "Quadro Rec." of a recovery group.
QComboBox* AggiungiQuadroRec(Legami& legami, Combo& combo, QFormLayout* modulo);

/// Adds the frames "Punti" and "Recupero" of a dialog of boxes, side by side.
/// Takes    punti, recupero   what stands below the boxes of each frame; null for nothing
void AggiungiPuntiERecupero(Legami& legami, DialogoLista& dialogo, QBoxLayout* sotto,
                            QWidget* punti = nullptr, QWidget* recupero = nullptr);

} // namespace ordavel::qt
