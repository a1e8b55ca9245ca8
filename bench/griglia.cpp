// griglia.cpp - how long the grid of conditions takes, full to its last column.
//
// Prints a table, the median and the worst of many times: one frame, one step sideways, one edit until it is painted, a
// change of all widths, and what the live count asks of the interface's thread. Nothing is asserted.

#include "ordavel/Ordavel.hpp"

#include "qt/ContoVivo.hpp"
#include "qt/PiattaformaQt.hpp"
#include "qt/VistaGriglia.hpp"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace ordavel::qt {
namespace {

constexpr int kVolte = 200;

void Riempi(Ordavel& sistema)
{
    for (std::int32_t n = 1; n <= kCondizioniMassime; ++n) {
        sistema.GetGridCond().PoniAltezza(n, eAltezza::normale);
        sistema.GetGridCond().Riga(n) =
            n % 2 == 0
                ? Condizione{"Consecutivi", "C\r\no\r\nn\r\ns\r\ne\r\nc\r\nu\r\nt\r\ni\r\nv\r\ni",
                             "00-01-02-03-04", "-", " "}
                : Condizione{"Punti Col.", "01-02-03-04-05-06-07-08-09-10-11-12-13-14-15-16-17-18-19-20",
                             "00-01-02-03", "04", "1"};
    }
    for (std::int16_t n = 1; n <= 20; ++n) {
        sistema.SelezionaNumero(n, true);
    }
}

void Misura(const char* sCosa, const std::function<void(int)>& azione)
{
    std::vector<double> aTempi;
    for (int i = 0; i < kVolte; ++i) {
        const auto inizio = std::chrono::steady_clock::now();
        azione(i);
        aTempi.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - inizio).count());
    }
    std::sort(aTempi.begin(), aTempi.end());
    std::printf("%-52s %10.1f %10.1f\n", sCosa, aTempi[kVolte / 2], aTempi.back());
}

void MisuraVista(Ordavel& sistema, VistaGriglia& vista)
{
    Misura("un fotogramma", [&](int) { vista.viewport()->repaint(); });
    Misura("la testata", [&](int) { vista.horizontalHeader()->viewport()->repaint(); });
    Misura("un passo di lato, dipinto", [&](int i) {
        vista.horizontalScrollBar()->setValue(7 * i);
        QCoreApplication::processEvents();
    });
    Misura("una cella cambiata, dipinta", [&](int i) {
        sistema.GetGridCond().Riga(1 + i).sPunti = "1-2-3";
        vista.aggiorna();
        QCoreApplication::processEvents();
    });
    Misura("una cella cambiata, da dipingere", [&](int i) {
        sistema.GetGridCond().Riga(1 + i).sPunti = "1-2";
        vista.aggiorna();
    });
    Misura("nulla di cambiato", [&](int) { vista.aggiorna(); });
    Misura("tutte le larghezze, dipinte", [&](int i) {
        sistema.VariaLarghezzaColonne(i % 2 == 0 ? 1 : -1);
        vista.aggiorna();
        QCoreApplication::processEvents();
    });
}

void MisuraConto(Ordavel& sistema)
{
    ContoVivo conto(sistema);
    conto.controlla();
    Misura("conto vivo: nulla di cambiato", [&](int) { conto.controlla(); });
    Misura("conto vivo: forse cambiato, e non lo e'", [&](int) {
        static_cast<void>(sistema.GetGridCond().Riga(1));
        conto.controlla();
    });
    Misura("conto vivo: PreparaConteggio",
           [&](int) { static_cast<void>(sistema.PreparaConteggio().stato.nCondizioni); });
}

void Tabella()
{
    PiattaformaQt piattaforma(nullptr);
    Ordavel sistema(piattaforma);
    Riempi(sistema);
    VistaGriglia vista(sistema, piattaforma);
    vista.resize(1600, 800);
    vista.show();
    QCoreApplication::processEvents();
    std::printf("%-52s %10s %10s\n", "2000 condizioni, microsecondi", "mediana", "massimo");
    MisuraVista(sistema, vista);
    MisuraConto(sistema);
}

} // namespace
} // namespace ordavel::qt

int main(int nArgomenti, char** aArgomenti)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication applicazione(nArgomenti, aArgomenti);
    ordavel::qt::Tabella();
    return 0;
}
