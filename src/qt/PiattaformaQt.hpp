// PiattaformaQt.hpp - the desktop that Qt gives: boxes, dialogs, choice of files, events, pointer, text sizes.

#pragma once

#include "ordavel/Piattaforma.hpp"

#include <QFont>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>
#include <string>

class QWidget;

namespace ordavel::qt {

class VistaDialogo;

class PiattaformaQt : public Piattaforma {
public:
    using FabbricaStatistica = std::function<std::unique_ptr<Statistica>(PiattaformaQt&)>;

    /// Takes    padre        the widget over which boxes and dialogs stand; outlives it, and may be null
    ///          statistica   makes the statistics of a component; empty for none
    explicit PiattaformaQt(QWidget* padre, FabbricaStatistica statistica = {});
    PiattaformaQt(const PiattaformaQt&) = delete;
    PiattaformaQt& operator=(const PiattaformaQt&) = delete;
    ~PiattaformaQt() override;

    /// The answer of the next DialogoApri, which is then not shown: a file that the user has named already.
    void RispondiApri(std::string sFile) { m_sApri = std::move(sFile); }

    /// The font of the grid, in which widths of texts are measured.
    [[nodiscard]] const QFont& Carattere() const noexcept { return m_Carattere; }

    /// Over which window the next box stands: the modal one in front, else one that stays on top, else the padre's.
    [[nodiscard]] QWidget* Davanti() const;

    eRisposta MostraMessaggio(const Messaggio& messaggio) override;
    std::string DialogoApri(const RichiestaFile& richiesta) override;
    std::string DialogoSalva(const RichiestaFile& richiesta) override;
    std::string ScegliCartella(const std::string& sCartella) override;

    /// Fails    438: no view is made for a dialog of that name
    void MostraModale(Dialogo& dialogo) override;
    void MostraAccanto(Dialogo& dialogo) override;

    void Beep() override;
    [[nodiscard]] double LarghezzaTesto(std::string_view sTesto) const override;
    [[nodiscard]] double AltezzaTesto(std::string_view sTesto) const override;
    [[nodiscard]] std::unique_ptr<Statistica> CreaStatistica() override;
    void LasciaEventi() override;
    void PuntatoreOccupato(bool bOccupato) override;
    [[nodiscard]] float SecondiDaMezzanotte() override;

private:
    [[nodiscard]] std::string ChiediFile(const RichiestaFile& richiesta, bool bSalva);

    QWidget* m_Padre;
    FabbricaStatistica m_FabbricaStatistica;
    QFont m_Carattere; ///< of the grid: column widths are measured in it
    std::string m_sApri;
    std::map<std::string, QString, std::less<>> m_aCartelle; ///< last folder of each extension
    std::map<const Dialogo*, QPointer<VistaDialogo>> m_aAccanto;
};

} // namespace ordavel::qt
