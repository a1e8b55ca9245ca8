// ModRighe_prova.cpp - free and filled rows, links, insertion and deletion.

#include "condizioni/ModRighe.hpp"

#include "comune/Fallimenti.hpp"
#include "comune/GeneratoriSistema.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

namespace ordavel {
namespace {

using prove::NumeroErrore;
using prove::Tra;

/// A row whose five texts tell where it began.
Condizione Numerata(int n, const std::string& sChiave = "Peso")
{
    const std::string sNumero = std::to_string(n);
    return {sChiave, "parametri " + sNumero, sNumero + "-" + sNumero, "r" + sNumero, std::to_string(n % 21)};
}

/// Numbered rows with these keys, from row 1 on.
GrigliaCondizioni ConChiavi(const std::vector<std::string>& aChiavi)
{
    GrigliaCondizioni griglia;
    std::int32_t nRiga = 0;
    for (const std::string& sChiave : aChiavi) {
        ++nRiga;
        griglia.Riga(nRiga) = Numerata(nRiga, sChiave);
    }
    return griglia;
}

GrigliaCondizioni ConRighe(int nRighe, std::int32_t nCorrente = 1)
{
    GrigliaCondizioni griglia = ConChiavi(std::vector<std::string>(static_cast<std::size_t>(nRighe), "Peso"));
    griglia.PoniCorrente(nCorrente);
    return griglia;
}

std::vector<Condizione> Righe(const GrigliaCondizioni& griglia)
{
    std::vector<Condizione> aRighe;
    for (std::int32_t nRiga = 0; nRiga <= kCondizioniMassime; ++nRiga) {
        aRighe.push_back(griglia.Riga(nRiga));
    }
    return aRighe;
}

/// The numbers of the rows from 1 on, by what Numerata wrote; 0 for a row of five empty cells.
std::vector<int> Ordine(const GrigliaCondizioni& griglia, std::int32_t nRighe)
{
    std::vector<int> aNumeri;
    for (std::int32_t nRiga = 1; nRiga <= nRighe; ++nRiga) {
        const Condizione& celle = griglia.Riga(nRiga);
        const int n = celle == Condizione{} ? 0 : std::stoi(celle.sPunti);
        EXPECT_TRUE(n == 0 || celle == Numerata(n, celle.sCondizione)) << nRiga;
        aNumeri.push_back(n);
    }
    return aNumeri;
}

using Numeri = std::vector<int>;

TEST(ModRighe, InUnaGrigliaVuotaLaRigaLiberaELaPrima)
{
    GrigliaCondizioni griglia;
    for (const std::int32_t nCorrente : {1, 2, 7, 2000, 0}) {
        griglia.PoniCorrente(nCorrente);
        EXPECT_EQ(TrovaRigaLibera(griglia), 1) << nCorrente;
    }
    EXPECT_EQ(UltimaRigaOccupata(griglia), 0);
}

TEST(ModRighe, LaRigaLiberaELaSceltaQuandoEUnBuco)
{
    GrigliaCondizioni griglia = ConRighe(5, 3);
    EXPECT_EQ(TrovaRigaLibera(griglia), 6);
    griglia.Riga(3).sCondizione.clear();
    EXPECT_EQ(TrovaRigaLibera(griglia), 3);
    griglia.PoniCorrente(4);
    EXPECT_EQ(TrovaRigaLibera(griglia), 6);
    griglia.PoniCorrente(7);
    EXPECT_EQ(TrovaRigaLibera(griglia), 6) << "row 6 in front of it is empty";
}

TEST(ModRighe, UnBucoInCimaEDietroLeIntestazioni)
{
    GrigliaCondizioni griglia = ConRighe(2, 1);
    griglia.Riga(1) = {};
    EXPECT_EQ(TrovaRigaLibera(griglia), 1);
    griglia.PoniCorrente(2);
    EXPECT_EQ(TrovaRigaLibera(griglia), 3);
}

TEST(ModRighe, UnaGrigliaPienaNonHaRigaLibera)
{
    GrigliaCondizioni griglia = ConRighe(2000, 2000);
    EXPECT_EQ(TrovaRigaLibera(griglia), 0);
    EXPECT_EQ(UltimaRigaOccupata(griglia), 2000);
    griglia.Riga(2000).sCondizione.clear();
    EXPECT_EQ(TrovaRigaLibera(griglia), 2000);
    EXPECT_EQ(UltimaRigaOccupata(griglia), 1999);
}

TEST(ModRighe, LUltimaRigaOccupataSiCercaDalFondo)
{
    GrigliaCondizioni griglia = ConRighe(3);
    griglia.Riga(1500).sCondizione = " ";
    griglia.Riga(1800) = {"", "testo", "1", "2", "3"};
    EXPECT_EQ(UltimaRigaOccupata(griglia), 1500);
    EXPECT_EQ(TrovaRigaLibera(griglia), 1501);
}

TEST(ModRighe, IlLinkContaLeRigheFinoAlSuoInizio)
{
    const GrigliaCondizioni griglia = ConChiavi({"Peso", "LinkOpen", "Peso", "LinkClose", "Ponte"});
    EXPECT_EQ(ContaCondizioniLink(griglia, 5), 3) << "the inner LinkClose counts as well";
    EXPECT_EQ(ContaCondizioniLink(griglia, 3), 1);
    EXPECT_EQ(ContaCondizioniLink(griglia, 2), 0) << "directly below its LinkOpen";
}

TEST(ModRighe, SenzaInizioIlLinkContaFinoAllaPrimaRiga)
{
    const GrigliaCondizioni griglia = ConChiavi({"Peso", "LinkOp", "LinkOpen ", "Peso"});
    EXPECT_EQ(ContaCondizioniLink(griglia, 4), 4);
    EXPECT_EQ(ContaCondizioniLink(griglia, 6), 6) << "empty rows count";
    EXPECT_EQ(ContaCondizioniLink(griglia, 2000), 2000);
    EXPECT_EQ(ContaCondizioniLink(griglia, 0), 0);
    EXPECT_EQ(ContaCondizioniLink(griglia, -1), 0);
    EXPECT_EQ(ContaCondizioniLink(ConChiavi({"Peso", "linkopen", "Peso"}), 3), 1) << "case does not count";
}

TEST(ModRighe, UnLinkPuoContarePiuDiNovantaRighe)
{
    GrigliaCondizioni griglia = ConRighe(120);
    griglia.Riga(10).sCondizione = "LinkOpen";
    EXPECT_EQ(ContaCondizioniLink(griglia, 120), 110);
}

TEST(ModRighe, ContareOltreLUltimaRigaFallisceCon9)
{
    EXPECT_EQ(NumeroErrore([] { static_cast<void>(ContaCondizioniLink(GrigliaCondizioni(), 2001)); }), 9);
}

TEST(ModRighe, InserireApreUnaRigaVuotaDoveSiETrovata)
{
    GrigliaCondizioni griglia = ConRighe(4, 2);
    InserisciRiga(griglia);
    EXPECT_EQ(Ordine(griglia, 6), (Numeri{1, 0, 2, 3, 4, 0}));
    EXPECT_EQ(griglia.Corrente(), 2);
    EXPECT_EQ(TrovaRigaLibera(griglia), 2);
}

TEST(ModRighe, InserireDietroLUltimaNonMuoveCondizioni)
{
    GrigliaCondizioni griglia = ConRighe(3, 4);
    const std::vector<Condizione> aPrima = Righe(griglia);
    InserisciRiga(griglia);
    EXPECT_EQ(Righe(griglia), aPrima);
    EXPECT_EQ(TrovaRigaLibera(griglia), 4);
}

TEST(ModRighe, InserirePerdeIlTestoDellUltimaRiga)
{
    GrigliaCondizioni griglia = ConRighe(2000, 1999);
    InserisciRiga(griglia);
    EXPECT_EQ(griglia.Riga(1998), Numerata(1998));
    EXPECT_EQ(griglia.Riga(1999), Condizione{});
    EXPECT_EQ(griglia.Riga(2000), Numerata(1999));
    griglia.PoniCorrente(2000);
    InserisciRiga(griglia);
    EXPECT_EQ(griglia.Riga(2000), Condizione{});
}

TEST(ModRighe, EliminareChiudeLaRigaScelta)
{
    GrigliaCondizioni griglia = ConRighe(4, 2);
    EliminaCondizione(griglia);
    EXPECT_EQ(Ordine(griglia, 5), (Numeri{1, 3, 4, 0, 0}));
    EXPECT_EQ(griglia.Corrente(), 2);
    griglia.PoniCorrente(3);
    EliminaCondizione(griglia);
    EXPECT_EQ(Ordine(griglia, 4), (Numeri{1, 3, 0, 0}));
}

TEST(ModRighe, EliminareSottoIlBloccoPerdeLUltimaCondizione)
{
    GrigliaCondizioni griglia = ConRighe(3, 5);
    griglia.Riga(5).sParametri = "resto";
    EliminaCondizione(griglia);
    EXPECT_EQ(Ordine(griglia, 5), (Numeri{1, 2, 0, 0, 0}));
}

TEST(ModRighe, EliminareInUnBucoLoChiude)
{
    GrigliaCondizioni griglia = ConRighe(3, 2);
    InserisciRiga(griglia);
    EliminaCondizione(griglia);
    EXPECT_EQ(Ordine(griglia, 4), (Numeri{1, 2, 3, 0}));
}

TEST(ModRighe, EliminareDaUnaGrigliaSenzaCondizioniNonToccaNulla)
{
    GrigliaCondizioni griglia;
    griglia.Riga(3) = {"", "testo", "1", "2", "3"};
    griglia.PoniCorrente(3);
    griglia.PoniAltezza(3, eAltezza::link);
    const std::vector<Condizione> aPrima = Righe(griglia);
    EliminaCondizione(griglia);
    EXPECT_EQ(Righe(griglia), aPrima);
    EXPECT_EQ(griglia.Altezza(3), eAltezza::link);
}

TEST(ModRighe, LeAltezzeRestanoAlLoroPosto)
{
    GrigliaCondizioni griglia = ConRighe(4, 2);
    for (const std::int32_t nRiga : {2, 4}) {
        griglia.PoniAltezza(nRiga, eAltezza::link);
    }
    InserisciRiga(griglia);
    EXPECT_EQ(griglia.Altezza(2), eAltezza::link);
    EXPECT_EQ(griglia.Altezza(5), eAltezza::comune);
    EXPECT_EQ(EliminaRangeCondizioni(griglia, 2, 2), 4);
    EXPECT_EQ(griglia.Altezza(2), eAltezza::link);
    EliminaCondizione(griglia);
    EXPECT_EQ(griglia.Altezza(2), eAltezza::normale);
    EXPECT_EQ(griglia.Altezza(3), eAltezza::comune);
    EXPECT_EQ(griglia.Altezza(4), eAltezza::link) << "the link moved up and left its height behind";
}

TEST(ModRighe, EliminareUnIntervalloAvvicinaQuelliDietro)
{
    GrigliaCondizioni griglia = ConRighe(6, 5);
    EXPECT_EQ(EliminaRangeCondizioni(griglia, 2, 4), 3);
    EXPECT_EQ(Ordine(griglia, 7), (Numeri{1, 5, 6, 0, 0, 0, 0}));
    EXPECT_EQ(griglia.Corrente(), 5);
    EXPECT_EQ(EliminaRangeCondizioni(griglia, 3, 3), 2);
    EXPECT_EQ(EliminaRangeCondizioni(griglia, 1, 2), 0);
    EXPECT_EQ(UltimaRigaOccupata(griglia), 0);
}

TEST(ModRighe, UnIntervalloSiFermaAlPrimoBucoDietroDiLui)
{
    GrigliaCondizioni griglia = ConRighe(6);
    griglia.Riga(5) = {};
    EXPECT_EQ(EliminaRangeCondizioni(griglia, 1, 2), 2);
    EXPECT_EQ(Ordine(griglia, 6), (Numeri{3, 4, 0, 0, 0, 6}));
}

TEST(ModRighe, UnIntervalloArrivaAllUltimaRiga)
{
    GrigliaCondizioni griglia = ConRighe(2000);
    EXPECT_EQ(EliminaRangeCondizioni(griglia, 1, 1), 1999);
    EXPECT_EQ(griglia.Riga(1999), Numerata(2000));
    EXPECT_EQ(griglia.Riga(2000), Condizione{});
    EXPECT_EQ(EliminaRangeCondizioni(griglia, 1000, 2000), 999);
    EXPECT_EQ(UltimaRigaOccupata(griglia), 999);
}

TEST(ModRighe, UnIntervalloSbagliatoFallisceSenzaToccareNulla)
{
    constexpr std::array<std::array<int, 3>, 6> kCasi = {
        {{0, 1, 9}, {1, 2001, 9}, {2001, 2001, 9}, {2001, 1, 9}, {-1, -1, 9}, {2, 1, 5}}};
    GrigliaCondizioni griglia = ConRighe(3);
    const std::vector<Condizione> aPrima = Righe(griglia);
    for (const auto& [nDalla, nAlla, nErrore] : kCasi) {
        const int nDa = nDalla;
        const int nA = nAlla;
        EXPECT_EQ(NumeroErrore([&] { static_cast<void>(EliminaRangeCondizioni(griglia, nDa, nA)); }),
                  nErrore);
        EXPECT_EQ(NumeroErrore([&] { ApplicaImpostaPunti(griglia, nDa, nA, "1", "2", "3"); }), nErrore);
        EXPECT_EQ(Righe(griglia), aPrima) << nDalla << ' ' << nAlla;
    }
}

TEST(ModRighe, LeRigheSiSpostanoSenzaCopiarneITesti)
{
    GrigliaCondizioni griglia;
    griglia.Riga(2) = {"Peso", std::string(1000, 'x'), "", "", ""};
    const char* const testo = griglia.Riga(2).sParametri.data();
    InserisciRiga(griglia);
    EXPECT_EQ(griglia.Riga(3).sParametri.data(), testo);
    EliminaCondizione(griglia);
    EXPECT_EQ(griglia.Riga(2).sParametri.data(), testo);
    EXPECT_EQ(EliminaRangeCondizioni(griglia, 1, 1), 1);
    EXPECT_EQ(griglia.Riga(1).sParametri.data(), testo);
}

TEST(ModRighe, DuemilaInserimentiRovescianoLOrdineEDuemilaEliminazioniVuotano)
{
    GrigliaCondizioni griglia;
    for (int n = 1; n <= 2000; ++n) {
        InserisciRiga(griglia);
        griglia.Riga(TrovaRigaLibera(griglia)) = Numerata(n);
    }
    Numeri aAttesi(2000);
    std::iota(aAttesi.rbegin(), aAttesi.rend(), 1);
    EXPECT_EQ(Ordine(griglia, 2000), aAttesi);
    for (int n = 1; n <= 2000; ++n) {
        EliminaCondizione(griglia);
    }
    EXPECT_EQ(Ordine(griglia, 2000), Numeri(2000, 0));
}

/// The rows as a plain list, from 0 on, and each operation as its definition says it of a list.
struct Modello {
    std::vector<Condizione> aRighe = std::vector<Condizione>(2001);
    std::vector<eAltezza> aAltezze = std::vector<eAltezza>(2001, eAltezza::comune);
    std::ptrdiff_t nCorrente = 1;

