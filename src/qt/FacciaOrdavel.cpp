// FacciaOrdavel.cpp - the face of the component: what stands where, and what follows what.

#include "qt/FacciaOrdavel.hpp"

#include "qt/EtichettaConto.hpp"
#include "qt/Icone.hpp"
#include "qt/PannelloOrdavel.hpp"
#include "qt/StatisticaQt.hpp"
#include "qt/VistaGriglia.hpp"
#include "qt/VistaNumeri.hpp"
#include "qt/VistaStriscia.hpp"

#include <QAbstractEventDispatcher>
#include <QBoxLayout>
#include <QFrame>
#include <QMenu>
#include <QPushButton>
#include <QThread>
#include <QToolBar>

#include <array>
#include <utility>

namespace ordavel::qt {

namespace {

/// The commands to which it matters what has changed.
bool ChiedeDelleModifiche(const QString& sChiave)
{
    return QStringList{"Open", "New", "Save", "Salva", "SalvaConNome"}.contains(sChiave);
}

} // namespace

OrdavelWidget::Privato::Privato(OrdavelWidget& widget)
    : m_Widget(widget),
      m_Piattaforma(&widget,
                    [this](PiattaformaQt& piattaforma) -> std::unique_ptr<Statistica> {
                        return std::make_unique<StatisticaQt>(
                            piattaforma, [this](std::int16_t nGioco) { return m_Ordavel.FileBd(nGioco); });
                    }),
      m_Ordavel(m_Piattaforma),
      m_Legami(m_Piattaforma, "OrdavelWidget"),
      m_Comandi(m_Ordavel, m_Legami, &widget),
      m_Annullamenti(m_Ordavel),
      m_Conto(m_Ordavel)
{
    CreaAnnulla();
    Disponi();
    CollegaEventi();
}

void OrdavelWidget::Privato::CreaAnnulla()
{
    struct Voce {
        QAction* azione;
        const char* sNome;
        const char* sIcona;
        QKeySequence::StandardKey tasto;
    };
    QUndoStack* pila = m_Annullamenti.Pila();
    for (const Voce& voce :
         {Voce{pila->createUndoAction(&m_Widget, "Annulla"), "Annulla", "annulla", QKeySequence::Undo},
          Voce{pila->createRedoAction(&m_Widget, "Ripeti"), "Ripeti", "ripeti", QKeySequence::Redo}}) {
        voce.azione->setObjectName(voce.sNome);
        voce.azione->setIcon(Icona(voce.sIcona));
        voce.azione->setShortcuts(voce.tasto);
        voce.azione->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        m_Widget.addAction(voce.azione);
        m_Comandi.Registra(voce.azione);
    }
}

void OrdavelWidget::Privato::Disponi()
{
    ControlliOrdavel& controlli = m_Ordavel.Controlli();
    auto* colonna = new QVBoxLayout(&m_Widget);
    colonna->setContentsMargins(4, 4, 4, 4);
    auto* barra = new QToolBar(&m_Widget);
    barra->setObjectName("Toolbar2");
    barra->setAccessibleName("Comandi");
    m_Comandi.RiempiBarra(barra);
    barra->insertAction(m_Comandi.Azione("SelNumeri"), m_Comandi.Azione("Annulla"));
    barra->insertAction(m_Comandi.Azione("SelNumeri"), m_Comandi.Azione("Ripeti"));
    barra->insertSeparator(m_Comandi.Azione("SelNumeri"));
    colonna->addWidget(barra);
    colonna->addWidget(new PannelloClasse(controlli, m_Legami, &m_Widget));
    colonna->addWidget(new VistaStriscia(controlli.PicProno, m_Legami, m_Piattaforma.Carattere(), &m_Widget));
    DisponiGriglia(colonna);
    auto* conto = new EtichettaConto(&m_Widget);
    conto->segui(m_Conto);
    colonna->addWidget(conto);
    auto* conti = new PannelloConti(controlli, m_Legami, &m_Widget);
    connect(conti, &PannelloConti::coloreCambiato, m_Griglia->viewport(), qOverload<>(&QWidget::update));
    colonna->addWidget(conti);
    colonna->addWidget(new PannelloSviluppo(controlli, m_Legami, m_Comandi.Azione("Stop"), &m_Widget));
    m_Widget.setFocusProxy(m_Griglia);
    m_Legami.collega(controlli.Componente, &m_Widget);
    m_Legami.collega(controlli.Timer1);
}

void OrdavelWidget::Privato::DisponiGriglia(QBoxLayout* colonna)
{
    m_Griglia = new VistaGriglia(m_Ordavel, m_Piattaforma, &m_Widget);
    m_Griglia->segui(m_Conto);
    auto* riga = new QHBoxLayout;
    riga->addWidget(NuovoPannelloNumeri());
    riga->addWidget(m_Griglia, 1);
    colonna->addLayout(riga, 1);
    connect(m_Griglia, &VistaGriglia::modificaChiesta, m_Comandi.Azione("Edit"), &QAction::trigger);
    connect(m_Griglia, &VistaGriglia::eliminaChiesta, m_Comandi.Azione("Delete"), &QAction::trigger);
    connect(m_Griglia, &VistaGriglia::inserisciChiesta, m_Comandi.Azione("Inserisci"), &QAction::trigger);
    m_Griglia->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_Griglia, &QWidget::customContextMenuRequested, this, [this](const QPoint& punto) {
        QMenu menu(&m_Widget);
        for (const char* sChiave : {"Edit", "Inserisci", "Delete", "puntimassivi"}) {
            menu.addAction(m_Comandi.Azione(sChiave));
        }
        menu.addMenu(m_Comandi.Menu("Condizioni"));
        menu.exec(m_Griglia->viewport()->mapToGlobal(punto));
    });
}

