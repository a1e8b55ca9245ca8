// testo_estrazioni.cpp - any bytes as a text of draws: read, written again, read again, compared.
//
// The first byte is the game; the others are the text.

#include "Pretende.hpp"
#include "core/TestoErrato.hpp"
#include "persistenza/TestoEstrazioni.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace ordavel;
using fuzz::Pretende;

/// The draws of a text; nothing when it is refused.
std::optional<std::vector<Estrazione>> Leggi(const ProfiloGioco& gioco, const std::string& sTesto)
{
    std::istringstream ingresso(sTesto);
    std::vector<Estrazione> aEstrazioni;
    try {
        const auto nQuante = LeggiTestoEstrazioni(ingresso, "testo", gioco, [&](const auto& aBlocco) {
            aEstrazioni.insert(aEstrazioni.end(), aBlocco.begin(), aBlocco.end());
        });
        Pretende(nQuante == std::ssize(aEstrazioni), "sono quante si dice");
    } catch (const TestoErrato& errore) {
        Pretende(std::string_view(errore.what()).starts_with("riga "), "si dice quale riga");
        return std::nullopt;
    }
    return aEstrazioni;
}

void Prova(const ProfiloGioco& gioco, const std::string& sTesto)
{
    const auto aEstrazioni = Leggi(gioco, sTesto);
    if (!aEstrazioni) {
        return;
    }
    std::string sScritto = IntestazioneEstrazioni(gioco);
    for (const Estrazione& estrazione : *aEstrazioni) {
        const auto fine = estrazione.begin() + gioco.nNumeriEstrazione;
        Pretende(std::all_of(estrazione.begin(), fine, [](std::uint8_t n) { return n <= kNumeroMassimo; }),
                 "numeri da 0 a 90");
        Pretende(std::all_of(fine, estrazione.end(), [](std::uint8_t n) { return n == 0; }),
                 "nulla oltre i numeri");
        sScritto += LineaEstrazione(gioco, estrazione);
    }
    Pretende(Leggi(gioco, sScritto) == aEstrazioni, "si rilegge uguale");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aDati, std::size_t nDati)
{
    if (nDati > 0) {
        Prova(ProfiliGioco()[aDati[0] % ProfiliGioco().size()], {aDati + 1, aDati + nDati});
    }
    return 0;
}
