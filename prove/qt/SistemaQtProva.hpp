// SistemaQtProva.hpp - a component over Qt's desktop in folders of its own, and a user at its windows.

#pragma once

#include "ordavel/Ordavel.hpp"

#include "comune/CartellaProva.hpp"
#include "qt/DialoghiProva.hpp"
#include "qt/Legami.hpp"
#include "qt/PiattaformaQt.hpp"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace ordavel::qt::prove {

/// How long a window is waited for, in milliseconds.
inline constexpr int kAttesa = 10000;

/// Does something with the window that comes in front, inside its loop, and closes it when nothing else has.
/// Takes    apre   what makes it come
/// Gives    whether it came
template <typename Finestra>
bool Quando(const std::function<void(Finestra&)>& azione, const std::function<void()>& apre)
{
    bool bVista = false;
    QElapsedTimer tempo;
    tempo.start();
    QTimer orologio;
    QObject::connect(&orologio, &QTimer::timeout, &orologio, [&] {
        QWidget* davanti = QApplication::activeModalWidget();
        if (auto* finestra = dynamic_cast<Finestra*>(davanti)) {
            orologio.stop();
            bVista = true;
            const QPointer<QWidget> tenuta(davanti);
            EXPECT_TRUE(QTest::qWaitForWindowActive(davanti));
            azione(*finestra);
            if (tenuta && tenuta->isVisible()) {
                tenuta->close();
            }
        } else if (davanti != nullptr && tempo.hasExpired(kAttesa)) {
            orologio.stop();
            davanti->close();
        }
    });
    orologio.start(0);
    apre();
    return bVista;
}

/// The text of the box that an action brings up, which is then closed; empty when there is none.
inline QString Scatola(const std::function<void()>& azione)
{
    QString sTesto;
    Quando<QMessageBox>([&](QMessageBox& finestra) { sTesto = finestra.text(); }, azione);
    return sTesto;
}

/// An action that asks for a file is given this one.
inline bool ConFile(const std::string& sFile, const std::function<void()>& azione)
{
    return Quando<QFileDialog>(
        [&](QFileDialog& finestra) {
            auto& nome = Trova<QLineEdit>(finestra, "fileNameEdit");
            nome.setText(Testo(sFile));
            QTest::keyClick(&nome, Qt::Key_Return);
        },
        azione);
}

/// The names of what the Tab key goes through, from where the keys are.
inline std::vector<std::string> GiroTab(QWidget& finestra)
{
    std::vector<std::string> aNomi;
    const QWidget* primo = finestra.focusWidget();
    for (const QWidget* w = primo; w != nullptr && aNomi.size() < 100;) {
        aNomi.push_back(Testo(w->objectName()));
        QTest::keyClick(&finestra, Qt::Key_Tab);
        w = finestra.focusWidget() == primo ? nullptr : finestra.focusWidget();
    }
    return aNomi;
}

/// Everything that takes keys says what it is.
inline void ExpectNominati(QWidget& finestra)
{
    EXPECT_FALSE(DaTastiera(finestra).isEmpty());
    EXPECT_EQ(SenzaNome(finestra), QStringList());
    EXPECT_EQ(MnemonicheDoppie(finestra), QString());
}

/// A desktop whose clock always says that it is time, and which does something whenever events run.
class PiattaformaSvelta : public PiattaformaQt {
public:
    using PiattaformaQt::PiattaformaQt;

    std::chrono::steady_clock::time_point Adesso() override
    {
        return std::chrono::steady_clock::time_point(m_nOra += std::chrono::hours(1));
    }

    void LasciaEventi() override
    {
        PiattaformaQt::LasciaEventi();
        if (eventi) {
            eventi();
        }
    }

    std::function<void()> eventi;

private:
    std::chrono::hours m_nOra{0};
};

/// The component and its folders.
class SistemaQtProva : public testing::Test {
protected:
    SistemaQtProva()
    {
        sistema.PoniPercorsoTemp(cartella / "temp");
        sistema.PoniDirSistemi(cartella / "sistemi");
        sistema.PoniPercorsoSalvaColonne(cartella / "salvate");
    }

    [[nodiscard]] GrigliaCondizioni& Griglia() { return sistema.GetGridCond(); }

    /// Conditions of this kind in the rows from 1 on, all of which keep every column of class 5.
    void Condizioni(std::int32_t nQuante)
    {
        for (std::int32_t n = 1; n <= nQuante; ++n) {
            Griglia().Riga(n) = {"Ponte", "P\r\no\r\nn\r\nt\r\ne", "0-1-2-3-4-5", "", " "};
        }
    }

    /// Selects the numbers 1 to nUltimo in class 5 and develops them.
    void Sviluppa(std::int16_t nUltimo)
    {
        for (std::int16_t n = 1; n <= nUltimo; ++n) {
            sistema.SelezionaNumero(n, true);
        }
        EXPECT_TRUE(Scatola([this] { EXPECT_TRUE(sistema.GestSviluppo()); }).startsWith("Fine sviluppo"));
    }

    /// Opens a window by a key of the toolbar, or of its menus, and does something in it.
    template <typename Finestra>
    void Nella(std::string_view sChiave, const std::function<void(Finestra&)>& azione)
    {
        EXPECT_TRUE(Quando<Finestra>(azione, [&] {
            sistema.Toolbar2_ButtonClick(sChiave);
            sistema.Toolbar2_ButtonMenuClick(sChiave);
        })) << sChiave;
    }

    ordavel::prove::CartellaProva cartella;
    PiattaformaSvelta piattaforma{nullptr};
    Ordavel sistema{piattaforma};
};

} // namespace ordavel::qt::prove
