// CampiRecord.hpp - the packed layouts of the records in files, each written down once.
//
// Files are little-endian, without gaps between fields. A field coder is an object that is called with each
// field of a record in the order of the file; the reader and the writer of a layout are the same lines:
//
//     ScrittoreCampi campo(aByte);          LettoreCampi campo(aByte);
//     Campi(campo, condizione);             Campi(campo, condizione);
//
// A layout takes its record constant for the writer and not constant for the reader.

#pragma once

#include "ordavel/records.hpp"

#include <bit>
#include <concepts>
#include <cstdint>
#include <span>
#include <type_traits>
#include <vector>

namespace ordavel {

/// Bytes of the packed records, and of the parts of a system file.
inline constexpr std::int64_t kByteVoceRecupero = 6;
inline constexpr std::int64_t kByteIntestazione = 191;
inline constexpr std::int64_t kByteQuadro = (kGruppiRecupero + 1) * kByteVoceRecupero;
inline constexpr std::int64_t kByteParteFissa = kByteIntestazione + kByteQuadro;
inline constexpr std::int64_t kByteParteMassima =
    kByteParteFissa + kCondizioniMassime * kByteRecordCondizione;

template <typename T>
concept Enumerazione = std::is_enum_v<T>;

/// Appends fields to a byte image.
class ScrittoreCampi {
public:
    explicit ScrittoreCampi(std::vector<std::byte>& aByte) : m_aByte(aByte) {}

    template <std::integral T> void operator()(const T& nValore)
    {
        const auto nBit = static_cast<std::make_unsigned_t<T>>(nValore);
        for (std::size_t i = 0; i < sizeof(T); ++i) {
            m_aByte.push_back(static_cast<std::byte>(nBit >> (8 * i)));
        }
    }

    template <Enumerazione E> void operator()(const E& eValore)
    {
        (*this)(static_cast<std::underlying_type_t<E>>(eValore));
    }

    void operator()(const double& nValore) { (*this)(std::bit_cast<std::uint64_t>(nValore)); }

private:
    std::vector<std::byte>& m_aByte;
};

/// Takes fields from the front of a byte image.
/// Fails    9: the image ends before the field does
class LettoreCampi {
public:
    explicit LettoreCampi(std::span<const std::byte> aByte) : m_aByte(aByte) {}

    template <std::integral T> void operator()(T& nValore)
    {
        if (m_aByte.size() < sizeof(T)) {
            Solleva(eErrore::indice);
        }
        std::uint64_t nBit = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i) {
            nBit |= std::to_integer<std::uint64_t>(m_aByte[i]) << (8 * i);
        }
        nValore = static_cast<T>(nBit);
        m_aByte = m_aByte.subspan(sizeof(T));
    }

    /// Every value of the type beneath is taken, named or not: what is read is written back as it was.
    template <Enumerazione E> void operator()(E& eValore)
    {
        std::underlying_type_t<E> nValore{};
        (*this)(nValore);
        eValore = static_cast<E>(nValore);
    }

    void operator()(double& nValore)
    {
        std::uint64_t nBit = 0;
        (*this)(nBit);
        nValore = std::bit_cast<double>(nBit);
    }

private:
    std::span<const std::byte> m_aByte;
};

/// T is Record, constant or not.
template <typename T, typename Record>
concept RecordDi = std::same_as<std::remove_const_t<T>, Record>;

/// All entries of a table or array of plain fields, in the order of their indices.
template <typename Codificatore> void CampiSerie(Codificatore& campo, auto& aSerie)
{
    for (auto& elemento : aSerie) {
        campo(elemento);
    }
}

/// One entry of the recovery board: 6 bytes.
template <typename Codificatore> void Campi(Codificatore& campo, RecordDi<VoceRecupero> auto& voce)
{
    campo(voce.Attiva);
    campo(voce.MinPunti);
    campo(voce.MaxPunti);
}

/// One compiled condition: 334 bytes.
template <typename Codificatore> void Campi(Codificatore& campo, RecordDi<RecordCondizione> auto& condizione)
{
    campo(condizione.Tipo);
    campo(condizione.Riservato);
    CampiSerie(campo, condizione.Numeri.aElementi);
    CampiSerie(campo, condizione.PuntiOk.aElementi);
    CampiSerie(campo, condizione.PuntiRec.aElementi);
    CampiSerie(campo, condizione.PuntiOk2.aElementi);
    CampiSerie(campo, condizione.PuntiRec2.aElementi);
    campo(condizione.Parametro);
    campo(condizione.OkMin);
    campo(condizione.OkMax);
    campo(condizione.RecMin);
    campo(condizione.RecMax);
    campo(condizione.IdRecupero);
    campo(condizione.Passo);
    campo(condizione.Valore);
    campo(condizione.Valore2);
    campo(condizione.ContaKo);
    campo(condizione.ContaOk);
    campo(condizione.ContaRec);
    campo(condizione.Esito);
    campo(condizione.EsitoRec);
    campo(condizione.EsitoLink);
}

} // namespace ordavel
