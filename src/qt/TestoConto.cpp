// TestoConto.cpp - counts in words.

#include "qt/TestoConto.hpp"

#include "core/ModNumeri.hpp"
#include "qt/Legami.hpp"

#include <algorithm>
#include <cmath>

namespace ordavel::qt {

namespace {

QString Numero(double nValore)
{
    return Testo(FormattaNumero(std::round(nValore)));
}

/// To so many places as the error leaves: it keeps two figures of its own.
double Passo(double nErrore)
{
    return nErrore < 10 ? 1 : std::pow(10, std::floor(std::log10(nErrore)) - 1);
}

double Quota(const ConteggioSistema& conto)
{
    return conto.nColonne > 0 ? conto.nPassano / conto.nColonne : 0;
}

/// The article of a percentage, as it is spoken.
QString Articolo(const QString& sPercentuale)
{
    const int nIntero = sPercentuale.section(',', 0, 0).toInt();
    if (sPercentuale.startsWith('<')) {
        return QStringLiteral("meno dello ");
    }
    if (nIntero == 0) {
        return QStringLiteral("lo ");
    }
    return nIntero == 1 || nIntero == 8 || nIntero == 11 || nIntero / 10 == 8 ? QStringLiteral("l'")
                                                                              : QStringLiteral("il ");
}

} // namespace

QString TestoPercentuale(double nQuota, int nDecimali)
{
    const double nMinima = std::pow(10, -nDecimali);
    const double nPercento = nQuota * 100;
    const bool bMeno = nPercento > 0 && nPercento < nMinima / 2;
    const QString sCifre = QString::number(bMeno ? nMinima : nPercento, 'f', nDecimali).replace('.', ',');
    return (bMeno ? QStringLiteral("< ") : QString()) + sCifre + QStringLiteral(" %");
}

QString TestoPassano(const ConteggioSistema& conto)
{
    if (!conto.bEsatto) {
        const double nPasso = Passo(conto.nErrore);
        return QStringLiteral("Passano circa %1 (± %2)")
            .arg(Numero(std::round(conto.nPassano / nPasso) * nPasso),
                 Numero(std::ceil(conto.nErrore / nPasso) * nPasso));
    }
    return QStringLiteral("Passano: %1 su %2 (%3)")
        .arg(Numero(conto.nPassano), Numero(conto.nColonne), TestoPercentuale(Quota(conto), 2));
}

QString TestoPassanoIntero(const ConteggioSistema& conto)
{
    if (conto.bEsatto) {
        return TestoPassano(conto);
    }
    return QStringLiteral("%1 su %2, circa %3")
        .arg(TestoPassano(conto), Numero(conto.nColonne), TestoPercentuale(Quota(conto), 2));
}

QString TestoTaglio(double nQuota, bool bEsatto)
{
    const QString sPercentuale = TestoPercentuale(nQuota, 1);
    const QString sArticolo = Articolo(sPercentuale);
    return (bEsatto ? QStringLiteral("Taglia ") : QStringLiteral("Taglia circa ")) + sArticolo +
           (sPercentuale.startsWith('<') ? sPercentuale.mid(2) : sPercentuale);
}

} // namespace ordavel::qt
