// ContoVivo.hpp - the count that follows the user: after each change the system is counted anew, beside the interface.
//
// The owner calls controlla() whenever the event loop has nothing to do; nothing else is needed for the count to follow
// the component. The system is made ready in the interface's thread and counted in one of its own, which is made at the
// first count. A newer change ends the count of the one before.

#pragma once

#include "ordavel/Ordavel.hpp"

#include <QObject>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <memory>
#include <optional>

namespace ordavel::qt {

class ContoVivo : public QObject {
    Q_OBJECT

public:
    /// Takes    componente   outlives it
    explicit ContoVivo(Ordavel& componente, QObject* padre = nullptr);
    ~ContoVivo() override; ///< ends a count on its way within milliseconds

    /// How the next counts are made. At first systems that have to be walked through are, up to a thousand million
    /// columns.
    void poniOpzioni(const OpzioniConteggio& opzioni) { m_Opzioni = opzioni; }

    /// Looks whether the system has changed and, if so, has it counted soon. Costs next to nothing when it has not.
    /// During a run of the component nothing is counted; what it leaves behind is counted when it is over.
    void controlla();

    /// Is a count due or on its way?
    [[nodiscard]] bool occupato() const noexcept { return m_bOccupato; }

Q_SIGNALS:
    /// The system has changed: what was said before holds no longer. `finito` follows, or another `cominciato`.
    void cominciato();
    void stima(const ordavel::ConteggioSistema& conto);
    void esatto(const ordavel::ConteggioSistema& conto);
    /// There is no count, and why.
    void nessuno(const QString& sMotivo);
    /// Nothing more will be said of this system.
    void finito();

private:
    class Filo;

    /// Of what a count depends beside the conditions, and when these were looked at.
    struct Impronta {
        std::uint64_t nRevisione = 0;
        std::int16_t nClasse = 0;
        SegniNumeri numeri;
        std::vector<std::string> aQuadro;

        [[nodiscard]] friend bool operator==(const Impronta&, const Impronta&) = default;
    };

    [[nodiscard]] Impronta impronta() const;
    [[nodiscard]] bool uguale() const;
    [[nodiscard]] bool cambiato();
    void ferma();
    void prepara();
    void consegna();
    [[nodiscard]] QString impedimento() const;
    void occupa(bool bOccupato);
    void rinuncia(const QString& sMotivo);
    void arriva(const ConteggioSistema& conto, bool bUltimo);

    Ordavel& m_Componente;
    OpzioniConteggio m_Opzioni;
    Impronta m_Impronta;
    ContenutoSistema m_Contenuto; ///< of the system that was counted last
    QTimer m_Attesa;
    QTimer m_Guardia;      ///< looks for a run while a count is on its way: a run does not let the loop rest
    bool m_bSporco = true; ///< to be counted whether it has changed or not
    bool m_bFermo = false; ///< a run is on its way
    bool m_bOccupato = false;
    std::unique_ptr<Filo> m_Filo;
};

} // namespace ordavel::qt
