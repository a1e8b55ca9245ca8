// AnteprimaSchedine.cpp - the pages of slips looked at before they are printed.

#include "qt/AnteprimaSchedine.hpp"

#include "qt/StampaSchedine.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

namespace ordavel::qt {

namespace {

constexpr FoglioMm kFoglio{};
constexpr double kMmPollice = 25.4;

/// How large a page is shown: fitted when nPercento says nothing.
struct Grandezza {
    const char* sTesto;
    int nPercento;
    bool bIntera;
};
constexpr std::array kGrandezze = std::to_array<Grandezza>({
    {"Pagina intera", 0, true},
    {"Larghezza della pagina", 0, false},
    {"75 %", 75, false},
    {"100 %", 100, false},
    {"150 %", 150, false},
    {"200 %", 200, false},
});

} // namespace

AnteprimaSchedine::AnteprimaSchedine(StampaSchedine& stampa, QWidget* padre)
    : QDialog(padre),
      m_Stampa(stampa),
      m_Piattaforma(this),
      m_Legami(m_Piattaforma, "AnteprimaSchedine"),
      m_nPagine(stampa.Pagine(kFoglio)),
      m_Foglio(new QLabel(this)),
      m_Scorre(new QScrollArea(this)),
      m_NumeroPagina(new QSpinBox(this)),
      m_Ingrandimento(new QComboBox(this))
{
    setObjectName("AnteprimaSchedine");
    setWindowTitle("Anteprima schedine - " + stampa.Gioco());
    setAccessibleName(windowTitle());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_Foglio->setAlignment(Qt::AlignCenter);
    m_Foglio->setAccessibleName("Pagina di schedine");
    m_Scorre->setObjectName("Scorre");
    m_Scorre->setAccessibleName("Pagina di schedine");
    m_Scorre->setWidget(m_Foglio);
    m_Scorre->setAlignment(Qt::AlignCenter);
    m_Scorre->installEventFilter(this);
    m_Scorre->setFocus();
    m_Scorre->setBackgroundRole(QPalette::Mid);
    auto* tutto = new QVBoxLayout(this);
    tutto->addLayout(Comandi());
    tutto->addWidget(m_Scorre, 1);
    const int nRiga = fontMetrics().height();
    resize(48 * nRiga, 48 * nRiga);
}

QPushButton* AnteprimaSchedine::NuovoPulsante(const QString& sNome, const QString& sTesto,
                                              std::function<void()> azione)
{
    auto* pulsante = new QPushButton(sTesto, this);
    pulsante->setObjectName(sNome);
    pulsante->setAccessibleName(QString(sTesto).remove('&').remove("..."));
    pulsante->setAutoDefault(false);
    m_Legami.Al(pulsante, &QPushButton::clicked, std::move(azione));
    return pulsante;
}

QLayout* AnteprimaSchedine::Comandi()
{
    m_NumeroPagina->setObjectName("Pagina");
    m_NumeroPagina->setAccessibleName("Pagina");
    m_NumeroPagina->setRange(1, static_cast<int>(std::clamp<std::int64_t>(m_nPagine, 1, INT_MAX)));
    m_NumeroPagina->setKeyboardTracking(false);
    m_Ingrandimento->setObjectName("Ingrandimento");
    m_Ingrandimento->setAccessibleName("Ingrandimento");
    for (const Grandezza& grandezza : kGrandezze) {
        m_Ingrandimento->addItem(grandezza.sTesto);
    }
    m_Legami.Al(m_NumeroPagina, qOverload<int>(&QSpinBox::valueChanged),
                [this](int n) { VaiAPagina(n - 1); });
    m_Legami.Al(m_Ingrandimento, qOverload<int>(&QComboBox::currentIndexChanged), [this] { Aggiorna(); });

    auto* pagina = new QLabel("&Pagina:", this);
    pagina->setBuddy(m_NumeroPagina);
    auto* riga = new QHBoxLayout;
    riga->addWidget(NuovoPulsante("Indietro", "I&ndietro", [this] { VaiAPagina(m_nPagina - 1); }));
    riga->addWidget(pagina);
    riga->addWidget(m_NumeroPagina);
    riga->addWidget(new QLabel(QStringLiteral("di %1").arg(m_nPagine), this));
    riga->addWidget(NuovoPulsante("Avanti", "&Avanti", [this] { VaiAPagina(m_nPagina + 1); }));
    riga->addWidget(m_Ingrandimento);
    riga->addStretch();
    riga->addWidget(NuovoPulsante("Stampa", "&Stampa...", [this] { m_Stampa.ChiediEStampa(this); }));
    riga->addWidget(NuovoPulsante("Pdf", "P&DF...", [this] { m_Stampa.ChiediEStampaPdf(this); }));
    riga->addWidget(NuovoPulsante("Chiudi", "C&HIUDI", [this] { reject(); }));
    return riga;
}

void AnteprimaSchedine::VaiAPagina(std::int64_t nPagina)
{
    m_nPagina = std::clamp<std::int64_t>(nPagina, 0, std::max<std::int64_t>(m_nPagine - 1, 0));
    m_NumeroPagina->setValue(static_cast<int>(m_nPagina) + 1);
    Aggiorna();
}

double AnteprimaSchedine::PuntiPerMm() const
{
    const Grandezza& grandezza = kGrandezze.at(static_cast<std::size_t>(m_Ingrandimento->currentIndex()));
    if (grandezza.nPercento > 0) {
        return logicalDpiX() / kMmPollice * grandezza.nPercento / 100;
    }
    // Inside the frame, and beside the bar of a page that is taller than the window.
    const QSize vista = m_Scorre->maximumViewportSize();
    const int nBarra = m_Scorre->verticalScrollBar()->sizeHint().width();
    const double nLarga = (vista.width() - (grandezza.bIntera ? 0 : nBarra)) / kFoglio.nLarghezza;
    return std::max(grandezza.bIntera ? std::min(nLarga, vista.height() / kFoglio.nAltezza) : nLarga, 0.5);
}

QPixmap AnteprimaSchedine::Dipinta(std::int64_t nPagina, double nPerMm)
{
    if (const QPixmap* tenuta = m_aPagine.object(nPagina)) {
        return *tenuta;
    }
    const double nFitto = devicePixelRatioF();
    QPixmap pagina(QSizeF(kFoglio.nLarghezza * nPerMm * nFitto, kFoglio.nAltezza * nPerMm * nFitto).toSize());
    pagina.setDevicePixelRatio(nFitto);
    pagina.fill(Qt::white);
    if (nPagina < m_nPagine) {
        QPainter pittore(&pagina);
        m_Stampa.Dipingi(pittore, nPerMm, kFoglio, nPagina);
    }
    m_aPagine.insert(nPagina, new QPixmap(pagina));
    return pagina;
}

void AnteprimaSchedine::Aggiorna()
{
    const double nPerMm = PuntiPerMm();
    if (std::abs(nPerMm - m_nPerMm) > 1e-9) {
        m_aPagine.clear();
        m_nPerMm = nPerMm;
    }
    m_Foglio->setPixmap(Dipinta(m_nPagina, nPerMm));
    m_Foglio->adjustSize();
    findChild<QPushButton*>("Indietro")->setEnabled(m_nPagina > 0);
    findChild<QPushButton*>("Avanti")->setEnabled(m_nPagina + 1 < m_nPagine);
}

void AnteprimaSchedine::resizeEvent(QResizeEvent* evento)
{
    QDialog::resizeEvent(evento);
    if (isVisible()) {
        m_Legami.Protetto([this] { Aggiorna(); });
    }
}

void AnteprimaSchedine::showEvent(QShowEvent* evento)
{
    QDialog::showEvent(evento);
    m_Legami.Protetto([this] { Aggiorna(); });
}

/// Turns the page where there is nothing left to scroll.
/// Gives    false for a key that scrolls, or is another
bool AnteprimaSchedine::Sfoglia(int nTasto)
{
    QScrollBar* barra = m_Scorre->verticalScrollBar();
    const bool bAvanti = nTasto == Qt::Key_PageDown && barra->value() == barra->maximum();
    const bool bIndietro = nTasto == Qt::Key_PageUp && barra->value() == barra->minimum();
    const std::int64_t nPagina = m_nPagina + (bAvanti ? 1 : -1);
    if ((!bAvanti && !bIndietro) || nPagina < 0 || nPagina >= m_nPagine) {
        return false;
    }
    VaiAPagina(nPagina);
    barra->setValue(bAvanti ? barra->minimum() : barra->maximum());
    return true;
}

bool AnteprimaSchedine::eventFilter(QObject* oggetto, QEvent* evento)
{
    bool bSfogliata = false;
    if (oggetto == m_Scorre && evento->type() == QEvent::KeyPress) {
        const int nTasto = static_cast<QKeyEvent*>(evento)->key();
        m_Legami.Protetto([&] { bSfogliata = Sfoglia(nTasto); });
    }
    return bSfogliata || QDialog::eventFilter(oggetto, evento);
}

} // namespace ordavel::qt
