// Memoria_prova.cpp - a run asks for memory at its start and never again for a column.
//
// Every call of operator new in this program is counted, whoever makes it (ContaMemoria.hpp).

#include "comune/RecordProva.hpp"
#include "motore/ContaMemoria.hpp"
#include "motore/CorsaProva.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace ordavel {
namespace {

using enum TipoCondizione;
using prove::ConParametro;
using prove::Fila;
using prove::Intervallo;
using prove::LinkClose;
using prove::LinkOpen;
using prove::Lista;
using Condizioni = std::vector<RecordCondizione>;

/// The user's side of a run without any memory of its own.
class SenzaMemoria : public Avanzamento {
public:
    void Mostra(std::int32_t, std::int32_t, std::int16_t) override {}
    void LasciaEventi() override {}
    void MostraFallimento(std::string_view, const Errore&) override {}
};

/// Conditions of every shape that compare values, with a group in recovery.
Condizioni Miste()
{
    RecordCondizione recupero = Lista(cadenze, {1}, {2});
    recupero.IdRecupero = 1;
    RecordCondizione formula = Lista(formule, {});
    formula.PuntiOk2(1) = 3;
    RecordCondizione emulato = Lista(emulatore, {});
    return {Intervallo(peso, 0, 60),
            prove::Dispari({1, 2}),
            Lista(consecutivi, {0, 1}),
            ConParametro(Lista(vortice, {1, 2, 3}), 1),
            prove::Sequenza({1, 0}, {1}, {0}),
            recupero,
            formula,
            emulato,
            ConParametro(Lista(gruppiDiConsecutivi, {0, 1}), 2, 2),
            Lista(simmetrieNum, {0, 1})};
}

/// Calls of operator new in a development of class 3 over nScelti numbers.
std::int64_t RichiesteDiSviluppo(const Condizioni& aCondizioni, int nScelti, StatoSviluppo& stato)
{
    const prove::CartellaProva cartella;
    const NumeriScelti aNumeri = prove::Pronostico(Fila(1, nScelti));
    FileBinario file(cartella / "c", eApertura::scrittura);
    SenzaMemoria avanzamento;
    stato = prove::StatoDi(aCondizioni);
    stato.aQuadroRec(1) = {kVero, 1, 1};
    const std::int64_t nPrima = prove::RichiesteMemoria();
    SviluppaColonne(aNumeri, 3, 2, file, stato, avanzamento, std::nullopt); // the plain form
    return prove::RichiesteMemoria() - nPrima;
}

/// A development of 120 columns asks for memory as often as one of 82160 that is flushed on its way.
void AspettaSoloAllInizio(const Condizioni& aCondizioni)
{
    StatoSviluppo stato;
    const std::int64_t nPiccolo = RichiesteDiSviluppo(aCondizioni, 10, stato);
    EXPECT_EQ(stato.nSviluppate, 120);
    EXPECT_EQ(RichiesteDiSviluppo(aCondizioni, 80, stato), nPiccolo);
    EXPECT_EQ(stato.nSviluppate, 82160);
}

TEST(Memoria, LeRichiesteSiContano)
{
    const std::int64_t nPrima = prove::RichiesteMemoria();
    const std::vector<int> aQualcosa(100);
    EXPECT_GT(prove::RichiesteMemoria(), nPrima) << aQualcosa.size();
}

TEST(Memoria, SenzaCondizioniNessunaColonnaChiedeMemoria)
{
    AspettaSoloAllInizio({});
}

TEST(Memoria, ConOgniFormaDiCondizioneNessunaColonnaChiedeMemoria)
{
    AspettaSoloAllInizio(Miste());
}

TEST(Memoria, SenzaLinkNonSiCopiaNessunaCondizione)
{
    StatoSviluppo stato;
    static_cast<void>(RichiesteDiSviluppo(Miste(), 20, stato));
    EXPECT_EQ(stato.aLavoroLink.capacity(), std::size_t{0}) << "la copia di lavoro non nasce";
}

TEST(Memoria, ConILinkSoloLaPrimaColonnaChiedeMemoria)
{
    Condizioni aCondizioni{LinkOpen()};
    for (const RecordCondizione& record : Miste()) {
        aCondizioni.push_back(record);
    }
    aCondizioni.push_back(LinkClose({3, 4, 5, 6}));
    aCondizioni.push_back(LinkOpen());
    aCondizioni.push_back(prove::Dispari({1}));
    aCondizioni.push_back(LinkClose({0, 1}));
    AspettaSoloAllInizio(aCondizioni);
}

} // namespace
} // namespace ordavel