    void Inserisci()
    {
        aRighe.insert(aRighe.begin() + nCorrente, Condizione{});
        aRighe.pop_back();
    }

    void Elimina()
    {
        const std::ptrdiff_t nUltima = Ultima();
        if (nUltima == 0) {
            return;
        }
        aAltezze[static_cast<std::size_t>(nCorrente)] = eAltezza::normale;
        if (nCorrente <= nUltima) {
            aRighe.erase(aRighe.begin() + nCorrente);
            aRighe.insert(aRighe.begin() + nUltima, Condizione{});
        } else {
            aRighe[static_cast<std::size_t>(nCorrente)] = aRighe[static_cast<std::size_t>(nUltima)] = {};
        }
    }

    std::ptrdiff_t EliminaIntervallo(std::ptrdiff_t nDalla, std::ptrdiff_t nAlla)
    {
        const auto vuota = [](const Condizione& celle) { return celle.sCondizione.empty(); };
        const auto buco = std::find_if(aRighe.begin() + nAlla + 1, aRighe.end(), vuota);
        const std::ptrdiff_t nSpostate = buco - (aRighe.begin() + nAlla + 1);
        aRighe.erase(aRighe.begin() + nDalla, aRighe.begin() + nAlla + 1);
        aRighe.insert(aRighe.begin() + nDalla + nSpostate, static_cast<std::size_t>(nAlla - nDalla + 1), {});
        return nDalla + nSpostate - 1;
    }

