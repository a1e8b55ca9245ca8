// Disposizione.cpp - how views lay their widgets out.

#include "qt/Disposizione.hpp"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>

namespace ordavel::qt {

QString SenzaMnemonica(QString sTesto)
{
    return sTesto.remove('&');
}

void Nomina(QWidget* widget, const QString& sNome, const QString& sLetto)
{
    widget->setObjectName(sNome);
    widget->setAccessibleName(sLetto);
}

int LarghezzaCifre(const QWidget& widget, int nCifre)
{
    return widget.fontMetrics().horizontalAdvance(QString(nCifre, '0'));
}

QGroupBox* NuovoRiquadro(const QString& sTitolo, QLayout* dentro)
{
    auto* riquadro = new QGroupBox(sTitolo);
    riquadro->setAccessibleName(SenzaMnemonica(sTitolo));
    riquadro->setLayout(dentro);
    return riquadro;
}

QFormLayout* NuovoModulo()
{
    auto* modulo = new QFormLayout;
    modulo->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    modulo->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
    modulo->setLabelAlignment(Qt::AlignLeft);
    return modulo;
}

QGridLayout* NuovaGriglia()
{
    auto* griglia = new QGridLayout;
    griglia->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return griglia;
}

QBoxLayout* Affianca(std::initializer_list<QWidget*> aWidget)
{
    auto* riga = new QHBoxLayout;
    for (QWidget* widget : aWidget) {
        riga->addWidget(widget);
    }
    return riga;
}

QLineEdit* NuovaCasella(int nCifre)
{
    auto* casella = new QLineEdit;
    constexpr int kMargine = 3; // digits' widths for frame, margins and cursor
    casella->setFixedWidth(LarghezzaCifre(*casella, nCifre + kMargine));
    return casella;
}

void PareggiaDueCifre(QAbstractButton* bottone)
{
    const QString sTesto = bottone->text();
    bottone->setText("00");
    bottone->setMinimumWidth(bottone->sizeHint().width());
    bottone->setText(sTesto);
}

QLabel* NuovaEtichetta(const QString& sTesto, QWidget* campo)
{
    auto* etichetta = new QLabel(sTesto);
    etichetta->setBuddy(campo);
    if (campo->accessibleName().isEmpty()) {
        campo->setAccessibleName(SenzaMnemonica(sTesto));
    }
    return etichetta;
}

} // namespace ordavel::qt
