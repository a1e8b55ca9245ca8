// OrdavelDesigner.cpp - the component as Qt's form editor offers it.

#include "qt/designer/OrdavelDesigner.hpp"

#include "ordavel/OrdavelWidget.hpp"

#include <QIcon>

using ordavel::qt::OrdavelWidget;

OrdavelDesigner::OrdavelDesigner(QObject* padre) : QObject(padre) {}

QString OrdavelDesigner::name() const
{
    return QStringLiteral("ordavel::qt::OrdavelWidget");
}

QString OrdavelDesigner::group() const
{
    return QStringLiteral("Ordavel");
}

QString OrdavelDesigner::toolTip() const
{
    return QStringLiteral("Sistemi condizionati");
}

QString OrdavelDesigner::whatsThis() const
{
    return QStringLiteral("Un sistema condizionato: numeri, condizioni, sviluppo e colonne.");
}

QString OrdavelDesigner::includeFile() const
{
    return QStringLiteral("<ordavel/OrdavelWidget.hpp>");
}

QIcon OrdavelDesigner::icon() const
{
    return QIcon(QStringLiteral(":/designer/ordavel.svg"));
}

QString OrdavelDesigner::domXml() const
{
    return QStringLiteral(R"(<ui language="c++" displayname="Ordavel">
  <widget class="ordavel::qt::OrdavelWidget" name="ordavel">
    <property name="geometry">
      <rect><x>0</x><y>0</y><width>800</width><height>480</height></rect>
    </property>
  </widget>
</ui>)");
}

bool OrdavelDesigner::isContainer() const
{
    return false;
}

bool OrdavelDesigner::isInitialized() const
{
    return m_bPronto;
}

void OrdavelDesigner::initialize(QDesignerFormEditorInterface* editor)
{
    m_bPronto = true;
    m_bEditor = editor != nullptr;
}

QWidget* OrdavelDesigner::createWidget(QWidget* padre)
{
    auto* ordavel = new OrdavelWidget(padre);
    ordavel->setModoProgetto(m_bEditor);
    return ordavel;
}
