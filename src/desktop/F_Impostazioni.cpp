// F_Impostazioni.cpp - the dialog of the settings.

#include "desktop/F_Impostazioni.hpp"

#include "core/ModFunzGeneriche.hpp"
#include "core/ModGiochi.hpp"
#include "desktop/F_ImportaArchivio.hpp"
#include "desktop/RigaPercorso.hpp"
#include "qt/PiattaformaQt.hpp"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace ordavel::desktop {

using qt::Testo;

namespace {

constexpr int kPaginaCartelle = 0;
constexpr int kPaginaArchivi = 1;

struct VoceCartella {
    const char* sNome;
    const char* sTesto;
    const char* sChiCosa;
    QString Impostazioni::*campo;
};

// clang-format off
constexpr std::array kCartelle = std::to_array<VoceCartella>({
//   object name             caption                accessible name           field
    {"DirSistemi",           "&Sistemi:",           "Cartella dei sistemi",   &Impostazioni::sDirSistemi},
    {"PercorsoSalvaColonne", "&Colonne e testi:",   "Cartella delle colonne", &Impostazioni::sPercorsoSalvaColonne},
    {"PercorsoTemp",         "&File temporanei:",   "Cartella dei file temporanei", &Impostazioni::sPercorsoTemp},
});
// clang-format on

/// The letters that the five games begin with are two.
constexpr std::array<const char*, kArchivi> kNomiArchivi{
    "&Lotto:", "&10ELotto:", "10ELotto&5M:", "&SuperEnalotto:", "&WinForLife:"};

QLabel* NuovaNota(const QString& sTesto, QWidget* padre)
{
    auto* nota = new QLabel(sTesto, padre);
    nota->setWordWrap(true);
    return nota;
}

} // namespace

F_Impostazioni::F_Impostazioni(const Impostazioni& impostazioni, qt::PiattaformaQt& piattaforma,
                               QWidget* padre)
    : QDialog(padre),
      m_Prima(impostazioni),
      m_Piattaforma(piattaforma),
      m_Legami(piattaforma, "F_Impostazioni"),
      m_Pagine(new QTabWidget(this))
{
    setObjectName("F_Impostazioni");
    setWindowTitle(QStringLiteral("Impostazioni"));
    setAccessibleName(windowTitle());
    auto* sotto = new QVBoxLayout(this);
    m_Pagine->setObjectName("Pagine");
    m_Pagine->setAccessibleName(QStringLiteral("Pagine delle impostazioni"));
    m_Pagine->addTab(PaginaCartelle(), QStringLiteral("Ca&rtelle"));
    m_Pagine->addTab(PaginaArchivi(), QStringLiteral("Arc&hivi"));
    m_Pagine->addTab(PaginaSviluppo(), QStringLiteral("S&viluppo"));
    sotto->addWidget(m_Pagine);
    auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(pulsanti, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);
    sotto->addWidget(pulsanti);
}

QWidget* F_Impostazioni::PaginaCartelle()
{
    auto* pagina = new QWidget(this);
    auto* righe = new QFormLayout(pagina);
    righe->addRow(NuovaNota(QStringLiteral("Le cartelle che mancano vengono create."), pagina));
    for (const VoceCartella& voce : kCartelle) {
        auto* riga = new RigaPercorso(voce.sNome, QString::fromUtf8(voce.sChiCosa), pagina);
        riga->Poni(m_Prima.*voce.campo);
        righe->addRow(QString::fromUtf8(voce.sTesto), riga);
        m_aCartelle.push_back({riga, voce.campo});
        m_Legami.Al(riga, &RigaPercorso::sfoglia, [this, riga] {
            const std::string sScelta = m_Piattaforma.ScegliCartella(Testo(riga->Path()));
            if (!sScelta.empty()) {
                riga->Poni(Testo(sScelta));
            }
        });
    }
    return pagina;
}

QWidget* F_Impostazioni::PaginaArchivi()
{
    auto* pagina = new QWidget(this);
    auto* righe = new QFormLayout(pagina);
    righe->addRow(NuovaNota(
        QStringLiteral("Il filtro emulatore prende le ultime estrazioni dall'archivio del gioco."), pagina));
    for (std::size_t i = 0; i < kArchivi; ++i) {
        const ProfiloGioco& gioco = ProfiliGioco()[i];
        m_aArchivi.at(i) =
            new RigaPercorso(Testo(gioco.sArchivio), "Archivio di " + Testo(gioco.sNome), pagina);
        m_aRiassunti.at(i) = new QLabel(pagina);
        m_aRiassunti.at(i)->setObjectName("Riassunto" + Testo(gioco.sArchivio));
        m_aRiassunti.at(i)->setTextFormat(Qt::PlainText);
        righe->addRow(QString::fromUtf8(kNomiArchivi.at(i)), m_aArchivi.at(i));
        righe->addRow(QString(), m_aRiassunti.at(i));
        CollegaArchivio(i);
    }
    return pagina;
}

