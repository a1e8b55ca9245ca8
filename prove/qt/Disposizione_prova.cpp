// Disposizione_prova.cpp - captions, names and buddies of what views lay out.

#include "qt/Disposizione.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <gtest/gtest.h>

#include <memory>

namespace ordavel::qt {

TEST(Disposizione, UnaRigaDaNomeEtichettaEMnemonica)
{
    QWidget finestra;
    QFormLayout* modulo = NuovoModulo();
    finestra.setLayout(modulo);
    const auto* campo = AggiungiRiga(modulo, "&Passo", "CmbPasso", new QComboBox);
    const auto* etichetta =
        qobject_cast<QLabel*>(modulo->labelForField(modulo->itemAt(0, QFormLayout::FieldRole)->widget()));
    ASSERT_NE(etichetta, nullptr);
    EXPECT_EQ(etichetta->text(), "&Passo");
    EXPECT_EQ(etichetta->buddy(), campo);
    EXPECT_EQ(campo->objectName(), "CmbPasso");
    EXPECT_EQ(campo->accessibleName(), "Passo");
}

TEST(Disposizione, UnAltroNomeLettoPrendeIlPostoDellEtichetta)
{
    QWidget finestra;
    QFormLayout* modulo = NuovoModulo();
    finestra.setLayout(modulo);
    const auto* campo = AggiungiRiga(modulo, "Min&imo", "TxtPuntiRec0", "Minimo di recupero", new QLineEdit);
    EXPECT_EQ(campo->accessibleName(), "Minimo di recupero");
}

TEST(Disposizione, IlRiquadroHaTitoloEContenuto)
{
    auto* modulo = NuovoModulo();
    const std::unique_ptr<QGroupBox> riquadro(NuovoRiquadro("Punti", modulo));
    EXPECT_EQ(riquadro->title(), "Punti");
    EXPECT_EQ(riquadro->accessibleName(), "Punti");
    EXPECT_EQ(riquadro->layout(), modulo);
}

TEST(Disposizione, LeCaselleDiUnaCifraSonoLargheComeQuelleDiDue)
{
    QCheckBox uno("7");
    QCheckBox due("00");
    PareggiaDueCifre(&uno);
    EXPECT_EQ(uno.text(), "7");
    EXPECT_GE(uno.minimumWidth(), due.sizeHint().width());
}

TEST(Disposizione, LaCasellaMostraTutteLeSueCifre)
{
    const std::unique_ptr<QLineEdit> casella(NuovaCasella(5));
    EXPECT_GT(casella->width(), LarghezzaCifre(*casella, 5));
    EXPECT_LT(casella->width(), LarghezzaCifre(*casella, 10));
}

} // namespace ordavel::qt
