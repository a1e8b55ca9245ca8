// Disposizione.hpp - how views lay their widgets out: titled frames, labelled rows, names for who cannot see.
//
//     QFormLayout* modulo = NuovoModulo();
//     auto* passo = AggiungiRiga(modulo, "&Passo", "CmbPasso", new QComboBox);
//     sotto->addWidget(NuovoRiquadro("Punti", modulo));
//
// A caption carries its mnemonic as "&"; the name that is read out is the caption without it. Widgets come into the
// tab order as they are added, so a view adds them as they are read.

#pragma once

#include <QFormLayout>
#include <QLabel>
#include <QString>

#include <initializer_list>

class QAbstractButton;
class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QLayout;
class QLineEdit;
class QWidget;

namespace ordavel::qt {

/// A caption without its mnemonic.
[[nodiscard]] QString SenzaMnemonica(QString sTesto);

/// Names a widget for tests and style (its control's name), and for who cannot see it.
void Nomina(QWidget* widget, const QString& sNome, const QString& sLetto);

/// How wide a text of so many digits is in the widget's font.
[[nodiscard]] int LarghezzaCifre(const QWidget& widget, int nCifre);

/// A titled frame around a layout, which it owns.
[[nodiscard]] QGroupBox* NuovoRiquadro(const QString& sTitolo, QLayout* dentro);

/// Layouts of the same look everywhere: rows of label and field; a grid.
[[nodiscard]] QFormLayout* NuovoModulo();
[[nodiscard]] QGridLayout* NuovaGriglia();

/// Widgets side by side, at the same height.
[[nodiscard]] QBoxLayout* Affianca(std::initializer_list<QWidget*> aWidget);

/// A box for so many digits, no wider.
[[nodiscard]] QLineEdit* NuovaCasella(int nCifre);

/// Gives a box with a number beside it room for two digits, so that boxes below each other stand in columns.
void PareggiaDueCifre(QAbstractButton* bottone);

/// A label for a field, with its mnemonic; clicks and keys go to the field. The field is named after it, too, unless
/// it has a name already.
[[nodiscard]] QLabel* NuovaEtichetta(const QString& sTesto, QWidget* campo);

/// Adds a row of label and field.
/// Takes    sEtichetta   caption with its mnemonic, "&Passo"
///          sNome        object name of the field, "CmbPasso"
/// Gives    the field
template <typename W>
W* AggiungiRiga(QFormLayout* modulo, const QString& sEtichetta, const QString& sNome, W* campo)
{
    Nomina(campo, sNome, SenzaMnemonica(sEtichetta));
    modulo->addRow(NuovaEtichetta(sEtichetta, campo), campo);
    return campo;
}

/// The same with another name to be read out, where the caption alone says too little.
template <typename W>
W* AggiungiRiga(QFormLayout* modulo, const QString& sEtichetta, const QString& sNome, const QString& sLetto,
                W* campo)
{
    AggiungiRiga(modulo, sEtichetta, sNome, campo);
    Nomina(campo, sNome, sLetto);
    return campo;
}

} // namespace ordavel::qt
