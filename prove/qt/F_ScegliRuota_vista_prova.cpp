// F_ScegliRuota_vista_prova.cpp - the wheel that a development with emulated draws asks for.

#include "qt/F_ScegliRuota_vista.hpp"

#include "editor/OspiteProva.hpp"
#include "qt/SistemaQtProva.hpp"

#include <QComboBox>

namespace ordavel::qt {

namespace {

using prove::Clicca;
using prove::Quando;
using prove::Trova;

class ScegliRuotaVista : public prove::SistemaQtProva {
protected:
    void Mostra(const std::function<void(F_ScegliRuotaVista&)>& azione)
    {
        EXPECT_TRUE(Quando<F_ScegliRuotaVista>(azione, [this] { piattaforma.MostraModale(dialogo); }));
    }

    ordavel::prove::OspiteProva ospite{5};
    F_ScegliRuota dialogo{ospite};
};

} // namespace

TEST_F(ScegliRuotaVista, SiSceglieConITasti)
{
    Mostra([](F_ScegliRuotaVista& vista) {
        prove::ExpectNominati(vista);
        auto& ruote = Trova<QComboBox>(vista, "CmbRuota");
        EXPECT_EQ(ruote.count(), 11);
        EXPECT_EQ(ruote.currentText(), "Bari");
        QTest::keyClicks(&ruote, "Fir");
        QTest::keyClick(&ruote, Qt::Key_Return);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(dialogo.Ruota(), 3);
}

TEST_F(ScegliRuotaVista, ChiusaSenzaConfermaLasciaQuellaCheCE)
{
    Mostra([](F_ScegliRuotaVista& vista) {
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(dialogo.Ruota(), 1);
}

TEST_F(ScegliRuotaVista, LoSviluppoLaChiede)
{
    Griglia().Riga(1) = {"Emulatore", "[1]\r\nP0) 1 - 1\r\nP1) 0 - 0\r\n", "", "", ""};
    for (std::int16_t n = 1; n <= 6; ++n) {
        sistema.SelezionaNumero(n, true);
    }
    QStringList aBox;
    EXPECT_TRUE(Quando<F_ScegliRuotaVista>([](F_ScegliRuotaVista& vista) { Clicca(vista, "Conferma"); },
                                           [&] {
                                               QTimer orologio;
                                               QObject::connect(&orologio, &QTimer::timeout, &orologio, [&] {
                                                   if (auto* box = qobject_cast<QMessageBox*>(
                                                           QApplication::activeModalWidget())) {
                                                       aBox << box->text();
                                                       box->close();
                                                   }
                                               });
                                               orologio.start(0);
                                               sistema.Toolbar2_ButtonClick("SviluppaCond");
                                           }));
    ASSERT_EQ(aBox.size(), 2);
    EXPECT_EQ(aBox[0], "Filtro emulatore non creato");
}

} // namespace ordavel::qt
