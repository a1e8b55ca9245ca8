// ModelloGriglia_prova.cpp - the model is the grid on its side, and follows what is written there.

#include "qt/ModelloGriglia.hpp"

#include "qt/Colori.hpp"
#include "qt/GrigliaProva.hpp"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace ordavel::qt {

namespace {

struct ModelloGrigliaProva : testing::Test, protected prove::GrigliaProva {
    ModelloGriglia modello{sistema};

    [[nodiscard]] QVariant dato(int nRiga, int nColonna, int nRuolo = Qt::DisplayRole) const
    {
        return modello.index(nRiga, nColonna).data(nRuolo);
    }
};

} // namespace

TEST_F(ModelloGrigliaProva, EUnModelloInRegola)
{
    Riempi(prove::DodiciCondizioni());
    const QAbstractItemModelTester collaudo(&modello, QAbstractItemModelTester::FailureReportingMode::Fatal);
    modello.aggiorna();
    EXPECT_EQ(modello.rowCount(), 6);
    EXPECT_EQ(modello.columnCount(), 2001);
}

TEST_F(ModelloGrigliaProva, LaColonnaZeroPortaLeEtichette)
{
    QStringList aEtichette;
    for (int nRiga = 0; nRiga < 6; ++nRiga) {
        aEtichette += dato(nRiga, 0).toString();
    }
    EXPECT_EQ(aEtichette,
              QStringList({"Numero", "Condizione", "Parametri", "Punti", "Recupero", "Quadro Rec."}));
    EXPECT_EQ(modello.headerData(rigaPunti, Qt::Vertical).toString(), "Punti");
}

TEST_F(ModelloGrigliaProva, OgniColonnaEUnaCondizione)
{
    Riempi(prove::DodiciCondizioni());
    modello.aggiorna();
    QStringList aCelle;
    for (int nRiga = 0; nRiga < 6; ++nRiga) {
        aCelle += dato(nRiga, 1).toString();
    }
    EXPECT_EQ(aCelle, QStringList({"1", "Peso", "Caselle :\n1-2-3-4-5", "100-250", "90-99", "1"}));
    EXPECT_EQ(dato(rigaNumero, 2000).toString(), "2000");
    EXPECT_EQ(modello.ultima(), 12);
}

TEST_F(ModelloGrigliaProva, RaccontaSoloLeColonneCambiate)
{
    Riempi(prove::DodiciCondizioni());
    modello.aggiorna();
    QSignalSpy spia(&modello, &QAbstractItemModel::dataChanged);
    sistema.GetGridCond().Riga(3).sPunti = "1";
    sistema.GetGridCond().Riga(4).sPunti = "1";
    sistema.GetGridCond().Riga(9).sPunti = "1";
    EXPECT_TRUE(modello.aggiorna());
    ASSERT_EQ(spia.count(), 2);
    EXPECT_EQ(spia[0][0].toModelIndex().column(), 3);
    EXPECT_EQ(spia[0][1].toModelIndex().column(), 4);
    EXPECT_EQ(spia[1][0].toModelIndex().column(), 9);
    EXPECT_FALSE(modello.aggiorna());
    EXPECT_EQ(spia.count(), 2);
}

TEST_F(ModelloGrigliaProva, ChiLeggeSoltantoNonCambiaNulla)
{
    Riempi(prove::DodiciCondizioni());
    modello.aggiorna();
    const QSignalSpy spia(&modello, &QAbstractItemModel::dataChanged);
    static_cast<void>(sistema.GetGridCond().Riga(3));
    EXPECT_TRUE(modello.aggiorna());
    EXPECT_EQ(spia.count(), 0);
}

