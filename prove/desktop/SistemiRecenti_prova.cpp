// SistemiRecenti_prova.cpp - the list of recent systems.

#include "desktop/SistemiRecenti.hpp"

#include "comune/CartellaProva.hpp"
#include "desktop/ArchivioImpostazioni.hpp"

#include <gtest/gtest.h>

namespace ordavel::desktop {
namespace {

struct SistemiRecentiProva : testing::Test {
    prove::CartellaProva cartella;
    ArchivioImpostazioni archivio{QString::fromStdString(cartella / "ordavel.ini")};
    SistemiRecenti recenti{archivio};
};

TEST_F(SistemiRecentiProva, IlPiuNuovoStaDavanti)
{
    recenti.Aggiungi("/a.sic");
    recenti.Aggiungi("/b.sic");
    recenti.Aggiungi("/a.sic");
    EXPECT_EQ(recenti.Elenco(), (QStringList{"/a.sic", "/b.sic"}));
    recenti.Togli("/a.sic");
    EXPECT_EQ(recenti.Elenco(), (QStringList{"/b.sic"}));
    recenti.Svuota();
    EXPECT_TRUE(recenti.Elenco().isEmpty());
}

TEST_F(SistemiRecentiProva, SonoAlPiuDieci)
{
    for (int i = 0; i < 12; ++i) {
        recenti.Aggiungi(QString("/%1.sic").arg(i));
    }
    EXPECT_EQ(recenti.Elenco().size(), 10);
    EXPECT_EQ(recenti.Elenco().constFirst(), "/11.sic");
    EXPECT_EQ(recenti.Elenco().constLast(), "/2.sic");
}

TEST_F(SistemiRecentiProva, UnoSoloTornaUnoSoloAncheConUnaVirgola)
{
    recenti.Aggiungi("/mio, tuo.sic");
    ASSERT_TRUE(archivio.Salva());
    ArchivioImpostazioni altro(QString::fromStdString(cartella / "ordavel.ini"));
    EXPECT_EQ(SistemiRecenti(altro).Elenco(), QStringList{"/mio, tuo.sic"});
}

} // namespace
} // namespace ordavel::desktop
