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

#include <QList>
#include <QStringList>
#include <QWidget>

#include <memory>

class QAbstractItemModel;
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
    Q_PROPERTY(double colonneIntegrali READ ColonneIntegrali STORED false DESIGNABLE false)
    Q_PROPERTY(int quantitaColonne READ QuantitaColonne STORED false DESIGNABLE false)
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
    /// During a run nothing can be undone.
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
    bool loadProperties(QSettings& impostazioni);

    // The folders are reset in a form editor alone: a component that has begun to use one keeps it.

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

    // ---- the members of the component, for who calls by name ----
    //
    // What one fails with is shown as the component's failures are, and it gives 0, false or nothing then. The measures
    // of a column pass their failure on to the caller. A column is its numbers, ascending.

    Q_INVOKABLE QAbstractItemModel* GetGridCond() const; ///< a condition a column, rows as they are shown
    Q_INVOKABLE QStringList GetLbQuadroRec() const;
    Q_INVOKABLE void SetColonnaGrid(int nId);
    Q_INVOKABLE QList<QList<int>> GetColonneSviluppo();
    Q_INVOKABLE QString GetColonnaSviluppo(int nId);
    Q_INVOKABLE QString GetColonnaSviluppoFromFile(int nId, const QString& sFile);
    Q_INVOKABLE QList<int> GetNumeriSel() const; ///< 90 entries, 0 behind the last number
    Q_INVOKABLE int ContaNumeriSel() const;
    Q_INVOKABLE void SelezionaNumero(int nNumero, bool bSelezionato);
    Q_INVOKABLE void InsCondizione(int t, const QString& sParam);
    Q_INVOKABLE void AggiornaProgressSviluppoDll();
    Q_INVOKABLE bool GestSviluppo();
    Q_INVOKABLE bool GestSviluppoDaFileColonne(const QString& sFileColonne);
    Q_INVOKABLE void SelezionaComboMotSviluppo();
    Q_INVOKABLE void SetNum(int nNum, bool bValore);
    Q_INVOKABLE void Deinit();
    Q_INVOKABLE double ColonneIntegrali() const;
    Q_INVOKABLE int QuantitaColonne() const;
    Q_INVOKABLE bool SalvaFileColonne();
    Q_INVOKABLE bool SalvaFileColonneTesto();
    Q_INVOKABLE void RiduciColonne(const QString& sFileCol, int nPuntiRichiesti);
    Q_INVOKABLE void StopRiduciColonne();
    Q_INVOKABLE int GetIdCmbTipoGioco() const;
    Q_INVOKABLE QString GetIdCmbTipoGiocoString() const;
    Q_INVOKABLE bool VerificaCoerenzaLink();
    Q_INVOKABLE bool IsCondizionePresente(const QString& sNome) const;
    Q_INVOKABLE int GetQuantitaColDaEmulareFromGrid() const;
    Q_INVOKABLE void DisegnaNumeriProno();
    Q_INVOKABLE void SetcoloreCasellaNumeri(int nNumero, int nColor, int nForeColor);
    Q_INVOKABLE void AnnullaExport();

    Q_INVOKABLE static int CalcolaBaricentro(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaPonte(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaAmpiezza(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaDistanzaMinima(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaDistanzaMassima(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaConsecutivi(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaInterruzioniPD(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaVorticeDiretto(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaVorticeInverso(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaSimmetrieDirette(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaSimmetrieInverse(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaParalleliDiretti(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaParalleliInversi(int nClasse, const QList<int>& col);
    Q_INVOKABLE static int CalcolaSequenze(int nClasse, const QList<int>& col, const QString& sSeq);
    /// Gives    points, and the longest chain behind them
    Q_INVOKABLE static QList<int> CalcolaPuntiSequenze(int nClasse, const QList<int>& col,
                                                       const QString& sSeq);

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

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Privato;
    std::unique_ptr<Privato> m_p;
};

} // namespace ordavel::qt
