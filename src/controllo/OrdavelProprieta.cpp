// OrdavelProprieta.cpp - the settings that a host keeps, and the end of the component.

#include "ordavel/Ordavel.hpp"

#include "analisi/F_NavigaSistema.hpp"
#include "core/ModNumeri.hpp"

#include <array>
#include <limits>

namespace ordavel {

namespace {

constexpr std::int16_t kClassePreset = 5;
constexpr std::int16_t kThreadPreset = 5;

Ordavel*& Riferimento() noexcept
{
    static Ordavel* pubblicato = nullptr;
    return pubblicato;
}

/// A setting as a number; the preset where it is missing or out of its bounds.
std::int16_t LeggiNumeroProprieta(const ArchivioProprieta& archivio, std::string_view sChiave,
                                  std::int16_t nMinimo, std::int16_t nMassimo, std::int16_t nPreset)
{
    const double nValore = LeggiNumero(archivio.Leggi(sChiave).value_or(""));
    return nValore >= nMinimo && nValore <= nMassimo ? ComeIntero<std::int16_t>(nValore) : nPreset;
}

} // namespace

Ordavel* Ordavel::Pubblicato() noexcept
{
    return Riferimento();
}

void Ordavel::Pubblica() noexcept
{
    Riferimento() = this;
}

void Ordavel::Deinit()
{
    if (m_Statistica) {
        m_Statistica->Ferma();
        m_Statistica.reset();
    }
    if (Riferimento() == this) {
        Riferimento() = nullptr;
    }
    m_NavigaSistema.reset();
}

void Ordavel::InizializzaProprieta()
{
    m_NumeroThreadsSviluppo = kThreadPreset;
    m_PercorsoSalvaColonne.clear();
    m_MotoreSviluppo = eMotoreSviluppo::interno;
    m_PercorsoTemp.clear();
    PreparaContatori();
    SelezionaCombo(std::to_string(kClassePreset), m_Controlli.CmbClasse);
}

/// All is read before a control changes: a host that saves whenever something changes must not lose what it kept.
void Ordavel::LeggiProprieta(const ArchivioProprieta& archivio)
{
    const std::int16_t nClasse =
        LeggiNumeroProprieta(archivio, "Classe", kClasseMinima, kClasseMassima, kClassePreset);
    m_MotoreSviluppo =
        static_cast<eMotoreSviluppo>(LeggiNumeroProprieta(archivio, "MotoreSviluppo", 1, 2, 1));
    m_NumeroThreadsSviluppo = LeggiNumeroProprieta(archivio, "NumeroThreadsSviluppo", 1,
                                                   std::numeric_limits<std::int16_t>::max(), kThreadPreset);
    m_PercorsoSalvaColonne = archivio.Leggi("PercorsoSalvaColonne").value_or("");
    m_PercorsoTemp = archivio.Leggi("PercorsoTemp").value_or("");
    PreparaContatori();
    ImpostaProfiloGioco();
    SelezionaCombo(std::to_string(nClasse), m_Controlli.CmbClasse);
    m_Controlli.CmbRid.SelezionaPrima();
    SelezionaComboMotSviluppo();
    MisuraLarghezze();
}

void Ordavel::ScriviProprieta(ArchivioProprieta& archivio) const
{
    archivio.Scrivi("Classe", std::to_string(m_Classe));
    archivio.Scrivi("NumeroThreadsSviluppo", std::to_string(m_NumeroThreadsSviluppo));
    archivio.Scrivi("PercorsoSalvaColonne", m_PercorsoSalvaColonne);
    archivio.Scrivi("MotoreSviluppo", std::to_string(static_cast<std::int32_t>(m_MotoreSviluppo)));
    archivio.Scrivi("PercorsoTemp", m_PercorsoTemp);
}

void Ordavel::PoniNumeroThreadsSviluppo(std::int16_t nThread)
{
    m_NumeroThreadsSviluppo = nThread;
    PreparaContatori();
    NotaProprieta("NumeroThreadsSviluppo");
}

void Ordavel::NotaProprieta(std::string_view sNome) const
{
    if (m_Eventi.PropertyChanged) {
        m_Eventi.PropertyChanged(sNome);
    }
}

void Ordavel::SetNum(std::int16_t nNum, bool bValore)
{
    m_TabellaNumeri(nNum) = bValore ? 1 : 0;
}

void Ordavel::SetcoloreCasellaNumeri(std::int16_t nNumero, Colore nColor, Colore nForeColor)
{
    auto aColori = m_Controlli.SelnovoNumeri1.Colori.Valore();
    aColori(nNumero) = {.nSfondo = nColor, .nTesto = nForeColor};
    m_Controlli.SelnovoNumeri1.Colori.Poni(aColori);
}

const std::string& Ordavel::FileBd(std::int16_t nGioco) const
{
    const std::array<const std::string*, 5> aFile{&m_FileBdLotto, &m_FileBd10Lotto, &m_FileBd10Lotto5M,
                                                  &m_FileBdSE, &m_FileBdWF};
    if (nGioco < 1 || static_cast<std::size_t>(nGioco) > aFile.size()) {
        Solleva(eErrore::indice);
    }
    return *aFile[static_cast<std::size_t>(nGioco) - 1];
}

} // namespace ordavel