QFrame* OrdavelWidget::Privato::NuovoPannelloNumeri()
{
    SelettoreNumeri& numeri = m_Ordavel.Controlli().SelnovoNumeri1;
    auto* pannello = new QFrame(&m_Widget);
    pannello->setObjectName("PanNumeri");
    pannello->setFrameShape(QFrame::StyledPanel);
    auto* colonna = new QVBoxLayout(pannello);
    auto* vista = new VistaNumeri(m_Legami, numeri, pannello);
    vista->setObjectName("SelnovoNumeri1");
    vista->setAccessibleName("Numeri del sistema");
    colonna->addWidget(vista);
    auto* riga = new QHBoxLayout;
    const auto aggiungi = [&](const char* sNome, const char* sTesto, const std::function<void()>& azione) {
        auto* pulsante = new QPushButton(QString::fromUtf8(sTesto), pannello);
        pulsante->setObjectName(sNome);
        m_Legami.Al(pulsante, &QPushButton::clicked, azione);
        riga->addWidget(pulsante);
    };
    aggiungi("TuttiNumeri", "&Tutti", [&numeri] { numeri.Scelti.Poni(TuttiINumeri(true)); });
    aggiungi("NessunNumero", "&Nessuno", [&numeri] { numeri.Svuota(); });
    aggiungi("ChiudiNumeri", "C&hiudi", [this] { m_Ordavel.SelnovoNumeri1_Chiuso(); });
    colonna->addLayout(riga);
    colonna->addStretch();
    // The frame is shown and hidden, with all that is in it.
    vista->show();
    pannello->hide();
    m_Legami.Segui(numeri.Visibile, pannello, [this, pannello, vista](bool bVisibile) {
        // Left to itself the keyboard would go to whatever comes next.
        if (!bVisibile && pannello->isAncestorOf(m_Widget.window()->focusWidget())) {
            m_Griglia->setFocus();
        }
        pannello->setVisible(bVisibile);
        if (bVisibile) {
            m_aNumeriNoti = m_Ordavel.Controlli().SelnovoNumeri1.Scelti.Valore();
            vista->setFocus();
        } else {
            ConfermaNumeri();
        }
    });
    return pannello;
}

/// Numbers that were chosen count as a change however the selector is left, not by its own button alone.
void OrdavelWidget::Privato::ConfermaNumeri()
{
    const auto& aNumeri = m_Ordavel.Controlli().SelnovoNumeri1.Scelti.Valore();
    if (aNumeri.aElementi != m_aNumeriNoti.aElementi) {
        m_aNumeriNoti = aNumeri;
        m_Ordavel.SelnovoNumeri1_Chiuso();
    }
}

