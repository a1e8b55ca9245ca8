// finestra.cpp - what a window costs a development, and how soon it answers meanwhile.
//
// Develops 90 numbers in class 6 without a screen and in the shown widget, in turn, and prints for each the processor
// seconds of its best run, their ratio, and the longest time that the widget's event loop kept a timer waiting. Nothing
// is asserted. Run it with QT_QPA_PLATFORM=offscreen, or on a screen.

#include "ordavel/Ordavel.hpp"
#include "ordavel/OrdavelWidget.hpp"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <random>
#include <string>

namespace ordavel::qt {
namespace {

constexpr int kVolte = 3;
constexpr int kCondizioni = 40;

/// A desktop that shows nothing and lets nothing run.
class Muta : public Piattaforma {
public:
    eRisposta MostraMessaggio(const Messaggio& messaggio) override
    {
        return messaggio.pulsanti == ePulsanti::siNo ? eRisposta::no : eRisposta::ok;
    }
    std::string DialogoApri(const RichiestaFile& /*richiesta*/) override { return {}; }
    std::string DialogoSalva(const RichiestaFile& /*richiesta*/) override { return {}; }
    std::string ScegliCartella(const std::string& /*sCartella*/) override { return {}; }
    void MostraModale(Dialogo& /*dialogo*/) override {}
    void LasciaEventi() override {}
    void PuntatoreOccupato(bool /*bOccupato*/) override {}
    float SecondiDaMezzanotte() override { return 0; }
};

/// Random numbers of which a column has three at most; all in a link, so that no beginning of a column decides.
void Riempi(Ordavel& sistema)
{
    std::mt19937 caso(1);
    GrigliaCondizioni& griglia = sistema.GetGridCond();
    griglia.Riga(1) = {"LinkOpen", "LinkOpen", "", "", ""};
    for (std::int32_t i = 2; i < kCondizioni + 2; ++i) {
        std::string sNumeri;
        for (int n = 1; n <= kNumeroMassimo; ++n) {
            if (caso() % 4 == 0) {
                sNumeri += (sNumeri.empty() ? "" : "-") + std::string(n < 10 ? "0" : "") + std::to_string(n);
            }
        }
        griglia.Riga(i) = {"Punti Col.", sNumeri, "1", "-", " "};
    }
    griglia.Riga(kCondizioni + 2) = {"LinkClose", "LinkClose", "27-28-29-30", "", ""};
    for (std::int16_t n = 1; n <= kNumeroMassimo; ++n) {
        sistema.SelezionaNumero(n, true);
    }
    sistema.PoniClasse(6);
}

double Sviluppa(Ordavel& sistema)
{
    const std::clock_t nInizio = std::clock();
    sistema.GestSviluppo();
    return static_cast<double>(std::clock() - nInizio) / CLOCKS_PER_SEC;
}

/// Answers the box at the end of a run, and notes how long it was not called.
class Sonda : public QTimer {
public:
    Sonda()
    {
        setTimerType(Qt::PreciseTimer);
        callOnTimeout([this] {
            m_nMassimo = std::max(m_nMassimo, m_Passato.restart());
            if (QWidget* finestra = QApplication::activeModalWidget()) {
                finestra->close();
            }
        });
        m_Passato.start();
        start(1);
    }

    [[nodiscard]] qint64 Massimo() const { return m_nMassimo; }

private:
    QElapsedTimer m_Passato;
    qint64 m_nMassimo = 0;
};

int Misura()
{
    const QTemporaryDir cartella;
    Muta muta;
    Ordavel senza(muta);
    senza.PoniPercorsoTemp(cartella.filePath("senza").toStdString());
    Riempi(senza);
    OrdavelWidget widget;
    widget.setPercorsoTemp(cartella.filePath("con"));
    Riempi(widget.componente());
    widget.show();
    double nSenza = 1e9;
    double nCon = 1e9;
    qint64 nAttesa = 0;
    for (int i = 0; i < kVolte; ++i) {
        nSenza = std::min(nSenza, Sviluppa(senza));
        const Sonda sonda;
        nCon = std::min(nCon, Sviluppa(widget.componente()));
        nAttesa = std::max(nAttesa, sonda.Massimo());
    }
    std::printf("90 numeri, classe 6: %d e %d colonne tenute\n", senza.QuantitaColonne(),
                widget.componente().QuantitaColonne());
    std::printf("senza schermo     %8.3f s\n", nSenza);
    std::printf("nella finestra    %8.3f s   %.3f volte\n", nCon, nCon / nSenza);
    std::printf("attesa piu lunga  %8lld ms\n", static_cast<long long>(nAttesa));
    return senza.QuantitaColonne() == widget.componente().QuantitaColonne() ? 0 : 1;
}

} // namespace
} // namespace ordavel::qt

int main(int nArgomenti, char** aArgomenti)
{
    const QApplication applicazione(nArgomenti, aArgomenti);
    return ordavel::qt::Misura();
}
