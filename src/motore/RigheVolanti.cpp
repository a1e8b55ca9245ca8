// RigheVolanti.cpp - which kinds have rows made for each beginning.

#include "motore/RigheVolanti.hpp"

namespace ordavel {

namespace {

std::variant<RigheCompagni, RigheEmulate> Crea(const RecordCondizione& record, std::int16_t nClasse,
                                               std::span<const std::uint8_t> aScelti,
                                               const StatoSviluppo& stato, eNucleo nucleo)
{
    if (record.Tipo == TipoCondizione::emulatore) {
        return RigheEmulate(record, nClasse, aScelti, stato.aEmulatore, nucleo);
    }
    return RigheCompagni(record, nClasse, aScelti, nucleo);
}

} // namespace

bool RigheVolanti::Adatte(const RecordCondizione& record, const StatoSviluppo& stato)
{
    return record.Tipo == TipoCondizione::simmetrieNum || record.Tipo == TipoCondizione::paralleliNum ||
           (record.Tipo == TipoCondizione::emulatore && RigheEmulate::Adatte(stato.aEmulatore));
}

RigheVolanti::RigheVolanti(const RecordCondizione& record, std::int16_t nClasse,
                           std::span<const std::uint8_t> aScelti, const StatoSviluppo& stato, eNucleo nucleo)
    : m_Righe(Crea(record, nClasse, aScelti, stato, nucleo))
{}

} // namespace ordavel
