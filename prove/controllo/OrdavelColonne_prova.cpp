// OrdavelColonne_prova.cpp - the working column file: counted, read, saved elsewhere.

#include "ordavel/Ordavel.hpp"

#include "comune/SenzaPrivilegi.hpp"
#include "controllo/SistemaProva.hpp"
#include "core/FileBinario.hpp"

#include <gtest/gtest.h>

namespace ordavel {
namespace {

using prove::Avviso;
using prove::ByteDi;
using prove::ColonnaDi;
using prove::DialogoFile;
using prove::Fallimento;
using prove::LeggiFile;
using prove::ScriviFile;
using prove::ScriviFileRado;
using testing::ElementsAre;
using testing::IsEmpty;

class OrdavelColonne : public testing::Test, protected prove::SistemaProva {
protected:
    void FileDiLavoro(std::string_view sByte) { ScriviFile(sistema.FileColonne(), sByte); }

    /// All columns; the array is handed over full, so that what it held must go.
    std::vector<Colonna> Tutte()
    {
        std::vector<Colonna> aColonne(7, ColonnaDi({9, 9}).colonna);
        EXPECT_FALSE(sistema.GetColonneSviluppo(aColonne));
        return aColonne;
    }

    /// Asks where to save the columns; the user chooses sFile.
    bool SalvaColonne(const std::string& sFile)
    {
        piattaforma.Scegli(sFile);
        return sistema.SalvaFileColonne();
    }

    const std::string sTre = ByteDi({{3, 11, 90}, {1, 2, 3}, {1, 2, 4}});
};

TEST_F(OrdavelColonne, LaQuantitaSiArrotondaAlPari)
{
    EXPECT_EQ(sistema.QuantitaColonne(), 0);
    for (const auto& [nByte, nColonne] : {std::pair{0, 0}, {10, 0}, {11, 1}, {50, 2}, {60, 3}, {70, 4}}) {
        FileDiLavoro(std::string(static_cast<std::size_t>(nByte), '\1'));
        EXPECT_EQ(sistema.QuantitaColonne(), nColonne) << nByte;
    }
}

TEST_F(OrdavelColonne, UnaQuantitaOltreI32BitSiMostraComeFallimento)
{
    ScriviFileRado(sistema.FileColonne(), 20ULL << 31);
    EXPECT_EQ(sistema.QuantitaColonne(), 0);
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("OrdavelSisG.QuantitaColonne", Errore(eErrore::overflow))));
}

TEST_F(OrdavelColonne, SenzaColonneCeUnaColonnaVuota)
{
    EXPECT_THAT(Tutte(), ElementsAre(Colonna{}));
    FileDiLavoro("");
    EXPECT_THAT(Tutte(), ElementsAre(Colonna{}));
}

TEST_F(OrdavelColonne, MezzaColonnaNonEUnaColonna)
{
    FileDiLavoro(std::string(10, '\1'));
    EXPECT_THAT(Tutte(), ElementsAre(Colonna{}));
}

TEST_F(OrdavelColonne, TutteLeColonneSiLeggonoInOrdine)
{
    FileDiLavoro(sTre);
    EXPECT_THAT(Tutte(), ElementsAre(ColonnaDi({3, 11, 90}).colonna, ColonnaDi({1, 2, 3}).colonna,
                                     ColonnaDi({1, 2, 4}).colonna));
}

TEST_F(OrdavelColonne, LUltimaColonnaATrattiTieneCioCheCe)
{
    FileDiLavoro(sTre + std::string(11, '\5'));
    const auto aColonne = Tutte();
    ASSERT_EQ(aColonne.size(), 4);
    EXPECT_EQ(aColonne[3], ColonnaDi(std::vector<int>(11, 5)).colonna);
    FileDiLavoro(sTre.substr(0, 50)); // two and a half round to two
    EXPECT_EQ(Tutte().size(), 2);
}

