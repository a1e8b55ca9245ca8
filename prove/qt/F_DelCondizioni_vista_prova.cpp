// F_DelCondizioni_vista_prova.cpp - a run of conditions is chosen and deleted.

#include "qt/F_DelCondizioni_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QComboBox>

namespace ordavel::qt {

namespace {

using prove::Clicca;
using prove::Scatola;
using prove::Trova;

class DelCondizioniVista : public prove::SistemaQtProva {
protected:
    DelCondizioniVista()
    {
        Condizioni(5);
        for (std::int32_t n = 1; n <= 5; ++n) {
            Griglia().Riga(n).sPunti = std::to_string(n);
        }
    }

    void NellaFinestra(const std::function<void(F_DelCondizioniVista&)>& azione)
    {
        Nella<F_DelCondizioniVista>("DelCondizioni", azione);
    }

    [[nodiscard]] std::string Punti()
    {
        std::string sPunti;
        for (std::int32_t n = 1; !Griglia().Vuota(n); ++n) {
            sPunti += Griglia().Riga(n).sPunti;
        }
        return sPunti;
    }
};

void Scegli(QWidget& vista, const char* sDalla, const char* sAlla)
{
    QTest::keyClicks(&Trova<QComboBox>(vista, "CmbDalla"), sDalla);
    QTest::keyClicks(&Trova<QComboBox>(vista, "CmbAlla"), sAlla);
}

} // namespace

TEST_F(DelCondizioniVista, SiEliminanoQuelleScelte)
{
    NellaFinestra([](F_DelCondizioniVista& vista) {
        prove::ExpectNominati(vista);
        EXPECT_EQ(Trova<QComboBox>(vista, "CmbDalla").count(), 5);
        Scegli(vista, "2", "4");
        QTest::keyClick(&vista, Qt::Key_Return);
    });
    EXPECT_EQ(Punti(), "15");
}

TEST_F(DelCondizioniVista, SenzaLimitiOAlContrarioLaFinestraResta)
{
    NellaFinestra([](F_DelCondizioniVista& vista) {
        EXPECT_EQ(Scatola([&] { Clicca(vista, "Conferma"); }), "Impostare i limiti");
        Scegli(vista, "4", "2");
        EXPECT_EQ(Scatola([&] { Clicca(vista, "Conferma"); }), "Parametri incoerenti");
        EXPECT_TRUE(vista.isVisible());
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Punti(), "12345");
}

TEST_F(DelCondizioniVista, IlTabVaComeSiLegge)
{
    NellaFinestra([](F_DelCondizioniVista& vista) {
        EXPECT_EQ(prove::GiroTab(vista),
                  (std::vector<std::string>{"CmbDalla", "CmbAlla", "Conferma", "Chiudi"}));
    });
}

} // namespace ordavel::qt
