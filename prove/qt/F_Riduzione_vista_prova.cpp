// F_Riduzione_vista_prova.cpp - a file is reduced in its window, which cannot be closed meanwhile.

#include "qt/F_Riduzione_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace ordavel::qt {

namespace {

using prove::Clicca;
using prove::ConFile;
using prove::Trova;

class RiduzioneVista : public prove::SistemaQtProva {
protected:
    RiduzioneVista()
    {
        std::string sByte;
        for (int n = 0; n < 30000; ++n) {
            sByte += static_cast<char>(1 + n % 3);
            sByte += "\x05\x06" + std::string(17, '\0');
        }
        ordavel::prove::ScriviFile(m_sFile, sByte);
    }

    void NellaFinestra(const std::function<void(F_RiduzioneVista&)>& azione)
    {
        Nella<F_RiduzioneVista>("Riduzione", azione);
    }

    /// Runs with something done at its second look at events: the first is in front of the run, the others in it.
    /// Gives    the texts of the boxes
    QStringList Esegui(F_RiduzioneVista& vista, const std::function<void()>& durante, int nQuando = 2)
    {
        int nEventi = 0;
        piattaforma.eventi = [&] {
            if (++nEventi == nQuando) {
                durante();
            }
        };
        QStringList aBox;
        QTimer orologio;
        QObject::connect(&orologio, &QTimer::timeout, &orologio, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                aBox << box->text();
                box->close();
            }
        });
        orologio.start(0);
        Clicca(vista, "XPButton10");
        piattaforma.eventi = {};
        EXPECT_GE(nEventi, 2);
        return aBox;
    }

    const std::string m_sFile = cartella / "salvate/prova.col";
};

QString Mostrato(QWidget& vista, const char* sEtichetta)
{
    return Trova<QLabel>(vista, sEtichetta).text();
}

void ApriIlFile(F_RiduzioneVista& vista, const std::string& sFile)
{
    EXPECT_TRUE(ConFile(sFile, [&] { Clicca(vista, "Command1"); }));
}

} // namespace

TEST_F(RiduzioneVista, IlFileSceltoSiVedeConIlNomeDellUscita)
{
    NellaFinestra([&](F_RiduzioneVista& vista) {
        prove::ExpectNominati(vista);
        ApriIlFile(vista, m_sFile);
        EXPECT_EQ(Mostrato(vista, "labFile"), Testo(m_sFile));
        EXPECT_EQ(Trova<QLabel>(vista, "labFile").toolTip(), Testo(m_sFile));
        EXPECT_EQ(Mostrato(vista, "LabColonne"), "30.000");
        EXPECT_EQ(Mostrato(vista, "LabClasse"), "3");
        QTest::keyClick(&Trova<QComboBox>(vista, "cmbRiduzione"), Qt::Key_Down);
        EXPECT_EQ(Mostrato(vista, "LabFileRidotto"), Testo(cartella / "salvate/prova_Rid_N-2.col"));
        EXPECT_EQ(Trova<QComboBox>(vista, "CmbMotoreRid").currentText(), "Interno");
    });
}

TEST_F(RiduzioneVista, IlFileDiLavoroCEGia)
{
    Condizioni(1);
    Sviluppa(7);
    NellaFinestra([this](F_RiduzioneVista& vista) {
        EXPECT_EQ(Mostrato(vista, "labFile"), Testo(sistema.FileColonne()));
        EXPECT_EQ(Mostrato(vista, "LabColonne"), "21");
        QAccessibleInterface* letto =
            QAccessible::queryAccessibleInterface(&Trova<QLabel>(vista, "LabColonne"));
        EXPECT_EQ(letto->text(QAccessible::Name), "21") << "si legge il valore";
        EXPECT_EQ(letto->text(QAccessible::Description), "Colonne");
    });
}

