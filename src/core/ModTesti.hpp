// ModTesti.hpp - small operations on texts: split, trim, compare without case, replace.

#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace ordavel {

inline constexpr std::string_view kCrLf = "\r\n";

/// The parts of a text between separators.
/// Takes    sSeparatore   not empty
/// Gives    one part more than there are separators; no part at all for an empty text
[[nodiscard]] std::vector<std::string_view> Dividi(std::string_view sTesto, std::string_view sSeparatore);

/// The parts point into the text: one that is gone at the end of the call has none.
template <typename Testo>
requires std::is_same_v<std::remove_const_t<Testo>, std::string> std::vector<std::string_view>
Dividi(Testo&& sTesto, std::string_view sSeparatore)
= delete;

/// The text without leading and trailing blanks. Only blanks: line breaks and tabs stay.
[[nodiscard]] std::string_view TogliBlank(std::string_view sTesto) noexcept;

/// Every occurrence of sVecchio replaced by sNuovo; sVecchio not empty.
[[nodiscard]] std::string Sostituisci(std::string_view sTesto, std::string_view sVecchio,
                                      std::string_view sNuovo);

/// Are two texts equal, letters a to z taken without regard to case?
[[nodiscard]] bool UgualiSenzaCaso(std::string_view sUno, std::string_view sDue) noexcept;

/// Does a text begin with another, letters a to z taken without regard to case?
[[nodiscard]] bool IniziaSenzaCaso(std::string_view sTesto, std::string_view sInizio) noexcept;

/// First place of sCercato in sTesto, letters a to z taken without regard to case; npos when it is not there.
[[nodiscard]] std::size_t CercaSenzaCaso(std::string_view sTesto, std::string_view sCercato) noexcept;

/// What stands behind the first sCercato; empty when it is not there.
[[nodiscard]] std::string_view Dietro(std::string_view sTesto, std::string_view sCercato) noexcept;

} // namespace ordavel
