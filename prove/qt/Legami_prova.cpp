// Legami_prova.cpp - a state and its widget show the same, and come to rest.

#include "qt/Legami.hpp"

#include "ordavel/errore.hpp"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <memory>

namespace ordavel::qt {

namespace {

struct SegnalatoreProva : Segnalatore {
    void MostraFallimento(std::string_view sOrigine, const Errore& errore) override
    {
        aMostrati.push_back(std::string(sOrigine) + ": " + TestoFallimento(errore));
    }

    std::vector<std::string> aMostrati;
};

/// A state, a widget of its kind, and how to read and change both.
template <typename C, typename W> struct Caso {
    C controllo;
    std::unique_ptr<W> widget = std::make_unique<W>();
};

struct LegamiProva : testing::Test {
    SegnalatoreProva segnalatore;
    Legami legami{segnalatore, "F_Prova"};
};

} // namespace

TEST_F(LegamiProva, LaCasellaMostraIlTestoEPrendeQuelCheSiScrive)
{
    Caso<CasellaTesto, QLineEdit> caso;
    caso.controllo.Testo.Poni("prima");
    legami.collega(caso.controllo, caso.widget.get());
    EXPECT_EQ(caso.widget->text(), "prima");
    caso.controllo.Testo.Poni("è dopo");
    EXPECT_EQ(caso.widget->text(), "è dopo");
    QTest::keyClicks(caso.widget.get(), "12");
    EXPECT_EQ(caso.controllo.Testo.Valore(), "è dopo12");
}

TEST_F(LegamiProva, UnCambioSuonaUnaVoltaSola)
{
    Caso<CasellaTesto, QLineEdit> caso;
    int nRegole = 0;
    caso.controllo.Testo.AlCambio([&] { ++nRegole; });
    legami.collega(caso.controllo, caso.widget.get());
    const QSignalSpy spia(caso.widget.get(), &QLineEdit::textChanged);
    QTest::keyClick(caso.widget.get(), Qt::Key_5);
    EXPECT_EQ(spia.count(), 1);
    EXPECT_EQ(nRegole, 1);
}

TEST_F(LegamiProva, LaCasellaDiCifreNonPrendeLettere)
{
    Caso<CasellaTesto, QLineEdit> caso;
    caso.controllo.bSoloCifre = true;
    legami.collega(caso.controllo, caso.widget.get());
    QTest::keyClicks(caso.widget.get(), "1a2,-b3");
    EXPECT_EQ(caso.controllo.Testo.Valore(), "12,3");
    QTest::keyClick(caso.widget.get(), Qt::Key_Backspace);
    EXPECT_EQ(caso.controllo.Testo.Valore(), "12,");
}

TEST_F(LegamiProva, AbilitatoEVisibileSiVedono)
{
    QWidget padre;
    auto* widget = new QCheckBox(&padre);
    Spunta spunta;
    spunta.Visibile.Poni(false);
    legami.collega(spunta, widget);
    EXPECT_TRUE(widget->isHidden());
    spunta.Visibile.Poni(true);
    EXPECT_FALSE(widget->isHidden());
    spunta.Abilitato.Poni(false);
    EXPECT_FALSE(widget->isEnabled());
}

TEST_F(LegamiProva, NascostoPrimaDiAvereUnPadreRestaNascosto)
{
    auto* widget = new QCheckBox;
    Spunta spunta;
    spunta.Visibile.Poni(false);
    legami.collega(spunta, widget);
    QWidget padre;
    widget->setParent(&padre);
    padre.show();
    EXPECT_FALSE(widget->isVisible());
    spunta.Visibile.Poni(true);
    EXPECT_TRUE(widget->isVisible());
}

TEST_F(LegamiProva, UnWidgetSenzaPadreNonDiventaUnaFinestra)
{
    Caso<Spunta, QCheckBox> caso;
    legami.collega(caso.controllo, caso.widget.get());
    EXPECT_FALSE(caso.widget->isVisible());
}

TEST_F(LegamiProva, IlWidgetDistruttoLasciaLoStatoInPace)
{
    Caso<CasellaTesto, QLineEdit> caso;
    legami.collega(caso.controllo, caso.widget.get());
    caso.widget.reset();
    caso.controllo.Testo.Poni("senza widget");
    caso.controllo.Abilitato.Poni(false);
    caso.controllo.ChiediFuoco();
    EXPECT_EQ(caso.controllo.Testo.Valore(), "senza widget");
}

TEST_F(LegamiProva, TagliatiNonToccanoPiuLoStato)
{
    QLineEdit widget;
    {
        CasellaTesto casella;
        legami.collega(casella, &widget);
        legami.Taglia();
    }
    QTest::keyClicks(&widget, "9");
    EXPECT_EQ(widget.text(), "9");
}

TEST_F(LegamiProva, LaSpuntaSegueNeiDueVersi)
{
    Caso<Spunta, QCheckBox> caso;
    legami.collega(caso.controllo, caso.widget.get());
    QTest::keyClick(caso.widget.get(), Qt::Key_Space);
    EXPECT_TRUE(caso.controllo.Segnata.Valore());
    caso.controllo.Segnata.Poni(false);
    EXPECT_FALSE(caso.widget->isChecked());
}

TEST_F(LegamiProva, LaComboSegueNeiDueVersi)
{
    Caso<Combo, QComboBox> caso;
    caso.controllo.AggiungiNumeri(1, 3);
    legami.collega(caso.controllo, caso.widget.get());
    EXPECT_EQ(caso.widget->count(), 3);
    EXPECT_EQ(caso.widget->currentIndex(), -1);
    QTest::keyClick(caso.widget.get(), Qt::Key_Down);
    EXPECT_EQ(caso.controllo.Testo(), "1");
    caso.controllo.Indice.Poni(2);
    EXPECT_EQ(caso.widget->currentText(), "3");
}

TEST_F(LegamiProva, LaComboRiempitaDiNuovoNonSceglieDaSola)
{
    Caso<Combo, QComboBox> caso;
    caso.controllo.AggiungiNumeri(1, 3);
    caso.controllo.Indice.Poni(1);
    legami.collega(caso.controllo, caso.widget.get());
    int nRegole = 0;
    caso.controllo.Indice.AlCambio([&] { ++nRegole; });
    caso.controllo.Svuota();
    caso.controllo.AggiungiNumeri(5, 9);
    EXPECT_EQ(caso.controllo.Indice.Valore(), -1);
    EXPECT_EQ(caso.widget->currentIndex(), -1);
    EXPECT_EQ(caso.widget->count(), 5);
    EXPECT_EQ(nRegole, 0);
}

TEST_F(LegamiProva, IBottoniRadioSonoLeVociDiUnaCombo)
{
    QButtonGroup gruppo;
    std::array<QRadioButton, 3> aBottoni;
    for (int i = 0; i < 3; ++i) {
        gruppo.addButton(&aBottoni.at(static_cast<std::size_t>(i)), i);
    }
    Combo combo;
    combo.AggiungiNumeri(1, 3);
    legami.collega(combo, &gruppo);
    EXPECT_EQ(gruppo.checkedId(), -1);
    QTest::keyClick(&aBottoni[1], Qt::Key_Space);
    EXPECT_EQ(combo.Indice.Valore(), 1);
    combo.Indice.Poni(-1);
    EXPECT_EQ(gruppo.checkedId(), -1);
    combo.Indice.Poni(2);
    EXPECT_TRUE(aBottoni[2].isChecked());
}

TEST_F(LegamiProva, LeLinguetteSonoLeVociDiUnaCombo)
{
    Caso<Combo, QTabBar> caso;
    caso.controllo.Aggiungi("Vincite");
    caso.controllo.Aggiungi("Riepilogo");
    caso.controllo.SelezionaPrima();
    legami.collega(caso.controllo, caso.widget.get());
    caso.widget->setCurrentIndex(1);
    EXPECT_EQ(caso.controllo.Testo(), "Riepilogo");
    caso.controllo.Indice.Poni(0);
    EXPECT_EQ(caso.widget->currentIndex(), 0);
}

TEST_F(LegamiProva, IlCursoreSegueLimitiEValore)
{
    Caso<Cursore, QSlider> caso;
    caso.controllo.Minimo.Poni(1);
    legami.collega(caso.controllo, caso.widget.get());
    caso.controllo.Valore.Poni(50);
    caso.controllo.Massimo.Poni(100);
    EXPECT_EQ(caso.widget->value(), 50);
    caso.widget->setValue(70);
    EXPECT_EQ(caso.controllo.Valore.Valore(), 70);
}

TEST_F(LegamiProva, LaBarraMostraLaPercentuale)
{
    Caso<Barra, QProgressBar> caso;
    legami.collega(caso.controllo, caso.widget.get());
    caso.controllo.Valore.Poni(42);
    EXPECT_EQ(caso.widget->value(), 42);
}

TEST_F(LegamiProva, LaListaMultiplaSegueNeiDueVersi)
{
    Caso<ListaMultipla, QListWidget> caso;
    caso.controllo.Aggiungi("0");
    caso.controllo.Aggiungi("1");
    legami.collega(caso.controllo, caso.widget.get());
    caso.controllo.Seleziona(1, true);
    EXPECT_TRUE(caso.widget->item(1)->isSelected());
    caso.widget->item(0)->setSelected(true);
    EXPECT_EQ(caso.controllo.Scelte.Valore(), (std::vector<bool>{true, true}));
}

TEST_F(LegamiProva, UnClicSuUnNodoDiceLaSuaChiave)
{
    Albero albero;
    QTreeWidget widget;
    std::string sClic;
    legami.collega(albero, &widget, [&](const std::string& s) { sClic = s; });
    albero.Nodi.Poni({{"sistema", "", "Sistema", "", true}, {"1Cond", "sistema", "Peso", "1", false}});
    ASSERT_EQ(widget.topLevelItemCount(), 1);
    QTreeWidgetItem* figlio = widget.topLevelItem(0)->child(0);
    ASSERT_NE(figlio, nullptr);
    Q_EMIT widget.itemClicked(figlio, 0);
    EXPECT_EQ(sClic, "1Cond");
}

TEST_F(LegamiProva, IlTemporizzatoreBatteFinchEAcceso)
{
    Temporizzatore temporizzatore;
    temporizzatore.nMillisecondi = 1;
    int nScatti = 0;
    temporizzatore.scatto = [&] {
        if (++nScatti == 2) {
            temporizzatore.Acceso.Poni(false);
        }
    };
    legami.collega(temporizzatore);
    temporizzatore.Acceso.Poni(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return nScatti == 2; }));
    QTest::qWait(10);
    EXPECT_EQ(nScatti, 2);
}

TEST_F(LegamiProva, UnaRegolaCheFallisceSiVedeESiFerma)
{
    Caso<Spunta, QCheckBox> caso;
    caso.controllo.Segnata.AlCambio([] { throw Errore(eErrore::indice); });
    legami.collega(caso.controllo, caso.widget.get());
    QTest::keyClick(caso.widget.get(), Qt::Key_Space);
    ASSERT_EQ(segnalatore.aMostrati.size(), 1U);
    EXPECT_EQ(segnalatore.aMostrati.front().substr(0, 10), "F_Prova: 9");
}

} // namespace ordavel::qt
