// OrdavelWidget_prova.cpp - the component as a widget: its properties, members and signals for a host.

#include "ordavel/OrdavelWidget.hpp"

#include "ordavel/Ordavel.hpp"
#include "ordavel/errore.hpp"

#include "qt/Legami.hpp"

#include <QFile>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUndoStack>
#include <gtest/gtest.h>

#include <array>

namespace ordavel::qt {

namespace {

/// A member of the component, how many slots it takes, and what of the widget stands for it.
struct RigaMembro {
    const char* sMembro;
    int nPosti;
    const char* sProprieta; ///< null for a method of the same name
};

// clang-format off
constexpr std::array kMembri = std::to_array<RigaMembro>({
    {"FileBdWF",               2, "fileBdWF"},
    {"FileBdLotto",            2, "fileBdLotto"},
    {"FileBd10Lotto",          2, "fileBd10Lotto"},
    {"FileBd10Lotto5M",        2, "fileBd10Lotto5M"},
    {"FileBdSE",               2, "fileBdSE"},
    {"DirSistemi",             2, "dirSistemi"},
    {"ColonneIntegrali",       1, "colonneIntegrali"},
    {"MotoreSviluppo",         2, "motoreSviluppo"},
    {"GetGridCond",            1, nullptr},
    {"GetLbQuadroRec",         1, nullptr},
    {"SetColonnaGrid",         1, nullptr},
    {"GetColonneSviluppo",     1, nullptr},
    {"GetColonnaSviluppo",     1, nullptr},
    {"GetColonnaSviluppoFromFile", 1, nullptr},
    {"GetNumeriSel",           1, nullptr},
    {"ContaNumeriSel",         1, nullptr},
    {"SelezionaNumero",        1, nullptr},
    {"InsCondizione",          1, nullptr},
    {"AggiornaProgressSviluppoDll", 1, nullptr},
    {"GestSviluppo",           1, nullptr},
    {"GestSviluppoDaFileColonne", 1, nullptr},
    {"SelezionaComboMotSviluppo", 1, nullptr},
    {"SetNum",                 1, nullptr},
    {"Deinit",                 1, nullptr},
    {"classe",                 2, "classe"},
    {"NumeroThreadsSviluppo",  2, "numeroThreadsSviluppo"},
    {"QuantitaColonne",        1, "quantitaColonne"},
    {"CalcolaBaricentro",      1, nullptr},
    {"CalcolaPonte",           1, nullptr},
    {"CalcolaAmpiezza",        1, nullptr},
    {"CalcolaDistanzaMinima",  1, nullptr},
    {"CalcolaDistanzaMassima", 1, nullptr},
    {"CalcolaConsecutivi",     1, nullptr},
    {"CalcolaInterruzioniPD",  1, nullptr},
    {"CalcolaVorticeDiretto",  1, nullptr},
    {"CalcolaVorticeInverso",  1, nullptr},
    {"CalcolaSimmetrieDirette", 1, nullptr},
    {"CalcolaSimmetrieInverse", 1, nullptr},
    {"CalcolaParalleliDiretti", 1, nullptr},
    {"CalcolaParalleliInversi", 1, nullptr},
    {"CalcolaSequenze",        1, nullptr},
    {"CalcolaPuntiSequenze",   1, nullptr},
    {"SalvaFileColonne",       1, nullptr},
    {"SalvaFileColonneTesto",  1, nullptr},
    {"RiduciColonne",          1, nullptr},
    {"StopRiduciColonne",      1, nullptr},
    {"GetIdCmbTipoGioco",      1, nullptr},
    {"GetIdCmbTipoGiocoString", 1, nullptr},
    {"PercorsoSalvaColonne",   2, "percorsoSalvaColonne"},
    {"PercorsoTemp",           2, "percorsoTemp"},
    {"VerificaCoerenzaLink",   1, nullptr},
    {"IsCondizionePresente",   1, nullptr},
    {"GetQuantitaColDaEmulareFromGrid", 1, nullptr},
    {"DisegnaNumeriProno",     1, nullptr},
    {"SetcoloreCasellaNumeri", 1, nullptr},
    {"AnnullaExport",          1, nullptr},
});
// clang-format on

bool HaMetodo(const QByteArray& sNome)
{
    const QMetaObject& meta = OrdavelWidget::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).name() == sNome) {
            return true;
        }
    }
    return false;
}

QMetaProperty Proprieta(const char* sNome)
{
    const QMetaObject& meta = OrdavelWidget::staticMetaObject;
    return meta.property(meta.indexOfProperty(sNome));
}

struct OrdavelWidgetProva : testing::Test {
    QTemporaryDir cartella;
    OrdavelWidget widget;

    [[nodiscard]] QString Dentro(const QString& sNome) const { return cartella.filePath(sNome); }
};

} // namespace

