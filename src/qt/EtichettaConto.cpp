// EtichettaConto.cpp - the line under the grid.

#include "qt/EtichettaConto.hpp"

#include "qt/ContoVivo.hpp"
#include "qt/TestoConto.hpp"

namespace ordavel::qt {

EtichettaConto::EtichettaConto(QWidget* padre) : QLabel(padre)
{
    setObjectName("LabConto");
    setTextFormat(Qt::PlainText);
    // A long reason makes no window wider; the tool tip has it whole.
    setMinimumWidth(1);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    mostra(QStringLiteral("Passano:"));
}

void EtichettaConto::segui(ContoVivo& conto)
{
    const auto mostraConto = [this](const ConteggioSistema& c) {
        mostra(TestoPassano(c), TestoPassanoIntero(c));
    };
    connect(&conto, &ContoVivo::cominciato, this, [this] { occupa(true); });
    connect(&conto, &ContoVivo::stima, this, mostraConto);
    connect(&conto, &ContoVivo::esatto, this, mostraConto);
    connect(&conto, &ContoVivo::nessuno, this,
            [this](const QString& sMotivo) { mostra(QStringLiteral("Nessun conto: ") + sMotivo, sMotivo); });
    connect(&conto, &ContoVivo::finito, this, [this] { occupa(false); });
}

void EtichettaConto::mostra(const QString& sTesto, const QString& sSuggerimento)
{
    m_sConto = sTesto;
    setToolTip(sSuggerimento);
    setAccessibleDescription(sSuggerimento);
    scrivi();
}

void EtichettaConto::occupa(bool bOccupato)
{
    m_bOccupato = bOccupato;
    scrivi();
}

void EtichettaConto::scrivi()
{
    setText(m_bOccupato ? m_sConto + QStringLiteral(" …") : m_sConto);
    setAccessibleName(m_bOccupato ? m_sConto + QStringLiteral(", conto in corso") : m_sConto);
}

} // namespace ordavel::qt
