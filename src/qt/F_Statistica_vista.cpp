// F_Statistica_vista.cpp - the window of a statistic.

#include "qt/F_Statistica_vista.hpp"

#include "core/ModNumeri.hpp"
#include "qt/GraficoBarre.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTreeWidget>

#include <algorithm>

namespace ordavel::qt {

namespace {

/// How wide the list of latest draws may make itself.
constexpr int kLettereUltime = 60;

QString Numeri(const std::vector<std::uint8_t>& aNumeri)
{
    QString sTesto;
    for (const std::uint8_t nNumero : aNumeri) {
        sTesto += (sTesto.isEmpty() ? "" : " ") + Testo(Formatta00(nNumero));
    }
    return sTesto;
}

ContenutoGrafico Contenuto(const F_Statistica& dialogo)
{
    const EsitoStatistica& esito = dialogo.Esito.Valore();
    ContenutoGrafico contenuto;
    for (const BarraStatistica& barra : esito.aBarre) {
        contenuto.aBarre.push_back({.sValori = Testo(TestoValori(barra)),
                                    .sQuota = Testo(TestoQuota(barra.nQuota)),
                                    .sTesto = Testo(TestoBarra(barra, esito.aUltime.size())),
                                    .nQuota = barra.nQuota,
                                    .nQuotaUltime = barra.nQuotaUltime});
    }
    contenuto.nPostoMedia = dialogo.PostoMedia();
    contenuto.sMedia = Testo(dialogo.LabMedia.Testo.Valore());
    contenuto.sUltime =
        esito.aUltime.empty() ? QString() : QStringLiteral("ultime %1").arg(esito.aUltime.size());
    contenuto.sVuoto = QStringLiteral("Nessuna estrazione");
    return contenuto;
}

} // namespace

F_StatisticaVista::F_StatisticaVista(F_Statistica& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre),
      m_Grafico(new GraficoBarre(this)),
      m_Ultime(new QTreeWidget(this)),
      m_Barra(new QLabel(this))
{
    m_Grafico->setObjectName("Grafico");
    m_Grafico->setAccessibleName("Grafico delle estrazioni");
    m_Barra->setObjectName("LabBarra");
    m_Barra->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* chiudi = NuovoPulsante("Chiudi", "C&HIUDI");
    chiudi->setDefault(true);
    legami().Al(chiudi, &QPushButton::clicked, [this] { reject(); });

    auto* destra = new QVBoxLayout;
    destra->addLayout(Scelte(dialogo));
    destra->addWidget(Ultime(dialogo), 1);
    auto* sopra = new QHBoxLayout;
    sopra->addWidget(m_Grafico, 1);
    sopra->addLayout(destra);
    auto* sotto = new QHBoxLayout;
    sotto->addLayout(Riassunto(dialogo), 1);
    sotto->addWidget(chiudi, 0, Qt::AlignBottom);
    auto* tutto = new QVBoxLayout(this);
    tutto->addLayout(sopra, 1);
    tutto->addWidget(m_Barra);
    tutto->addLayout(sotto);

    legami().Al(m_Grafico, &GraficoBarre::BarraEvidenziata, [this](int nBarra) {
        m_Barra->setText(nBarra < 0 ? QStringLiteral(" ") : m_Grafico->accessibleDescription());
    });
    legami().Segui(dialogo.Esito, this, [this, &dialogo](const EsitoStatistica&) { MostraEsito(dialogo); });
    m_Grafico->setFocus();
    // As large as it likes: by itself a window keeps to two thirds of the screen.
    resize(sizeHint().boundedTo(screen()->availableSize()));
}

QLayout* F_StatisticaVista::Scelte(F_Statistica& dialogo)
{
    auto* scelte = new QFormLayout;
    auto* gioco = new QLabel(this);
    legami().collega(dialogo.LabGioco, gioco);
    scelte->addRow("Gioco:", gioco);
    AggiungiCombo(scelte, "CmbRuota", "&Ruota:", dialogo.CmbRuota);
    AggiungiCombo(scelte, "CmbVariante", "&Parametro:", dialogo.CmbVariante);
    AggiungiCombo(scelte, "CmbUltime", "&Ultime:", dialogo.CmbUltime);
    return scelte;
}

void F_StatisticaVista::AggiungiCombo(QFormLayout* sotto, const QString& sNome, const QString& sEtichetta,
                                      Combo& combo)
{
    auto* widget = new QComboBox(this);
    widget->setObjectName(sNome);
    widget->setAccessibleName(QString(sEtichetta).remove('&').remove(':'));
    legami().collega(combo, widget);
    // Which choices a statistic has does not change while it is looked at.
    if (combo.Visibile.Valore()) {
        sotto->addRow(sEtichetta, widget);
    } else {
        widget->hide();
    }
}

QWidget* F_StatisticaVista::Ultime(F_Statistica& dialogo)
{
    m_Ultime->setObjectName("Ultime");
    m_Ultime->setAccessibleName("Ultime estrazioni");
    m_Ultime->setHeaderLabels({"Estrazione", "Valore", "Numeri"});
    m_Ultime->setRootIsDecorated(false);
    m_Ultime->setUniformRowHeights(true);
    m_Ultime->setAllColumnsShowFocus(true);
    legami().Al(m_Ultime, &QTreeWidget::currentItemChanged,
                [this, &dialogo](QTreeWidgetItem* voce, QTreeWidgetItem*) {
                    const int nRiga = m_Ultime->indexOfTopLevelItem(voce);
                    const auto& aUltime = dialogo.Esito.Valore().aUltime;
                    if (nRiga >= 0 && static_cast<std::size_t>(nRiga) < aUltime.size()) {
                        m_Grafico->Evidenzia(dialogo.BarraDi(aUltime[static_cast<std::size_t>(nRiga)]));
                    }
                });
    return m_Ultime;
}

QLayout* F_StatisticaVista::Riassunto(F_Statistica& dialogo)
{
    struct Riga {
        const char* sNome;
        QString sEtichetta;
        Etichetta& etichetta;
    };
    auto* riassunto = new QFormLayout;
    for (const Riga& riga : {Riga{"LabUsate", "Estrazioni contate:", dialogo.LabUsate},
                             Riga{"LabMedia", "Valore medio:", dialogo.LabMedia},
                             Riga{"LabLimiti", "Minimo e massimo:", dialogo.LabLimiti}}) {
        auto* widget = new QLabel(this);
        widget->setObjectName(riga.sNome);
        widget->setTextInteractionFlags(Qt::TextSelectableByMouse);
        legami().collega(riga.etichetta, widget);
        riassunto->addRow(riga.sEtichetta, widget);
    }
    return riassunto;
}

void F_StatisticaVista::MostraEsito(const F_Statistica& dialogo)
{
    m_Grafico->Mostra(Contenuto(dialogo));
    m_Ultime->clear();
    for (const UltimaEstrazione& ultima : dialogo.Esito.Valore().aUltime) {
        auto* voce = new QTreeWidgetItem(m_Ultime, {QString::number(ultima.nEstrazione),
                                                    QString::number(ultima.nValore), Numeri(ultima.aNumeri)});
        voce->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
        voce->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        voce->setToolTip(2, voce->text(2));
    }
    int nLarga = m_Ultime->verticalScrollBar()->sizeHint().width() + 2 * m_Ultime->frameWidth();
    for (int i = 0; i < m_Ultime->columnCount(); ++i) {
        m_Ultime->resizeColumnToContents(i);
        nLarga += m_Ultime->columnWidth(i);
    }
    // Games of ten and more numbers scroll; fewer are seen whole.
    m_Ultime->setMinimumWidth(std::min(nLarga, kLettereUltime * fontMetrics().averageCharWidth()));
}

} // namespace ordavel::qt
