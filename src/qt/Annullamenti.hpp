// Annullamenti.hpp - undo: every change of conditions, numbers and board is a step, whoever made it.
//
// Commands, dialogs and hosts write where they like. Between two of the user's actions the content is compared with
// what it was; where it differs, the difference becomes a step. Thus nothing can be forgotten, and a step holds only
// the rows that changed.

#pragma once

#include "ordavel/ContenutoSistema.hpp"

#include <QUndoStack>

#include <cstdint>

namespace ordavel {
class Ordavel;
} // namespace ordavel

namespace ordavel::qt {

class Annullamenti : public QObject {
    Q_OBJECT

public:
    explicit Annullamenti(Ordavel& ordavel, QObject* padre = nullptr);

    [[nodiscard]] QUndoStack* Pila() noexcept { return &m_Pila; }

    /// Looks whether anything has changed, and makes a step of it. Costs a look at a counter and at the numbers when
    /// nothing has; nothing is done during a run.
    void Controlla();

    /// The system is another one: there is nothing to undo.
    void Ricomincia();

    /// The system is saved as it is.
    void Salvato();

private:
    class Passo;

    void Rimetti(const ContenutoSistema& contenuto, bool bModificato);

    Ordavel& m_Ordavel;
    QUndoStack m_Pila;
    ContenutoSistema m_Noto;
    std::uint64_t m_nRevisione = 0;
};

} // namespace ordavel::qt
