// Misure.cpp - every metric of one column.

#include "cli/Misure.hpp"

#include "calcoli/ModCifre.hpp"
#include "calcoli/ModForma.hpp"
#include "calcoli/ModSimmetria.hpp"

#include <array>
#include <string>
#include <string_view>

namespace ordavel::cli {

namespace {

using nlohmann::ordered_json;

struct Operazione {
    std::string_view sNome;
    std::int32_t (*funzione)(std::int16_t, const Colonna&);
};

struct OperazionePosizioni {
    std::string_view sNome;
    std::int32_t (*funzione)(std::int16_t, const Colonna&, const FlagNumeri&);
};

std::int32_t ConsecutiviPD(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaConsecutiviPD(nClasse, CreaSequenzaParita(nClasse, colonna));
}

std::int32_t Baricentro(std::int16_t nClasse, const Colonna& colonna)
{
    return BaricentroInferiore(nClasse, SommaColonna(nClasse, colonna));
}

constexpr std::array kSemplici = std::to_array<Operazione>({
    {"SommaColonna", SommaColonna},
    {"CalcolaAmpiezza", CalcolaAmpiezza},
    {"CalcolaBaricentro", CalcolaBaricentro},
    {"Baricentro", Baricentro},
    {"CalcolaDistanzaMinima", CalcolaDistanzaMinima},
    {"CalcolaDistanzaMassima", CalcolaDistanzaMassima},
    {"CalcolaConsecutivi", CalcolaConsecutivi},
    {"CalcolaPonte", CalcolaPonte},
    {"CalcolaInterruzioni", CalcolaInterruzioni},
    {"CalcolaConsecutiviPD", ConsecutiviPD},
    {"CalcolaInterruzioniPD", CalcolaInterruzioniPD},
    {"CalcolaVorticeDiretto", CalcolaVorticeDiretto},
    {"CalcolaVorticeInverso", CalcolaVorticeInverso},
    {"CalcolaSimmetrieDirette", CalcolaSimmetrieDirette},
    {"CalcolaSimmetrieInverse", CalcolaSimmetrieInverse},
    {"CalcolaParalleliDiretti", CalcolaParalleliDiretti},
    {"CalcolaParalleliInversi", CalcolaParalleliInversi},
    {"CalcolaSimmetrieNum", CalcolaSimmetrieNum},
    {"CalcolaParalleliNum", CalcolaParalleliNum},
    {"CalcolaCadenze", CalcolaCadenze},
    {"CalcolaDecine", CalcolaDecine},
    {"CalcolaFigure", CalcolaFigure},
});

constexpr std::array kPerPosizioni = std::to_array<OperazionePosizioni>({
    {"CalcolaPeso", CalcolaPeso},
    {"CalcolaSommaCadenze", CalcolaSommaCadenze},
    {"CalcolaSommaDecine", CalcolaSommaDecine},
    {"CalcolaSommaFigure", CalcolaSommaFigure},
    {"CalcolaSommaNumeretti", CalcolaSommaNumeretti},
    {"CalcolaSommaComplessiva", CalcolaSommaComplessiva},
});

FlagNumeri Segnati(std::int32_t nDa, std::int32_t nPasso)
{
    FlagNumeri aFlag;
    for (std::int32_t n = nDa; n <= kNumeroMassimo; n += nPasso) {
        aFlag[n] = kVero;
    }
    return aFlag;
}

std::string TestoParita(std::int16_t nClasse, const SequenzaParita& aParita)
{
    std::string sTesto;
    for (std::int16_t k = 1; k <= nClasse; ++k) {
        sTesto += aParita[k] == 0 ? 'P' : 'D';
    }
    return sTesto;
}

ordered_json Vortice(std::int16_t nClasse, const SequenzaParita& aParita, std::int16_t nDirezione)
{
    const EsitoVortice esito = CalcolaVortice(nClasse, aParita, nDirezione);
    return {{"Pos", esito.nPos}, {"Vortici", esito.nVortici}};
}

/// The scan of every pattern of two letters.
ordered_json Scansioni(std::int16_t nClasse, const SequenzaParita& aParita)
{
    ordered_json uscita;
    for (const std::string_view sSchema : {"PP", "PD", "DP", "DD"}) {
        FlagNumeri aSchema;
        aSchema[0] = sSchema[0] == 'D' ? 1 : 0;
        aSchema[1] = sSchema[1] == 'D' ? 1 : 0;
        const EsitoSequenze esito = CalcolaSequenzeScansione(nClasse, aParita, aSchema, 2, 1);
        uscita[std::string(sSchema)] = {{"quante", esito.nQuante}, {"catena", esito.nCatena}};
    }
    return uscita;
}

ordered_json Resti(std::int32_t nSomma)
{
    constexpr std::int16_t kDivisoreMassimo = 9;
    ordered_json uscita;
    for (std::int16_t nDivisore = 2; nDivisore <= kDivisoreMassimo; ++nDivisore) {
        uscita[std::to_string(nDivisore)] = Resto(nSomma, nDivisore);
    }
    return uscita;
}

ordered_json Gruppi(std::int16_t nClasse, const Colonna& colonna)
{
    ordered_json uscita = ordered_json::object();
    for (std::int16_t nGruppo = 2; nGruppo <= nClasse; ++nGruppo) {
        uscita[std::to_string(nGruppo)] = CalcolaGruppiDiConsecutivi(nClasse, colonna, nGruppo, 2);
    }
    return uscita;
}

ordered_json Posizioni(std::int16_t nClasse, const Colonna& colonna)
{
    ordered_json uscita;
    for (std::int16_t k = 1; k <= nClasse; ++k) {
        uscita[std::to_string(k)] = colonna(k);
    }
    return uscita;
}

} // namespace

nlohmann::ordered_json Misura(std::int16_t nClasse, const Colonna& colonna)
{
    const SequenzaParita aParita = CreaSequenzaParita(nClasse, colonna);
    ordered_json uscita;
    uscita["SequenzaParita"] = TestoParita(nClasse, aParita);
    for (const Operazione& operazione : kSemplici) {
        uscita[std::string(operazione.sNome)] = operazione.funzione(nClasse, colonna);
    }
    for (const OperazionePosizioni& operazione : kPerPosizioni) {
        uscita[std::string(operazione.sNome)] = operazione.funzione(nClasse, colonna, Segnati(1, 1));
    }
    uscita["ContaPuntiColonna"] = {{"Pari", ContaPuntiColonna(nClasse, colonna, Segnati(2, 2))},
                                   {"Dispari", ContaPuntiColonna(nClasse, colonna, Segnati(1, 2))}};
    uscita["CalcolaFulcro"] = {{"Pari", CalcolaFulcro(nClasse, aParita, 1)},
                               {"Dispari", CalcolaFulcro(nClasse, aParita, 2)}};
    uscita["CalcolaVortice"] = {{"Diretto", Vortice(nClasse, aParita, kDiretto)},
                                {"Inverso", Vortice(nClasse, aParita, kInverso)}};
    uscita["CalcolaFormule"] = CalcolaFormule(nClasse, colonna).aElementi;
    uscita["CalcolaSequenzeScansione"] = Scansioni(nClasse, aParita);
    uscita["Resto"] = Resti(SommaColonna(nClasse, colonna));
    uscita["CalcolaGruppiDiConsecutivi"] = Gruppi(nClasse, colonna);
    uscita["Posizioni"] = Posizioni(nClasse, colonna);
    return uscita;
}

} // namespace ordavel::cli
