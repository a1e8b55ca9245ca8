// Schermate_prova.cpp - pictures of the main window, of dialogs and of a chart, in light and in dark.
//
// They are written into the folder that ORDAVEL_SCHERMATE names, for the manual and to be looked at; without it they
// go to a folder of the moment, and only that they can be drawn is tested.

#include "ordavel/Ordavel.hpp"
#include "ordavel/OrdavelWidget.hpp"

#include "qt/AnteprimaSchedine.hpp"
#include "qt/F_NavigaSistema_vista.hpp"
#include "qt/F_Progress_vista.hpp"
#include "qt/F_Statistica_vista.hpp"
#include "qt/SchermateComuni.hpp"
#include "qt/SistemaQtProva.hpp"
#include "qt/StampaSchedine.hpp"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

using prove::Trova;

/// What a control of a dialog is made to show, by its name: a text, a choice, a tick when there is none.
struct Valore {
    const char* sControllo;
    const char* sTesto = "";
};

void Metti(const QWidget& finestra, const Valore& valore)
{
    auto& widget = Trova<QWidget>(finestra, valore.sControllo);
    const QString sTesto = QString::fromUtf8(valore.sTesto);
    if (auto* casella = qobject_cast<QLineEdit*>(&widget)) {
        casella->setText(sTesto);
    } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        EXPECT_GE(combo->findText(sTesto), 0) << valore.sControllo << " " << valore.sTesto;
        combo->setCurrentText(sTesto);
    } else if (auto* bottone = qobject_cast<QAbstractButton*>(&widget)) {
        bottone->click();
    } else {
        ADD_FAILURE() << valore.sControllo;
    }
}

/// A dialog, what is put in it, and the name of its picture.
struct Ritratto {
    const char* sComando;
    const char* sNome;
    std::vector<Valore> aValori;
};

/// In the order in which a user may come to them.
std::vector<Ritratto> DialoghiCondizioni()
{
    return {
        {"PuntisuPeso",
         "peso",
         {{"ChkCaselle1"},
          {"ChkCaselle2"},
          {"ChkCaselle3"},
          {"ChkCaselle4"},
          {"ChkCaselle5"},
          {"ChkCaselle6"},
          {"TxtPunti0", "220"},
          {"TxtPunti1", "320"},
          {"CmbRecupero", "1"},
          {"TxtPuntiRec0", "200"},
          {"TxtPuntiRec1", "219"}}},
        {"PuntisuPariDispari",
         "pari-dispari",
         {{"ChkPunti2"},
          {"ChkPunti3"},
          {"ChkPunti4"},
          {"CmbRecupero", "1"},
          {"ChkRecupero1"},
          {"ChkRecupero5"}}},
        {"PuntiSuPosizioni", "posizioni", {{"ObCaselle1"}, {"TxtPunti0", "1"}, {"TxtPunti1", "19"}}},
        {"PuntiSuAmpiezza", "ampiezza", {{"TxtPunti0", "45"}, {"TxtPunti1", "80"}}},
        {"PuntiSuCadenzeSpec", "cadenze-specifiche", {{"cmbCadenza", "3"}, {"ChkPunti0"}, {"ChkPunti1"}}},
        {"PuntiSuSequenze",
         "sequenze",
         {{"Command10"}, {"Command11"}, {"CmbPasso", "1"}, {"ChkPunti1"}, {"ChkPunti2"}, {"ChkConsec1"}}},
        {"PuntiSuGruppiDiConsecutivi", "gruppi-di-consecutivi", {{"ChkPunti0"}, {"ChkPunti1"}}},
        {"PuntiSuFormule", "formule", {{"CmbFormula1", "2"}, {"CmbFormula2", "2"}, {"CmbFormula3", "2"}}},
    };
}

std::vector<Ritratto> AltriDialoghi()
{
    return {
        {"QuadroRecuperi", "quadro-recuperi", {}},
        {"puntimassivi",
         "imposta-punti",
         {{"CmbDalla", "2"}, {"CmbAlla", "3"}, {"ChkPunti1"}, {"ChkPunti2"}}},
        {"SalvaCondizioni",
         "salva-condizioni",
         {{"CmbCondInizio", "   1 - Peso"}, {"CmbCondFine", "   3 - Consecutivi"}}},
        {"InsCondizioni", "inserisci-condizioni", {}},
        {"DelCondizioni", "rimuovi-condizioni", {}},
        {"EffettoCondizioni", "effetto", {}},
        {"VisualizzaColonne", "colonne", {}},
    };
}

