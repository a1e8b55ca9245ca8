// VisteEditor_prova.cpp - what holds for the window of every condition: names, keys, order; and windows that go.

#include "editor/F_PuntiSu.hpp"
#include "editor/OspiteProva.hpp"
#include "qt/CreaVista.hpp"
#include "qt/DialoghiProva.hpp"

#include <QCheckBox>
#include <QPushButton>

namespace ordavel::qt {

namespace {

using namespace prove;
using ordavel::prove::OspiteProva;
using enum TipoCondizione;

std::vector<TipoCondizione> TuttiConDialogo()
{
    std::vector<TipoCondizione> aTipi;
    for (const VoceCatalogo& voce : Catalogo()) {
        if (!voce.sDialogo.empty()) {
            aTipi.push_back(voce.Tipo);
        }
    }
    return aTipi;
}

class VisteDiCondizioni : public DialoghiProva, public testing::WithParamInterface<TipoCondizione> {
protected:
    /// The window with its recovery side enabled, where it has one.
    void ApriIntera(const Azione& azione)
    {
        Apri(GetParam(), [&](VistaDialogo& vista) {
            if (vista.findChild<QComboBox*>("CmbRecupero") != nullptr) {
                Scegli(vista, "CmbRecupero", "1");
            }
            azione(vista);
        });
    }
};

INSTANTIATE_TEST_SUITE_P(Tutte, VisteDiCondizioni, testing::ValuesIn(TuttiConDialogo()),
                         [](const auto& caso) {
                             return std::string(TrovaTipo(caso.param)->sDialogo.substr(2));
                         });

/// Notes what it is asked for.
class StatisticaNotata : public Statistica {
public:
    explicit StatisticaNotata(std::vector<std::int32_t>& aChieste) : m_aChieste(aChieste) {}
    void Avvia() override {}
    void Ferma() override {}
    void MostraStatistica(std::int32_t nIdStatistica, std::int16_t /*nGioco*/) override
    {
        m_aChieste.push_back(nIdStatistica);
    }

private:
    std::vector<std::int32_t>& m_aChieste;
};

/// A dialog and windows of it, outside any loop.
struct FinestreProva : testing::Test {
    PiattaformaQt piattaforma{nullptr};
    OspiteProva ospite{5};
    std::unique_ptr<F_PuntiSu> dialogo = std::make_unique<F_PuntiSu>(ospite, resto);
};

} // namespace

TEST_P(VisteDiCondizioni, OgniControlloHaUnNome)
{
    ApriIntera([](VistaDialogo& vista) {
        EXPECT_EQ(SenzaNome(vista), QStringList());
        EXPECT_FALSE(vista.accessibleName().isEmpty());
    });
}

TEST_P(VisteDiCondizioni, ConTabSiArrivaATutto)
{
    ApriIntera([](VistaDialogo& vista) { EXPECT_EQ(NonRaggiunti(vista), QStringList()); });
}

TEST_P(VisteDiCondizioni, LOrdineDelTabEQuelloDiLettura)
{
    ApriIntera([](VistaDialogo& vista) {
        Trova(vista, "Chiudi").setFocus();
        QTest::keyClick(&vista, Qt::Key_Tab);
        const QWidget* primo = QApplication::focusWidget();
        ASSERT_NE(primo, nullptr);
        for (const QWidget* widget : DaTastiera(vista)) {
            const bool bSopra = widget->mapTo(&vista, QPoint()).y() < primo->mapTo(&vista, QPoint()).y();
            EXPECT_FALSE(bSopra) << Identita(*widget).toStdString() << " sopra "
                                 << Identita(*primo).toStdString();
        }
        EXPECT_EQ(Trova(vista, "Conferma").nextInFocusChain(), &Trova(vista, "Chiudi"));
    });
}

TEST_P(VisteDiCondizioni, NessunaMnemonicaEDoppia)
{
    ApriIntera([](VistaDialogo& vista) { EXPECT_EQ(MnemonicheDoppie(vista), ""); });
}

TEST_P(VisteDiCondizioni, NullaETagliato)
{
    ApriIntera([](VistaDialogo& vista) {
        for (const QWidget* widget : DaTastiera(vista)) {
            if (widget->layout() == nullptr && widget->objectName() != "Text1") {
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                    << Identita(*widget).toStdString();
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height())
                    << Identita(*widget).toStdString();
            }
        }
    });
}

TEST_P(VisteDiCondizioni, EscNonCambiaNulla)
{
    ApriIntera([](VistaDialogo& vista) { QTest::keyClick(vista.focusWidget(), Qt::Key_Escape); });
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
    EXPECT_FALSE(sistema.Modificato());
}