TEST_F(OrdavelWidgetProva, OgniMembroPubblicoSiRaggiungePerNome)
{
    int nPosti = 0;
    for (const RigaMembro& riga : kMembri) {
        nPosti += riga.nPosti;
        if (riga.sProprieta == nullptr) {
            EXPECT_TRUE(HaMetodo(riga.sMembro)) << riga.sMembro;
        } else {
            EXPECT_TRUE(Proprieta(riga.sProprieta).isValid()) << riga.sMembro;
            EXPECT_EQ(Proprieta(riga.sProprieta).isWritable(), riga.nPosti == 2) << riga.sMembro;
        }
    }
    EXPECT_EQ(nPosti, 67);
    EXPECT_TRUE(HaMetodo("condizioniPressed"));
    EXPECT_TRUE(HaMetodo("stampaSk"));
}

TEST_F(OrdavelWidgetProva, LeProprietaPersistentiSiConservanoESiDisegnano)
{
    QStringList aOrdine;
    const QMetaObject& meta = OrdavelWidget::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty proprieta = meta.property(i);
        if (proprieta.isStored()) {
            EXPECT_TRUE(proprieta.isDesignable()) << proprieta.name();
            aOrdine.append(proprieta.name());
        }
    }
    EXPECT_EQ(aOrdine.mid(0, 5), (QStringList{"classe", "numeroThreadsSviluppo", "percorsoSalvaColonne",
                                              "motoreSviluppo", "percorsoTemp"}));
}

TEST_F(OrdavelWidgetProva, IValoriInizialiSonoQuelliDelComponente)
{
    EXPECT_EQ(widget.classe(), 5);
    EXPECT_EQ(widget.numeroThreadsSviluppo(), 5);
    EXPECT_EQ(widget.motoreSviluppo(), OrdavelWidget::MotoreSviluppo::interno);
    EXPECT_TRUE(widget.percorsoTemp().isEmpty());
}

TEST_F(OrdavelWidgetProva, UnaClasseCheNonCEnonCambiaNulla)
{
    const QSignalSpy spia(&widget, &OrdavelWidget::classeChanged);
    widget.setClasse(11);
    EXPECT_EQ(widget.classe(), 5);
    EXPECT_EQ(spia.count(), 0);
    widget.setClasse(6);
    EXPECT_EQ(widget.classe(), 6);
    EXPECT_EQ(spia.count(), 1);
    widget.resetClasse();
    EXPECT_EQ(widget.classe(), 5);
}

TEST_F(OrdavelWidgetProva, UnCambioSegnalaUnaVoltaSola)
{
    const QSignalSpy motore(&widget, &OrdavelWidget::motoreSviluppoChanged);
    const QSignalSpy thread(&widget, &OrdavelWidget::numeroThreadsSviluppoChanged);
    widget.setMotoreSviluppo(OrdavelWidget::MotoreSviluppo::esterno);
    widget.setMotoreSviluppo(OrdavelWidget::MotoreSviluppo::esterno);
    widget.setNumeroThreadsSviluppo(3);
    widget.setNumeroThreadsSviluppo(3);
    EXPECT_EQ(motore.count(), 1);
    EXPECT_EQ(thread.count(), 1);
    EXPECT_EQ(widget.componente().Controlli().CmbMotSviluppo.Testo(), "Esterno");
}

