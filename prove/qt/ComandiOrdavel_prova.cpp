// ComandiOrdavel_prova.cpp - the commands as toolbar, menus and keys.

#include "qt/ComandiOrdavel.hpp"

#include "ordavel/Ordavel.hpp"

#include "qt/PiattaformaQt.hpp"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QSignalSpy>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

struct ComandiProva : testing::Test {
    QWidget padre;
    PiattaformaQt piattaforma{&padre};
    Ordavel sistema{piattaforma};
    Legami legami{piattaforma, "prova"};
    ComandiOrdavel comandi{sistema, legami, &padre};
};

/// All entries of a menu and of the menus in it.
QList<QAction*> Voci(const QMenu& menu)
{
    QList<QAction*> aVoci;
    for (QAction* azione : menu.actions()) {
        aVoci += azione->menu() == nullptr ? QList<QAction*>{azione} : Voci(*azione->menu());
    }
    return aVoci;
}

QString Mnemonica(const QString& sTesto)
{
    const auto nPosto = sTesto.indexOf(u'&');
    return nPosto < 0 ? QString() : sTesto.mid(nPosto + 1, 1).toLower();
}

} // namespace

TEST_F(ComandiProva, LaBarraHaIVentiquattroPulsantiNelLoroOrdine)
{
    QToolBar barra;
    comandi.RiempiBarra(&barra);
    QStringList aChiavi;
    for (const QAction* azione : barra.actions()) {
        if (!azione->isSeparator()) {
            aChiavi.append(azione->objectName());
            EXPECT_FALSE(azione->icon().isNull()) << azione->objectName().toStdString();
            EXPECT_FALSE(azione->toolTip().isEmpty());
        }
    }
    QStringList aAttese;
    for (const PulsanteStrumento& pulsante : sistema.Controlli().Toolbar2.aPulsanti) {
        aAttese.append(Testo(pulsante.sChiave));
    }
    EXPECT_EQ(aChiavi.size(), 24);
    EXPECT_EQ(aChiavi, aAttese);
}

TEST_F(ComandiProva, IMenuDellaBarraHannoLeLoroVoci)
{
    EXPECT_EQ(comandi.Menu("Condizioni")->actions().size(), 36);
    EXPECT_EQ(comandi.Menu("Save")->actions().size(), 4);
    EXPECT_EQ(comandi.Menu("Open"), nullptr);
    EXPECT_EQ(QString(comandi.Azione("PuntiSuCadenze")->text()).remove(u'&'), "Cadenze (q max uguali)");
}

TEST_F(ComandiProva, OgniComandoEInUnMenuEHaUnTastoOUnaLettera)
{
    QMenuBar barra;
    QAction annulla;
    annulla.setObjectName("Annulla");
    QAction ripeti;
    ripeti.setObjectName("Ripeti");
    comandi.Registra(&annulla);
    comandi.Registra(&ripeti);
    comandi.RiempiMenu(&barra);
    QSet<QString> aTrovati;
    for (const QAction* titolo : barra.actions()) {
        EXPECT_FALSE(Mnemonica(titolo->text()).isEmpty());
        for (const QAction* voce : Voci(*titolo->menu())) {
            aTrovati.insert(voce->objectName());
        }
    }
    // The button that opens conditions and its menu's entry are one command; so are those that save.
    for (const PulsanteStrumento& pulsante : sistema.Controlli().Toolbar2.aPulsanti) {
        const QString sChiave = Testo(pulsante.sChiave);
        EXPECT_TRUE(aTrovati.contains(sChiave) || sChiave == "GestCondizioni") << pulsante.sChiave;
        EXPECT_FALSE(comandi.Azione(sChiave)->shortcut().isEmpty()) << pulsante.sChiave;
        for (const VoceMenu& voce : pulsante.aMenu) {
            EXPECT_TRUE(aTrovati.contains(Testo(voce.sChiave)) || voce.sChiave == "Salva") << voce.sChiave;
        }
    }
}

TEST_F(ComandiProva, NessunTastoServeADueComandi)
{
    QSet<QString> aTasti;
    for (const QAction* azione : padre.actions()) {
        const QString sTasto = azione->shortcut().toString();
        EXPECT_FALSE(!sTasto.isEmpty() && aTasti.contains(sTasto)) << sTasto.toStdString();
        aTasti.insert(sTasto);
    }
}

TEST_F(ComandiProva, LeLettereDiUnMenuSonoDiverse)
{
    const QStringList aTesti = ConMnemonici({"Peso", "Ponte", "Posizioni", "Punti"});
    QSet<QString> aLettere;
    for (const QString& sTesto : aTesti) {
        EXPECT_FALSE(Mnemonica(sTesto).isEmpty());
        aLettere.insert(Mnemonica(sTesto));
    }
    EXPECT_EQ(aLettere.size(), 4);
    EXPECT_EQ(ConMnemonici({"a", "a"}), (QStringList{"&a", "a"}));
}

TEST_F(ComandiProva, AbilitatoSegueLoStato)
{
    EXPECT_FALSE(comandi.Azione("Stop")->isEnabled());
    sistema.Controlli().Toolbar2.Pulsante("Stop").Abilitato.Poni(true);
    EXPECT_TRUE(comandi.Azione("Stop")->isEnabled());
    EXPECT_FALSE(comandi.Azione("Salva")->isEnabled());
    sistema.Controlli().Toolbar2.Voce("Salva").Abilitato.Poni(true);
    EXPECT_TRUE(comandi.Azione("Salva")->isEnabled());
}

TEST_F(ComandiProva, IlPulsanteDeiNumeriTiene)
{
    QAction* azione = comandi.Azione("SelNumeri");
    azione->trigger();
    EXPECT_TRUE(azione->isChecked());
    EXPECT_TRUE(sistema.Controlli().SelnovoNumeri1.Visibile.Valore());
    azione->trigger();
    EXPECT_FALSE(sistema.Controlli().SelnovoNumeri1.Visibile.Valore());
    azione->trigger();
    sistema.SelnovoNumeri1_Chiuso();
    EXPECT_FALSE(azione->isChecked());
}

TEST_F(ComandiProva, UnComandoSiAnnunciaEDiceQuandoEFinito)
{
    const QSignalSpy inizia(&comandi, &ComandiOrdavel::inizia);
    const QSignalSpy eseguito(&comandi, &ComandiOrdavel::eseguito);
    comandi.Azione("LinkOpen")->trigger();
    ASSERT_EQ(inizia.count(), 1);
    ASSERT_EQ(eseguito.count(), 1);
    EXPECT_EQ(eseguito.front().front().toString(), "LinkOpen");
    EXPECT_EQ(sistema.GetGridCond().Riga(1).sCondizione, "LinkOpen");
}

} // namespace ordavel::qt
