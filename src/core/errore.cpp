// errore.cpp - numbers and descriptions of the failures.

#include "ordavel/errore.hpp"

#include <algorithm>
#include <array>

namespace ordavel {

namespace {

struct RigaErrore {
    eErrore nNumero;
    std::string_view sDescrizione;
};

// clang-format off
constexpr std::array kErrori = std::to_array<RigaErrore>({
    {eErrore::argomento,          "Argomento non valido"},
    {eErrore::overflow,           "Numero troppo grande"},
    {eErrore::memoria,            "Memoria insufficiente"},
    {eErrore::indice,             "Indice fuori dai limiti"},
    {eErrore::divisione,          "Divisione per zero"},
    {eErrore::tipo,               "Tipo non corrispondente"},
    {eErrore::fileNonTrovato,     "File non trovato"},
    {eErrore::dispositivo,        "Errore di lettura o scrittura"},
    {eErrore::discoPieno,         "Disco pieno"},
    {eErrore::permesso,           "Permesso negato"},
    {eErrore::accessoPercorso,    "Percorso non accessibile come file"},
    {eErrore::percorsoNonTrovato, "Percorso non trovato"},
    {eErrore::oggetto,            "Oggetto mancante"},
    {eErrore::membro,             "Membro mancante"},
});
// clang-format on

std::string ConOggetto(eErrore nNumero, std::string_view sOggetto)
{
    return std::string(DescrizioneErrore(nNumero)).append(": ").append(sOggetto);
}

} // namespace

std::string_view DescrizioneErrore(eErrore nNumero) noexcept
{
    const auto* riga = std::find_if(kErrori.begin(), kErrori.end(),
                                    [nNumero](const RigaErrore& r) { return r.nNumero == nNumero; });
    return riga == kErrori.end() ? std::string_view("Errore sconosciuto") : riga->sDescrizione;
}

Errore::Errore(eErrore nNumero, std::int32_t nLinea)
    : m_nNumero(nNumero), m_sDescrizione(DescrizioneErrore(nNumero)), m_nLinea(nLinea)
{}

Errore::Errore(eErrore nNumero, std::string_view sOggetto, std::int32_t nLinea)
    : m_nNumero(nNumero), m_sDescrizione(ConOggetto(nNumero, sOggetto)), m_nLinea(nLinea)
{}

std::string TestoFallimento(const Errore& errore)
{
    std::string sTesto =
        std::to_string(static_cast<std::int32_t>(errore.Numero())) + "- " + errore.Descrizione();
    if (errore.Linea() != 0) {
        sTesto += " Linea errore " + std::to_string(errore.Linea());
    }
    return sTesto;
}

void Solleva(eErrore nNumero)
{
    throw Errore(nNumero);
}

} // namespace ordavel
