// GrigliaProva.hpp - systems for the tests of the grid.

#pragma once

#include "controllo/SistemaProva.hpp"

#include <string>
#include <vector>

namespace ordavel::prove {

/// A word as the grid writes it, a letter a line.
inline std::string InGiu(std::string_view sParola)
{
    std::string sTesto;
    for (const char c : sParola) {
        sTesto += sTesto.empty() ? "" : "\r\n";
        sTesto += c;
    }
    return sTesto;
}

/// Twelve conditions of several kinds, two of them a link.
inline std::vector<Condizione> DodiciCondizioni()
{
    return {{"Peso", "Caselle :\r\n1-2-3-4-5", "100-250", "90-99", "1"},
            {"Consecutivi", InGiu("Consecutivi"), "0-1", "2", "1"},
            {"LinkOpen", InGiu("LinkOpen"), "", "", ""},
            {"Punti Col.", "01-02-03-04-05-06-07-08-09-10-21-22-23-24-25-26-27-28-29-30", "00-01-02-03", "-",
             " "},
            {"Pari-Dispari", "Pari", "01-02-03-04", "-", " "},
            {"Ampiezza", InGiu("Ampiezza"), "20-80", "-", " "},
            {"LinkClose", InGiu("LinkClose"), "02-03", "", ""},
            {"Distanza Massima", InGiu("DistanzaMax"), "5-40", "-", " "},
            {"Resto", "Resto a : 3", "0-1-2-3", "-", " "},
            {"Simmetrie", "Dirette", "0-1", "-", " "},
            {"Cadenze", InGiu("Cadenze"), "03-04-05", "-", " "},
            {"Figure", InGiu("Figure"), "02-03-04-05", "-", " "}};
}

/// A system that a grid shows.
struct GrigliaProva : SistemaProva {
    void Riempi(const std::vector<Condizione>& aCondizioni)
    {
        std::int32_t nRiga = 0;
        for (const Condizione& condizione : aCondizioni) {
            ++nRiga;
            const bool bLink = condizione.sCondizione.starts_with("Link");
            sistema.GetGridCond().PoniAltezza(nRiga, bLink ? eAltezza::link : eAltezza::normale);
            sistema.GetGridCond().Riga(nRiga) = condizione;
        }
    }

    /// As many conditions as there is room for.
    void RiempiTutta()
    {
        const std::vector<Condizione> aModelli = DodiciCondizioni();
        std::vector<Condizione> aTutte;
        while (aTutte.size() < static_cast<std::size_t>(kCondizioniMassime)) {
            aTutte.push_back(aModelli[aTutte.size() % 2]);
        }
        Riempi(aTutte);
    }
};

} // namespace ordavel::prove
