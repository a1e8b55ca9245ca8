// F_PuntiSuSequenze_vista.cpp - the window of "Punti su sequenze".

#include "qt/F_PuntiSuSequenze_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/VistaSpunte.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>

namespace ordavel::qt {

F_PuntiSuSequenzeVista::F_PuntiSuSequenzeVista(F_PuntiSuSequenze& dialogo, PiattaformaQt& piattaforma,
                                               QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre)
{
    auto* tutto = new QVBoxLayout(this);
    QFormLayout* modulo = NuovoModulo();
    tutto->addLayout(modulo);
    AggiungiSchema(dialogo, modulo);
    legami().collega(dialogo.CmbPasso, AggiungiRiga(modulo, "Pass&o", "CmbPasso", new QComboBox));
    AggiungiPuntiERecupero(legami(), dialogo, tutto,
                           Consecutivita(dialogo.ChkConsec, "ChkConsec", "Consecutività"),
                           Consecutivita(dialogo.ChkConsecR, "ChkConsecR", "Consecutività di recupero"));
    AggiungiPulsanti(dialogo, tutto, true);
}

/// The pattern is a box that cannot be written in: a long one scrolls, and it can be read out.
void F_PuntiSuSequenzeVista::AggiungiSchema(F_PuntiSuSequenze& dialogo, QFormLayout* modulo)
{
    auto* schema = AggiungiRiga(modulo, "S&equenza", "LabSequenza", new QLineEdit);
    schema->setReadOnly(true);
    modulo->addRow(QString(), Tasti(dialogo));
    legami().Segui(dialogo.LabSequenza.Testo, schema, [this, schema](const std::string& s) {
        schema->setText(Testo(s));
        for (QPushButton* tasto : m_aTasti) {
            tasto->setAccessibleDescription("Sequenza: " + Testo(s));
        }
    });
}

QBoxLayout* F_PuntiSuSequenzeVista::Tasti(F_PuntiSuSequenze& dialogo)
{
    constexpr std::array<const char*, 3> kTasti{"&P", "&D", "C&LEAR"};
    auto* riga = new QHBoxLayout;
    for (std::size_t i = 0; i < kTasti.size(); ++i) {
        const auto nIndice = static_cast<std::int32_t>(i);
        QPushButton* tasto = NuovoPulsante("Command1" + QString::number(nIndice), kTasti.at(i));
        legami().Al(tasto, &QPushButton::clicked, [&dialogo, nIndice] { dialogo.Command1(nIndice); });
        riga->addWidget(tasto);
        m_aTasti.push_back(tasto);
    }
    return riga;
}

QWidget* F_PuntiSuSequenzeVista::Consecutivita(SerieSpunte& serie, const QString& sNome,
                                               const QString& sLetto)
{
    auto* insieme = new QWidget;
    auto* dentro = new QVBoxLayout(insieme);
    dentro->setContentsMargins(0, 0, 0, 0);
    dentro->addWidget(new QLabel("Consecutività"));
    dentro->addWidget(new VistaSpunte(legami(), serie, sNome, sLetto));
    return insieme;
}

} // namespace ordavel::qt
