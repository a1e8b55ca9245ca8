// Schermate_prova.cpp - pictures of the program's own windows, to be looked at.
//
// They are written into the folder that ORDAVEL_SCHERMATE names; without it only that they can be drawn is tested.

#include "FinestraInProva.hpp"
#include "core/ModGiochi.hpp"
#include "desktop/F_ImportaArchivio.hpp"
#include "desktop/F_Impostazioni.hpp"
#include "desktop/F_Manuale.hpp"
#include "qt/PiattaformaQt.hpp"
#include "qt/SchermateComuni.hpp"

#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QTabWidget>
#include <QTest>

namespace ordavel::desktop {
namespace {

class SchermateDesktop : public FinestraInProva {
protected:
    void Scatta(QWidget& widget, const QString& sNome)
    {
        widget.show();
        const QString sCartella = qEnvironmentVariable("ORDAVEL_SCHERMATE", In(""));
        qt::prove::Ritrai(widget, sCartella + "/desktop-" + sNome + ".png");
    }

    /// Every label has the room that its text wants.
    static void NullaTagliato(const QWidget& widget)
    {
        for (const QLabel* etichetta : widget.findChildren<QLabel*>()) {
            if (etichetta->isVisible() && !etichetta->wordWrap()) {
                EXPECT_GE(etichetta->width(), etichetta->sizeHint().width())
                    << etichetta->text().toStdString();
            }
        }
    }

private:
    const qt::prove::AspettoFisso m_Aspetto{false};
};

TEST_F(SchermateDesktop, LaFinestra)
{
    Scatta(Finestra(), "finestra");
}

TEST_F(SchermateDesktop, IlSistemaAperto)
{
    Componente().Controlli().CmbTipoGioco.Indice.Poni(3);
    Componente().PoniContenuto(qt::prove::SistemaEsempio(), false);
    Componente().SetColonnaGrid(2);
    Finestra().resize(1080, 660);
    Finestra().show();
    const auto* conto = Finestra().findChild<QLabel*>("LabConto");
    EXPECT_TRUE(QTest::qWaitFor([&] { return conto->text().contains("su 38.760"); }));
    Scatta(Finestra(), "sistema");
}

TEST_F(SchermateDesktop, LIcona)
{
    QLabel icona;
    const QPixmap immagine = QIcon(QStringLiteral(":/desktop/ordavel.svg")).pixmap(128);
    EXPECT_EQ(immagine.size(), QSize(128, 128));
    icona.setPixmap(immagine);
    Scatta(icona, "icona");
}

TEST_F(SchermateDesktop, LePagineDelleImpostazioni)
{
    qt::PiattaformaQt piattaforma(nullptr);
    Impostazioni impostazioni = LeggiImpostazioni(archivio);
    impostazioni.aArchivi[0] = QStringLiteral(ORDAVEL_ARCHIVI "/lotto.bd");
    impostazioni.aArchivi[1] = QStringLiteral(ORDAVEL_ARCHIVI "/10elotto.bd");
    impostazioni.aArchivi[3] = In("manca.bd");
    F_Impostazioni dialogo(impostazioni, piattaforma, nullptr);
    for (int i = 0; i < 3; ++i) {
        dialogo.findChild<QTabWidget*>()->setCurrentIndex(i);
        Scatta(dialogo, QString("impostazioni-%1").arg(i));
        NullaTagliato(dialogo);
    }
}

TEST_F(SchermateDesktop, LImportazione)
{
    qt::PiattaformaQt piattaforma(nullptr);
    F_ImportaArchivio importa(*TrovaGioco("Lotto"), In("lotto.bd"), piattaforma, nullptr);
    importa.findChild<QLineEdit*>("Testo")->setText(QStringLiteral(ORDAVEL_ARCHIVI "/lotto.csv"));
    Scatta(importa, "importa");
    NullaTagliato(importa);
}

TEST_F(SchermateDesktop, IlManuale)
{
    F_Manuale manuale(nullptr);
    Scatta(manuale, "manuale");
    for (const int nCapitolo : {2, 4, 7, 21}) {
        manuale.findChild<TestoManuale*>()->VaiACapitolo(nCapitolo);
        Scatta(manuale, QString("manuale-%1").arg(nCapitolo));
    }
}

} // namespace
} // namespace ordavel::desktop
