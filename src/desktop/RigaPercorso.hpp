// RigaPercorso.hpp - a path in a form: a box to write it in and a button to look for it.

#pragma once

#include <QString>
#include <QWidget>

class QHBoxLayout;
class QLineEdit;
class QPushButton;

namespace ordavel::desktop {

class RigaPercorso : public QWidget {
    Q_OBJECT

public:
    /// Takes    sNome      object name of the box; the button has it behind "Sfoglia"
    ///          sChiCosa   what is chosen, for who cannot see the form
    RigaPercorso(const QString& sNome, const QString& sChiCosa, QWidget* padre);

    [[nodiscard]] QString Path() const;
    void Poni(const QString& sPath);
    [[nodiscard]] QLineEdit* Casella() const noexcept { return m_Casella; }

    /// One more button at the end of the row.
    QPushButton* AggiungiPulsante(const QString& sNome, const QString& sTesto, const QString& sChiCosa);

Q_SIGNALS:
    void sfoglia();
    void cambiato();

private:
    QHBoxLayout* m_Riga;
    QLineEdit* m_Casella;
};

} // namespace ordavel::desktop