TEST_F(ModelloGrigliaProva, CaratteriEAllineamento)
{
    EXPECT_EQ(dato(rigaParametri, 1, Qt::FontRole).value<QFont>().family(), "Courier New");
    EXPECT_EQ(dato(rigaParametri, 0, Qt::FontRole).value<QFont>().family(), "Arial");
    EXPECT_EQ(dato(rigaCondizione, 1, Qt::FontRole).value<QFont>().family(), "Arial");
    EXPECT_TRUE(dato(rigaCondizione, 1, Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(dato(rigaNumero, 1, Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(dato(rigaPunti, 1, Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(dato(rigaPunti, 1, Qt::TextAlignmentRole).value<Qt::Alignment>(), Qt::AlignCenter);
}

TEST_F(ModelloGrigliaProva, IlNomeStaInBiancoSulSuoColore)
{
    EXPECT_EQ(dato(rigaCondizione, 7, Qt::BackgroundRole).value<QColor>(), QColor(0x80, 0x80, 0xFF));
    EXPECT_EQ(dato(rigaCondizione, 7, Qt::ForegroundRole).value<QColor>(), QColor(Qt::white));
    EXPECT_FALSE(dato(rigaCondizione, 0, Qt::BackgroundRole).isValid());
}

TEST_F(ModelloGrigliaProva, LaColonnaScelteHaIlColoreDellEvidenza)
{
    QSignalSpy spia(&modello, &QAbstractItemModel::dataChanged);
    sistema.GrdCond_EnterCell(5);
    modello.aggiorna();
    ASSERT_EQ(spia.count(), 1);
    EXPECT_EQ(dato(rigaParametri, 5, Qt::BackgroundRole).value<QColor>(), QColor(0xFF, 0xFF, 0x80));
    EXPECT_EQ(dato(rigaQuadro, 5, Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));
    EXPECT_FALSE(dato(rigaNumero, 5, Qt::BackgroundRole).isValid());
    EXPECT_FALSE(dato(rigaParametri, 4, Qt::BackgroundRole).isValid());
    sistema.Controlli().LabColoreColSel.Poni(0x400000);
    modello.aggiorna();
    EXPECT_EQ(dato(rigaParametri, 5, Qt::BackgroundRole).value<QColor>(), QColor(0, 0, 0x40));
    EXPECT_EQ(dato(rigaParametri, 5, Qt::ForegroundRole).value<QColor>(), QColor(Qt::white));
}

TEST_F(ModelloGrigliaProva, ChiNonVedeSenteCondizioneERiga)
{
    Riempi(prove::DodiciCondizioni());
    modello.aggiorna();
    EXPECT_EQ(dato(rigaParametri, 1, Qt::AccessibleTextRole).toString(),
              "Condizione 1, Parametri: Caselle : 1-2-3-4-5");
    EXPECT_EQ(dato(rigaParametri, 2, Qt::AccessibleTextRole).toString(),
              "Condizione 2, Parametri: Consecutivi");
    EXPECT_EQ(dato(rigaPunti, 20, Qt::AccessibleTextRole).toString(), "Condizione 20, Punti: vuoto");
    EXPECT_EQ(modello.headerData(2, Qt::Horizontal, Qt::AccessibleTextRole).toString(),
              "Condizione 2, Consecutivi");
}

TEST_F(ModelloGrigliaProva, UnTestoCheSembraUnaPaginaRestaUnTesto)
{
    sistema.GetGridCond().Riga(1) = {"Peso", "<b>1</b>", "", "", ""};
    modello.aggiorna();
    EXPECT_EQ(dato(rigaParametri, 1).toString(), "<b>1</b>");
    EXPECT_EQ(dato(rigaParametri, 1, Qt::ToolTipRole).toString(), "<pre>&lt;b&gt;1&lt;/b&gt;</pre>");
}

TEST_F(ModelloGrigliaProva, ITagliSonoQuelliDelConto)
{
    Riempi(prove::DodiciCondizioni());
    Pronostico(5, 1, 30);
    modello.aggiorna();
    const auto conto = sistema.ContaSistema();
    ASSERT_TRUE(conto.has_value());
    modello.poniConto(*conto);
    for (int j = 1; j <= 12; ++j) {
        const ContoCondizione& condizione = conto->aCondizioni[static_cast<std::size_t>(j) - 1];
        const double nEsaminate = condizione.nOk + condizione.nKo;
        ASSERT_EQ(modello.taglio(j).has_value(), nEsaminate > 0) << j;
        if (nEsaminate > 0) {
            EXPECT_EQ(modello.taglio(j)->nQuota, condizione.nKo / nEsaminate) << j;
            EXPECT_EQ(modello.taglio(j)->bEsatto, condizione.bEsatto) << j;
        }
    }
    EXPECT_FALSE(modello.taglio(3).has_value()) << "un link";
    EXPECT_FALSE(modello.taglio(13).has_value()) << "una colonna vuota";
}

TEST_F(ModelloGrigliaProva, IlTaglioSiLeggeESiSente)
{
    Riempi(prove::DodiciCondizioni());
    modello.aggiorna();
    const QSignalSpy spia(&modello, &QAbstractItemModel::headerDataChanged);
    ConteggioSistema conto;
    conto.aCondizioni = {{.nOk = 368, .nKo = 632, .bEsatto = true}, {.nOk = 1, .nKo = 1}};
    modello.poniConto(conto);
    EXPECT_EQ(spia.count(), 1);
    EXPECT_EQ(modello.headerData(1, Qt::Horizontal, Qt::ToolTipRole).toString(),
              "Condizione 1\nPeso\nTaglia il 63,2 %");
    EXPECT_EQ(dato(rigaPunti, 1, Qt::AccessibleDescriptionRole).toString(), "Taglia il 63,2 %");
    EXPECT_EQ(dato(rigaPunti, 2, Qt::AccessibleDescriptionRole).toString(), "Taglia circa il 50,0 %");
    modello.invecchiaConto();
    EXPECT_EQ(dato(rigaPunti, 1, Qt::AccessibleDescriptionRole).toString(), "Taglia circa il 63,2 %");
    modello.togliConto();
    EXPECT_TRUE(dato(rigaPunti, 1, Qt::AccessibleDescriptionRole).toString().isEmpty());
}

TEST_F(ModelloGrigliaProva, ChiCambiaPerdeIlSuoTaglio)
{
    Riempi(prove::DodiciCondizioni());
    modello.aggiorna();
    ConteggioSistema conto;
    conto.aCondizioni = {{.nOk = 1, .nKo = 1, .bEsatto = true}, {.nOk = 1, .nKo = 1, .bEsatto = true}};
    modello.poniConto(conto);
    sistema.GetGridCond().Riga(1).sPunti = "1-2";
    modello.aggiorna();
    EXPECT_FALSE(modello.taglio(1).has_value());
    EXPECT_TRUE(modello.taglio(2).has_value());
}

} // namespace ordavel::qt
