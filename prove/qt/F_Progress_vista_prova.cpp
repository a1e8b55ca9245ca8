// F_Progress_vista_prova.cpp - the progress of a text export, and its way out.

#include "qt/F_Progress_vista.hpp"

#include "qt/SistemaQtProva.hpp"

#include <QProgressBar>
#include <QPushButton>

#include <filesystem>

namespace ordavel::qt {

namespace {

using prove::Clicca;
using prove::Quando;
using prove::Trova;

/// A first column of one number, and 4999 without any.
constexpr std::uintmax_t kByteTesto = 4 + 4999 * 2;

class ProgressVista : public prove::SistemaQtProva {
protected:
    ProgressVista()
    {
        ordavel::prove::ScriviFile(sistema.FileColonne(), "\x01");
        std::filesystem::resize_file(sistema.FileColonne(), 20 * 5000);
    }

    /// Exports with something done in the middle of it.
    void Esporta(const std::function<void(F_ProgressVista&)>& durante)
    {
        bool bFatto = false;
        piattaforma.eventi = [&] {
            for (QWidget* finestra : QApplication::topLevelWidgets()) {
                auto* vista = dynamic_cast<F_ProgressVista*>(finestra);
                if (vista != nullptr && vista->isVisible() && ++m_nEventi == 150) {
                    bFatto = true;
                    durante(*vista);
                }
            }
        };
        EXPECT_TRUE(prove::ConFile(m_sTesto, [&] { m_bTutte = sistema.SalvaFileColonneTesto(); }));
        piattaforma.eventi = {};
        EXPECT_TRUE(bFatto);
    }

    /// Answers the question that an action brings up.
    static void Rispondi(bool bSi, const std::function<void()>& azione, const QWidget* sopra = nullptr)
    {
        EXPECT_TRUE(Quando<QMessageBox>(
            [bSi, sopra](QMessageBox& box) {
                EXPECT_TRUE(sopra == nullptr || box.parentWidget() == sopra) << "starebbe sotto";
                EXPECT_EQ(box.text(), "Annullare ?");
                QTest::mouseClick(box.buttons().at(bSi ? 0 : 1), Qt::LeftButton);
            },
            azione));
    }

    const std::string m_sTesto = cartella / "salvate/prova.txt";
    int m_nEventi = 0;
    bool m_bTutte = false;
};

} // namespace

TEST_F(ProgressVista, StaDavantiEDiceAChePuntoE)
{
    QPointer<QWidget> finestra;
    Esporta([&](F_ProgressVista& vista) {
        finestra = &vista;
        prove::ExpectNominati(vista);
        EXPECT_TRUE(vista.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_FALSE(vista.isModal());
        EXPECT_EQ(Trova<QProgressBar>(vista, "ProgBarXP1").value(), 3);
    });
    EXPECT_TRUE(m_bTutte);
    EXPECT_TRUE(finestra.isNull() || !finestra->isVisible());
    EXPECT_EQ(std::filesystem::file_size(m_sTesto), kByteTesto);
}

TEST_F(ProgressVista, LAnnullaChiedeEColSiLEsportazioneFinisce)
{
    Esporta([](F_ProgressVista& vista) { Rispondi(true, [&] { Clicca(vista, "Annulla"); }); });
    EXPECT_FALSE(m_bTutte);
    EXPECT_GT(std::filesystem::file_size(m_sTesto), 0U);
    EXPECT_LT(std::filesystem::file_size(m_sTesto), kByteTesto);
}

TEST_F(ProgressVista, ColNoVaAvanti)
{
    Esporta([](F_ProgressVista& vista) {
        Rispondi(
            false, [&] { Clicca(vista, "Annulla"); }, &vista);
        EXPECT_TRUE(vista.isVisible());
    });
    EXPECT_TRUE(m_bTutte);
}

TEST_F(ProgressVista, EscELaCrocettaSonoLAnnulla)
{
    Esporta([](F_ProgressVista& vista) {
        Rispondi(false, [&] { QTest::keyClick(&vista, Qt::Key_Escape); });
        EXPECT_TRUE(vista.isVisible());
        Rispondi(true, [&] { EXPECT_FALSE(vista.close()); });
        EXPECT_TRUE(vista.isVisible()) << "finché l'esportazione non lo sa";
    });
    EXPECT_FALSE(m_bTutte);
}

} // namespace ordavel::qt
