// F_QuadroRecuperi_vista.cpp - the window of the recovery board.

#include "qt/F_QuadroRecuperi_vista.hpp"

#include "qt/Disposizione.hpp"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace ordavel::qt {

namespace {

constexpr std::int32_t kGruppiBlocco = kGruppiRecupero / 2;
constexpr int kCifre = 4;
enum eColonna : int { kGruppo, kQuante, kMinimo, kMassimo };

/// A label that stands out while rows name its group.
void CollegaConRilievo(Legami& legami, Etichetta& quante, QLabel* gruppo, QLabel* widget)
{
    legami.collega(static_cast<Controllo&>(quante), widget);
    legami.Segui(quante.Testo, widget, [gruppo, widget](const std::string& sQuante) {
        widget->setText(Testo(sQuante));
        QFont carattere = widget->font();
        carattere.setBold(!sQuante.empty());
        widget->setFont(carattere);
        gruppo->setFont(carattere);
    });
}

void AggiungiCasella(Legami& legami, CasellaTesto& casella, const QString& sNome, const QString& sLetto,
                     QGridLayout* griglia, int nRiga, eColonna colonna)
{
    QLineEdit* widget = NuovaCasella(kCifre);
    Nomina(widget, sNome, sLetto);
    widget->setAlignment(Qt::AlignRight);
    legami.collega(casella, widget);
    griglia->addWidget(widget, nRiga, colonna);
}

void AggiungiGruppo(Legami& legami, F_QuadroRecuperi::Linea& linea, QGridLayout* griglia, int nRiga)
{
    const QString sGruppo = Testo(linea.LabQuadroRec.Testo.Valore());
    auto* gruppo = new QLabel;
    legami.collega(linea.LabQuadroRec, gruppo);
    griglia->addWidget(gruppo, nRiga, kGruppo, Qt::AlignRight | Qt::AlignVCenter);
    auto* quante = new QLabel;
    quante->setObjectName("LabRecInseriti" + sGruppo);
    quante->setAccessibleDescription("Righe del gruppo " + sGruppo);
    quante->setMinimumWidth(LarghezzaCifre(*quante, kCifre));
    quante->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    CollegaConRilievo(legami, linea.LabRecInseriti, gruppo, quante);
    griglia->addWidget(quante, nRiga, kQuante);
    AggiungiCasella(legami, linea.TxtMin, "TxtMin" + sGruppo, "Gruppo " + sGruppo + ", minimo", griglia,
                    nRiga, kMinimo);
    AggiungiCasella(legami, linea.TxtMax, "TxtMax" + sGruppo, "Gruppo " + sGruppo + ", massimo", griglia,
                    nRiga, kMassimo);
}

} // namespace

F_QuadroRecuperiVista::F_QuadroRecuperiVista(F_QuadroRecuperi& dialogo, PiattaformaQt& piattaforma,
                                             QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    tutto->addLayout(Affianca({NuovoBlocco(dialogo, 1), NuovoBlocco(dialogo, kGruppiBlocco + 1)}));
    tutto->addStretch();
    AggiungiPulsanti(dialogo, tutto);
}

QGroupBox* F_QuadroRecuperiVista::NuovoBlocco(F_QuadroRecuperi& dialogo, std::int32_t nPrimo)
{
    QGridLayout* griglia = NuovaGriglia();
    int nColonna = kQuante;
    for (const char* sTestata : {"QT.", "Min", "Max"}) {
        griglia->addWidget(new QLabel(sTestata), 0, nColonna++, Qt::AlignRight);
    }
    for (std::int32_t i = 0; i < kGruppiBlocco; ++i) {
        AggiungiGruppo(legami(), dialogo.Gruppo(nPrimo + i), griglia, i + 1);
    }
    return NuovoRiquadro(QString("Gruppi da %1 a %2").arg(nPrimo).arg(nPrimo + kGruppiBlocco - 1), griglia);
}

} // namespace ordavel::qt
