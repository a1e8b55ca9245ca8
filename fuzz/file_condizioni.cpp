// file_condizioni.cpp - any bytes as a condition file: read, written again, read again, compared.

#include "Pretende.hpp"
#include "persistenza/ModFileCondizioni.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace {

using namespace ordavel;
using fuzz::Pretende;

/// The rows of some bytes, as many as there is room for.
std::vector<Condizione> Leggi(std::span<const std::byte> aByte)
{
    std::vector<Condizione> aRighe;
    try {
        LeggiFileCondizioni(aByte, aRighe);
    } catch (const Errore& errore) {
        Pretende(errore.Numero() == eErrore::indice, "fallisce solo per troppe righe");
        Pretende(aRighe.size() == kCondizioniMassime, "le prime righe restano");
    }
    return aRighe;
}

void Prova(std::span<const std::byte> aByte)
{
    std::vector<Condizione> aRighe = Leggi(aByte);
    Pretende(aRighe.size() <= kCondizioniMassime, "le righe stanno nella griglia");
    const auto aScritti = ComponiFileCondizioni(aRighe);
    aRighe.erase(std::find_if(aRighe.begin(), aRighe.end(),
                              [](const Condizione& riga) { return riga.sCondizione.empty(); }),
                 aRighe.end());
    const auto aRilette = Leggi(aScritti);
    Pretende(aRilette == aRighe, "si rilegge uguale");
    Pretende(ComponiFileCondizioni(aRilette) == aScritti, "si riscrive uguale");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aDati, std::size_t nDati)
{
    Prova(std::as_bytes(std::span(aDati, nDati)));
    return 0;
}