    [[nodiscard]] std::ptrdiff_t Ultima() const
    {
        const auto piena = [](const Condizione& celle) { return !celle.sCondizione.empty(); };
        const auto fine = std::find_if(aRighe.rbegin(), aRighe.rend() - 1, piena);
        return aRighe.rend() - 1 - fine;
    }

    [[nodiscard]] std::ptrdiff_t Libera() const
    {
        std::ptrdiff_t nLibera = 0;
        for (std::ptrdiff_t i = 1; i <= 2000; ++i) {
            const auto posto = aRighe.begin() + i;
            if (posto->sCondizione.empty() && !(posto - 1)->sCondizione.empty()) {
                if (i == nCorrente) {
                    return i;
                }
                nLibera = i;
            }
        }
        return nLibera;
    }
};

/// A grid and its model, changed together.
struct Coppia {
    GrigliaCondizioni griglia;
    Modello modello;

    Coppia() { modello.aRighe[0] = griglia.Riga(0); }

    void Scegli(int nRiga)
    {
        griglia.PoniCorrente(nRiga);
        modello.nCorrente = nRiga;
    }

    void Scrivi(int nRiga, const Condizione& celle, eAltezza altezza)
    {
        griglia.Riga(nRiga) = modello.aRighe[static_cast<std::size_t>(nRiga)] = celle;
        griglia.PoniAltezza(nRiga, altezza);
        modello.aAltezze[static_cast<std::size_t>(nRiga)] = altezza;
    }

