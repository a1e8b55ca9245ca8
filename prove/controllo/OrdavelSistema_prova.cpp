// OrdavelSistema_prova.cpp - a system is saved.

#include "ordavel/Ordavel.hpp"

#include "comune/Esadecimale.hpp"
#include "comune/SenzaPrivilegi.hpp"
#include "controllo/SistemaProva.hpp"
#include "persistenza/ModFileSistema.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::ByteDi;
using prove::DialogoFile;
using prove::Fallimento;
using prove::LeggiFile;
using prove::ScriviFile;
using testing::ElementsAre;

class OrdavelSistema : public testing::Test, protected prove::SistemaProva {
protected:
    /// The fields of a saved file without columns.
    [[nodiscard]] static ParteSistema Parte(const std::string& sPath)
    {
        const std::string sByte = LeggiFile(sPath);
        const auto parte = LeggiParteSistema(std::as_bytes(std::span(sByte)));
        EXPECT_TRUE(parte.has_value()) << sByte.size() << " byte";
        return parte.value_or(ParteSistema{});
    }

    /// A target is refused: by the deletion, and so by the saving.
    void ExpectRifiutato(const std::string& sPath)
    {
        EXPECT_FALSE(Salva(sPath)) << sPath;
        const Errore errore(eErrore::accessoPercorso, sPath);
        EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento("ModFunzGeneriche.KillFile", errore),
                                                        Fallimento("OrdavelSis.Salva", errore)));
    }

    const std::string sFile = cartella / "s.sic";
};

TEST_F(OrdavelSistema, UnSistemaVuotoOccupa317Byte)
{
    EXPECT_TRUE(Salva(sFile));
    const std::string sByte = LeggiFile(sFile);
    EXPECT_EQ(sByte, std::string("SISTOCX\5\0\0\0", 11) + std::string(306, '\0'));
}

TEST_F(OrdavelSistema, RigheDiSoliBlankNonSonoCondizioni)
{
    sistema.GetGridCond().Riga(1).sCondizione = "  ";
    sistema.GetGridCond().Riga(2).sCondizione = "Cadenze";
    EXPECT_TRUE(Salva(sFile));
    EXPECT_EQ(LeggiFile(sFile).size(), 317);
}

TEST_F(OrdavelSistema, IlFilePortaTuttoIlSistema)
{
    sistema.Controlli().CmbRid.Indice.Poni(1);
    Pronostico(3, {1, 2, 3, 4, 11, 90});
    sistema.GetLbQuadroRec().Voci.Poni({"1,2,-1"});
    sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2-3", "6-300", "5-400", "1"};
    EXPECT_TRUE(Salva(sFile));
    // The example file, but for what its run had counted and for its columns.
    std::string sAtteso = prove::DaEsadecimale(prove::TestoBuono("sistema.hex")).substr(0, 651);
    sAtteso.replace(613, 36, std::string(36, '\0'));
    EXPECT_EQ(LeggiFile(sFile), sAtteso);
}

TEST_F(OrdavelSistema, SenzaNomeLoSiChiede)
{
    piattaforma.Scegli(sFile);
    std::string sNome;
    EXPECT_TRUE(sistema.Salva(sNome, true));
    EXPECT_THAT(piattaforma.Dialoghi(),
                ElementsAre(DialogoFile{.bSalva = true,
                                        .richiesta = {.sTitolo = "Salva sistema",
                                                      .sFiltro = "Sistemi condizionati (*.sic)|*.sic",
                                                      .sEstensione = ".sic",
                                                      .sNomeFile = "",
                                                      .sCartella = cartella / "sistemi/"}}));
    EXPECT_EQ(sNome, sFile);
    EXPECT_EQ(sistema.FileSistema(), sFile);
    EXPECT_EQ(LeggiFile(sFile).size(), 317);
}

TEST_F(OrdavelSistema, IlNomeDatoNonDiventaQuelloDelSistema)
{
    EXPECT_TRUE(Salva(sFile));
    EXPECT_EQ(sistema.FileSistema(), "");
}

TEST_F(OrdavelSistema, IlDialogoProponeIlNomeDiPrima)
{
    piattaforma.Scegli(sFile);
    EXPECT_TRUE(Salva({}));
    piattaforma.Scegli(cartella / "t.sic");
    EXPECT_TRUE(Salva({}));
    EXPECT_EQ(piattaforma.Dialoghi().at(1).richiesta.sNomeFile, sFile);
    EXPECT_EQ(sistema.FileSistema(), cartella / "t.sic");
}

TEST_F(OrdavelSistema, RinunciareLasciaIlSistemaSenzaNome)
{
    piattaforma.Scegli(sFile);
    ASSERT_TRUE(Salva({}));
    piattaforma.Scegli("");
    std::string sNome;
    EXPECT_FALSE(sistema.Salva(sNome, true));
    EXPECT_EQ(sNome, "");
    EXPECT_EQ(sistema.FileSistema(), "");
    EXPECT_EQ(LeggiFile(sFile).size(), 317);
}

