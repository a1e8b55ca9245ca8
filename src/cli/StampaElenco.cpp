// StampaElenco.cpp - a report list for people to read, and as JSON.

#include "cli/StampaElenco.hpp"

#include <algorithm>
#include <string>
#include <vector>

namespace ordavel::cli {

namespace {

using Celle = std::vector<std::string>;

Celle CelleDi(const RigaElenco& riga)
{
    Celle aCelle{riga.sTesto};
    aCelle.insert(aCelle.end(), riga.aSotto.begin(), riga.aSotto.end());
    return aCelle;
}

/// Characters of a text, of however many bytes.
std::size_t Caratteri(const std::string& sTesto)
{
    return static_cast<std::size_t>(std::count_if(sTesto.begin(), sTesto.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

void Allarga(std::vector<std::size_t>& aLarghezze, const Celle& aCelle)
{
    aLarghezze.resize(std::max(aLarghezze.size(), aCelle.size()));
    for (std::size_t i = 0; i < aCelle.size(); ++i) {
        aLarghezze[i] = std::max(aLarghezze[i], Caratteri(aCelle[i]));
    }
}

void StampaRiga(std::ostream& uscita, const Celle& aCelle, const std::vector<std::size_t>& aLarghezze)
{
    std::string sRiga;
    for (std::size_t i = 0; i < aCelle.size(); ++i) {
        sRiga += "  " + aCelle[i] + std::string(aLarghezze[i] - Caratteri(aCelle[i]), ' ');
    }
    sRiga.erase(sRiga.find_last_not_of(' ') + 1);
    uscita << sRiga << '\n';
}

} // namespace

void StampaElenco(std::ostream& uscita, std::string_view sTitolo, const Elenco& elenco)
{
    std::vector<std::size_t> aLarghezze;
    Allarga(aLarghezze, elenco.aTestate);
    for (const RigaElenco& riga : elenco.Righe.Valore()) {
        Allarga(aLarghezze, CelleDi(riga));
    }
    uscita << sTitolo << '\n';
    StampaRiga(uscita, elenco.aTestate, aLarghezze);
    for (const RigaElenco& riga : elenco.Righe.Valore()) {
        StampaRiga(uscita, CelleDi(riga), aLarghezze);
    }
}

nlohmann::ordered_json ElencoComeJson(const Elenco& elenco)
{
    nlohmann::ordered_json aRighe = nlohmann::ordered_json::array();
    for (const RigaElenco& riga : elenco.Righe.Valore()) {
        const Celle aCelle = CelleDi(riga);
        nlohmann::ordered_json oggetto = nlohmann::ordered_json::object();
        for (std::size_t i = 0; i < std::min(aCelle.size(), elenco.aTestate.size()); ++i) {
            const std::string& sTestata = elenco.aTestate[i];
            const std::string sChiave = oggetto.contains(sTestata) || sTestata == "%"
                                            ? elenco.aTestate[i - 1] + " " + sTestata
                                            : sTestata;
            oggetto[sChiave] = aCelle[i];
        }
        aRighe.push_back(std::move(oggetto));
    }
    return aRighe;
}

} // namespace ordavel::cli
