// SistemaCasuale.hpp - random system parts, and small systems to start from.

#pragma once

#include "comune/CartellaProva.hpp"
#include "persistenza/CampiRecord.hpp"
#include "persistenza/ModFileColonne.hpp"
#include "persistenza/ModFileSistema.hpp"

#include <rapidcheck.h>

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ordavel::prove {

/// A field coder that gives every field a random value. A double is a number, so that it equals itself.
class CampiCasuali {
public:
    template <std::integral T> void operator()(T& nValore) { nValore = *rc::gen::arbitrary<T>(); }
    template <Enumerazione E> void operator()(E& eValore)
    {
        eValore = static_cast<E>(*rc::gen::arbitrary<std::underlying_type_t<E>>());
    }
    void operator()(double& nValore) { nValore = *rc::gen::arbitrary<double>(); }
};

/// A random system part of at most five conditions.
inline ParteSistema ParteCasuale()
{
    ParteSistema parte;
    CampiCasuali campo;
    campo(parte.nClasse);
    campo(parte.nRiduzione);
    CampiSerie(campo, parte.aNumeri.aElementi);
    for (VoceRecupero& voce : parte.aQuadroRec.aElementi) {
        Campi(campo, voce);
    }
    parte.aCondizioni.resize(*rc::gen::inRange<std::size_t>(0, 6));
    for (RecordCondizione& condizione : parte.aCondizioni) {
        Campi(campo, condizione);
    }
    return parte;
}

/// Bytes as a text, which is what files of tests are written from.
inline std::string ComeTesto(std::span<const std::byte> aByte)
{
    std::string sTesto;
    for (const std::byte nByte : aByte) {
        sTesto += std::to_integer<char>(nByte);
    }
    return sTesto;
}

inline std::string TestoSistema(const ParteSistema& parte)
{
    return ComeTesto(ComponiParteSistema(parte, parte.aCondizioni));
}

/// A system of nCondizioni empty conditions.
inline ParteSistema ParteUguale(std::size_t nCondizioni)
{
    ParteSistema parte;
    parte.nClasse = 5;
    parte.aCondizioni.resize(nCondizioni);
    return parte;
}

/// Writes a system file of any bytes and opens it.
inline FileBinario ApriTesto(const std::string& sPath, std::string_view sContenuto)
{
    ScriviFile(sPath, sContenuto);
    return {sPath, eApertura::lettura};
}

} // namespace ordavel::prove
