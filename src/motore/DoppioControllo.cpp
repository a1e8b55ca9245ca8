// DoppioControllo.cpp - the plain form behind the block form.

#include "motore/DoppioControllo.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "motore/ModVerifica.hpp"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace ordavel {

namespace {

/// A field of a record, and whether it moves with every column or stays that of the last one.
struct Campo {
    std::string_view sNome;
    double (*valore)(const RecordCondizione&);
    bool bConto;
};

// clang-format off
constexpr std::array kCampi = std::to_array<Campo>({
    {"ContaOk",  [](const RecordCondizione& r) { return r.ContaOk; },                       true},
    {"ContaKo",  [](const RecordCondizione& r) { return r.ContaKo; },                       true},
    {"ContaRec", [](const RecordCondizione& r) { return r.ContaRec; },                      true},
    {"Valore",   [](const RecordCondizione& r) { return static_cast<double>(r.Valore); },   false},
    {"Valore2",  [](const RecordCondizione& r) { return static_cast<double>(r.Valore2); },  false},
    {"Esito",    [](const RecordCondizione& r) { return static_cast<double>(r.Esito); },    false},
    {"EsitoRec", [](const RecordCondizione& r) { return static_cast<double>(r.EsitoRec); }, false},
});
// clang-format on

[[noreturn]] void Differenza(const std::string& sTesto)
{
    throw std::logic_error("doppio controllo: " + sTesto);
}

std::string Numeri(const Colonna& colonna, std::int16_t nClasse)
{
    std::string sNumeri;
    for (std::int16_t k = 1; k <= nClasse; ++k) {
        sNumeri += (k > 1 ? " " : "") + std::to_string(colonna[k]);
    }
    return sNumeri;
}

std::string Condizione(const RecordCondizione& record, std::size_t nIndice)
{
    const VoceCatalogo* voce = TrovaTipo(record.Tipo);
    return "condizione " + std::to_string(nIndice + 1) + " (" +
           (voce != nullptr ? std::string(voce->sChiave)
                            : "tipo " + std::to_string(static_cast<int>(record.Tipo))) +
           ")";
}

} // namespace

DoppioControllo::DoppioControllo(const NumeriScelti& aNumeri, std::int16_t nClasse, StatoSviluppo stato)
    : m_nClasse(nClasse),
      m_Ombra(std::move(stato)),
      m_Enumeratore(aNumeri, nClasse),
      m_bPresente(m_Enumeratore.Presente())
{}

void DoppioControllo::Confronta(const StatoSviluppo& stato, std::int64_t nSviluppate, eConfronto confronto)
{
    if (nSviluppate < m_nEsaminate) {
        Differenza("le colonne esaminate erano " + std::to_string(m_nEsaminate) + " e sono " +
                   std::to_string(nSviluppate));
    }
    while (m_nEsaminate < nSviluppate) {
        Esamina();
    }
    if (m_nConfrontate < m_aPassate.size()) {
        Differenza("passa " + Numeri(m_aPassate[m_nConfrontate], m_nClasse) + ", che non passa fino alla " +
                   Posto());
    }
    m_aPassate.clear();
    m_nConfrontate = 0;
    if (stato.aCondizioni.size() != m_Ombra.aCondizioni.size()) {
        Differenza("le condizioni sono " + std::to_string(stato.aCondizioni.size()) + " invece di " +
                   std::to_string(m_Ombra.aCondizioni.size()));
    }
    for (std::size_t i = 0; i < m_Ombra.aCondizioni.size(); ++i) {
        ConfrontaRecord(stato, i, confronto);
    }
}

void DoppioControllo::Concludi(const StatoSviluppo& stato, std::int64_t nSviluppate)
{
    Confronta(stato, nSviluppate);
    if (m_bPresente) {
        Differenza("la corsa finisce prima dell'ultima colonna, alla " + Posto());
    }
}

/// One column through the plain form.
void DoppioControllo::Esamina()
{
    if (!m_bPresente) {
        Differenza("la corsa va oltre l'ultima colonna, la " + Posto());
    }
    m_Enumeratore.Componi(m_Colonna);
    ++m_nEsaminate;
    ConfrontaPassata(PassaOmbra());
    m_bPresente = m_Enumeratore.Avanza();
}

/// The block form has come past this column, so that it cannot have failed.
bool DoppioControllo::PassaOmbra()
{
    try {
        return VerificaColonna(m_nClasse, m_Colonna, m_Ombra);
    } catch (const Errore& errore) {
        Differenza("manca il fallimento \"" + TestoFallimento(errore) + "\" alla " + Posto());
    }
}

void DoppioControllo::ConfrontaPassata(bool bPassa)
{
    const bool bPassata = m_nConfrontate < m_aPassate.size() && m_aPassate[m_nConfrontate] == m_Colonna;
    if (bPassata != bPassa) {
        Differenza(std::string(bPassa ? "manca" : "è di troppo") + " la " + Posto());
    }
    m_nConfrontate += bPassa ? 1 : 0;
}

void DoppioControllo::ConfrontaRecord(const StatoSviluppo& stato, std::size_t nIndice,
                                      eConfronto confronto) const
{
    const RecordCondizione& qui = stato.aCondizioni[nIndice];
    const RecordCondizione& ombra = m_Ombra.aCondizioni[nIndice];
    const auto diverso = std::ranges::find_if(kCampi, [&](const Campo& campo) {
        return (campo.bConto || confronto == eConfronto::tutto) && campo.valore(qui) != campo.valore(ombra);
    });
    if (diverso != kCampi.end()) {
        Differenza(Condizione(ombra, nIndice) + ": " + std::string(diverso->sNome) + " vale " +
                   std::to_string(static_cast<std::int64_t>(diverso->valore(qui))) + " invece di " +
                   std::to_string(static_cast<std::int64_t>(diverso->valore(ombra))) + " dopo la " + Posto());
    }
}

/// The last column that the plain form has examined.
std::string DoppioControllo::Posto() const
{
    return "colonna " + std::to_string(m_nEsaminate) + ": " + Numeri(m_Colonna, m_nClasse);
}

} // namespace ordavel
