// errore.hpp - the one failure type of the system, and who shows it.
//
// Every operation that can fail throws an Errore: a classic number, an Italian description, and the source
// line where one is known. Whoever does file work for the user traps it (see ModGestore.hpp) and hands it to
// a Segnalatore, which shows the one box that all failures have.

#pragma once

#include "ordavel/esporta.hpp"

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace ordavel {

/// The numbers of the failures that the system raises.
enum class eErrore : std::int32_t {
    argomento = 5,
    overflow = 6,
    memoria = 7,
    indice = 9,
    divisione = 11,
    tipo = 13,
    fileNonTrovato = 53,
    dispositivo = 57,
    discoPieno = 61,
    permesso = 70,
    accessoPercorso = 75,
    percorsoNonTrovato = 76,
    oggetto = 91,
    membro = 438,
};

/// The Italian description of a failure.
/// Gives    one short sentence without a full stop; "Errore sconosciuto" for a number outside the list
[[nodiscard]] ORDAVEL_EXPORT std::string_view DescrizioneErrore(eErrore nNumero) noexcept;

/// A failure of the system.
class ORDAVEL_EXPORT Errore : public std::exception {
public:
    /// Takes    nNumero   what failed
    ///          nLinea    source line, 0 when it is not known
    explicit Errore(eErrore nNumero, std::int32_t nLinea = 0);

    /// As above, with the thing that failed (a path, a word) added to the description behind ": ".
    Errore(eErrore nNumero, std::string_view sOggetto, std::int32_t nLinea = 0);

    [[nodiscard]] eErrore Numero() const noexcept { return m_nNumero; }
    [[nodiscard]] const std::string& Descrizione() const noexcept { return m_sDescrizione; }
    [[nodiscard]] std::int32_t Linea() const noexcept { return m_nLinea; }
    [[nodiscard]] const char* what() const noexcept override { return m_sDescrizione.c_str(); }

private:
    eErrore m_nNumero;
    std::string m_sDescrizione;
    std::int32_t m_nLinea;
};

/// The text of a failure box.
/// Gives    number, "- ", description and, when the line is known, " Linea errore " and the line:
///          "53- File non trovato Linea errore 210"
[[nodiscard]] ORDAVEL_EXPORT std::string TestoFallimento(const Errore& errore);

/// Throws Errore(nNumero). Out of line, so that checks in inner loops stay small.
[[noreturn]] ORDAVEL_EXPORT void Solleva(eErrore nNumero);

/// Shows trapped failures to the user.
class ORDAVEL_EXPORT Segnalatore {
public:
    Segnalatore() = default;
    Segnalatore(const Segnalatore&) = delete;
    Segnalatore& operator=(const Segnalatore&) = delete;
    virtual ~Segnalatore() = default;

    /// Shows a critical box.
    /// Takes    sOrigine   name of the operation that trapped it, the title of the box
    ///          errore     what happened; the text of the box is TestoFallimento(errore)
    virtual void MostraFallimento(std::string_view sOrigine, const Errore& errore) = 0;
};

} // namespace ordavel