void OrdavelWidget::Privato::CollegaEventi()
{
    EventiOrdavel& eventi = m_Ordavel.Eventi();
    eventi.CondizioniPressed = [this] { Q_EMIT m_Widget.condizioniPressed(); };
    eventi.StampaSk = [this](std::string& sTipogioco) {
        QString sGioco = Testo(sTipogioco);
        Q_EMIT m_Widget.stampaSk(sGioco);
        sTipogioco = Testo(sGioco);
    };
    eventi.PropertyChanged = [this](std::string_view sProprieta) { PropertyChanged(sProprieta); };
    connect(&m_Comandi, &ComandiOrdavel::inizia, this, [this](const QString& sChiave) {
        if (m_Ordavel.Controlli().SelnovoNumeri1.Visibile.Valore() && ChiedeDelleModifiche(sChiave)) {
            ConfermaNumeri();
        }
        SeguiSistema();
    });
    connect(&m_Comandi, &ComandiOrdavel::eseguito, this, &Privato::Controlla);
    // Whatever has changed while events ran is seen when they pause, and when a loop that never pauses turns; nothing
    // else has to tell.
    if (auto* eventiDelFilo = QAbstractEventDispatcher::instance(QThread::currentThread())) {
        connect(eventiDelFilo, &QAbstractEventDispatcher::aboutToBlock, this, &Privato::Controlla);
        connect(eventiDelFilo, &QAbstractEventDispatcher::awake, this, &Privato::Controlla);
    }
}

void OrdavelWidget::Privato::Controlla()
{
    if (m_bCorsaNota != m_Ordavel.InCorso()) {
        m_bCorsaNota = m_Ordavel.InCorso();
        // A run keeps its content; a step back would be counted and not made.
        m_Comandi.Azione("Annulla")->setEnabled(!m_bCorsaNota && m_Annullamenti.Pila()->canUndo());
        m_Comandi.Azione("Ripeti")->setEnabled(!m_bCorsaNota && m_Annullamenti.Pila()->canRedo());
        Q_EMIT m_Widget.inCorsoChanged(m_bCorsaNota);
    }
    SegnalaMotore();
    SeguiSistema();
    m_Griglia->aggiorna();
    if (!m_bProgetto) {
        m_Conto.controlla();
    }
    const QString sFile = Testo(m_Ordavel.FileSistema());
    if (sFile != m_sFileNoto || m_bModificatoNoto != m_Ordavel.Modificato()) {
        m_sFileNoto = sFile;
        m_bModificatoNoto = m_Ordavel.Modificato();
        Q_EMIT m_Widget.sistemaCambiato();
    }
}

void OrdavelWidget::Privato::SegnalaMotore()
{
    if (std::exchange(m_MotoreNoto, m_Ordavel.MotoreSviluppo()) != m_Ordavel.MotoreSviluppo()) {
        Q_EMIT m_Widget.motoreSviluppoChanged();
    }
}

void OrdavelWidget::Privato::SeguiSistema()
{
    if (std::exchange(m_nSistemi, m_Ordavel.Sistemi()) != m_Ordavel.Sistemi()) {
        m_aNumeriNoti = m_Ordavel.Controlli().SelnovoNumeri1.Scelti.Valore();
        m_Annullamenti.Ricomincia();
    }
    m_Annullamenti.Controlla();
    if (std::exchange(m_nSalvataggi, m_Ordavel.Salvataggi()) != m_Ordavel.Salvataggi()) {
        m_Annullamenti.Salvato();
    }
}

void OrdavelWidget::Privato::PropertyChanged(std::string_view sProprieta)
{
    using Segnale = void (OrdavelWidget::*)();
    static constexpr std::array<std::pair<std::string_view, Segnale>, 5> kSegnali{{
        {"Classe", &OrdavelWidget::classeChanged},
        {"NumeroThreadsSviluppo", &OrdavelWidget::numeroThreadsSviluppoChanged},
        {"PercorsoSalvaColonne", &OrdavelWidget::percorsoSalvaColonneChanged},
        {"PercorsoTemp", &OrdavelWidget::percorsoTempChanged},
        {"DirSistemi", &OrdavelWidget::dirSistemiChanged},
    }};
    for (const auto& [sNome, segnale] : kSegnali) {
        if (sNome == sProprieta) {
            Q_EMIT(m_Widget.*segnale)();
        }
    }
}

void OrdavelWidget::Privato::PoniPercorso(QString Privato::*sProgetto,
                                          bool (Ordavel::*poni)(const std::string&), const QString& sPercorso,
                                          void (OrdavelWidget::*cambiato)())
{
    if (m_bProgetto) {
        this->*sProgetto = sPercorso;
        Q_EMIT(m_Widget.*cambiato)();
    } else {
        Protetto([&] { (m_Ordavel.*poni)(Testo(sPercorso)); });
    }
}

void OrdavelWidget::Privato::AzzeraPercorso(QString Privato::*sProgetto, void (OrdavelWidget::*cambiato)())
{
    if (m_bProgetto) {
        (this->*sProgetto).clear();
        Q_EMIT(m_Widget.*cambiato)();
    }
}

} // namespace ordavel::qt