    void Verifica() const
    {
        for (std::int32_t nRiga = 0; nRiga <= 2000; ++nRiga) {
            const auto nPosto = static_cast<std::size_t>(nRiga);
            RC_ASSERT(griglia.Riga(nRiga) == modello.aRighe[nPosto]);
            RC_ASSERT(griglia.Altezza(nRiga) == modello.aAltezze[nPosto]);
        }
        RC_ASSERT(griglia.Corrente() == modello.nCorrente);
    }
};

/// Filled rows with a hole now and then, at the beginning of the grid or over all of it.
void RiempiACaso(Coppia& coppia)
{
    const int nRighe = prove::UnaVoltaSu(4) ? Tra(1990, 2000) : Tra(0, 12);
    for (int n = 1; n <= nRighe; ++n) {
        const bool bVicina = n < 15 || n > 1985;
        const std::string sChiave = bVicina && prove::UnaVoltaSu(6) ? "" : "Peso";
        coppia.Scrivi(n, Numerata(n, sChiave), n % 3 == 0 ? eAltezza::link : eAltezza::normale);
    }
}

/// A row near either end of the grid.
int RigaCasuale(int nPrima)
{
    return prove::UnaVoltaSu(3) ? Tra(1985, 2000) : Tra(nPrima, 14);
}

void OperazioneCasuale(Coppia& coppia)
{
    coppia.Scegli(RigaCasuale(0));
    RC_ASSERT(TrovaRigaLibera(coppia.griglia) == coppia.modello.Libera());
    RC_ASSERT(UltimaRigaOccupata(coppia.griglia) == coppia.modello.Ultima());
    switch (Tra(0, 2)) {
    case 0:
        InserisciRiga(coppia.griglia);
        return coppia.modello.Inserisci();
    case 1:
        EliminaCondizione(coppia.griglia);
        return coppia.modello.Elimina();
    default: {
        const auto [nDalla, nAlla] = std::minmax({RigaCasuale(1), RigaCasuale(1)});
        RC_ASSERT(EliminaRangeCondizioni(coppia.griglia, nDalla, nAlla) ==
                  coppia.modello.EliminaIntervallo(nDalla, nAlla));
    }
    }
}

RC_GTEST_PROP(ModRighe, InserimentiEdEliminazioniSonoQuelliDiUnElenco, ())
{
    Coppia coppia;
    RiempiACaso(coppia);
    const int nOperazioni = Tra(1, 12);
    for (int i = 0; i < nOperazioni; ++i) {
        OperazioneCasuale(coppia);
    }
    coppia.Verifica();
}

} // namespace
} // namespace ordavel
