// VistaSpunte.cpp - a control array of check boxes as a grid.

#include "qt/VistaSpunte.hpp"

#include "editor/DialogoLista.hpp"
#include "qt/Disposizione.hpp"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>

namespace ordavel::qt {

VistaSpunte::VistaSpunte(Legami& legami, SerieSpunte& serie, const QString& sNome, const QString& sLetto)
    : m_Legami(&legami), m_Serie(serie), m_sLetto(sLetto), m_Griglia(NuovaGriglia())
{
    setObjectName(sNome);
    setAccessibleName(sLetto);
    m_Griglia->setContentsMargins(0, 0, 0, 0);
    setLayout(m_Griglia);
    Riallinea();
    // A series rings only while its dialog lives; the view may have gone before.
    serie.Ascolta([qui = QPointer<VistaSpunte>(this)] {
        if (qui && qui->m_Legami) {
            qui->Riallinea();
        }
    });
}

QCheckBox* VistaSpunte::Casella(std::int32_t nValore) const
{
    const auto nPosto = static_cast<std::size_t>(nValore - m_Serie.Primo());
    return nPosto < m_aCaselle.size() ? m_aCaselle[nPosto] : nullptr;
}

/// Binds every box that there is now; clears and hides those of values that are no more.
void VistaSpunte::Riallinea()
{
    for (std::int32_t n = m_Serie.Primo(); n <= m_Serie.Ultimo(); ++n) {
        Aggancia(n);
    }
    const auto nVive = static_cast<std::size_t>(m_Serie.Ultimo() - m_Serie.Primo() + 1);
    for (std::size_t i = nVive; i < m_aCaselle.size(); ++i) {
        m_aCaselle[i]->setChecked(false);
        m_aCaselle[i]->hide();
    }
}

void VistaSpunte::Aggancia(std::int32_t nValore)
{
    QCheckBox* casella = Casella(nValore);
    if (casella == nullptr) {
        casella = NuovaSpunta(nValore);
    }
    // The states may be new ones for an old box, which tells the series of its value, not a state.
    Spunta& spunta = m_Serie(nValore);
    m_Legami->collega(static_cast<Controllo&>(spunta), casella);
    m_Legami->Segui(spunta.Segnata, casella, [casella](bool b) { casella->setChecked(b); });
}

QCheckBox* VistaSpunte::NuovaSpunta(std::int32_t nValore)
{
    const QString sValore = QString::number(nValore);
    auto* casella = new QCheckBox(sValore, this);
    Nomina(casella, objectName() + sValore, m_sLetto + ' ' + sValore);
    PareggiaDueCifre(casella);
    const auto nPosto = static_cast<int>(m_aCaselle.size());
    m_Griglia->addWidget(casella, nPosto / kPerRiga, nPosto % kPerRiga);
    m_aCaselle.push_back(casella);
    m_Legami->Al(casella, &QCheckBox::toggled, [this, nValore](bool b) {
        if (nValore <= m_Serie.Ultimo()) {
            m_Serie(nValore).Segnata.Poni(b);
        }
    });
    return casella;
}

QComboBox* AggiungiQuadroRec(Legami& legami, Combo& combo, QFormLayout* modulo)
{
    auto* widget = AggiungiRiga(modulo, "&Quadro Rec.", "CmbRecupero", new QComboBox);
    legami.collega(combo, widget);
    return widget;
}

void AggiungiPuntiERecupero(Legami& legami, DialogoLista& dialogo, QBoxLayout* sotto, QWidget* punti,
                            QWidget* recupero)
{
    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(new VistaSpunte(legami, dialogo.ChkPunti, "ChkPunti", "Punti"));
    auto* destra = new QVBoxLayout;
    QFormLayout* modulo = NuovoModulo();
    destra->addLayout(modulo);
    AggiungiQuadroRec(legami, dialogo.CmbRecupero, modulo);
    destra->addWidget(new VistaSpunte(legami, dialogo.ChkRecupero, "ChkRecupero", "Recupero"));
    if (punti != nullptr) {
        sinistra->addWidget(punti);
    }
    if (recupero != nullptr) {
        destra->addWidget(recupero);
    }
    sinistra->addStretch();
    destra->addStretch();
    sotto->addLayout(Affianca({NuovoRiquadro("Punti", sinistra), NuovoRiquadro("Recupero", destra)}));
}

} // namespace ordavel::qt
