// Esadecimale.hpp - example files kept as readable text.
//
// A text of two-digit hex bytes between blanks. "00*72" is a byte repeated 72 times; "#" begins a comment that
// ends with its line.

#pragma once

#include "comune/CartellaProva.hpp"

#include <cstddef>
#include <sstream>
#include <string>

namespace ordavel::prove {

/// The bytes that a hex text stands for.
inline std::string DaEsadecimale(const std::string& sTesto)
{
    std::string sByte;
    std::istringstream righe(sTesto);
    for (std::string sRiga; std::getline(righe, sRiga);) {
        std::istringstream parole(sRiga.substr(0, sRiga.find('#')));
        for (std::string sParola; parole >> sParola;) {
            const std::size_t nStella = sParola.find('*');
            const auto nVolte = nStella == std::string::npos ? 1 : std::stoul(sParola.substr(nStella + 1));
            sByte.append(nVolte, static_cast<char>(std::stoul(sParola.substr(0, nStella), nullptr, 16)));
        }
    }
    return sByte;
}

/// The text of a file under prove/dati/buoni.
inline std::string TestoBuono(const std::string& sNome)
{
    return LeggiFile(std::string(ORDAVEL_DATI) + "/buoni/" + sNome);
}

/// The text of a document under docs/formati.
inline std::string TestoFormato(const std::string& sNome)
{
    return LeggiFile(std::string(ORDAVEL_DATI) + "/../../docs/formati/" + sNome);
}

} // namespace ordavel::prove
