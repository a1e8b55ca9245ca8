// RigaPercorso.cpp - a path in a form.

#include "desktop/RigaPercorso.hpp"

#include <QDir>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace ordavel::desktop {

namespace {

/// Letters of a path that are seen without scrolling.
constexpr int kLettere = 48;

} // namespace

RigaPercorso::RigaPercorso(const QString& sNome, const QString& sChiCosa, QWidget* padre)
    : QWidget(padre), m_Riga(new QHBoxLayout(this)), m_Casella(new QLineEdit(this))
{
    m_Riga->setContentsMargins(0, 0, 0, 0);
    m_Casella->setObjectName(sNome);
    m_Casella->setAccessibleName(sChiCosa);
    m_Casella->setMinimumWidth(fontMetrics().averageCharWidth() * kLettere);
    m_Riga->addWidget(m_Casella, 1);
    connect(AggiungiPulsante("Sfoglia" + sNome, QStringLiteral("Sfoglia…"), "Sfoglia: " + sChiCosa),
            &QPushButton::clicked, this, &RigaPercorso::sfoglia);
    connect(m_Casella, &QLineEdit::textChanged, this, &RigaPercorso::cambiato);
    setFocusProxy(m_Casella);
}

QString RigaPercorso::Path() const
{
    const QString sPath = m_Casella->text().trimmed();
    return sPath.isEmpty() ? sPath : QDir::fromNativeSeparators(sPath);
}

void RigaPercorso::Poni(const QString& sPath)
{
    m_Casella->setText(QDir::toNativeSeparators(sPath));
}

QPushButton* RigaPercorso::AggiungiPulsante(const QString& sNome, const QString& sTesto,
                                            const QString& sChiCosa)
{
    auto* pulsante = new QPushButton(sTesto, this);
    pulsante->setObjectName(sNome);
    pulsante->setAccessibleName(sChiCosa);
    pulsante->setAutoDefault(false);
    m_Riga->addWidget(pulsante);
    return pulsante;
}

} // namespace ordavel::desktop
