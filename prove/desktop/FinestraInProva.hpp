// FinestraInProva.hpp - a window of the program over settings and folders of a test's own, and who answers its boxes.

#pragma once

#include "ordavel/Ordavel.hpp"
#include "ordavel/OrdavelWidget.hpp"

#include "comune/CartellaProva.hpp"
#include "desktop/ArchivioImpostazioni.hpp"
#include "desktop/F_Finestra.hpp"
#include "desktop/Impostazioni.hpp"

#include <QApplication>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>

namespace ordavel::desktop {

/// Does something with the window that will be in front, inside its loop; one of another kind is closed.
/// Gives    whether it was there
template <typename Finestra>
bool Quando(const std::function<void(Finestra&)>& azione, const std::function<void()>& apre)
{
    bool bVista = false;
    // Not a single shot: some operations let events run before they open a window.
    QTimer timer;
    timer.callOnTimeout([&] {
        QWidget* davanti = QApplication::activeModalWidget();
        if (davanti == nullptr) {
            return;
        }
        timer.stop();
        if (auto* finestra = qobject_cast<Finestra*>(davanti)) {
            bVista = true;
            azione(*finestra);
        } else {
            davanti->close();
        }
    });
    timer.start(1);
    apre();
    return bVista;
}

/// Each test has a folder; the window works in it.
class FinestraInProva : public testing::Test {
protected:
    FinestraInProva() : archivio(QString::fromStdString(cartella / "ordavel.ini"))
    {
        Impostazioni impostazioni;
        impostazioni.sDirSistemi = In("sistemi");
        impostazioni.sPercorsoSalvaColonne = In("colonne");
        impostazioni.sPercorsoTemp = In("temp");
        ScriviImpostazioni(impostazioni, archivio);
    }

    [[nodiscard]] QString In(std::string_view sNome) const
    {
        return QString::fromStdString(cartella / sNome);
    }

    F_Finestra& Finestra()
    {
        if (!finestra) {
            finestra.emplace(archivio);
        }
        return *finestra;
    }
    Ordavel& Componente() { return Finestra().Componente().componente(); }

    /// A system of five numbers in a file.
    QString NuovoSistema(std::string_view sNome)
    {
        for (std::int16_t n = 1; n <= 5; ++n) {
            Componente().SelezionaNumero(n, true);
        }
        std::string sFile = cartella / sNome;
        EXPECT_TRUE(Componente().Salva(sFile, true));
        return QString::fromStdString(sFile);
    }

    /// As a user changes it: the selector of numbers is closed.
    void Modifica()
    {
        Componente().SelnovoNumeri1_Chiuso();
        QApplication::processEvents();
    }

    prove::CartellaProva cartella;
    ArchivioImpostazioni archivio;
    std::optional<F_Finestra> finestra;
};

} // namespace ordavel::desktop