TEST_F(OrdavelWidgetProva, IlMotoreSceltoNelPannelloSiSegnala)
{
    const QSignalSpy spia(&widget, &OrdavelWidget::motoreSviluppoChanged);
    widget.componente().Controlli().CmbMotSviluppo.Indice.Poni(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(widget.motoreSviluppo(), OrdavelWidget::MotoreSviluppo::esterno);
    EXPECT_EQ(spia.count(), 1);
}

TEST_F(OrdavelWidgetProva, LaCartellaSiCreaEDaIlNomeAlFileDiLavoro)
{
    const QSignalSpy spia(&widget, &OrdavelWidget::percorsoTempChanged);
    widget.setPercorsoTemp(Dentro("nuova"));
    EXPECT_TRUE(QFile::exists(Dentro("nuova")));
    EXPECT_EQ(widget.percorsoTemp(), Dentro("nuova/"));
    EXPECT_EQ(Testo(widget.componente().FileColonne()), Dentro("nuova/Sviluppo.col"));
    EXPECT_EQ(spia.count(), 1);
}

TEST_F(OrdavelWidgetProva, InProgettoNonNasceNessunaCartella)
{
    widget.setModoProgetto(true);
    widget.setPercorsoTemp(Dentro("mai"));
    widget.setDirSistemi(Dentro("mai2"));
    EXPECT_EQ(widget.percorsoTemp(), Dentro("mai"));
    EXPECT_FALSE(QFile::exists(Dentro("mai")));
    EXPECT_FALSE(QFile::exists(Dentro("mai2")));
    EXPECT_TRUE(Proprieta("percorsoTemp").reset(&widget));
    EXPECT_TRUE(widget.percorsoTemp().isEmpty());
}

TEST_F(OrdavelWidgetProva, LeImpostazioniVannoETornano)
{
    QSettings impostazioni(Dentro("prova.ini"), QSettings::IniFormat);
    impostazioni.setValue("AltraChiave", 7);
    widget.setClasse(8);
    widget.setNumeroThreadsSviluppo(3);
    widget.setPercorsoSalvaColonne(Dentro("colonne"));
    EXPECT_TRUE(widget.saveProperties(impostazioni));
    OrdavelWidget altro;
    EXPECT_TRUE(altro.loadProperties(impostazioni));
    EXPECT_EQ(altro.classe(), 8);
    EXPECT_EQ(altro.numeroThreadsSviluppo(), 3);
    EXPECT_EQ(altro.percorsoSalvaColonne(), Dentro("colonne/"));
    EXPECT_EQ(impostazioni.value("AltraChiave").toInt(), 7);
}

TEST_F(OrdavelWidgetProva, PiuIstanzeVivonoEMuoionoInQualunqueOrdine)
{
    auto prima = std::make_unique<OrdavelWidget>();
    auto seconda = std::make_unique<OrdavelWidget>();
    prima->setClasse(7);
    EXPECT_EQ(seconda->classe(), 5);
    prima.reset();
    seconda->setClasse(4);
    EXPECT_EQ(seconda->classe(), 4);
    EXPECT_EQ(widget.classe(), 5);
}

TEST_F(OrdavelWidgetProva, IMembriFannoQuelCheFaIlComponente)
{
    for (int i = 1; i <= 6; ++i) {
        widget.SelezionaNumero(i, true);
    }
    EXPECT_EQ(widget.ContaNumeriSel(), 6);
    EXPECT_EQ(widget.GetNumeriSel().mid(0, 7), (QList<int>{1, 2, 3, 4, 5, 6, 0}));
    EXPECT_DOUBLE_EQ(widget.ColonneIntegrali(), 6);
    widget.InsCondizione(static_cast<int>(TipoCondizione::ponte), "1,2");
    EXPECT_TRUE(widget.IsCondizionePresente("ponte"));
    EXPECT_TRUE(widget.VerificaCoerenzaLink());
    EXPECT_EQ(OrdavelWidget::CalcolaAmpiezza(5, {1, 2, 3, 4, 50}), 49);
    EXPECT_EQ(OrdavelWidget::CalcolaPuntiSequenze(5, {2, 3, 4, 5, 6}, "PD").size(), 2);
    EXPECT_THROW(OrdavelWidget::CalcolaAmpiezza(21, {1}), Errore);
    EXPECT_THROW(OrdavelWidget::CalcolaAmpiezza(5, {91}), Errore);
}

TEST_F(OrdavelWidgetProva, UnaCondizioneInseritaSiPuoAnnullare)
{
    widget.show();
    widget.InsCondizione(static_cast<int>(TipoCondizione::ponte), "1,2");
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    widget.findChild<QAction*>("LinkOpen")->trigger();
    EXPECT_EQ(widget.annullamenti()->count(), 2);
    widget.findChild<QAction*>("Annulla")->trigger();
    widget.findChild<QAction*>("Annulla")->trigger();
    EXPECT_FALSE(widget.IsCondizionePresente("Ponte"));
    widget.findChild<QAction*>("Ripeti")->trigger();
    EXPECT_TRUE(widget.IsCondizionePresente("Ponte"));
}

TEST_F(OrdavelWidgetProva, CondizioniPremutoAvverteLOspite)
{
    const QSignalSpy spia(&widget, &OrdavelWidget::condizioniPressed);
    widget.findChild<QAction*>("Condizioni")->trigger();
    EXPECT_EQ(spia.count(), 1);
}

TEST_F(OrdavelWidgetProva, LaStampaPassaIlGiocoSoloSeCiSonoColonne)
{
    QString sGioco;
    QObject::connect(&widget, &OrdavelWidget::stampaSk, [&](QString& s) { sGioco = s; });
    widget.setPercorsoTemp(Dentro("temp"));
    widget.findChild<QAction*>("StampaSk")->trigger();
    EXPECT_TRUE(sGioco.isEmpty());
    QFile file(Dentro("temp/Sviluppo.col"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(20, '\1'));
    file.close();
    widget.findChild<QAction*>("StampaSk")->trigger();
    EXPECT_EQ(sGioco, "Lotto");
}

} // namespace ordavel::qt