TEST_F(OrdavelColonne, UnMilioneDiColonneSiLeggeSenzaAvviso)
{
    ScriviFileRado(sistema.FileColonne(), 20'000'000);
    EXPECT_EQ(Tutte().size(), 1'000'000);
}

TEST_F(OrdavelColonne, OltreUnMilioneSiAvvisaESiTronca)
{
    ScriviFileRado(sistema.FileColonne(), 20'000'020);
    EXPECT_EQ(Tutte().size(), 1'000'000);
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Avviso("Le colonne da controllare superano il limite massimo gestibile di "
                                   "1000000 e verranno troncate")));
}

TEST_F(OrdavelColonne, UnFileCheNonSiPuoLeggereSiMostra)
{
    FileDiLavoro(sTre);
    std::filesystem::permissions(sistema.FileColonne(), std::filesystem::perms::none);
    {
        const prove::SenzaPrivilegi senza;
        if (!senza.Riuscito()) {
            // Without the right to change users nobody can be kept from reading.
            GTEST_SKIP() << "i permessi non si possono provare qui";
        }
        EXPECT_THAT(Tutte(), ElementsAre(Colonna{}));
    }
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("OrdavelSisG.GetColonneSviluppo",
                                       Errore(eErrore::permesso, sistema.FileColonne()))));
}

TEST_F(OrdavelColonne, UnaColonnaSiLeggeComeTesto)
{
    FileDiLavoro(sTre);
    EXPECT_EQ(sistema.GetColonnaSviluppo(1), "03 11 90");
    EXPECT_EQ(sistema.GetColonnaSviluppo(3), "01 02 04");
}

TEST_F(OrdavelColonne, OltreLaFineIlTestoEVuotoSenzaProteste)
{
    FileDiLavoro(sTre);
    for (const std::int32_t nId : {4, 107374183, 107374184, std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(sistema.GetColonnaSviluppo(nId), "") << nId;
    }
}

TEST_F(OrdavelColonne, PrimaDellaPrimaColonnaNonCeNulla)
{
    FileDiLavoro(sTre);
    FileBinario file(sistema.FileColonne(), eApertura::lettura);
    for (const std::int32_t nId : {0, -1}) {
        EXPECT_EQ(sistema.GetColonnaSviluppo(nId), "");
        EXPECT_EQ(sistema.GetColonnaSviluppoFromFile(nId, file), "");
    }
    const Messaggio fallimento = Fallimento("OrdavelSisG.GetColonnaSviluppo", Errore(eErrore::dispositivo));
    EXPECT_EQ(piattaforma.Messaggi(), std::vector<Messaggio>(4, fallimento));
}

TEST_F(OrdavelColonne, SenzaFileDiLavoroLaColonnaMancaESiDice)
{
    EXPECT_EQ(sistema.GetColonnaSviluppo(1), "");
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("OrdavelSisG.GetColonnaSviluppo",
                                       Errore(eErrore::fileNonTrovato, sistema.FileColonne()))));
}

TEST_F(OrdavelColonne, DaUnFileApertoSiLeggonoPiuColonne)
{
    ScriviFile(cartella / "altro.col", sTre);
    FileBinario file(cartella / "altro.col", eApertura::lettura);
    EXPECT_EQ(sistema.GetColonnaSviluppoFromFile(2, file), "01 02 03");
    EXPECT_EQ(sistema.GetColonnaSviluppoFromFile(1, file), "03 11 90");
    EXPECT_EQ(sistema.GetColonnaSviluppoFromFile(4, file), "");
}

TEST_F(OrdavelColonne, UnPostoOltreI32BitInUnFileApertoSiMostraComeFallimento)
{
    FileDiLavoro(sTre);
    FileBinario file(sistema.FileColonne(), eApertura::lettura);
    EXPECT_EQ(sistema.GetColonnaSviluppoFromFile(107374183, file), "");
    EXPECT_THAT(piattaforma.Messaggi(), IsEmpty());
    for (const std::int32_t nId : {107374184, std::numeric_limits<std::int32_t>::min()}) {
        EXPECT_EQ(sistema.GetColonnaSviluppoFromFile(nId, file), "");
        EXPECT_THAT(piattaforma.Messaggi(),
                    ElementsAre(Fallimento("OrdavelSisG.GetColonnaSviluppo", Errore(eErrore::overflow))));
    }
}

