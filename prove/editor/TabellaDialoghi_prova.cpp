// TabellaDialoghi_prova.cpp - the table of the common dialogs agrees with the catalogue.

#include "editor/TabellaDialoghi.hpp"

#include "condizioni/ModCatalogo.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

TEST(TabellaDialoghi, OgniRigaHaIlNomeCheIlCatalogoDaAlTipo)
{
    for (const RigaDialogo& riga : TabellaDialoghi()) {
        const VoceCatalogo* voce = TrovaTipo(riga.tipo);
        ASSERT_NE(voce, nullptr) << riga.sNome;
        EXPECT_EQ(riga.sNome, voce->sDialogo);
    }
}

TEST(TabellaDialoghi, LaFamigliaDeiPuntiEQuellaDelCatalogo)
{
    for (const RigaDialogo& riga : TabellaDialoghi()) {
        const bool bLista = riga.punti == eFamigliaPunti::lista;
        EXPECT_EQ(TrovaTipo(riga.tipo)->punti, bLista ? ePunti::lista : ePunti::intervallo) << riga.sNome;
    }
}

TEST(TabellaDialoghi, RestanoFuoriILinkEICinqueSpeciali)
{
    using enum TipoCondizione;
    for (const VoceCatalogo& voce : Catalogo()) {
        const bool bSpeciale = voce.Tipo == linkOpen || voce.Tipo == linkClose || voce.Tipo == puntiColonna ||
                               voce.Tipo == sequenze || voce.Tipo == gruppiDiConsecutivi ||
                               voce.Tipo == formule || voce.Tipo == emulatore;
        EXPECT_EQ(TrovaDialogo(voce.Tipo) == nullptr, bSpeciale) << voce.sChiave;
    }
}

TEST(TabellaDialoghi, SommaCadenzeHaIlTitoloDelPeso)
{
    EXPECT_EQ(TrovaDialogo(TipoCondizione::sommaCadenze)->sTitolo, "Punti su peso");
}

} // namespace
} // namespace ordavel
