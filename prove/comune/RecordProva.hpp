// RecordProva.hpp - compiled conditions for tests, written out.

#pragma once

#include "ordavel/records.hpp"

#include <cstdint>
#include <initializer_list>

namespace ordavel::prove {

/// A condition whose value is looked up in lists.
inline RecordCondizione Lista(TipoCondizione tipo, std::initializer_list<int> aOk,
                              std::initializer_list<int> aRec = {})
{
    RecordCondizione record;
    record.Tipo = tipo;
    for (const int nValore : aOk) {
        record.PuntiOk(nValore) = kVero;
    }
    for (const int nValore : aRec) {
        record.PuntiRec(nValore) = kVero;
    }
    return record;
}

/// The same, of a kind that reads a parameter.
inline RecordCondizione ConParametro(RecordCondizione record, std::int16_t nParametro,
                                     std::int16_t nPasso = 0)
{
    record.Parametro = nParametro;
    record.Passo = nPasso;
    return record;
}

/// A condition whose value is compared with a range; every position is flagged. Without a recovery range none
/// recovers.
inline RecordCondizione Intervallo(TipoCondizione tipo, std::int32_t nMinimo, std::int32_t nMassimo,
                                   std::int32_t nRecMinimo = 1, std::int32_t nRecMassimo = 0)
{
    RecordCondizione record;
    record.Tipo = tipo;
    record.OkMin = nMinimo;
    record.OkMax = nMassimo;
    record.RecMin = nRecMinimo;
    record.RecMax = nRecMassimo;
    for (int k = 1; k <= kNumeriColonna; ++k) {
        record.Numeri[k] = kVero;
    }
    return record;
}

/// How many numbers of the column are odd.
inline RecordCondizione Dispari(std::initializer_list<int> aOk)
{
    RecordCondizione record = Lista(TipoCondizione::pariDispari, aOk);
    for (int n = 1; n <= kNumeroMassimo; n += 2) {
        record.Numeri[n] = kVero;
    }
    return record;
}

/// A scan for a parity pattern.
inline RecordCondizione Sequenza(std::initializer_list<int> aSchema, std::initializer_list<int> aOk,
                                 std::initializer_list<int> aRec = {})
{
    RecordCondizione record = ConParametro(Lista(TipoCondizione::sequenze, aOk, aRec), 0, 1);
    for (const int nParita : aSchema) {
        record.Numeri(record.Parametro++) = static_cast<std::int16_t>(nParita);
    }
    for (int i = 0; i <= kValoreListaMassimo; ++i) {
        record.PuntiOk2[i] = record.PuntiRec2[i] = kVero; // any chain
    }
    return record;
}

/// A condition that every column satisfies.
inline RecordCondizione Passa()
{
    return Intervallo(TipoCondizione::distanzaMinima, 0, 1000);
}

/// A condition that no column satisfies.
inline RecordCondizione Manca()
{
    return Intervallo(TipoCondizione::distanzaMinima, -1, -1);
}

/// A condition that no column satisfies and every column recovers, in a group.
inline RecordCondizione Recuperabile(std::int16_t nGruppo)
{
    RecordCondizione record = Intervallo(TipoCondizione::distanzaMinima, -1, -1, 0, 1000);
    record.IdRecupero = nGruppo;
    return record;
}

inline RecordCondizione LinkOpen()
{
    RecordCondizione record;
    record.Tipo = TipoCondizione::linkOpen;
    return record;
}

/// The end of a link that accepts these counts.
inline RecordCondizione LinkClose(std::initializer_list<int> aConteggi)
{
    RecordCondizione record;
    record.Tipo = TipoCondizione::linkClose;
    for (const int nConteggio : aConteggi) {
        record.Numeri(nConteggio) = kVero;
    }
    return record;
}

} // namespace ordavel::prove
