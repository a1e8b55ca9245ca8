// main.cpp - a host with a window: the component stands on a form, and says what it was set to.
//
// With "--mostra" the window stays open; without, the host ends after having said it.

#include "ui_finestra.h"

#include <QApplication>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QWidget>

#include <cstdint>
#include <iostream>
#include <ordavel/Ordavel.hpp>

namespace {

/// The properties of the component itself, in the order in which they are declared.
void StampaProprieta(const ordavel::qt::OrdavelWidget& ordavel)
{
    const QMetaObject* meta = ordavel.metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty proprieta = meta->property(i);
        const QVariant valore = proprieta.read(&ordavel);
        const QString sValore = proprieta.isEnumType()
                                    ? QString::fromLatin1(proprieta.enumerator().valueToKey(valore.toInt()))
                                    : valore.toString();
        std::cout << proprieta.name() << '=' << sValore.toStdString() << '\n';
    }
}

} // namespace

int main(int nArgomenti, char** aArgomenti)
{
    const QApplication applicazione(nArgomenti, aArgomenti);
    QWidget finestra;
    Ui::Finestra modulo;
    modulo.setupUi(&finestra);
    QObject::connect(
        modulo.ordavel, &ordavel::qt::OrdavelWidget::stampaSk, &finestra,
        [](const QString& sTipogioco) { std::cout << "stampa per " << sTipogioco.toStdString() << '\n'; });

    StampaProprieta(*modulo.ordavel);
    ordavel::Ordavel& sistema = modulo.ordavel->componente();
    for (std::int16_t n = 1; n <= 10; ++n) {
        sistema.SelezionaNumero(n, true);
    }
    std::cout << sistema.ColonneIntegrali() << " colonne\n";
    if (!QApplication::arguments().contains("--mostra")) {
        return 0;
    }
    finestra.show();
    return QApplication::exec();
}