void F_Impostazioni::CollegaArchivio(std::size_t nGioco)
{
    RigaPercorso* riga = m_aArchivi.at(nGioco);
    const ProfiloGioco& gioco = ProfiliGioco()[nGioco];
    QPushButton* importa =
        riga->AggiungiPulsante("Importa" + Testo(gioco.sArchivio), QStringLiteral("Importa…"),
                               QStringLiteral("Importa le estrazioni di ") + Testo(gioco.sNome));
    m_Legami.Al(importa, &QPushButton::clicked, [this, nGioco] { Importa(nGioco); });
    m_Legami.Al(riga, &RigaPercorso::cambiato, [this, nGioco] { MostraArchivio(nGioco); });
    m_Legami.Al(riga, &RigaPercorso::sfoglia, [this, riga] {
        const std::string sFile = m_Piattaforma.DialogoApri({.sTitolo = "Archivio delle estrazioni",
                                                             .sFiltro = "Archivi di estrazioni (*.bd)|*.bd",
                                                             .sEstensione = ".bd",
                                                             .sNomeFile = Testo(riga->Path()),
                                                             .sCartella = {}});
        if (!sFile.empty()) {
            riga->Poni(Testo(sFile));
        }
    });
    riga->Poni(m_Prima.aArchivi.at(nGioco));
    MostraArchivio(nGioco);
}

QWidget* F_Impostazioni::PaginaSviluppo()
{
    auto* pagina = new QWidget(this);
    auto* righe = new QFormLayout(pagina);
    m_Motore = new QComboBox(pagina);
    m_Motore->setObjectName("MotoreSviluppo");
    m_Motore->setAccessibleName(QStringLiteral("Motore dello sviluppo"));
    for (const std::string_view sVoce : VociMotore()) {
        m_Motore->addItem(Testo(sVoce));
    }
    m_Motore->setCurrentIndex(m_Prima.bMotoreEsterno ? 1 : 0);
    righe->addRow(QStringLiteral("&Motore:"), m_Motore);
    m_Thread = new QSpinBox(pagina);
    m_Thread->setObjectName("NumeroThreadsSviluppo");
    m_Thread->setAccessibleName(QStringLiteral("Thread del motore esterno"));
    m_Thread->setRange(1, std::numeric_limits<std::int16_t>::max());
    m_Thread->setValue(m_Prima.nThread);
    righe->addRow(QStringLiteral("&Thread del motore esterno:"), m_Thread);
    return pagina;
}

void F_Impostazioni::MostraArchivio(std::size_t nGioco)
{
    m_aRiassunti.at(nGioco)->setText(
        RiassuntoArchivio(ProfiliGioco()[nGioco], m_aArchivi.at(nGioco)->Path()));
}

void F_Impostazioni::Importa(std::size_t nGioco)
{
    F_ImportaArchivio finestra(ProfiliGioco()[nGioco], m_aArchivi.at(nGioco)->Path(), m_Piattaforma, this);
    if (finestra.exec() == Accepted) {
        m_aArchivi.at(nGioco)->Poni(finestra.Archivio());
        MostraArchivio(nGioco);
    }
}

Impostazioni F_Impostazioni::Scelte() const
{
    Impostazioni scelte;
    for (const RigaCartella& cartella : m_aCartelle) {
        scelte.*cartella.campo = cartella.riga->Path();
    }
    std::transform(m_aArchivi.begin(), m_aArchivi.end(), scelte.aArchivi.begin(),
                   [](const RigaPercorso* riga) { return riga->Path(); });
    scelte.nThread = m_Thread->value();
    scelte.bMotoreEsterno = m_Motore->currentIndex() == 1;
    return scelte;
}

void F_Impostazioni::accept()
{
    m_Legami.Protetto([this] {
        if (CartelleBuone() && ArchiviBuoni()) {
            QDialog::accept();
        }
    });
}

bool F_Impostazioni::CartelleBuone()
{
    for (const RigaCartella& cartella : m_aCartelle) {
        const QString sPath = cartella.riga->Path();
        if (sPath.isEmpty() || !QFileInfo(sPath).isAbsolute()) {
            Rifiuta(kPaginaCartelle, cartella.riga, QStringLiteral("Serve un percorso intero"));
            return false;
        }
        if (!CreaPercorso(Testo(sPath))) {
            Rifiuta(kPaginaCartelle, cartella.riga, QStringLiteral("Errore creazione percorso ") + sPath);
            return false;
        }
        if (!QFileInfo(sPath).isWritable()) {
            Rifiuta(kPaginaCartelle, cartella.riga, QStringLiteral("Non si può scrivere in ") + sPath);
            return false;
        }
    }
    return true;
}

bool F_Impostazioni::ArchiviBuoni()
{
    const auto guasto = std::find_if(m_aArchivi.begin(), m_aArchivi.end(), [](const RigaPercorso* riga) {
        return !riga->Path().isEmpty() && !QFileInfo(riga->Path()).isFile();
    });
    if (guasto != m_aArchivi.end()) {
        Rifiuta(kPaginaArchivi, *guasto, QStringLiteral("L'archivio non esiste: ") + (*guasto)->Path());
    }
    return guasto == m_aArchivi.end();
}

void F_Impostazioni::Rifiuta(int nPagina, RigaPercorso* riga, const QString& sPerche)
{
    m_Pagine->setCurrentIndex(nPagina);
    riga->Casella()->setFocus();
    riga->Casella()->selectAll();
    m_Piattaforma.MostraMessaggio({.icona = eIcona::avviso,
                                   .sTitolo = Testo(windowTitle()),
                                   .sTesto = Testo(sPerche),
                                   .pulsanti = ePulsanti::ok});
}

} // namespace ordavel::desktop
