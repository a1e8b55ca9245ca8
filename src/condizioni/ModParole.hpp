// ModParole.hpp - the fixed words of the cells, shared by those who write and those who read them.

#pragma once

#include "condizioni/ModCatalogo.hpp"

#include <string_view>

namespace ordavel {

/// Labels in front of a value. Their blanks belong to the format; a label is found by its part up to the colon
/// and removed whole, so that one without its closing blank leaves no readable number behind.
inline constexpr std::string_view kPasso = "Passo : ";
inline constexpr std::string_view kCercaPasso = "Passo :";
inline constexpr std::string_view kConsec = "Consec : ";
inline constexpr std::string_view kCercaConsec = "Consec :";
inline constexpr std::string_view kConsecR = "ConsecR : ";
inline constexpr std::string_view kCercaConsecR = "ConsecR :";
inline constexpr std::string_view kGruppoDa = "GruppoDa : ";
inline constexpr std::string_view kCercaGruppoDa = "GruppoDa :";
inline constexpr std::string_view kRestoA = "Resto a : ";
inline constexpr std::string_view kCaselle = "Caselle :";
inline constexpr std::string_view kCasella = "Casella :";

/// Behind the last letter of a pattern.
inline constexpr std::int16_t kFineSequenza = -1;

/// The row whose words stand for direct and inverse when a record is written as text: the kind's own, but for
/// "Paralleli", which gets the words of "Simmetrie".
[[nodiscard]] inline const VoceCatalogo& VoceParoleSalvate(const VoceCatalogo& voce) noexcept
{
    return voce.Tipo == TipoCondizione::paralleli ? *TrovaTipo(TipoCondizione::simmetrie) : voce;
}

} // namespace ordavel
