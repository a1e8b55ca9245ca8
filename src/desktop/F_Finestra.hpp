// F_Finestra.hpp - the window of the program: the component in its middle, menus, title, recent systems, printing.

#pragma once

#include "desktop/CartellaLavoro.hpp"
#include "desktop/Impostazioni.hpp"
#include "desktop/SistemiRecenti.hpp"
#include "desktop/StampaSk.hpp"
#include "qt/Legami.hpp"
#include "qt/PiattaformaQt.hpp"

#include <QList>
#include <QMainWindow>

#include <functional>
#include <memory>

class QAction;
class QMenu;
class QMimeData;

namespace ordavel::qt {
class OrdavelWidget;
} // namespace ordavel::qt

namespace ordavel::desktop {

class ArchivioImpostazioni;

class F_Finestra : public QMainWindow {
    Q_OBJECT

public:
    /// Takes    archivio   where settings are kept; outlives the window
    explicit F_Finestra(ArchivioImpostazioni& archivio);
    ~F_Finestra() override;

    [[nodiscard]] qt::OrdavelWidget& Componente() const noexcept { return *m_Ordavel; }
    [[nodiscard]] const SistemiRecenti& Recenti() const noexcept { return m_Recenti; }

    /// Opens a system, after the question about unsaved changes.
    /// Gives    whether it was loaded; a file that is missing is told, and drops out of the recent ones
    bool Apri(const QString& sFile);

    /// Tells what is wrong with the settings, if anything is.
    void MostraGuasto();

protected:
    void closeEvent(QCloseEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

private:
    enum class eChiusura { salva, nonSalvare, annulla };

    void CreaMenu();
    void CreaMenuFile();
    void CreaMenuStampa(QMenu* menu);
    void CreaMenuAiuto();
    QAction* NuovaAzione(QMenu* menu, const QString& sNome, const QString& sTesto,
                         const std::function<void()>& azione);
    void RiempiRecenti();
    void Riprendi();
    void UsaImpostazioni(const Impostazioni& impostazioni);
    [[nodiscard]] Impostazioni PresentiImpostazioni() const;
    void Conserva();
    void SistemaCambiato();
    void CorsaCambiata(bool bInCorso);
    void Avvisa(const QString& sTesto);
    [[nodiscard]] QString NomeSistema() const;

    [[nodiscard]] bool PuoChiudersi();
    /// Would anything be lost? Some edits do not count as a change for the component, such as an empty row that was put
    /// in or a run of conditions that was deleted; they can be undone, and so they are told.
    [[nodiscard]] bool DaSalvare() const;
    [[nodiscard]] eChiusura ChiediChiusura();
    [[nodiscard]] bool Salva();
    void ChiediInterruzione();

    void Stampa(eStampa come, const QString& sGioco);
    void ModificaImpostazioni();
    void MostraManuale();
    void MostraInformazioni();

    ArchivioImpostazioni& m_Archivio;
    SistemiRecenti m_Recenti;
    qt::PiattaformaQt m_Piattaforma;
    qt::Legami m_Legami;
    std::unique_ptr<CartellaLavoro> m_Lavoro;
    qt::OrdavelWidget* m_Ordavel;
    QMenu* m_MenuRecenti = nullptr;
    QList<QAction*> m_aFerme; ///< not during a run
    QString m_sUltimo;        ///< system that was last noted as recent
};

/// The one system file that is dragged; empty when it is something else.
[[nodiscard]] QString SistemaTrascinato(const QMimeData& dati);

/// Moves a window whose title no screen shows to where it is seen.
void RiportaSulloSchermo(QWidget& finestra);

} // namespace ordavel::desktop
