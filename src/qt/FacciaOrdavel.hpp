// FacciaOrdavel.hpp - what stands behind the widget of the component: the component, its desktop, its face.

#pragma once

#include "ordavel/Ordavel.hpp"
#include "ordavel/OrdavelWidget.hpp"

#include "qt/Annullamenti.hpp"
#include "qt/ComandiOrdavel.hpp"
#include "qt/ContoVivo.hpp"
#include "qt/PiattaformaQt.hpp"

#include <QPointer>

class QBoxLayout;
class QFrame;

namespace ordavel::qt {

class VistaGriglia;

class OrdavelWidget::Privato : public QObject {
    Q_OBJECT

public:
    explicit Privato(OrdavelWidget& widget);

    /// A command of the host's own, or a member that may fail: what it fails with is shown.
    bool Protetto(const std::function<void()>& azione) const { return m_Legami.Protetto(azione); }

    /// Tells of another engine, whether a property, the panel or the settings have chosen it.
    void SegnalaMotore();

    /// Calls a setter of a folder; in a form editor only remembers what was set.
    void PoniPercorso(QString OrdavelWidget::Privato::*sProgetto, bool (Ordavel::*poni)(const std::string&),
                      const QString& sPercorso, void (OrdavelWidget::*cambiato)());
    void AzzeraPercorso(QString OrdavelWidget::Privato::*sProgetto, void (OrdavelWidget::*cambiato)());
    [[nodiscard]] QString Percorso(const QString& sProgetto, const std::string& sVero) const
    {
        return m_bProgetto ? sProgetto : Testo(sVero);
    }

    OrdavelWidget& m_Widget;
    PiattaformaQt m_Piattaforma;
    Ordavel m_Ordavel;
    Legami m_Legami;
    ComandiOrdavel m_Comandi;
    Annullamenti m_Annullamenti;
    ContoVivo m_Conto;
    VistaGriglia* m_Griglia = nullptr;
    bool m_bProgetto = false; ///< in a form editor
    QString m_sTempProgetto;
    QString m_sSalvaProgetto;
    QString m_sSistemiProgetto;

private:
    void Disponi();
    void DisponiGriglia(QBoxLayout* colonna);
    [[nodiscard]] QFrame* NuovoPannelloNumeri();
    void ConfermaNumeri();
    void CollegaEventi();
    void CreaAnnulla();
    void Controlla();
    void SeguiSistema();
    void PropertyChanged(std::string_view sProprieta);

    std::uint32_t m_nSistemi = 0;
    std::uint32_t m_nSalvataggi = 0;
    Tabella<std::uint8_t, 1, kNumeroMassimo>
        m_aNumeriNoti; ///< those that were no change when the selector was shown
    QString m_sFileNoto;
    bool m_bModificatoNoto = false;
    eMotoreSviluppo m_MotoreNoto = eMotoreSviluppo::interno;
    bool m_bCorsaNota = false;
};

} // namespace ordavel::qt
