// F_LinkClose_vista_prova.cpp - the list of how many conditions of a link may be satisfied.

#include "qt/F_LinkClose_vista.hpp"

#include "qt/DialoghiProva.hpp"

namespace ordavel::qt {

namespace {

using namespace prove;
using enum TipoCondizione;

class FLinkCloseVistaProva : public DialoghiProva {
protected:
    /// A link around two conditions, its end not yet there.
    FLinkCloseVistaProva()
    {
        sistema.Toolbar2_ButtonClick("LinkOpen");
        sistema.InsCondizione(ponte, "1");
        sistema.InsCondizione(consecutivi, "1");
    }

    static QListWidget& Lista(VistaDialogo& vista) { return Trova<QListWidget>(vista, "List1"); }

    static QStringList Voci(VistaDialogo& vista)
    {
        QStringList aVoci;
        for (int i = 0; i < Lista(vista).count(); ++i) {
            aVoci << Lista(vista).item(i)->text();
        }
        return aVoci;
    }

    static void ScegliVoce(VistaDialogo& vista, int nPosto)
    {
        QListWidget& lista = Lista(vista);
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          lista.visualItemRect(lista.item(nPosto)).center());
    }
};

} // namespace

TEST_F(FLinkCloseVistaProva, OffreTanteVociQuanteLeCondizioni)
{
    Apri(linkClose, [](VistaDialogo& vista) {
        EXPECT_EQ(Voci(vista), (QStringList{"0", "1", "2"}));
        EXPECT_EQ(vista.findChild<QWidget*>("Statistica"), nullptr);
    });
}

TEST_F(FLinkCloseVistaProva, ConfermaScriveLeVociScelte)
{
    Apri(linkClose, [](VistaDialogo& vista) {
        ScegliVoce(vista, 0);
        ScegliVoce(vista, 2);
        Clicca(vista, "Conferma");
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(4).sCondizione, "LinkClose");
    EXPECT_EQ(Riga(4).sPunti, "0-2");
    EXPECT_TRUE(sistema.VerificaCoerenzaLink());
}

TEST_F(FLinkCloseVistaProva, NessunaVoceSiAccettaConInvio)
{
    Apri(linkClose, [](VistaDialogo& vista) {
        QTest::keyClick(&Lista(vista), Qt::Key_Return);
        EXPECT_FALSE(vista.isVisible());
    });
    EXPECT_EQ(Riga(4).sCondizione, "LinkClose");
    EXPECT_EQ(Riga(4).sPunti, "");
}

TEST_F(FLinkCloseVistaProva, LaModificaOffreDueVolteLeVociETieneLeScelte)
{
    Apri(linkClose, [](VistaDialogo& vista) {
        ScegliVoce(vista, 1);
        Clicca(vista, "Conferma");
    });
    Modifica(4, [](VistaDialogo& vista) {
        EXPECT_EQ(Voci(vista), (QStringList{"0", "1", "2", "0", "1", "2"}));
        EXPECT_TRUE(Lista(vista).item(1)->isSelected());
        ScegliVoce(vista, 4);
        Clicca(vista, "Conferma");
    });
    EXPECT_EQ(Riga(4).sPunti, "1-4") << "places, not texts";
}

TEST_F(FLinkCloseVistaProva, ChiudiNonCambiaNulla)
{
    Apri(linkClose, [](VistaDialogo& vista) {
        ScegliVoce(vista, 1);
        Clicca(vista, "Chiudi");
    });
    EXPECT_TRUE(sistema.GetGridCond().Vuota(4));
}

} // namespace ordavel::qt
