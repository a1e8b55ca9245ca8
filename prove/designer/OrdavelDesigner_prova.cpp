// OrdavelDesigner_prova.cpp - the plugin is one, makes widgets, and forms keep what was set in them.

#include "ordavel/Ordavel.hpp"
#include "ordavel/OrdavelWidget.hpp"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace ordavel::qt {
namespace {

/// The plugin as it was built, or as it was installed where the environment says so.
QString Plugin()
{
    return qEnvironmentVariable("ORDAVEL_PLUGIN", QStringLiteral(ORDAVEL_PLUGIN));
}

/// Paths in a form are relative here: they fall into a folder of the test's own.
struct OrdavelDesignerProva : testing::Test {
    OrdavelDesignerProva() { QDir::setCurrent(cartella.path()); }
    ~OrdavelDesignerProva() override { QDir::setCurrent(sPrima); }

    QDesignerCustomWidgetInterface& Interfaccia()
    {
        auto* interfaccia = qobject_cast<QDesignerCustomWidgetInterface*>(caricatore.instance());
        if (interfaccia == nullptr) {
            throw std::runtime_error(caricatore.errorString().toStdString());
        }
        return *interfaccia;
    }

    const QString sPrima = QDir::currentPath();
    const QTemporaryDir cartella;
    QPluginLoader caricatore{Plugin()};
};

TEST_F(OrdavelDesignerProva, DiceTuttoDiSe)
{
    const QDesignerCustomWidgetInterface& interfaccia = Interfaccia();
    EXPECT_EQ(interfaccia.name(), "ordavel::qt::OrdavelWidget");
    EXPECT_EQ(interfaccia.group(), "Ordavel");
    EXPECT_EQ(interfaccia.includeFile(), "<ordavel/OrdavelWidget.hpp>");
    EXPECT_FALSE(interfaccia.toolTip().isEmpty());
    EXPECT_FALSE(interfaccia.whatsThis().isEmpty());
    EXPECT_FALSE(interfaccia.icon().isNull());
    EXPECT_FALSE(interfaccia.isContainer());
    QXmlStreamReader xml(interfaccia.domXml());
    while (!xml.atEnd()) {
        xml.readNext();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_TRUE(interfaccia.domXml().contains("displayname"));
}

TEST_F(OrdavelDesignerProva, FaDueWidgetCheFinisconoInQualunqueOrdine)
{
    QDesignerCustomWidgetInterface& interfaccia = Interfaccia();
    interfaccia.initialize(nullptr);
    EXPECT_TRUE(interfaccia.isInitialized());
    std::unique_ptr<QWidget> primo(interfaccia.createWidget(nullptr));
    std::unique_ptr<QWidget> secondo(interfaccia.createWidget(nullptr));
    ASSERT_NE(qobject_cast<OrdavelWidget*>(primo.get()), nullptr);
    ASSERT_NE(qobject_cast<OrdavelWidget*>(secondo.get()), nullptr);
    primo.reset();
    EXPECT_TRUE(secondo->setProperty("classe", 8));
    EXPECT_EQ(secondo->property("classe"), 8);
    primo.reset(interfaccia.createWidget(nullptr));
    secondo.reset();
}

TEST_F(OrdavelDesignerProva, UnModuloConservaLeProprieta)
{
    QUiLoader lettore;
    lettore.clearPluginPaths();
    lettore.addPluginPath(QFileInfo(Plugin()).path());
    QFile modulo(QStringLiteral(ORDAVEL_MODULO));
    ASSERT_TRUE(modulo.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> finestra(lettore.load(&modulo));
    ASSERT_NE(finestra, nullptr) << lettore.errorString().toStdString();
    const auto* ordavel = finestra->findChild<OrdavelWidget*>("ordavel");
    ASSERT_NE(ordavel, nullptr);
    EXPECT_EQ(ordavel->classe(), 7);
    EXPECT_EQ(ordavel->numeroThreadsSviluppo(), 3);
    EXPECT_EQ(ordavel->percorsoSalvaColonne(), "ospite-qt/colonne/");
    EXPECT_EQ(ordavel->motoreSviluppo(), OrdavelWidget::MotoreSviluppo::esterno);
    EXPECT_EQ(ordavel->percorsoTemp(), "ospite-qt/temp/");
}

TEST_F(OrdavelDesignerProva, NelProgettoNonSiFannoCartelle)
{
    OrdavelWidget ordavel;
    ordavel.setModoProgetto(true);
    ordavel.setPercorsoTemp("progetto/temp");
    EXPECT_FALSE(QFileInfo::exists("progetto"));
    EXPECT_TRUE(ordavel.percorsoTemp().startsWith("progetto/temp"));
}

TEST_F(OrdavelDesignerProva, LeCinqueProprietaSiConservanoNelLoroOrdine)
{
    const QMetaObject& meta = OrdavelWidget::staticMetaObject;
    QStringList aNomi;
    for (int i = meta.propertyOffset(); i < meta.propertyOffset() + 5; ++i) {
        aNomi.append(QString::fromLatin1(meta.property(i).name()));
        EXPECT_TRUE(meta.property(i).isStored() && meta.property(i).isDesignable() &&
                    meta.property(i).isResettable());
    }
    EXPECT_EQ(aNomi, (QStringList{"classe", "numeroThreadsSviluppo", "percorsoSalvaColonne", "motoreSviluppo",
                                  "percorsoTemp"}));
}

} // namespace
} // namespace ordavel::qt
