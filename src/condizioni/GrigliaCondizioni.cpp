// GrigliaCondizioni.cpp - the conditions as text.

#include "ordavel/GrigliaCondizioni.hpp"

namespace ordavel {

namespace {

const Condizione& Intestazioni()
{
    static const Condizione intestazioni{"Condizione", "Parametri", "Punti", "Recupero", "Quadro Rec."};
    return intestazioni;
}

std::size_t Posto(std::int32_t nRiga)
{
    if (nRiga < 0 || nRiga > kCondizioniMassime) {
        Solleva(eErrore::indice);
    }
    return static_cast<std::size_t>(nRiga);
}

} // namespace

GrigliaCondizioni::GrigliaCondizioni()
{
    Svuota();
}

const Condizione& GrigliaCondizioni::Riga(std::int32_t nRiga) const
{
    return m_aRighe[Posto(nRiga)];
}

Condizione& GrigliaCondizioni::Riga(std::int32_t nRiga)
{
    ++m_nRevisione;
    return m_aRighe[Posto(nRiga)];
}

bool GrigliaCondizioni::Vuota(std::int32_t nRiga) const noexcept
{
    return nRiga < 1 || nRiga > kCondizioniMassime ||
           m_aRighe[static_cast<std::size_t>(nRiga)].sCondizione.empty();
}

void GrigliaCondizioni::Svuota()
{
    m_aRighe.assign(static_cast<std::size_t>(kCondizioniMassime) + 1, Condizione{});
    m_aRighe.front() = Intestazioni();
    PareggiaAltezze();
    m_nCorrente = 1;
}

void GrigliaCondizioni::PareggiaAltezze()
{
    ++m_nRevisione;
    m_aAltezze.assign(m_aRighe.size(), eAltezza::comune);
}

eAltezza GrigliaCondizioni::Altezza(std::int32_t nRiga) const
{
    return m_aAltezze[Posto(nRiga)];
}

void GrigliaCondizioni::PoniAltezza(std::int32_t nRiga, eAltezza altezza)
{
    ++m_nRevisione;
    m_aAltezze[Posto(nRiga)] = altezza;
}

void GrigliaCondizioni::PoniCorrente(std::int32_t nRiga)
{
    m_nCorrente = static_cast<std::int32_t>(Posto(nRiga));
}

} // namespace ordavel
