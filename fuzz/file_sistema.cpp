// file_sistema.cpp - any bytes as a system part: read, composed again, compared, read again.

#include "Pretende.hpp"
#include "persistenza/CampiRecord.hpp"
#include "persistenza/ModFileSistema.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace {

using namespace ordavel;
using fuzz::Pretende;

constexpr std::size_t kByteMarchio = 7;

bool LunghezzaGiusta(std::size_t nByte)
{
    const auto n = static_cast<std::int64_t>(nByte);
    return n >= kByteParteFissa && n <= kByteParteMassima &&
           (n - kByteParteFissa) % kByteRecordCondizione == 0;
}

/// The bytes in front of the marker, as a file of them would be read.
std::span<const std::byte> PrimaDellaMarca(std::span<const std::byte> aByte)
{
    constexpr std::string_view sMarca = "COLONNE";
    const auto aMarca = std::as_bytes(std::span(sMarca));
    const auto fine = std::search(aByte.begin(), aByte.end(), aMarca.begin(), aMarca.end());
    return aByte.first(static_cast<std::size_t>(fine - aByte.begin()));
}

void Prova(std::span<const std::byte> aParte)
{
    const auto parte = LeggiParteSistema(aParte);
    Pretende(parte.has_value() == LunghezzaGiusta(aParte.size()), "si legge quando la lunghezza torna");
    if (!parte) {
        return;
    }
    const auto aScritti = ComponiParteSistema(*parte, parte->aCondizioni);
    Pretende(std::equal(aScritti.begin() + kByteMarchio, aScritti.end(), aParte.begin() + kByteMarchio,
                        aParte.end()),
             "si riscrive uguale");
    const auto riletta = LeggiParteSistema(aScritti);
    Pretende(riletta && ComponiParteSistema(*riletta, riletta->aCondizioni) == aScritti, "si rilegge uguale");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aDati, std::size_t nDati)
{
    Prova(PrimaDellaMarca(std::as_bytes(std::span(aDati, nDati))));
    return 0;
}