TEST_F(OrdavelColonne, SalvareChiedeIlNomeECopia)
{
    FileDiLavoro(sTre);
    ScriviFile(cartella / "b.col", "un file di prima, più lungo delle tre colonne che prendono il suo posto");
    EXPECT_TRUE(SalvaColonne(cartella / "b.col"));
    EXPECT_THAT(piattaforma.Dialoghi(),
                ElementsAre(DialogoFile{.bSalva = true,
                                        .richiesta = {.sTitolo = "Salva colonne",
                                                      .sFiltro = "File colonne (*.col)|*.col",
                                                      .sEstensione = ".col",
                                                      .sNomeFile = "NuovoSistema.col",
                                                      .sCartella = cartella / "salvate/"}}));
    EXPECT_EQ(LeggiFile(cartella / "b.col"), sTre);
    EXPECT_EQ(ByteColonne(), sTre);
}

TEST_F(OrdavelColonne, IlNomeProposteEQuelloDelSistema)
{
    FileDiLavoro(sTre);
    const std::string sSistema = cartella / "sistemi/mio.primo.sic";
    ASSERT_TRUE(Salva(sSistema));
    ASSERT_TRUE(Apri(sSistema));
    (void)piattaforma.Dialoghi();
    EXPECT_FALSE(SalvaColonne(""));
    EXPECT_EQ(piattaforma.Dialoghi().at(0).richiesta.sNomeFile, "mio.primo.col");
}

TEST_F(OrdavelColonne, RinunciareNonCopiaNulla)
{
    FileDiLavoro(sTre);
    EXPECT_FALSE(SalvaColonne(""));
    EXPECT_TRUE(std::filesystem::is_empty(cartella / "salvate"));
    EXPECT_EQ(ByteColonne(), sTre);
}

TEST_F(OrdavelColonne, SalvateSulFileDiLavoroVannoPerseESiDice)
{
    FileDiLavoro(sTre);
    EXPECT_FALSE(SalvaColonne(sistema.FileColonne()));
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("OrdavelSisG.SalvaFileColonne",
                                       Errore(eErrore::fileNonTrovato, sistema.FileColonne()))));
    EXPECT_FALSE(std::filesystem::exists(sistema.FileColonne()));
}

TEST_F(OrdavelColonne, SenzaFileDiLavoroSiDiceQualeManca)
{
    EXPECT_FALSE(SalvaColonne(cartella / "b.col"));
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("OrdavelSisG.SalvaFileColonne",
                                       Errore(eErrore::fileNonTrovato, sistema.FileColonne()))));
}

TEST_F(OrdavelColonne, SuUnaCartellaNonSiSalva)
{
    FileDiLavoro(sTre);
    EXPECT_FALSE(SalvaColonne(cartella / "salvate"));
    EXPECT_THAT(piattaforma.Messaggi(),
                ElementsAre(Fallimento("ModFunzGeneriche.KillFile",
                                       Errore(eErrore::accessoPercorso, cartella / "salvate"))));
}

TEST_F(OrdavelColonne, InUnaCartellaCheNonCeNonSiSalva)
{
    FileDiLavoro(sTre);
    const std::string sFile = cartella / "manca/b.col";
    EXPECT_FALSE(SalvaColonne(sFile));
    EXPECT_THAT(piattaforma.Messaggi(), ElementsAre(Fallimento("OrdavelSisG.SalvaFileColonne",
                                                               Errore(eErrore::fileNonTrovato, sFile))));
}

} // namespace
} // namespace ordavel
