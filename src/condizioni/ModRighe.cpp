// ModRighe.cpp - whole rows of the grid, lines of the board.

#include "condizioni/ModRighe.hpp"

#include "condizioni/ModTestoCelle.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <utility>

namespace ordavel {

namespace {

constexpr std::string_view kNonInUso = "-1,-1,-0";

std::string_view Chiave(TipoCondizione tipo)
{
    return TrovaTipo(tipo)->sChiave;
}

bool IsTipo(const Condizione& celle, TipoCondizione tipo)
{
    return UgualiSenzaCaso(celle.sCondizione, Chiave(tipo));
}

bool Piena(const GrigliaCondizioni& griglia, std::int32_t nRiga)
{
    return !griglia.Riga(nRiga).sCondizione.empty();
}

/// Is a row empty behind a filled one? The headings have no row in front of them.
bool Libera(const GrigliaCondizioni& griglia, std::int32_t nRiga)
{
    return nRiga >= 1 && !Piena(griglia, nRiga) && Piena(griglia, nRiga - 1);
}

/// Moves the cells of a row over those of another; what is left in the first is for the caller to overwrite.
void Sposta(GrigliaCondizioni& griglia, std::int32_t nDa, std::int32_t nA)
{
    griglia.Riga(nA) = std::move(griglia.Riga(nDa));
}

void ControllaLimiti(std::int32_t nDalla, std::int32_t nAlla)
{
    if (std::min(nDalla, nAlla) < 1 || std::max(nDalla, nAlla) > kCondizioniMassime) {
        Solleva(eErrore::indice);
    }
    if (nAlla < nDalla) {
        Solleva(eErrore::argomento);
    }
}

std::string TestoColonna(const NumeriScelti& aNumeri)
{
    ValoriDialogo valori;
    for (const std::int16_t nNumero : aNumeri.aElementi) {
        valori.aNumeri(nNumero) = kVero;
    }
    valori.aNumeri[0] = kFalso; // the places behind the last number
    return CelleDaDialogo(TipoCondizione::puntiColonna, valori).sParametri;
}

/// "[12]" and a line break and more gives "12".
std::string_view QuantitaEmulatore(std::string_view sParametri)
{
    const std::string_view sRiga = sParametri.substr(0, sParametri.find(kCrLf));
    return sRiga.size() < 2 ? std::string_view() : sRiga.substr(1, sRiga.size() - 2);
}

/// The number in a box, without leading zeros and without an exponent. One that no double holds is written as
/// the largest, so that it is still too large for whoever reads it.
std::string NumeroDiCasella(std::string_view sTesto)
{
    constexpr double nLimite = std::numeric_limits<double>::max();
    const double nValore = std::clamp(LeggiNumero(sTesto), -nLimite, nLimite) + 0.0; // -0 becomes 0
    std::array<char, 512> aCaratteri{};
    char* const inizio = aCaratteri.data();
    const auto scritto = std::to_chars(inizio, inizio + aCaratteri.size(), nValore, std::chars_format::fixed);
    return {inizio, scritto.ptr};
}

} // namespace

std::int32_t TrovaRigaLibera(const GrigliaCondizioni& griglia)
{
    if (Libera(griglia, griglia.Corrente())) {
        return griglia.Corrente();
    }
    std::int32_t nRiga = kCondizioniMassime;
    while (nRiga > 0 && !Libera(griglia, nRiga)) {
        --nRiga;
    }
    return nRiga;
}

std::int32_t UltimaRigaOccupata(const GrigliaCondizioni& griglia)
{
    std::int32_t nRiga = kCondizioniMassime;
    while (nRiga > 0 && !Piena(griglia, nRiga)) {
        --nRiga;
    }
    return nRiga;
}

std::int16_t ContaCondizioniLink(const GrigliaCondizioni& griglia, std::int32_t nRiga)
{
    std::int16_t nRighe = 0;
    for (; nRiga >= 1 && !IsTipo(griglia.Riga(nRiga), TipoCondizione::linkOpen); --nRiga) {
        ++nRighe;
    }
    return nRighe;
}

void InserisciRiga(GrigliaCondizioni& griglia)
{
    for (std::int32_t nRiga = kCondizioniMassime; nRiga > griglia.Corrente(); --nRiga) {
        Sposta(griglia, nRiga - 1, nRiga);
    }
    griglia.Riga(griglia.Corrente()) = {};
}

void EliminaCondizione(GrigliaCondizioni& griglia)
{
    const std::int32_t nUltima = UltimaRigaOccupata(griglia);
    if (nUltima == 0) {
        return;
    }
    griglia.Riga(griglia.Corrente()) = {};
    for (std::int32_t nRiga = griglia.Corrente(); nRiga < nUltima; ++nRiga) {
        Sposta(griglia, nRiga + 1, nRiga);
    }
    griglia.Riga(nUltima) = {};
    griglia.PoniAltezza(griglia.Corrente(), eAltezza::normale);
}

std::int32_t EliminaRangeCondizioni(GrigliaCondizioni& griglia, std::int32_t nDalla, std::int32_t nAlla)
{
    ControllaLimiti(nDalla, nAlla);
    for (std::int32_t nRiga = nDalla; nRiga <= nAlla; ++nRiga) {
        griglia.Riga(nRiga) = {};
    }
    std::int32_t nDestinazione = nDalla;
    for (std::int32_t nRiga = nAlla + 1; !griglia.Vuota(nRiga); ++nRiga) {
        Sposta(griglia, nRiga, nDestinazione++);
        griglia.Riga(nRiga) = {};
    }
    return nDestinazione - 1;
}

void ApplicaImpostaPunti(GrigliaCondizioni& griglia, std::int32_t nDalla, std::int32_t nAlla,
                         std::string_view sPunti, std::string_view sRecupero, std::string_view sQuadro)
{
    ControllaLimiti(nDalla, nAlla);
    for (std::int32_t nRiga = nDalla; nRiga <= nAlla; ++nRiga) {
        Condizione& celle = griglia.Riga(nRiga);
        if (CercaSenzaCaso(celle.sCondizione, "Link") == std::string::npos) {
            celle.sPunti = sPunti;
            celle.sRecupero = sRecupero;
            celle.sQuadro = sQuadro;
        }
    }
}

std::int32_t InserisciColonne(GrigliaCondizioni& griglia, std::int32_t nRiga,
                              std::span<const ColonnaInGriglia> aColonne, std::string_view sQuadro)
{
    std::int32_t nScritte = 0;
    for (const ColonnaInGriglia& colonna : aColonne) {
        if (nRiga > kCondizioniMassime) {
            break;
        }
        griglia.Riga(nRiga) = {std::string(Chiave(TipoCondizione::puntiColonna)),
                               TestoColonna(colonna.aNumeri), colonna.sPunti, colonna.sRecupero,
                               std::string(sQuadro)};
        ++nRiga;
        ++nScritte;
    }
    return nScritte;
}

std::int16_t GetQuantitaColDaEmulareFromGrid(const GrigliaCondizioni& griglia)
{
    std::int16_t nQuantita = 0;
    for (std::int32_t nRiga = 1; nRiga <= kCondizioniMassime; ++nRiga) {
        const Condizione& celle = griglia.Riga(nRiga);
        if (IsTipo(celle, TipoCondizione::emulatore)) {
            nQuantita = LeggiIntero<std::int16_t>(QuantitaEmulatore(celle.sParametri));
        }
    }
    return nQuantita;
}

std::string ScriviRigaQuadro(std::string_view sMinimo, std::string_view sMassimo)
{
    if (TogliBlank(sMinimo).empty() || TogliBlank(sMassimo).empty()) {
        return std::string(kNonInUso);
    }
    return NumeroDiCasella(sMinimo) + "," + NumeroDiCasella(sMassimo) + ",-1";
}

RigaQuadro LeggiRigaQuadro(std::string_view sRiga)
{
    const auto aParti = Dividi(sRiga, ",");
    if (aParti.size() < 3) {
        Solleva(eErrore::indice);
    }
    return {.sMinimo = std::string(aParti[0]),
            .sMassimo = std::string(aParti[1]),
            .bInUso = LeggiIntero<std::int16_t>(aParti[2]) != 0};
}

ConteggioRecuperi ContaRecuperi(const GrigliaCondizioni& griglia)
{
    ConteggioRecuperi aConteggio;
    for (std::int32_t nRiga = 1; nRiga <= kCondizioniMassime; ++nRiga) {
        ++aConteggio(LeggiIntero<std::int32_t>(griglia.Riga(nRiga).sQuadro));
    }
    return aConteggio;
}

} // namespace ordavel
