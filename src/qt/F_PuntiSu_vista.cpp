// F_PuntiSu_vista.cpp - the window of the thirty common condition dialogs.

#include "qt/F_PuntiSu_vista.hpp"

#include "qt/Disposizione.hpp"
#include "qt/VistaSpunte.hpp"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

namespace ordavel::qt {

namespace {

/// The longest that anybody writes there: the sum of a class of 20.
constexpr int kCifreEstremo = 5;

/// The combo of a digit, by its kind.
struct ComboCifra {
    TipoCondizione tipo;
    const char* sEtichetta;
    const char* sNome;
};

constexpr std::array kCifre = std::to_array<ComboCifra>({
    {TipoCondizione::cadenzeSpecifiche, "Ca&denza", "cmbCadenza"},
    {TipoCondizione::figureSpecifiche, "&Figura", "cmbFigura"},
    {TipoCondizione::decineSpecifiche, "&Decine", "cmbDecina"},
});

/// Captions of the two frames of a range.
struct TitoliIntervallo {
    const char* sPunti = "Punti";
    const char* sRecupero = "Recupero";
};

TitoliIntervallo TitoliDi(eControlloParametro parametro)
{
    switch (parametro) {
    case eControlloParametro::caselle:
        return {"Punti", "Punti"};
    case eControlloParametro::casella:
        return {"Numeri", "Punti"};
    default:
        return {};
    }
}

} // namespace

F_PuntiSuVista::F_PuntiSuVista(F_PuntiSu& dialogo, PiattaformaQt& piattaforma, QWidget* padre)
    : VistaDialogo(dialogo, piattaforma, padre), m_Logica(dialogo)
{
    auto* tutto = new QVBoxLayout(this);
    AggiungiParametro(tutto);
    if (dialogo.Riga().punti == eFamigliaPunti::lista) {
        AggiungiPuntiERecupero(legami(), dialogo, tutto);
    } else {
        AggiungiIntervalli(tutto);
    }
    AggiungiPulsanti(dialogo, tutto, true);
}

void F_PuntiSuVista::AggiungiParametro(QBoxLayout* sotto)
{
    switch (m_Logica.Riga().parametro) {
    case eControlloParametro::nessuno:
        return;
    case eControlloParametro::combo:
        return AggiungiCombo(sotto, "&Tipo", "Combo1");
    case eControlloParametro::divisore:
        return AggiungiCombo(sotto, "&Resto a :", "Combo1");
    case eControlloParametro::cifra: {
        const auto* cifra = std::find_if(kCifre.begin(), kCifre.end(), [this](const ComboCifra& c) {
            return c.tipo == m_Logica.Riga().tipo;
        });
        return AggiungiCombo(sotto, cifra->sEtichetta, cifra->sNome);
    }
    case eControlloParametro::caselle: {
        auto* dentro = new QVBoxLayout;
        dentro->addWidget(new VistaSpunte(legami(), m_Logica.ChkCaselle, "ChkCaselle", "Casella"));
        return sotto->addWidget(NuovoRiquadro("Caselle", dentro));
    }
    case eControlloParametro::casella:
        return sotto->addWidget(NuovoRiquadro("Caselle", Posizioni()));
    }
}

void F_PuntiSuVista::AggiungiCombo(QBoxLayout* sotto, const QString& sEtichetta, const QString& sNome)
{
    QFormLayout* modulo = NuovoModulo();
    sotto->addLayout(modulo);
    legami().collega(m_Logica.Combo1, AggiungiRiga(modulo, sEtichetta, sNome, new QComboBox));
}

QLayout* F_PuntiSuVista::Posizioni()
{
    auto* griglia = NuovaGriglia();
    auto* gruppo = new QButtonGroup(this);
    int nPosto = 0;
    for (const std::string& sVoce : m_Logica.ObCaselle.Voci.Valore()) {
        auto* bottone = new QRadioButton(Testo(sVoce));
        Nomina(bottone, "ObCaselle" + Testo(sVoce), "Casella " + Testo(sVoce));
        PareggiaDueCifre(bottone);
        gruppo->addButton(bottone, nPosto);
        griglia->addWidget(bottone, nPosto / VistaSpunte::kPerRiga, nPosto % VistaSpunte::kPerRiga);
        ++nPosto;
    }
    legami().collega(m_Logica.ObCaselle, gruppo);
    return griglia;
}

void F_PuntiSuVista::AggiungiIntervalli(QBoxLayout* sotto)
{
    const TitoliIntervallo titoli = TitoliDi(m_Logica.Riga().parametro);
    QGroupBox* punti = RiquadroIntervallo(titoli.sPunti);
    QGroupBox* recupero = RiquadroRecupero(titoli.sRecupero);
    sotto->addLayout(Affianca({punti, recupero}));
}

QGroupBox* F_PuntiSuVista::RiquadroIntervallo(const QString& sTitolo)
{
    QFormLayout* modulo = NuovoModulo();
    QLineEdit* minimo = NuovoEstremo(m_Logica.TxtPunti[0], "TxtPunti0", "Minimo");
    QLineEdit* massimo = NuovoEstremo(m_Logica.TxtPunti[1], "TxtPunti1", "Massimo");
    QLabel* primo = NuovaEtichetta("Mi&nimo", minimo);
    QLabel* secondo = NuovaEtichetta("&Massimo", massimo);
    if (m_Logica.Riga().limiti == eLimiti::nessuno) {
        modulo->addRow(primo, minimo);
        modulo->addRow(secondo, massimo);
    } else {
        modulo->addRow(primo, ConLimite(minimo, m_Logica.LabMin, "LabMin"));
        modulo->addRow(secondo, ConLimite(massimo, m_Logica.LabMax, "LabMax"));
    }
    return NuovoRiquadro(sTitolo, modulo);
}

QGroupBox* F_PuntiSuVista::RiquadroRecupero(const QString& sTitolo)
{
    QFormLayout* modulo = NuovoModulo();
    AggiungiQuadroRec(legami(), m_Logica.CmbRecupero, modulo);
    QLineEdit* minimo = NuovoEstremo(m_Logica.TxtPuntiRec[0], "TxtPuntiRec0", "Minimo di recupero");
    QLineEdit* massimo = NuovoEstremo(m_Logica.TxtPuntiRec[1], "TxtPuntiRec1", "Massimo di recupero");
    modulo->addRow(NuovaEtichetta("Min&imo", minimo), minimo);
    modulo->addRow(NuovaEtichetta("M&assimo", massimo), massimo);
    return NuovoRiquadro(sTitolo, modulo);
}

QLineEdit* F_PuntiSuVista::NuovoEstremo(CasellaTesto& casella, const QString& sNome, const QString& sLetto)
{
    QLineEdit* estremo = NuovaCasella(kCifreEstremo);
    Nomina(estremo, sNome, sLetto);
    legami().collega(casella, estremo);
    return estremo;
}

/// A box with the limit that is shown beside it; who cannot see it hears it with the box.
QLayout* F_PuntiSuVista::ConLimite(QLineEdit* estremo, Etichetta& limite, const QString& sNome)
{
    auto* parola = new QLabel;
    auto* valore = new QLabel;
    valore->setObjectName(sNome);
    legami().collega(static_cast<Controllo&>(limite), valore);
    legami().Segui(limite.Testo, valore, [=](const std::string& s) {
        parola->setText(s.empty() ? QString() : QStringLiteral("limite"));
        valore->setText(Testo(s));
        estremo->setAccessibleDescription((parola->text() + ' ' + valore->text()).trimmed());
    });
    auto* riga = new QHBoxLayout;
    riga->addWidget(estremo);
    riga->addWidget(parola);
    riga->addWidget(valore);
    return riga;
}

} // namespace ordavel::qt
