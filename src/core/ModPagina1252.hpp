// ModPagina1252.hpp - texts to and from code page 1252, one byte a character.
//
// Texts are UTF-8 inside. All 256 bytes have a character: the five that the page leaves open, 0x81, 0x8D, 0x8F,
// 0x90 and 0x9D, stand for the control characters of the same numbers, so that any bytes come back as they were.

#pragma once

#include <string>
#include <string_view>

namespace ordavel {

/// The text that bytes of the page stand for.
/// Takes    sByte   any bytes, 0 included
/// Gives    valid UTF-8; InPagina1252 of it is sByte again
[[nodiscard]] std::string DaPagina1252(std::string_view sByte);

/// A text in bytes of the page.
/// Takes    sTesto   UTF-8, valid or not
/// Gives    one byte a character: "?" for one that the page does not hold, and "?" for each byte that belongs to
///          no valid character (cut, stray, overlong, half of a surrogate pair, beyond U+10FFFF)
[[nodiscard]] std::string InPagina1252(std::string_view sTesto);

} // namespace ordavel
