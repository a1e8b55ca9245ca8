// ModPagina1252.cpp - texts to and from code page 1252.

#include "core/ModPagina1252.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ordavel {

namespace {

constexpr char kIgnoto = '?';
constexpr char32_t kCodiceMassimo = 0x10FFFF;

/// The characters of the bytes 0x80 to 0x9F. All other bytes have the number of their character.
constexpr unsigned char kPrimoSpeciale = 0x80;
constexpr std::array<char32_t, 32> kSpeciali = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

bool Speciale(char32_t nCodice)
{
    return nCodice >= kPrimoSpeciale && nCodice < kPrimoSpeciale + kSpeciali.size();
}

char32_t CodiceDelByte(unsigned char nByte)
{
    return Speciale(nByte) ? kSpeciali[nByte - kPrimoSpeciale] : nByte;
}

char ByteDelCodice(char32_t nCodice)
{
    if (nCodice <= 0xFF && !Speciale(nCodice)) {
        return static_cast<char>(nCodice);
    }
    const auto* trovato = std::find(kSpeciali.begin(), kSpeciali.end(), nCodice);
    return trovato == kSpeciali.end() ? kIgnoto
                                      : static_cast<char>(kPrimoSpeciale + (trovato - kSpeciali.begin()));
}

/// Appends a character below U+10000 as UTF-8.
void AccodaUtf8(std::string& sTesto, char32_t nCodice)
{
    if (nCodice < 0x80) {
        sTesto += static_cast<char>(nCodice);
        return;
    }
    if (nCodice < 0x800) {
        sTesto += static_cast<char>(0xC0U | (nCodice >> 6U));
    } else {
        sTesto += static_cast<char>(0xE0U | (nCodice >> 12U));
        sTesto += static_cast<char>(0x80U | ((nCodice >> 6U) & 0x3FU));
    }
    sTesto += static_cast<char>(0x80U | (nCodice & 0x3FU));
}

/// How UTF-8 writes the characters from one number on: in how many bytes, and how the first of them looks.
struct FormaUtf8 {
    std::size_t nByte;
    unsigned char nMaschera; ///< bits of the first byte that tell the form
    unsigned char nSegno;    ///< what they are
    char32_t nMinimo;        ///< below it a shorter form is due
};

constexpr std::array kForme = std::to_array<FormaUtf8>({
    {1, 0x80, 0x00, 0x0},
    {2, 0xE0, 0xC0, 0x80},
    {3, 0xF0, 0xE0, 0x800},
    {4, 0xF8, 0xF0, 0x10000},
});

bool CodiceValido(char32_t nCodice, const FormaUtf8& forma)
{
    const bool bSurrogato = nCodice >= 0xD800 && nCodice <= 0xDFFF;
    return nCodice >= forma.nMinimo && nCodice <= kCodiceMassimo && !bSurrogato;
}

/// A byte of the page, and how many bytes of UTF-8 it stands for.
struct Conversione {
    char cByte = kIgnoto;
    std::size_t nLetti = 1;
};

/// Converts the first character of a text that is not empty.
Conversione ConvertiPrimo(std::string_view sTesto)
{
    const auto nPrimo = static_cast<unsigned char>(sTesto.front());
    const auto* forma = std::find_if(kForme.begin(), kForme.end(), [nPrimo](const FormaUtf8& f) {
        return (nPrimo & f.nMaschera) == f.nSegno;
    });
    if (forma == kForme.end() || sTesto.size() < forma->nByte) {
        return {};
    }
    char32_t nCodice = nPrimo & ~static_cast<unsigned>(forma->nMaschera);
    for (const char c : sTesto.substr(1, forma->nByte - 1)) {
        const auto nByte = static_cast<unsigned char>(c);
        if ((nByte & 0xC0U) != 0x80U) {
            return {};
        }
        nCodice = (nCodice << 6U) | (nByte & 0x3FU);
    }
    return CodiceValido(nCodice, *forma) ? Conversione{ByteDelCodice(nCodice), forma->nByte} : Conversione{};
}

} // namespace

std::string DaPagina1252(std::string_view sByte)
{
    std::string sTesto;
    sTesto.reserve(sByte.size());
    for (const char c : sByte) {
        AccodaUtf8(sTesto, CodiceDelByte(static_cast<unsigned char>(c)));
    }
    return sTesto;
}

std::string InPagina1252(std::string_view sTesto)
{
    std::string sByte;
    sByte.reserve(sTesto.size());
    while (!sTesto.empty()) {
        const Conversione primo = ConvertiPrimo(sTesto);
        sByte += primo.cByte;
        sTesto.remove_prefix(primo.nLetti);
    }
    return sByte;
}

} // namespace ordavel