TEST_F(RiduzioneVista, DuranteLaCorsaSiPuoSoloFermareENonChiudere)
{
    NellaFinestra([this](F_RiduzioneVista& vista) {
        ApriIlFile(vista, m_sFile);
        auto& comando = Trova<QPushButton>(vista, "XPButton10");
        EXPECT_EQ(comando.text(), "&ESEGUI");
        const QStringList aBox = Esegui(vista, [&] {
            EXPECT_EQ(comando.text(), "&STOP");
            EXPECT_EQ(comando.accessibleName(), "STOP");
            for (const char* sNome : {"XPButton11", "cmbRiduzione", "CmbMotoreRid", "Command1"}) {
                EXPECT_FALSE(Trova<QWidget>(vista, sNome).isEnabled()) << sNome;
            }
            QTest::keyClick(&vista, Qt::Key_Escape);
            EXPECT_TRUE(vista.isVisible());
            EXPECT_FALSE(vista.close());
            EXPECT_TRUE(vista.isVisible());
            EXPECT_GT(Trova<QProgressBar>(vista, "PanPerc").value(), 0);
        });
        ASSERT_EQ(aBox.size(), 1);
        EXPECT_TRUE(aBox[0].startsWith("Fine"));
        EXPECT_TRUE(vista.isVisible());
        EXPECT_EQ(comando.text(), "&ESEGUI");
        EXPECT_EQ(Mostrato(vista, "LabColonneRid"), "1");
        EXPECT_EQ(Trova<QProgressBar>(vista, "PanPerc").value(), 0);
        QTest::keyClick(&vista, Qt::Key_Escape);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(std::filesystem::file_size(cartella / "salvate/prova_Rid_N-1.col"), 20U);
}

TEST_F(RiduzioneVista, LoStopFinisceLaCorsaEChiude)
{
    NellaFinestra([this](F_RiduzioneVista& vista) {
        ApriIlFile(vista, m_sFile);
        const QStringList aBox = Esegui(vista, [&] { Clicca(vista, "XPButton10"); });
        ASSERT_EQ(aBox.size(), 1) << Testo(aBox.join('|'));
        EXPECT_TRUE(aBox[0].startsWith("Fine"));
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_TRUE(std::filesystem::exists(cartella / "salvate/prova_Rid_N-1.col"));
}

TEST_F(RiduzioneVista, ChiusaPrimaDellaCorsaLaCorsaSiFa)
{
    NellaFinestra([this](F_RiduzioneVista& vista) {
        ApriIlFile(vista, m_sFile);
        const QStringList aBox = Esegui(
            vista, [&] { EXPECT_TRUE(vista.close()); }, 1);
        EXPECT_EQ(aBox.size(), 1);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_TRUE(std::filesystem::exists(cartella / "salvate/prova_Rid_N-1.col"));
}

TEST_F(RiduzioneVista, UnFileCheNonCePiuSiDiceEIComandiTornano)
{
    NellaFinestra([this](F_RiduzioneVista& vista) {
        ApriIlFile(vista, m_sFile);
        std::filesystem::remove(m_sFile);
        EXPECT_TRUE(prove::Scatola([&] { Clicca(vista, "XPButton10"); }).startsWith("53- "));
        EXPECT_TRUE(Trova<QPushButton>(vista, "XPButton11").isEnabled());
        EXPECT_EQ(Trova<QPushButton>(vista, "XPButton10").text(), "&ESEGUI");
    });
}

TEST_F(RiduzioneVista, ConEsternoIlTempoPortaLaPercentuale)
{
    NellaFinestra([this](F_RiduzioneVista& vista) {
        ApriIlFile(vista, m_sFile);
        QTest::keyClick(&Trova<QComboBox>(vista, "CmbMotoreRid"), Qt::Key_Down);
        Esegui(vista, [&] {
            auto& barra = Trova<QProgressBar>(vista, "PanPerc");
            EXPECT_TRUE(QTest::qWaitFor([&] { return barra.value() == 42; }, 3000));
        });
        EXPECT_TRUE(vista.isVisible());
    });
}

TEST_F(RiduzioneVista, IlTabVaComeSiLegge)
{
    NellaFinestra([](F_RiduzioneVista& vista) {
        EXPECT_EQ(prove::GiroTab(vista), (std::vector<std::string>{"XPButton10", "XPButton11", "Command1",
                                                                   "cmbRiduzione", "CmbMotoreRid"}));
    });
}

} // namespace ordavel::qt