/// The window over the example, with fonts that are the same everywhere; in light and in dark.
struct Schermate : testing::TestWithParam<bool> {
    Schermate()
    {
        const QString sChiesta = qEnvironmentVariable("ORDAVEL_SCHERMATE");
        if (!sChiesta.isEmpty()) {
            m_sDove = sChiesta;
            QDir().mkpath(m_sDove);
        }
        widget = std::make_unique<OrdavelWidget>();
        sistema().PoniPercorsoTemp(Testo(m_Cartella.filePath("temp")));
        sistema().PoniDirSistemi(Testo(m_Cartella.filePath("sistemi")));
        sistema().PoniPercorsoSalvaColonne(Testo(m_Cartella.filePath("colonne")));
        sistema().PoniFileBdSE(ORDAVEL_ARCHIVI "/superenalotto.bd");
        sistema().Controlli().CmbTipoGioco.Indice.Poni(3);
        sistema().PoniContenuto(prove::SistemaEsempio(), false);
        widget->resize(1080, 640);
        widget->show();
        widget->setFocus();
        Attendi();
    }

    Ordavel& sistema() const { return widget->componente(); }

    /// Until the count under the grid stands.
    void Attendi() const
    {
        const auto& conto = Trova<QLabel>(*widget, "LabConto");
        EXPECT_TRUE(QTest::qWaitFor([&] { return conto.text().contains("su 38.760"); }));
    }

    void Ritrai(QWidget& finestra, const QString& sNome) const
    {
        prove::Ritrai(finestra, QString("%1/%2-%3.png").arg(m_sDove, sNome, GetParam() ? "scuro" : "chiaro"));
    }

    void Premi(const char* sComando) const { Trova<QAction>(*widget, sComando).trigger(); }

    /// Opens a dialog by a command, lets it be filled, and takes its picture.
    void RitraiDialogo(
        const Ritratto& ritratto, const std::function<void(QWidget&)>& dopo = [](QWidget&) {}) const
    {
        EXPECT_TRUE(prove::Quando<VistaDialogo>(
            [&](VistaDialogo& finestra) {
                for (const Valore& valore : ritratto.aValori) {
                    Metti(finestra, valore);
                }
                dopo(finestra);
                Ritrai(finestra, ritratto.sNome);
            },
            [&] { Premi(ritratto.sComando); }))
            << ritratto.sComando;
    }

    void Sviluppa() const
    {
        EXPECT_TRUE(prove::Scatola([this] { sistema().GestSviluppo(); }).startsWith("Fine sviluppo"));
        Attendi();
    }

    QTemporaryDir m_Cartella;
    QString m_sDove = m_Cartella.path();
    const prove::AspettoFisso m_Aspetto{GetParam()};
    std::unique_ptr<OrdavelWidget> widget;
};

/// A window that stands beside the work.
template <typename Finestra> Finestra* Accanto()
{
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
        auto* vista = dynamic_cast<Finestra*>(finestra);
        if (vista != nullptr && vista->isVisible()) {
            return vista;
        }
    }
    return nullptr;
}

} // namespace

TEST_P(Schermate, LaFinestra)
{
    sistema().SetColonnaGrid(2);
    Ritrai(*widget, "griglia");
    widget->resize(560, 620);
    Ritrai(*widget, "griglia-stretta");
    widget->resize(1080, 640);
    Premi("SelNumeri");
    Ritrai(*widget, "numeri");
}

TEST_P(Schermate, IDialoghiDelleCondizioni)
{
    for (const Ritratto& ritratto : DialoghiCondizioni()) {
        RitraiDialogo(ritratto);
    }
}

TEST_P(Schermate, LaColonnaDiUnaCondizione)
{
    RitraiDialogo({"PuntiSuColonna", "punti-su-colonna", {}}, [](QWidget& finestra) {
        auto& numeri = Trova<QWidget>(finestra, "SelnovoNumeri1");
        QTest::keyClick(&numeri, Qt::Key_Home);
        int nQui = 1;
        for (const int nNumero : {3, 11, 19, 23, 31, 38, 45, 53}) {
            for (; nQui < nNumero; ++nQui) {
                QTest::keyClick(&numeri, Qt::Key_Right);
            }
            QTest::keyClick(&numeri, Qt::Key_Space);
        }
        Metti(finestra, {"ChkPunti1"});
    });
}

TEST_P(Schermate, IlLink)
{
    ContenutoSistema contenuto = prove::SistemaEsempio();
    contenuto.aCondizioni.resize(6);
    sistema().PoniContenuto(contenuto, false);
    RitraiDialogo({"LinkClose", "link", {}}, [](QWidget& finestra) {
        auto& lista = Trova<QListWidget>(finestra, "List1");
        for (const int nQuante : {1, 2}) {
            lista.item(nQuante)->setSelected(true);
        }
    });
}

