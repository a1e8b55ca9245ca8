// Annullamenti_prova.cpp - every change is a step that can be undone.

#include "qt/Annullamenti.hpp"

#include "ordavel/Ordavel.hpp"

#include "qt/PiattaformaQt.hpp"

#include <gtest/gtest.h>

#include <random>

namespace ordavel::qt {

namespace {

const Condizione kPeso{"Peso", "Caselle :\r\n1-2", "10-20", "-", " "};
const Condizione kPonte{"Ponte", "-", "1", "-", " "};

struct AnnullamentiProva : testing::Test {
    PiattaformaQt piattaforma{nullptr};
    Ordavel sistema{piattaforma};
    Annullamenti annullamenti{sistema};

    QUndoStack& Pila() { return *annullamenti.Pila(); }
    GrigliaCondizioni& Griglia() { return sistema.GetGridCond(); }
};

} // namespace

TEST_F(AnnullamentiProva, SenzaCambiNonCiSonoPassi)
{
    annullamenti.Controlla();
    EXPECT_EQ(Pila().count(), 0);
}

TEST_F(AnnullamentiProva, UnaCondizioneScrittaSiAnnullaESiRipete)
{
    Griglia().Riga(1) = kPeso;
    annullamenti.Controlla();
    ASSERT_EQ(Pila().count(), 1);
    EXPECT_EQ(Pila().undoText(), "Inserisci condizione Peso");
    Pila().undo();
    EXPECT_TRUE(Griglia().Vuota(1));
    Pila().redo();
    EXPECT_EQ(Griglia().Riga(1), kPeso);
    annullamenti.Controlla();
    EXPECT_EQ(Pila().count(), 1) << "il passo stesso non è un cambio";
}

TEST_F(AnnullamentiProva, IPassiHannoUnNome)
{
    Griglia().Riga(1) = kPeso;
    Griglia().Riga(2) = kPonte;
    annullamenti.Controlla();
    EXPECT_EQ(Pila().undoText(), "Inserisci condizioni");
    Griglia().Riga(2).sPunti = "2";
    annullamenti.Controlla();
    EXPECT_EQ(Pila().undoText(), "Modifica condizione Ponte");
    Griglia().Riga(2) = {};
    annullamenti.Controlla();
    EXPECT_EQ(Pila().undoText(), "Elimina condizione Ponte");
    sistema.SelezionaNumero(5, true);
    annullamenti.Controlla();
    EXPECT_EQ(Pila().undoText(), "Selezione numeri");
    sistema.GetLbQuadroRec().Voci.Poni({"0,1,1"});
    annullamenti.Controlla();
    EXPECT_EQ(Pila().undoText(), "Quadro recuperi");
}

TEST_F(AnnullamentiProva, TornareAlSalvatoNonEPiuUnaModifica)
{
    Griglia().Riga(1) = kPeso;
    annullamenti.Salvato();
    EXPECT_TRUE(Pila().isClean());
    sistema.SelezionaNumero(5, true);
    annullamenti.Controlla();
    EXPECT_FALSE(Pila().isClean());
    Pila().undo();
    EXPECT_TRUE(Pila().isClean());
    EXPECT_FALSE(sistema.Modificato());
    Pila().undo();
    EXPECT_FALSE(Pila().isClean());
    EXPECT_TRUE(sistema.Modificato());
}

TEST_F(AnnullamentiProva, UnAltroSistemaNonHaPassi)
{
    Griglia().Riga(1) = kPeso;
    annullamenti.Controlla();
    Griglia().Svuota();
    annullamenti.Ricomincia();
    EXPECT_EQ(Pila().count(), 0);
    annullamenti.Controlla();
    EXPECT_EQ(Pila().count(), 0);
}

TEST_F(AnnullamentiProva, QualunqueSeguitoDiCambiSiPercorreNeiDueVersi)
{
    for (unsigned nSeme = 1; nSeme <= 30; ++nSeme) {
        std::mt19937 caso(nSeme);
        sistema.PoniContenuto({}, false);
        annullamenti.Ricomincia();
        std::vector<ContenutoSistema> aStorie{sistema.Contenuto()};
        for (int i = 0; i < 25; ++i) {
            const auto nRiga = static_cast<std::int32_t>(caso() % 8 + 1);
            switch (caso() % 5) {
            case 0:
                Griglia().Riga(nRiga) = kPeso;
                break;
            case 1:
                Griglia().Riga(nRiga) = {};
                break;
            case 2:
                Griglia().Riga(nRiga).sPunti += "-7";
                break;
            case 3:
                sistema.SelezionaNumero(static_cast<std::int16_t>(caso() % 90 + 1), caso() % 2 == 0);
                break;
            default:
                sistema.GetLbQuadroRec().Voci.Poni({std::to_string(caso() % 4) + ",9,1"});
                break;
            }
            annullamenti.Controlla();
            if (!(sistema.Contenuto() == aStorie.back())) {
                aStorie.push_back(sistema.Contenuto());
            }
        }
        ASSERT_EQ(Pila().count() + 1, static_cast<int>(aStorie.size())) << "seme " << nSeme;
        for (auto i = aStorie.size() - 1; i-- > 0;) {
            Pila().undo();
            ASSERT_EQ(sistema.Contenuto(), aStorie[i]) << "seme " << nSeme;
        }
        for (std::size_t i = 1; i < aStorie.size(); ++i) {
            Pila().redo();
            ASSERT_EQ(sistema.Contenuto(), aStorie[i]) << "seme " << nSeme;
        }
    }
}

} // namespace ordavel::qt
