// ModNumeri.cpp - numbers from text and to text.

#include "core/ModNumeri.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace ordavel {

namespace {

bool Cifra(char c)
{
    return c >= '0' && c <= '9';
}

bool Segno(char c)
{
    return c == '+' || c == '-';
}

/// First place at or behind nDa that holds no digit.
std::size_t FineCifre(std::string_view sTesto, std::size_t nDa)
{
    while (nDa < sTesto.size() && Cifra(sTesto[nDa])) {
        ++nDa;
    }
    return nDa;
}

/// End of the mantissa that begins at nDa; nDa itself when there is no digit in it.
std::size_t FineMantissa(std::string_view sTesto, std::size_t nDa)
{
    const std::size_t nIntera = FineCifre(sTesto, nDa);
    if (nIntera == sTesto.size() || sTesto[nIntera] != '.') {
        return nIntera;
    }
    const std::size_t nDecimali = FineCifre(sTesto, nIntera + 1);
    const bool bQualcheCifra = nIntera > nDa || nDecimali > nIntera + 1;
    return bQualcheCifra ? nDecimali : nDa;
}

/// End of the exponent that begins at nDa; nDa itself when there is none.
std::size_t FineEsponente(std::string_view sTesto, std::size_t nDa)
{
    if (nDa == sTesto.size() || (sTesto[nDa] != 'e' && sTesto[nDa] != 'E')) {
        return nDa;
    }
    const std::size_t nSegno = nDa + 1;
    const std::size_t nCifre = nSegno < sTesto.size() && Segno(sTesto[nSegno]) ? nSegno + 1 : nSegno;
    const std::size_t nFine = FineCifre(sTesto, nCifre);
    return nFine > nCifre ? nFine : nDa;
}

/// The exponent that a number ends with, 0 when there is none; one beyond all measure is cut, its sign stays.
std::int64_t Esponente(std::string_view sEsponente)
{
    constexpr std::int64_t kSmisurato = std::numeric_limits<std::int64_t>::max() / 2;
    if (sEsponente.starts_with('+')) {
        sEsponente.remove_prefix(1);
    }
    std::int64_t nEsponente = 0;
    const auto esito = std::from_chars(sEsponente.data(), sEsponente.data() + sEsponente.size(), nEsponente);
    if (esito.ec == std::errc::result_out_of_range) {
        return sEsponente.starts_with('-') ? -kSmisurato : kSmisurato;
    }
    return std::clamp(nEsponente, -kSmisurato, kSmisurato);
}

/// A number too small or too large for a double: the power of ten of its first digit that counts tells which.
double FuoriScala(std::string_view sNumero)
{
    const std::size_t nFine = std::min(sNumero.find_first_of("eE"), sNumero.size());
    const std::string_view sMantissa = sNumero.substr(0, nFine);
    const auto nPunto = static_cast<std::int64_t>(std::min(sMantissa.find('.'), nFine));
    const auto nPrimaCifra = static_cast<std::int64_t>(sMantissa.find_first_not_of("0."));
    const std::int64_t nEsponente = Esponente(sNumero.substr(std::min(nFine + 1, sNumero.size())));
    return nPunto - nPrimaCifra + nEsponente < 0 ? 0.0 : std::numeric_limits<double>::infinity();
}

} // namespace

double LeggiNumero(std::string_view sTesto) noexcept
{
    sTesto.remove_prefix(std::min(sTesto.find_first_not_of(' '), sTesto.size()));
    const bool bNegativo = sTesto.starts_with('-');
    if (!sTesto.empty() && Segno(sTesto.front())) {
        sTesto.remove_prefix(1);
    }
    const std::size_t nMantissa = FineMantissa(sTesto, 0);
    if (nMantissa == 0) {
        return 0;
    }
    const std::string_view sNumero = sTesto.substr(0, FineEsponente(sTesto, nMantissa));
    double nValore = 0;
    const auto esito = std::from_chars(sNumero.data(), sNumero.data() + sNumero.size(), nValore);
    if (esito.ec == std::errc::result_out_of_range) {
        nValore = FuoriScala(sNumero);
    }
    return bNegativo ? -nValore : nValore;
}

double ArrotondaPari(double nValore) noexcept
{
    return std::nearbyint(nValore);
}

double Pavimento(double nValore) noexcept
{
    return std::floor(nValore);
}

std::string FormattaNumero(double nValore)
{
    if (nValore == 0) {
        return "0";
    }
    const double nIntero = ArrotondaPari(nValore);
    if (nIntero == 0) {
        return {};
    }
    std::array<char, 400> aCifre{};
    const auto fine = std::to_chars(aCifre.data(), aCifre.data() + aCifre.size(), std::fabs(nIntero),
                                    std::chars_format::fixed);
    std::string sTesto(aCifre.data(), fine.ptr);
    if (std::isfinite(nIntero)) {
        for (std::size_t i = sTesto.size(); i > 3; i -= 3) {
            sTesto.insert(i - 3, 1, '.');
        }
    }
    return nIntero < 0 ? "-" + sTesto : sTesto;
}

std::string Formatta00(std::int64_t nValore)
{
    std::string sCifre = std::to_string(nValore < 0 ? -nValore : nValore);
    if (sCifre.size() < 2) {
        sCifre.insert(0, 1, '0');
    }
    return nValore < 0 ? "-" + sCifre : sCifre;
}

std::int16_t PercentualeProgress(double nFatte, double nTotale)
{
    if (nTotale == 0) {
        Solleva(eErrore::divisione);
    }
    return ComeIntero<std::int16_t>(std::min(Pavimento(nFatte * 100 / nTotale), 100.0));
}

float SecondiTrascorsi(float nInizio, float nFine) noexcept
{
    constexpr float kSecondiAlGiorno = 86400;
    return nFine - nInizio + (nFine < nInizio ? kSecondiAlGiorno : 0);
}

std::string FormattaTempo(std::int64_t nSecondi)
{
    constexpr std::int64_t kMinuto = 60;
    constexpr std::int64_t kOra = 60 * kMinuto;
    return Formatta00(nSecondi / kOra) + ":" + Formatta00(nSecondi % kOra / kMinuto) + ":" +
           Formatta00(nSecondi % kMinuto);
}

} // namespace ordavel
