// ModEmulatore.cpp - the rows of emulated draws on disk.

#include "emulatore/ModEmulatore.hpp"

#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModNumeri.hpp"

#include <span>

namespace ordavel {

static_assert(sizeof(RigaEmulatore) == kByteRigaEmulatore);

void LeggiFileEmulatore(const std::string& sFile, std::vector<RigaEmulatore>& aRighe)
{
    if (!FileEsiste(sFile)) {
        return;
    }
    FileBinario file(sFile, eApertura::lettura);
    const auto nRighe = ComeIntero<std::int16_t>(static_cast<double>(file.Lunghezza()) /
                                                 static_cast<double>(kByteRigaEmulatore));
    if (nRighe < 1) {
        Solleva(eErrore::indice);
    }
    std::vector<RigaEmulatore> aLette(static_cast<std::size_t>(nRighe));
    file.Leggi(1, std::as_writable_bytes(std::span(aLette)));
    aRighe = std::move(aLette);
}

} // namespace ordavel
