// Copertura.cpp - which form is made for a problem.

#include "riduzione/Copertura.hpp"

#include "core/ModProcessore.hpp"
#include "riduzione/CoperturaFette.hpp"
#include "riduzione/CoperturaPiana.hpp"
#include "riduzione/CoperturaSottoinsiemi.hpp"

#include <algorithm>
#include <array>
#include <bitset>

namespace ordavel {

namespace {

/// Seconds, measured: of rows of bits for a pair of columns and a number of the class, by eNucleo; of shared sets for a
/// set of a column, and for a rank. Only their ratio decides.
constexpr std::array<double, 3> kSecondiCoppia{8e-11, 2e-11, 7e-12};
constexpr double kSecondiInsieme = 1.2e-7;
constexpr double kSecondiRango = 3e-9;

double SecondiFette(const ProblemaRiduzione& problema)
{
    const auto nColonne = static_cast<double>(problema.aColonne.size());
    return kSecondiCoppia[static_cast<std::size_t>(NucleoMigliore())] * problema.nClasse * nColonne *
           nColonne;
}

double SecondiInsiemi(const ProblemaRiduzione& problema)
{
    const InsiemiCondivisi::Misura misura = InsiemiCondivisi::Misurata(problema);
    return kSecondiInsieme * misura.nInsiemi + kSecondiRango * misura.nRanghi;
}

bool SenzaRipetizioni(const Colonna& colonna, std::int16_t nClasse) noexcept
{
    std::bitset<kNumeroMassimo + 1> aVisti;
    for (std::int16_t k = 1; k <= nClasse; ++k) {
        const std::size_t nNumero = colonna[k];
        if (nNumero == 0 || nNumero > kNumeroMassimo) {
            continue;
        }
        if (aVisti[nNumero]) {
            return false;
        }
        aVisti.set(nNumero);
    }
    return true;
}

} // namespace

bool SenzaRipetizioni(std::span<const Colonna> aColonne, std::int16_t nClasse) noexcept
{
    return std::ranges::all_of(aColonne,
                               [nClasse](const Colonna& c) { return SenzaRipetizioni(c, nClasse); });
}

eCopertura FormaMigliore(const ProblemaRiduzione& problema)
{
    if (!Ammessa(eCopertura::fette, problema)) {
        return eCopertura::piana;
    }
    const bool bInsiemi =
        Ammessa(eCopertura::sottoinsiemi, problema) && SecondiInsiemi(problema) < SecondiFette(problema);
    return bInsiemi ? eCopertura::sottoinsiemi : eCopertura::fette;
}

bool Ammessa(eCopertura forma, const ProblemaRiduzione& problema)
{
    switch (forma) {
    case eCopertura::fette:
        return SenzaRipetizioni(problema.aColonne, problema.nClasse);
    case eCopertura::sottoinsiemi:
        return InsiemiCondivisi::Ammesso(problema);
    case eCopertura::piana:
        break;
    }
    return true;
}

std::unique_ptr<Copertura> CreaCopertura(eCopertura forma, const ProblemaRiduzione& problema,
                                         Continua continua)
{
    switch (forma) {
    case eCopertura::fette:
        return std::make_unique<CoperturaFette>(problema, std::move(continua));
    case eCopertura::sottoinsiemi:
        return std::make_unique<CoperturaSottoinsiemi>(problema, std::move(continua));
    case eCopertura::piana:
        break;
    }
    return std::make_unique<CoperturaPiana>(problema, std::move(continua));
}

} // namespace ordavel
