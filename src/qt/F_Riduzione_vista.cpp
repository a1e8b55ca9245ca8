// F_Riduzione_vista.cpp - the window of the reduction of a file.

#include "qt/F_Riduzione_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/EtichettaPercorso.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QProgressBar>
#include <QPushButton>

namespace ordavel::qt {

namespace {

/// A label is read out as what it shows; what that is comes behind.
void NominaValore(QLabel* widget, const QString& sNome, const QString& sCheCosa)
{
    widget->setObjectName(sNome);
    widget->setAccessibleDescription(sCheCosa);
}

/// A row that only shows.
void AggiungiValore(Legami& legami, Etichetta& etichetta, const QString& sTesto, const QString& sNome,
                    QLabel* widget, QFormLayout* modulo)
{
    NominaValore(widget, sNome, sTesto);
    legami.collega(etichetta, widget);
    modulo->addRow(sTesto, widget);
}

} // namespace

F_RiduzioneVista::F_RiduzioneVista(F_Riduzione& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    QFormLayout* modulo = NuovoModulo();
    modulo->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    tutto->addLayout(modulo);
    AggiungiFile(dialogo, modulo);
    AggiungiScelte(dialogo, modulo);
    tutto->addStretch();
    AggiungiAvanzamento(dialogo, tutto);
    AggiungiComandi(dialogo, tutto);
    legami().collega(dialogo.Timer1);
}

void F_RiduzioneVista::AggiungiFile(F_Riduzione& dialogo, QFormLayout* modulo)
{
    auto* file = new EtichettaPercorso;
    NominaValore(file, "labFile", "File colonne");
    legami().collega(dialogo.labFile, file);
    QPushButton* sfoglia = NuovoPulsante("Command1", "&Sfoglia…");
    sfoglia->setAccessibleName("Sfoglia i file di colonne");
    legami().collega(static_cast<Controllo&>(dialogo.Command1), sfoglia);
    legami().Al(sfoglia, &QPushButton::clicked, [&dialogo] { dialogo.Command1_Click(); });
    QBoxLayout* riga = Affianca({file, sfoglia});
    riga->setStretch(0, 1);
    modulo->addRow("File colonne", riga);
    AggiungiValore(legami(), dialogo.LabColonne, "Colonne", "LabColonne", new QLabel, modulo);
    AggiungiValore(legami(), dialogo.LabClasse, "Classe", "LabClasse", new QLabel, modulo);
}

void F_RiduzioneVista::AggiungiScelte(F_Riduzione& dialogo, QFormLayout* modulo)
{
    legami().collega(dialogo.cmbRiduzione, AggiungiRiga(modulo, "&Riduzione", "cmbRiduzione", new QComboBox));
    AggiungiValore(legami(), dialogo.LabFileRidotto, "File ridotto", "LabFileRidotto", new EtichettaPercorso,
                   modulo);
    AggiungiValore(legami(), dialogo.LabColonneRid, "Col. ridotte", "LabColonneRid", new QLabel, modulo);
    legami().collega(dialogo.CmbMotoreRid,
                     AggiungiRiga(modulo, "&Motore riduzione", "CmbMotoreRid", new QComboBox));
}

void F_RiduzioneVista::AggiungiAvanzamento(F_Riduzione& dialogo, QBoxLayout* sotto)
{
    auto* fase = new QLabel(this);
    NominaValore(fase, "LabInfo", "Fase");
    legami().collega(dialogo.LabInfo, fase);
    sotto->addWidget(fase);
    auto* barra = new QProgressBar(this);
    Nomina(barra, "PanPerc", "Avanzamento");
    legami().collega(dialogo.PanPerc, barra);
    sotto->addWidget(barra);
}

void F_RiduzioneVista::AggiungiComandi(F_Riduzione& dialogo, QBoxLayout* sotto)
{
    QPushButton* esegui = NuovoComando(dialogo, 0, 0);
    esegui->setDefault(true);
    QBoxLayout* riga = Affianca({esegui, NuovoComando(dialogo, 1, 1)});
    riga->insertStretch(0);
    sotto->addLayout(riga);
}

QPushButton* F_RiduzioneVista::NuovoComando(F_Riduzione& dialogo, std::size_t nIndice, qsizetype nMnemonica)
{
    Pulsante& stato = dialogo.XPButton1.at(nIndice);
    QPushButton* pulsante = NuovoPulsante("XPButton1" + QString::number(nIndice), {});
    legami().collega(static_cast<Controllo&>(stato), pulsante);
    legami().Segui(stato.Testo, pulsante, [pulsante, nMnemonica](const std::string& sTesto) {
        pulsante->setText(Testo(sTesto).insert(nMnemonica, '&'));
        pulsante->setAccessibleName(Testo(sTesto));
    });
    legami().Al(pulsante, &QPushButton::clicked, [&dialogo, nIndice] { dialogo.XPButton1_Click(nIndice); });
    return pulsante;
}

} // namespace ordavel::qt
