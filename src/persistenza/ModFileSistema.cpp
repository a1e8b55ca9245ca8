// ModFileSistema.cpp - the system part of a system file.

#include "persistenza/ModFileSistema.hpp"

#include "persistenza/CampiRecord.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <array>

namespace ordavel {

namespace {

using Marchio = std::array<char, 7>;
constexpr Marchio kMarchio = {'S', 'I', 'S', 'T', 'O', 'C', 'X'};

/// Everything in front of the conditions: header and recovery table, 317 bytes.
template <typename Codificatore>
void CampiParteFissa(Codificatore& campo, RecordDi<Marchio> auto& marchio, RecordDi<ParteSistema> auto& parte)
{
    CampiSerie(campo, marchio);
    campo(parte.nClasse);
    campo(parte.nRiduzione);
    CampiSerie(campo, parte.aNumeri.aElementi);
    for (auto& voce : parte.aQuadroRec.aElementi) {
        Campi(campo, voce);
    }
}

/// How many conditions a system part of that length holds; nothing when it holds no whole number of them, or
/// more than a grid can.
std::optional<std::size_t> CondizioniInByte(std::int64_t nByte)
{
    const std::int64_t nResto = nByte - kByteParteFissa;
    if (nResto < 0 || nByte > kByteParteMassima || nResto % kByteRecordCondizione != 0) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(nResto / kByteRecordCondizione);
}

} // namespace

std::vector<std::byte> ComponiParteSistema(const ParteSistema& parte,
                                           std::span<const RecordCondizione> aCondizioni)
{
    std::vector<std::byte> aByte;
    aByte.reserve(kByteParteFissa + aCondizioni.size() * kByteRecordCondizione);
    ScrittoreCampi campo(aByte);
    CampiParteFissa(campo, kMarchio, parte);
    for (const RecordCondizione& condizione : aCondizioni) {
        Campi(campo, condizione);
    }
    return aByte;
}

std::optional<ParteSistema> LeggiParteSistema(std::span<const std::byte> aByte)
{
    const auto nCondizioni = CondizioniInByte(static_cast<std::int64_t>(aByte.size()));
    if (!nCondizioni) {
        return std::nullopt;
    }
    ParteSistema parte;
    Marchio marchioLetto{};
    LettoreCampi campo(aByte);
    CampiParteFissa(campo, marchioLetto, parte);
    parte.aCondizioni.resize(*nCondizioni);
    for (RecordCondizione& condizione : parte.aCondizioni) {
        Campi(campo, condizione);
    }
    return parte;
}

std::optional<ParteSistema> LeggiParteSistema(FileBinario& file)
{
    const std::int64_t nByte = LunghezzaParteSistema(file);
    if (!CondizioniInByte(nByte)) {
        return std::nullopt;
    }
    std::vector<std::byte> aByte(static_cast<std::size_t>(nByte));
    if (file.Leggi(1, aByte) != aByte.size()) {
        Solleva(eErrore::dispositivo);
    }
    return LeggiParteSistema(aByte);
}

} // namespace ordavel
