// Controlli.cpp - the state of controls.

#include "ordavel/Controlli.hpp"

#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

bool SoloCifre(char32_t nTasto) noexcept
{
    constexpr char32_t kInvio = '\r';
    constexpr char32_t kIndietro = '\b';
    return (nTasto >= '0' && nTasto <= '9') || nTasto == ',' || nTasto == kInvio || nTasto == kIndietro;
}

void ListaMultipla::Aggiungi(std::string_view sVoce)
{
    auto aVoci = Voci.Valore();
    auto aScelte = Scelte.Valore();
    aVoci.emplace_back(sVoce);
    aScelte.push_back(false);
    Voci.Poni(std::move(aVoci));
    Scelte.Poni(std::move(aScelte));
}

void ListaMultipla::Seleziona(std::size_t nPosto, bool bScelta)
{
    auto aScelte = Scelte.Valore();
    if (nPosto >= aScelte.size()) {
        Solleva(eErrore::indice);
    }
    aScelte[nPosto] = bScelta;
    Scelte.Poni(std::move(aScelte));
}

void Elenco::SelezionaTutte(bool bScelte)
{
    auto aRighe = Righe.Valore();
    for (RigaElenco& riga : aRighe) {
        riga.bScelta = bScelte;
    }
    Righe.Poni(std::move(aRighe));
}

void Foglio::Disponi(std::int32_t nRighe, std::int32_t nColonne)
{
    Corrente.Poni({});
    Celle.Poni(std::vector(static_cast<std::size_t>(nRighe),
                           std::vector<std::string>(static_cast<std::size_t>(nColonne))));
}

const std::string& Foglio::Testo(Posto posto) const
{
    const auto& aCelle = Celle.Valore();
    const auto nRiga = static_cast<std::size_t>(posto.nRiga);
    const auto nColonna = static_cast<std::size_t>(posto.nColonna);
    // A negative place is beyond every end.
    if (nRiga >= aCelle.size() || nColonna >= aCelle[nRiga].size()) {
        Solleva(eErrore::indice);
    }
    return aCelle[nRiga][nColonna];
}

void Foglio::Scrivi(Posto posto, std::string_view sTesto)
{
    if (Testo(posto) != sTesto) {
        auto aCelle = Celle.Valore();
        aCelle[static_cast<std::size_t>(posto.nRiga)][static_cast<std::size_t>(posto.nColonna)] = sTesto;
        Celle.Poni(std::move(aCelle));
    }
}

void Combo::Svuota()
{
    Indice.PoniSenzaRegola(-1);
    Voci.Poni({});
}

void Combo::Aggiungi(std::string_view sVoce)
{
    auto aVoci = Voci.Valore();
    aVoci.emplace_back(sVoce);
    Voci.Poni(std::move(aVoci));
}

void Combo::AggiungiNumeri(std::int32_t nPrimo, std::int32_t nUltimo)
{
    auto aVoci = Voci.Valore();
    for (std::int32_t n = nPrimo; n <= nUltimo; ++n) {
        aVoci.push_back(std::to_string(n));
    }
    Voci.Poni(std::move(aVoci));
}

void Combo::SelezionaPrima()
{
    if (!Voci.Valore().empty()) {
        Indice.Poni(0);
    }
}

std::string Combo::Testo() const
{
    const auto& aVoci = Voci.Valore();
    const auto nIndice = static_cast<std::size_t>(Indice.Valore());
    return Indice.Valore() >= 0 && nIndice < aVoci.size() ? aVoci[nIndice] : std::string();
}

bool Combo::Contiene(std::string_view sVoce) const
{
    const auto& aVoci = Voci.Valore();
    return std::find(aVoci.begin(), aVoci.end(), sVoce) != aVoci.end();
}

bool SelezionaCombo(std::string_view sTesto, Combo& combo)
{
    const auto& aVoci = combo.Voci.Valore();
    auto voce = std::find(aVoci.begin(), aVoci.end(), sTesto);
    const bool bEsatta = voce != aVoci.end();
    if (!bEsatta) {
        voce = std::find_if(aVoci.begin(), aVoci.end(),
                            [sTesto](const std::string& sVoce) { return IniziaSenzaCaso(sVoce, sTesto); });
    }
    combo.Indice.Poni(voce == aVoci.end() ? -1 : static_cast<std::int32_t>(voce - aVoci.begin()));
    return bEsatta;
}

PulsanteStrumento& BarraStrumenti::Pulsante(std::string_view sChiave)
{
    const auto pulsante =
        std::find_if(aPulsanti.begin(), aPulsanti.end(),
                     [sChiave](const PulsanteStrumento& p) { return UgualiSenzaCaso(p.sChiave, sChiave); });
    if (pulsante == aPulsanti.end()) {
        throw Errore(eErrore::membro, sChiave);
    }
    return *pulsante;
}

VoceMenu& BarraStrumenti::Voce(std::string_view sChiave)
{
    for (PulsanteStrumento& pulsante : aPulsanti) {
        for (VoceMenu& voce : pulsante.aMenu) {
            if (UgualiSenzaCaso(voce.sChiave, sChiave)) {
                return voce;
            }
        }
    }
    throw Errore(eErrore::membro, sChiave);
}

SegniNumeri TuttiINumeri(bool bSegno) noexcept
{
    SegniNumeri aSegni;
    aSegni.aElementi.fill(bSegno ? 1 : 0);
    return aSegni;
}

bool SelettoreNumeri::Scelto(std::int32_t nNumero) const
{
    return Scelti.Valore()(nNumero) != 0;
}

void SelettoreNumeri::Seleziona(std::int32_t nNumero, bool bScelto)
{
    auto aScelti = Scelti.Valore();
    aScelti(nNumero) = bScelto ? 1 : 0;
    Scelti.Poni(aScelti);
}

std::int32_t SelettoreNumeri::Conta() const noexcept
{
    const auto& aScelti = Scelti.Valore().aElementi;
    return static_cast<std::int32_t>(std::count(aScelti.begin(), aScelti.end(), std::uint8_t{1}));
}

void SelettoreNumeri::Svuota()
{
    Scelti.Poni({});
}

} // namespace ordavel
