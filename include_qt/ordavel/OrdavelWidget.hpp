// OrdavelWidget.hpp - the component as a widget: a host places it on a form.
//
//     auto* ordavel = new ordavel::qt::OrdavelWidget(this);
//     ordavel->setPercorsoTemp("/tmp/ordavel");
//     connect(ordavel, &ordavel::qt::OrdavelWidget::stampaSk, this, &Finestra::stampa);
//
// All of it happens in the interface's thread; a development lets events run, and the widget may not be destroyed
// inside one. Everything that is not said here is said of the component itself, in Ordavel.hpp.

#pragma once

#include "ordavel/esporta_qt.hpp"

#include <QWidget>

#include <memory>

class QMenuBar;
class QSettings;
class QUndoStack;

namespace ordavel {
class Ordavel;
} // namespace ordavel

namespace ordavel::qt {

class ORDAVEL_QT_EXPORT OrdavelWidget : public QWidget {
    Q_OBJECT
    // In the order in which they are written.
    Q_PROPERTY(int classe READ classe WRITE setClasse RESET resetClasse NOTIFY classeChanged
                   STORED true DESIGNABLE true)
    Q_PROPERTY(int numeroThreadsSviluppo READ numeroThreadsSviluppo WRITE setNumeroThreadsSviluppo RESET
                   resetNumeroThreadsSviluppo NOTIFY numeroThreadsSviluppoChanged STORED true DESIGNABLE true)
    Q_PROPERTY(QString percorsoSalvaColonne READ percorsoSalvaColonne WRITE setPercorsoSalvaColonne RESET
                   resetPercorsoSalvaColonne NOTIFY percorsoSalvaColonneChanged STORED true DESIGNABLE true)
    Q_PROPERTY(MotoreSviluppo motoreSviluppo READ motoreSviluppo WRITE setMotoreSviluppo RESET
                   resetMotoreSviluppo NOTIFY motoreSviluppoChanged STORED true DESIGNABLE true)
    Q_PROPERTY(QString percorsoTemp READ percorsoTemp WRITE setPercorsoTemp RESET resetPercorsoTemp NOTIFY
                   percorsoTempChanged STORED true DESIGNABLE true)
    Q_PROPERTY(QString dirSistemi READ dirSistemi WRITE setDirSistemi RESET resetDirSistemi NOTIFY
                   dirSistemiChanged STORED true DESIGNABLE true)
    Q_PROPERTY(QString fileBdLotto READ fileBdLotto WRITE setFileBdLotto STORED true DESIGNABLE true)
    Q_PROPERTY(QString fileBd10Lotto READ fileBd10Lotto WRITE setFileBd10Lotto STORED true DESIGNABLE true)
    Q_PROPERTY(
        QString fileBd10Lotto5M READ fileBd10Lotto5M WRITE setFileBd10Lotto5M STORED true DESIGNABLE true)
    Q_PROPERTY(QString fileBdSE READ fileBdSE WRITE setFileBdSE STORED true DESIGNABLE true)
    Q_PROPERTY(QString fileBdWF READ fileBdWF WRITE setFileBdWF STORED true DESIGNABLE true)

public:
    enum class MotoreSviluppo { interno = 1, esterno = 2 };
    Q_ENUM(MotoreSviluppo)

    explicit OrdavelWidget(QWidget* parent = nullptr);
    ~OrdavelWidget() override;

    /// The component under the widget: conditions, controls, runs, files. Whatever is changed there is shown.
    [[nodiscard]] Ordavel& componente() const;

    /// Every change of conditions, numbers and board, one step each; clean when the system is as it was saved.
    [[nodiscard]] QUndoStack* annullamenti() const;

    /// Adds the menus of the component to a host's menu bar: every command of the toolbar, with its keys.
    void riempiMenu(QMenuBar* barra);

    /// Opens a system file that was named elsewhere, after the question about unsaved changes.
    /// Gives    whether it was loaded
    Q_INVOKABLE bool apriFile(const QString& sFile);

    /// Is a run or a text export on its way?
    [[nodiscard]] bool inCorso() const;

    /// In a form editor no folder is made and no box is shown.
    void setModoProgetto(bool bProgetto);

    /// The five settings by their keys, for hosts that keep them themselves. Other keys are left alone.
    /// Gives    whether the store could be read, or written
    bool saveProperties(QSettings& impostazioni) const;
    bool loadProperties(const QSettings& impostazioni);

    [[nodiscard]] int classe() const;
    void setClasse(int nClasse); ///< one that is not in the list changes nothing
    void resetClasse();
    [[nodiscard]] int numeroThreadsSviluppo() const;
    void setNumeroThreadsSviluppo(int nThread);
    void resetNumeroThreadsSviluppo();
    [[nodiscard]] QString percorsoSalvaColonne() const;
    void setPercorsoSalvaColonne(const QString& sPercorso);
    void resetPercorsoSalvaColonne();
    [[nodiscard]] MotoreSviluppo motoreSviluppo() const;
    void setMotoreSviluppo(MotoreSviluppo motore);
    void resetMotoreSviluppo();
    [[nodiscard]] QString percorsoTemp() const;
    void setPercorsoTemp(const QString& sPercorso);
    void resetPercorsoTemp();
    [[nodiscard]] QString dirSistemi() const;
    void setDirSistemi(const QString& sPercorso);
    void resetDirSistemi();
    [[nodiscard]] QString fileBdLotto() const;
    void setFileBdLotto(const QString& sFile);
    [[nodiscard]] QString fileBd10Lotto() const;
    void setFileBd10Lotto(const QString& sFile);
    [[nodiscard]] QString fileBd10Lotto5M() const;
    void setFileBd10Lotto5M(const QString& sFile);
    [[nodiscard]] QString fileBdSE() const;
    void setFileBdSE(const QString& sFile);
    [[nodiscard]] QString fileBdWF() const;
    void setFileBdWF(const QString& sFile);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The button "Condizioni".
    void condizioniPressed();
    /// The button "StampaSk" while there are columns; the host may change the game's name.
    void stampaSk(QString& sTipogioco);

    void classeChanged();
    void numeroThreadsSviluppoChanged();
    void percorsoSalvaColonneChanged();
    void motoreSviluppoChanged();
    void percorsoTempChanged();
    void dirSistemiChanged();

    /// The system's file, or whether it is modified, may have changed: for a title.
    void sistemaCambiato();
    /// A run or an export has begun, or is over.
    void inCorsoChanged(bool bInCorso);

private:
    class Privato;
    std::unique_ptr<Privato> m_p;
};

} // namespace ordavel::qt