TEST_P(Schermate, LEmulatore)
{
    RitraiDialogo({"PuntiSuEmulatore", "emulatore", {{"Text2", "100"}}}, [](QWidget& finestra) {
        auto& casella = Trova<QLineEdit>(finestra, "Text1");
        for (const char* sMinimo : {"20", "25", "5", "0"}) {
            casella.setText(sMinimo);
            QTest::keyClick(&casella, Qt::Key_Down);
        }
    });
}

TEST_P(Schermate, LaStatistica)
{
    RitraiDialogo({"PuntisuPeso", "peso-statistica", {}}, [this](QWidget& finestra) {
        EXPECT_TRUE(prove::Quando<F_StatisticaVista>(
            [this](F_StatisticaVista& statistica) { Ritrai(statistica, "statistica"); },
            [&] { prove::Clicca(finestra, "Statistica"); }));
    });
}

TEST_P(Schermate, GliAltriDialoghi)
{
    Sviluppa();
    Ritrai(*widget, "sviluppato");
    for (const Ritratto& ritratto : AltriDialoghi()) {
        RitraiDialogo(ritratto);
    }
}

TEST_P(Schermate, LeColonneImportate)
{
    const std::string sFile = Testo(m_Cartella.filePath("colonne.txt"));
    ordavel::prove::ScriviFile(sFile, "3 11 19 23 31\r\n4 14 22 34 41 46\r\n45 53 58 62 67\r\n");
    RitraiDialogo({"PuntiSuColonnaTxt", "importa-colonne", {}}, [&](QWidget& finestra) {
        EXPECT_TRUE(prove::ConFile(sFile, [&] { prove::Clicca(finestra, "open"); }));
        auto& lista = Trova<QTableView>(finestra, "ListView1");
        lista.selectAll();
        for (const char* sControllo : {"punti", "ChkPunti1", "ChkPunti2", "XPButton2"}) {
            Metti(finestra, {sControllo});
        }
        lista.clearSelection();
    });
}

TEST_P(Schermate, LoSpoglio)
{
    Sviluppa();
    for (int nPagina = 0; nPagina < 3; ++nPagina) {
        const std::string sNome = "spoglio-" + std::to_string(nPagina + 1);
        const char* sColonna = nPagina == 1 ? "3,14,22,41,53,79" : "3.14.22.41.53.79";
        RitraiDialogo({"ConfrontoCondSuCol", sNome.c_str(), {{"Text1", sColonna}}},
                      [nPagina](QWidget& finestra) {
                          prove::Clicca(finestra, "XPButton10");
                          Trova<QTabBar>(finestra, "TabStrip1").setCurrentIndex(nPagina);
                      });
    }
}

TEST_P(Schermate, LaRiduzione)
{
    Sviluppa();
    RitraiDialogo({"Riduzione", "riduzione", {{"cmbRiduzione", "N - 2"}}}, [](QWidget& finestra) {
        EXPECT_TRUE(prove::Scatola([&] { prove::Clicca(finestra, "XPButton10"); }).startsWith("Fine"));
        // A folder of the moment is none to be shown.
        Trova<QLabel>(finestra, "labFile").setText("/home/anna/Ordavel/Colonne/superenalotto.col");
        Trova<QLabel>(finestra, "LabFileRidotto")
            .setText("/home/anna/Ordavel/Colonne/superenalotto_Rid_N-2.col");
    });
}

TEST_P(Schermate, LAlbero)
{
    Premi("Naviga");
    auto* vista = Accanto<F_NavigaSistemaVista>();
    ASSERT_NE(vista, nullptr);
    Trova<QTreeWidget>(*vista, "TreeView1").expandAll();
    Ritrai(*vista, "naviga");
    vista->close();
}

TEST_P(Schermate, LeSchedine)
{
    Sviluppa();
    StampaSchedine stampa(Testo(sistema().FileColonne()), 6, "SuperEnalotto");
    AnteprimaSchedine anteprima(stampa, widget.get());
    anteprima.show();
    Ritrai(anteprima, "schedine");
}

TEST_P(Schermate, IlTesto)
{
    Sviluppa();
    bool bVista = false;
    QTimer orologio;
    QObject::connect(&orologio, &QTimer::timeout, &orologio, [&] {
        auto* vista = Accanto<F_ProgressVista>();
        if (vista != nullptr && !bVista) {
            bVista = true;
            Ritrai(*vista, "testo");
        }
    });
    orologio.start(0);
    prove::ConFile(Testo(m_Cartella.filePath("colonne.txt")), [this] { sistema().SalvaFileColonneTesto(); });
    EXPECT_TRUE(bVista);
}

INSTANTIATE_TEST_SUITE_P(Tavolozze, Schermate, testing::Bool(), [](const testing::TestParamInfo<bool>& p) {
    return std::string(p.param ? "Scuro" : "Chiaro");
});

} // namespace ordavel::qt