TEST_F(OrdavelSistema, UnaGrigliaCheNonSiCompilaLasciaIlVecchioFile)
{
    ScriviFile(sFile, "il file di prima");
    sistema.GetGridCond().Riga(1) = {"Cadenze", "", "11", "", ""};
    EXPECT_FALSE(Salva(sFile));
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("OrdavelSis.Salva", Errore(eErrore::indice, "condizione 1 Cadenze"))));
    EXPECT_EQ(LeggiFile(sFile), "il file di prima");
}

TEST_F(OrdavelSistema, UnQuadroMalScrittoLasciaIlVecchioFile)
{
    ScriviFile(sFile, "il file di prima");
    sistema.GetLbQuadroRec().Voci.Poni({"1,2"});
    EXPECT_FALSE(Salva(sFile));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento("OrdavelSis.Salva", Errore(eErrore::indice))));
    EXPECT_EQ(LeggiFile(sFile), "il file di prima");
}

TEST_F(OrdavelSistema, CartelleEDispositiviNonSiSostituiscono)
{
    ExpectRifiutato(cartella / "sistemi");
    ExpectRifiutato("/dev/null");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST_F(OrdavelSistema, InUnaCartellaCheNonCeNonSiSalva)
{
    const std::string sPath = cartella / "manca/s.sic";
    EXPECT_FALSE(Salva(sPath));
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("OrdavelSis.Salva", Errore(eErrore::percorsoNonTrovato, sPath))));
}

TEST_F(OrdavelSistema, UnFileCheNonSiCancellaRestaComEra)
{
    // It could be written to, but what is new would go behind what is old.
    using std::filesystem::perms;
    const std::string sChiusa = cartella / "chiusa";
    const std::string sPath = sChiusa + "/s.sic";
    std::filesystem::create_directories(sChiusa);
    ScriviFile(sPath, "il file di prima");
    std::filesystem::permissions(sPath, perms::all);
    std::filesystem::permissions(
        sChiusa, perms::all & ~(perms::owner_write | perms::group_write | perms::others_write));
    {
        const prove::SenzaPrivilegi senza;
        if (!senza.Riuscito()) {
            // Without the right to change users nobody can be kept from deleting.
            GTEST_SKIP() << "i permessi non si possono provare qui";
        }
        EXPECT_FALSE(Salva(sPath));
    }
    std::filesystem::permissions(sChiusa, perms::owner_all); // so that the folder can go
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("ModFunzGeneriche.KillFile", Errore(eErrore::permesso, sPath)),
                            Fallimento("OrdavelSis.Salva", Errore(eErrore::accessoPercorso, sPath))));
    EXPECT_EQ(LeggiFile(sPath), "il file di prima");
}

TEST_F(OrdavelSistema, IlNuovoFilePrendeIlPostoDelVecchio)
{
    ScriviFile(sFile, std::string(5000, 'x'));
    EXPECT_TRUE(Salva(sFile));
    EXPECT_EQ(LeggiFile(sFile).size(), 317);
}

TEST_F(OrdavelSistema, LeColonneValideVannoInCoda)
{
    Pronostico(3, 1, 4);
    Sviluppa();
    EXPECT_TRUE(Salva(sFile));
    EXPECT_EQ(LeggiFile(sFile).substr(317), "COLONNE" + ByteDi({{1, 2, 3}, {1, 2, 4}, {1, 3, 4}, {2, 3, 4}}));
}

TEST_F(OrdavelSistema, LeColonneNonValideRestanoFuori)
{
    ScriviFile(sistema.FileColonne(), ByteDi({{1, 2, 3}}));
    ASSERT_FALSE(sistema.ColonneValide());
    EXPECT_TRUE(Salva(sFile));
    EXPECT_EQ(LeggiFile(sFile).size(), 317);
}

TEST_F(OrdavelSistema, SenzaColonneNonCeMarca)
{
    Pronostico(3, 1, 4);
    Sviluppa();
    ScriviFile(sistema.FileColonne(), "");
    EXPECT_TRUE(Salva(sFile));
    EXPECT_EQ(LeggiFile(sFile).size(), 317);
}

TEST_F(OrdavelSistema, SalvareNonToccaLUltimoSviluppo)
{
    Pronostico(3, 1, 4);
    sistema.GetGridCond().Riga(1) = {"Peso", "Caselle :\r\n1-2-3", "6-7", "-", " "};
    Sviluppa();
    const auto aPrima = sistema.UltimoSviluppo().aCondizioni;
    ASSERT_EQ(aPrima.at(0).ContaOk, 2);
    EXPECT_TRUE(Salva(sFile));
    EXPECT_EQ(sistema.UltimoSviluppo().aCondizioni, aPrima);
}

TEST_F(OrdavelSistema, SiSalvanoTutteLeCondizioniFinoAllaPrimaRigaVuota)
{
    for (const std::int32_t nRiga : {1, 2, 3, 5}) {
        sistema.GetGridCond().Riga(nRiga) = {"Cadenze", "Cadenze", "1-2", "", " "};
    }
    EXPECT_TRUE(Salva(sFile));
    const ParteSistema parte = Parte(sFile);
    EXPECT_EQ(parte.aCondizioni.size(), 3);
    EXPECT_EQ(parte.aCondizioni.at(2).Tipo, TipoCondizione::cadenze);
}

} // namespace
} // namespace ordavel