TEST(VistaStatistica, IlPulsanteLaChiedeELaFinestraResta)
{
    std::vector<std::int32_t> aChieste;
    PiattaformaQt piattaforma(nullptr,
                              [&](PiattaformaQt&) { return std::make_unique<StatisticaNotata>(aChieste); });
    Ordavel sistema(piattaforma);
    bool bAperta = false;
    QTimer::singleShot(0, [&] {
        auto* vista = qobject_cast<VistaDialogo*>(QApplication::activeModalWidget());
        ASSERT_NE(vista, nullptr);
        Clicca(*vista, "Statistica");
        bAperta = vista->isVisible();
        Clicca(*vista, "Chiudi");
    });
    sistema.Toolbar2_ButtonMenuClick("PuntisuPeso");
    EXPECT_TRUE(bAperta);
    EXPECT_EQ(aChieste, std::vector<std::int32_t>{9});
    EXPECT_TRUE(sistema.GetGridCond().Vuota(1));
}

// ---- windows that go before their dialog, and the other way ----

TEST_F(FinestreProva, LaFinestraSenzaPiuDialogoNonLoTocca)
{
    const QPointer<VistaDialogo> vista = CreaVista(*dialogo, piattaforma, nullptr).release();
    vista->show();
    dialogo.reset();
    ASSERT_TRUE(vista);
    EXPECT_TRUE(vista->Finita());
    EXPECT_FALSE(vista->isVisible());
    Clicca(*vista, "ChkPunti0");
    Clicca(*vista, "Conferma");
    Scegli(*vista, "Combo1", "9");
    vista->close();
    QCoreApplication::sendPostedEvents(vista, QEvent::DeferredDelete);
    EXPECT_FALSE(vista);
}

TEST_F(FinestreProva, NessunaFinestraToccaUnDialogoCheNonCEPiu)
{
    for (const TipoCondizione tipo : TuttiConDialogo()) {
        std::unique_ptr<DialogoCondizione> logica = CreaDialogo(ospite, tipo);
        const std::unique_ptr<VistaDialogo> vista = CreaVista(*logica, piattaforma, nullptr);
        vista->show();
        const QList<QWidget*> aWidget = DaTastiera(*vista);
        logica.reset();
        for (QWidget* widget : aWidget) {
            for (const Qt::Key tasto : {Qt::Key_Space, Qt::Key_Down, Qt::Key_1, Qt::Key_Return}) {
                QTest::keyClick(widget, tasto);
            }
            QTest::mouseClick(widget, Qt::LeftButton);
        }
        static_cast<void>(vista->grab());
        EXPECT_TRUE(vista->Finita());
    }
}

TEST_F(FinestreProva, IlDialogoSenzaPiuFinestraVaAvanti)
{
    CreaVista(*dialogo, piattaforma, nullptr).reset();
    dialogo->Combo1.Indice.Poni(7);
    dialogo->ChkPunti(7).Segnata.Poni(true);
    dialogo->Premi(ePulsanteDialogo::conferma);
    EXPECT_EQ(dialogo->GetParametri().sPunti, "7");
}

TEST_F(FinestreProva, LaSecondaFinestraPrendeIlPostoDellaPrima)
{
    const QPointer<VistaDialogo> prima = CreaVista(*dialogo, piattaforma, nullptr).release();
    prima->show();
    const std::unique_ptr<VistaDialogo> seconda = CreaVista(*dialogo, piattaforma, nullptr);
    seconda->show();
    EXPECT_TRUE(prima->Finita());
    EXPECT_FALSE(prima->isVisible());
    Clicca(*prima, "ChkPunti0");
    EXPECT_FALSE(dialogo->ChkPunti(0).Segnata.Valore());
    Clicca(*seconda, "ChkPunti1");
    EXPECT_TRUE(dialogo->ChkPunti(1).Segnata.Valore());
    dialogo->Combo1.Indice.Poni(7);
    dialogo.reset();
    EXPECT_TRUE(seconda->Finita());
    QCoreApplication::sendPostedEvents(prima, QEvent::DeferredDelete);
    EXPECT_FALSE(prima);
}

TEST_F(FinestreProva, LeFinestreDiDueDialoghiNonSiDisturbano)
{
    F_PuntiSu altro(ospite, resto);
    const std::unique_ptr<VistaDialogo> prima = CreaVista(*dialogo, piattaforma, nullptr);
    const std::unique_ptr<VistaDialogo> seconda = CreaVista(altro, piattaforma, nullptr);
    EXPECT_FALSE(prima->Finita());
    Clicca(*prima, "ChkPunti1");
    EXPECT_TRUE(dialogo->ChkPunti(1).Segnata.Valore());
    EXPECT_FALSE(altro.ChkPunti(1).Segnata.Valore());
}

} // namespace ordavel::qt
