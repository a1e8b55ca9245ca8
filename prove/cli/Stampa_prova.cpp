// Stampa_prova.cpp - results as tables and as JSON.

#include "cli/Stampa.hpp"

#include "cli/PiattaformaCli.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace ordavel::cli {
namespace {

using nlohmann::ordered_json;

RecordCondizione RecordContato(TipoCondizione tipo, double nOk, double nKo, double nRec)
{
    RecordCondizione record;
    record.Tipo = tipo;
    record.ContaOk = nOk;
    record.ContaKo = nKo;
    record.ContaRec = nRec;
    return record;
}

EsitoCorsa EsitoDiProva()
{
    EsitoCorsa esito;
    esito.nIntegrali = 43949268;
    esito.nSviluppate = 20000;
    esito.nCondizionate = 5001;
    esito.nSecondi = 3661.25;
    esito.aCondizioni = {RecordContato(TipoCondizione::peso, 15000, 5000, 123),
                         RecordContato(TipoCondizione::linkOpen, 0, 0, 0)};
    esito.aCondizioni[0].Valore = -7;
    esito.aCondizioni[0].Valore2 = 9;
    esito.aCondizioni[0].Esito = kVero;
    return esito;
}

/// The line of a text that holds sCercato.
std::string RigaCon(const std::string& sTesto, const std::string& sCercato)
{
    std::istringstream righe(sTesto);
    for (std::string sRiga; std::getline(righe, sRiga);) {
        if (sRiga.find(sCercato) != std::string::npos) {
            return sRiga;
        }
    }
    return {};
}

std::string TestoEsito(const EsitoCorsa& esito)
{
    std::ostringstream uscita;
    StampaEsito(uscita, esito);
    return uscita.str();
}

TEST(Percento, UnDecimaleConLaVirgola)
{
    EXPECT_EQ(Percento(1, 3), "33,3 %");
    EXPECT_EQ(Percento(2, 3), "66,7 %");
    EXPECT_EQ(Percento(5, 5), "100,0 %");
    EXPECT_EQ(Percento(0, 5), "0,0 %");
}

TEST(Percento, DiNienteNonSiSa)
{
    EXPECT_EQ(Percento(0, 0), "-");
    EXPECT_EQ(Percento(3, -1), "-");
}

TEST(CellaSuUnaRiga, UnaLetteraPerRigaTornaParola)
{
    EXPECT_EQ(CellaSuUnaRiga("P\r\no\r\nn\r\nt\r\ne"), "Ponte");
}

TEST(CellaSuUnaRiga, LeRigheSiStaccano)
{
    EXPECT_EQ(CellaSuUnaRiga("Caselle :\r\n1-2"), "Caselle : 1-2");
    EXPECT_EQ(CellaSuUnaRiga("01-02-03-04-\r\n05"), "01-02-03-04-05");
    EXPECT_EQ(CellaSuUnaRiga("\r\nGruppoDa : 2\r\nPasso : 2"), "GruppoDa : 2 Passo : 2");
}

TEST(CellaSuUnaRiga, SenzaRitorniACapo)
{
    EXPECT_EQ(CellaSuUnaRiga("Caselle :\r"), "Caselle :");
    EXPECT_EQ(CellaSuUnaRiga(""), "");
}

TEST(EsitoComeJson, NumeriInteriTranneISecondi)
{
    const ordered_json oggetto = ComeJson(EsitoDiProva(), {});
    EXPECT_TRUE(oggetto.at("integrali").is_number_integer());
    EXPECT_EQ(oggetto.at("integrali"), 43949268);
    EXPECT_EQ(oggetto.at("sviluppate"), 20000);
    EXPECT_EQ(oggetto.at("condizionate"), 5001);
    EXPECT_DOUBLE_EQ(oggetto.at("secondi").get<double>(), 3661.25);
    EXPECT_EQ(oggetto.at("interrotto"), false);
    EXPECT_EQ(oggetto.at("messaggi"), ordered_json::array());
}

TEST(EsitoComeJson, UnaVocePerCondizioneInOrdine)
{
    const ordered_json aCondizioni = ComeJson(EsitoDiProva(), {}).at("condizioni");
    ASSERT_EQ(aCondizioni.size(), 2U);
    const ordered_json attesa{{"id", 1},       {"tipo", 5},        {"nome", "Peso"}, {"ok", 15000},
                              {"ko", 5000},    {"rec", 123},       {"valore", -7},   {"valore2", 9},
                              {"esito", true}, {"esitoRec", false}};
    EXPECT_EQ(aCondizioni[0], attesa);
    EXPECT_EQ(aCondizioni[1].at("id"), 2);
    EXPECT_EQ(aCondizioni[1].at("nome"), "LinkOpen");
}

TEST(EsitoComeJson, IMessaggiConLaLoroIcona)
{
    const std::vector<Messaggio> aMessaggi{{eIcona::critico, "Titolo", "Testo", ePulsanti::ok},
                                           {eIcona::avviso, "", "a", ePulsanti::ok},
                                           {eIcona::informazione, "", "b", ePulsanti::ok},
                                           {eIcona::domanda, "", "c", ePulsanti::siNo}};
    const ordered_json scritti = ComeJson(EsitoCorsa{}, aMessaggi).at("messaggi");
    EXPECT_EQ(scritti[0], (ordered_json{{"icona", "critico"}, {"titolo", "Titolo"}, {"testo", "Testo"}}));
    EXPECT_EQ(scritti[1].at("icona"), "avviso");
    EXPECT_EQ(scritti[2].at("icona"), "informazione");
    EXPECT_EQ(scritti[3].at("icona"), "domanda");
}

TEST(StampaEsito, ContiConIPuntiELeLoroParti)
{
    const std::string sTesto = TestoEsito(EsitoDiProva());
    EXPECT_NE(sTesto.find("43.949.268"), std::string::npos) << sTesto;
    EXPECT_NE(sTesto.find("01:01:01"), std::string::npos) << sTesto;
    const std::string sTenute = RigaCon(sTesto, "5.001");
    EXPECT_NE(sTenute.find("25,0 %"), std::string::npos) << sTesto;
}

TEST(StampaEsito, OgniCondizioneConPassateTagliateERecuperabili)
{
    const std::string sPeso = RigaCon(TestoEsito(EsitoDiProva()), "Peso");
    for (const char* sCercato : {"15.000", "75,0 %", "5.000", "25,0 %", "123", "0,6 %"}) {
        EXPECT_NE(sPeso.find(sCercato), std::string::npos) << sPeso << ": " << sCercato;
    }
}

TEST(StampaEsito, UnLinkNonHaConti)
{
    const std::string sLink = RigaCon(TestoEsito(EsitoDiProva()), "LinkOpen");
    EXPECT_EQ(sLink.find('%'), std::string::npos) << sLink;
    EXPECT_NE(sLink.find('-'), std::string::npos) << sLink;
}

TEST(StampaEsito, SenzaCondizioniNonCElaLoroTabella)
{
    EsitoCorsa esito = EsitoDiProva();
    esito.aCondizioni.clear();
    EXPECT_EQ(RigaCon(TestoEsito(esito), "Condizione"), "");
}

TEST(StampaEsito, UnaCorsaInterrottaLoDice)
{
    EsitoCorsa esito = EsitoDiProva();
    EXPECT_EQ(RigaCon(TestoEsito(esito), "Interrotto"), "");
    esito.bInterrotto = true;
    EXPECT_NE(RigaCon(TestoEsito(esito), "Interrotto"), "");
}

TEST(StampaEsito, NessunaRigaFinisceConUnoSpazio)
{
    std::istringstream righe(TestoEsito(EsitoDiProva()));
    int nRighe = 0;
    for (std::string sRiga; std::getline(righe, sRiga); ++nRighe) {
        EXPECT_FALSE(sRiga.ends_with(' ')) << sRiga;
    }
    EXPECT_GT(nRighe, 5);
}

TEST(StampaMisure, OggettiSuUnaRiga)
{
    std::ostringstream uscita;
    StampaMisure(uscita, {{"Uno", 1},
                          {"Due", {{"Pari", 3}, {"Dispari", 2}}},
                          {"Tre", {{"Diretto", {{"Pos", 4}}}}},
                          {"Quattro", "DPD"}});
    EXPECT_NE(RigaCon(uscita.str(), "Due").find("Pari 3, Dispari 2"), std::string::npos) << uscita.str();
    EXPECT_NE(RigaCon(uscita.str(), "Tre").find("Diretto (Pos 4)"), std::string::npos) << uscita.str();
    EXPECT_NE(RigaCon(uscita.str(), "Quattro").find("DPD"), std::string::npos) << uscita.str();
}

TEST(StampaSistema, NumeriCondizioniEGruppiInVigore)
{
    PiattaformaCli desktop(false);
    ordavel::Ordavel sistema(desktop);
    sistema.PoniClasse(3);
    sistema.SelezionaNumero(4, true);
    sistema.SelezionaNumero(8, true);
    sistema.SelezionaNumero(90, true);
    sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2", "10-40", "41-50", "2"};
    sistema.GetLbQuadroRec().Voci.Poni({"3,4,0", "1,2,-1"});
    std::ostringstream uscita;
    StampaSistema(uscita, sistema);
    EXPECT_NE(RigaCon(uscita.str(), "Classe 3"), "") << uscita.str();
    EXPECT_TRUE(RigaCon(uscita.str(), "Numeri").ends_with("04 08 90")) << uscita.str();
    EXPECT_NE(RigaCon(uscita.str(), "Peso").find("Caselle : 1-2  10-40  41-50"), std::string::npos)
        << uscita.str();
    EXPECT_EQ(RigaCon(uscita.str(), "recupero 1"), "") << uscita.str();
    EXPECT_NE(RigaCon(uscita.str(), "recupero 2"), "") << uscita.str();
}

} // namespace
} // namespace ordavel::cli
