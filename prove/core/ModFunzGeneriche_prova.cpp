// ModFunzGeneriche_prova.cpp - files, folders and paths.

#include "core/ModFunzGeneriche.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/SenzaPrivilegi.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cerrno>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace ordavel {
namespace {

namespace fs = std::filesystem;

using prove::CartellaProva;
using prove::LeggiFile;
using prove::ScriviFile;
using prove::SegnalatoreProva;
using prove::SenzaPrivilegi;

/// KillFile with no box expected.
bool CancellaInSilenzio(const std::string& sPath)
{
    SegnalatoreProva segnalatore;
    const bool bRiuscito = KillFile(sPath, segnalatore);
    return bRiuscito && segnalatore.aMostrati.empty();
}

/// The box that KillFile shows; an empty one when it shows none or does not fail.
SegnalatoreProva::Mostrato BoxDiKillFile(const std::string& sPath)
{
    SegnalatoreProva segnalatore;
    const bool bRiuscito = KillFile(sPath, segnalatore);
    return bRiuscito || segnalatore.aMostrati.size() != 1 ? SegnalatoreProva::Mostrato{}
                                                          : segnalatore.aMostrati.front();
}

/// Names in a folder.
std::set<std::string> Nomi(const CartellaProva& cartella)
{
    std::set<std::string> aNomi;
    for (const auto& voce : fs::directory_iterator(cartella / "")) {
        aNomi.insert(voce.path().filename().string());
    }
    return aNomi;
}

void RiempiCon(const CartellaProva& cartella, const std::vector<std::string>& aNomi)
{
    for (const std::string& sNome : aNomi) {
        ScriviFile(cartella / sNome, "x");
    }
}

/// Does a name match a pattern? Told by recursion on the first sign of the pattern.
bool CorrispondeRicorsivo(std::string_view sNome, std::string_view sModello)
{
    if (sModello.empty()) {
        return sNome.empty();
    }
    if (sModello[0] == '*') {
        return CorrispondeRicorsivo(sNome, sModello.substr(1)) ||
               (!sNome.empty() && CorrispondeRicorsivo(sNome.substr(1), sModello));
    }
    return !sNome.empty() && (sModello[0] == '?' || sModello[0] == sNome[0]) &&
           CorrispondeRicorsivo(sNome.substr(1), sModello.substr(1));
}

// --- failures of the system

TEST(ModFunzGeneriche, GliErroriDelSistemaHannoIlLoroNumero)
{
    const std::vector<std::pair<int, int>> aCoppie{
        {ENOENT, 53}, {ENOTDIR, 76}, {ENAMETOOLONG, 76}, {ENOSPC, 61}, {EFBIG, 61}, {EACCES, 70},
        {EPERM, 70},  {EROFS, 70},   {EISDIR, 75},       {ENOMEM, 7},  {EIO, 57},   {0, 57},
    };
    for (const auto& [nErrno, nNumero] : aCoppie) {
        EXPECT_EQ(static_cast<int>(ErroreDiSistema(nErrno, "a").Numero()), nNumero) << nErrno;
    }
    EXPECT_EQ(ErroreDiSistema(ENOSPC, "/dati/a").Descrizione(), "Disco pieno: /dati/a");
}

// --- files

TEST(ModFunzGeneriche, EsistonoFileECartelle)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "");
    EXPECT_TRUE(FileEsiste(cartella / "a.dat"));
    EXPECT_TRUE(FileEsiste(cartella / ""));
    EXPECT_FALSE(FileEsiste(cartella / "b.dat"));
    EXPECT_FALSE(FileEsiste(cartella / "a.dat/b"));
    EXPECT_FALSE(FileEsiste(""));
}

TEST(ModFunzGeneriche, LaDimensioneDiUnFileMancanteEZero)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", std::string(12345, 'x'));
    EXPECT_EQ(DimensioneFile(cartella / "a.dat"), 12345);
    EXPECT_EQ(DimensioneFile(cartella / "b.dat"), 0);
    EXPECT_EQ(DimensioneFile(cartella / ""), 0);
}

TEST(ModFunzGeneriche, LaDimensionePassaIDueGigabyte)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "");
    ASSERT_EQ(truncate((cartella / "a.dat").c_str(), off_t{5} << 30U), 0); // a hole: no byte on the disk
    EXPECT_EQ(DimensioneFile(cartella / "a.dat"), std::int64_t{5} << 30U);
}

// --- deletion

TEST(ModFunzGeneriche, KillFileCancellaIlFileESoloQuello)
{
    const CartellaProva cartella;
    RiempiCon(cartella, {"a.dat", "b.dat"});
    EXPECT_TRUE(CancellaInSilenzio(cartella / "a.dat"));
    EXPECT_EQ(Nomi(cartella), std::set<std::string>{"b.dat"});
}

TEST(ModFunzGeneriche, KillFileDiNullaTace)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "file", "x");
    for (const std::string_view sNome : {"a.dat", "*.dat", "manca/a.dat", "manca/*.dat", "file/a.dat"}) {
        EXPECT_TRUE(CancellaInSilenzio(cartella / sNome)) << sNome;
    }
    EXPECT_TRUE(CancellaInSilenzio(""));
    EXPECT_EQ(Nomi(cartella), std::set<std::string>{"file"});
}

TEST(ModFunzGeneriche, KillFileConAsteriscoCancellaPerModello)
{
    const CartellaProva cartella;
    RiempiCon(cartella, {"a.tmp", "b.tmp", "c.tmpx", "tmp", ".tmp", "a.dat"});
    EXPECT_TRUE(CancellaInSilenzio(cartella / "*.tmp"));
    EXPECT_EQ(Nomi(cartella), (std::set<std::string>{"c.tmpx", "tmp", "a.dat"}));
}

TEST(ModFunzGeneriche, IlPuntoInterrogativoValeUnCarattere)
{
    const CartellaProva cartella;
    RiempiCon(cartella, {"Col1.dat", "Col12.dat", "Col.dat", "Col1.da"});
    EXPECT_TRUE(CancellaInSilenzio(cartella / "Col?.*t"));
    EXPECT_EQ(Nomi(cartella), (std::set<std::string>{"Col12.dat", "Col.dat", "Col1.da"}));
}

TEST(ModFunzGeneriche, SenzaAsteriscoIlPuntoInterrogativoEUnNome)
{
    const CartellaProva cartella;
    RiempiCon(cartella, {"a?", "ab"});
    EXPECT_TRUE(CancellaInSilenzio(cartella / "a?"));
    EXPECT_EQ(Nomi(cartella), std::set<std::string>{"ab"});
}

TEST(ModFunzGeneriche, IlModelloSaltaLeCartelle)
{
    const CartellaProva cartella;
    fs::create_directory(cartella / "d.tmp");
    RiempiCon(cartella, {"a.tmp", "d.tmp/dentro.tmp"});
    EXPECT_TRUE(CancellaInSilenzio(cartella / "*.tmp"));
    EXPECT_EQ(Nomi(cartella), std::set<std::string>{"d.tmp"});
    EXPECT_TRUE(FileEsiste(cartella / "d.tmp/dentro.tmp"));
}

TEST(ModFunzGeneriche, KillFileCancellaUnFileDiSolaLettura)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "x");
    fs::permissions(cartella / "a.dat", fs::perms::owner_read);
    EXPECT_TRUE(CancellaInSilenzio(cartella / "a.dat"));
    EXPECT_FALSE(FileEsiste(cartella / "a.dat"));
}

TEST(ModFunzGeneriche, KillFileToglieGliAttributiPrimaDiCancellare)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "x");
    fs::create_hard_link(cartella / "a.dat", cartella / "altro.dat"); // the same file under a second name
    fs::permissions(cartella / "a.dat", fs::perms::owner_read);
    EXPECT_TRUE(CancellaInSilenzio(cartella / "a.dat"));
    EXPECT_EQ(fs::status(cartella / "altro.dat").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST(ModFunzGeneriche, DiUnCollegamentoSiCancellaSoloIlNome)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "vero.dat", "x");
    fs::permissions(cartella / "vero.dat", fs::perms::owner_read);
    fs::create_symlink("vero.dat", cartella / "nome.dat");
    fs::create_symlink("manca.dat", cartella / "rotto.dat");
    EXPECT_TRUE(CancellaInSilenzio(cartella / "nome.dat"));
    EXPECT_TRUE(CancellaInSilenzio(cartella / "rotto.dat"));
    EXPECT_EQ(Nomi(cartella), std::set<std::string>{"vero.dat"});
    EXPECT_EQ(fs::status(cartella / "vero.dat").permissions(), fs::perms::owner_read);
}

TEST(ModFunzGeneriche, UnaCartellaNonSiCancellaESiMostra75)
{
    const CartellaProva cartella;
    fs::create_directory(cartella / "vuota");
    const auto box = BoxDiKillFile(cartella / "vuota");
    EXPECT_EQ(box.sOrigine, "ModFunzGeneriche.KillFile");
    EXPECT_EQ(box.nNumero, 75);
    EXPECT_EQ(box.sTesto, "75- Percorso non accessibile come file: " + (cartella / "vuota"));
    EXPECT_TRUE(FileEsiste(cartella / "vuota"));
}

TEST(ModFunzGeneriche, UnDispositivoNonSiCancella)
{
    const CartellaProva cartella;
    const std::string sCoda = cartella / "coda";
    ASSERT_EQ(mkfifo(sCoda.c_str(), 0600), 0);
    EXPECT_EQ(BoxDiKillFile(sCoda).nNumero, 75);
    EXPECT_EQ(BoxDiKillFile(cartella / "co*").nNumero, 75);
    EXPECT_TRUE(FileEsiste(sCoda));
}

TEST(ModFunzGeneriche, InUnaCartellaChiusaKillFileMostra70)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "x");
    fs::permissions(cartella / "", fs::perms::owner_write | fs::perms::others_write,
                    fs::perm_options::remove);
    SegnalatoreProva::Mostrato box;
    SegnalatoreProva::Mostrato boxModello;
    {
        const SenzaPrivilegi senza;
        if (!senza.Riuscito()) {
            // Root without the right to change users: no permission would stop it.
            GTEST_SKIP() << "the user cannot be changed here";
        }
        box = BoxDiKillFile(cartella / "a.dat");
        boxModello = BoxDiKillFile(cartella / "*.dat");
    }
    fs::permissions(cartella / "", fs::perms::owner_write, fs::perm_options::add);
    EXPECT_EQ(box.sTesto, "70- Permesso negato: " + (cartella / "a.dat"));
    EXPECT_EQ(boxModello.nNumero, 70);
    EXPECT_TRUE(FileEsiste(cartella / "a.dat"));
}

RC_GTEST_PROP(ModFunzGeneriche, IlModelloSegueLaDefinizioneRicorsiva, ())
{
    const auto lettere = [](std::size_t nMassimo, auto... aLettere) {
        return rc::gen::mapcat(rc::gen::inRange<std::size_t>(1, nMassimo), [=](std::size_t nLettere) {
            return rc::gen::container<std::string>(nLettere, rc::gen::element(aLettere...));
        });
    };
    const auto sNome = *lettere(8, 'a', 'b');
    const std::string sModello = *lettere(6, 'a', 'b', '?', '*') + "*" + *lettere(3, 'a', '?', '*');
    const CartellaProva cartella;
    ScriviFile(cartella / sNome, "x");
    RC_ASSERT(CancellaInSilenzio(cartella / sModello));
    RC_ASSERT(FileEsiste(cartella / sNome) == !CorrispondeRicorsivo(sNome, sModello));
}

// --- folders

TEST(ModFunzGeneriche, CreaPercorsoFaTutteLeCartelle)
{
    const CartellaProva cartella;
    EXPECT_TRUE(CreaPercorso(cartella / "uno/due/tre"));
    EXPECT_TRUE(fs::is_directory(cartella / "uno/due/tre"));
    EXPECT_TRUE(CreaPercorso(cartella / "quattro/cinque/"));
    EXPECT_TRUE(fs::is_directory(cartella / "quattro/cinque"));
}

TEST(ModFunzGeneriche, CreaPercorsoPassaSopraQuelCheCE)
{
    const CartellaProva cartella;
    ASSERT_TRUE(CreaPercorso(cartella / "uno"));
    ScriviFile(cartella / "uno/a.dat", "x");
    EXPECT_TRUE(CreaPercorso(cartella / "uno"));
    EXPECT_TRUE(CreaPercorso(cartella / "uno/due"));
    EXPECT_EQ(LeggiFile(cartella / "uno/a.dat"), "x");
}

TEST(ModFunzGeneriche, CreaPercorsoSiFermaDavantiAUnFile)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "file", "x");
    EXPECT_FALSE(CreaPercorso(cartella / "file"));
    EXPECT_FALSE(CreaPercorso(cartella / "file/due"));
    EXPECT_FALSE(CreaPercorso(""));
}

// --- parts of a path

TEST(ModFunzGeneriche, UnPercorsoSiDivideAllUltimoSeparatore)
{
    EXPECT_EQ(CartellaDi("/dati/2024/a.col"), "/dati/2024/");
    EXPECT_EQ(NomeDi("/dati/2024/a.col"), "a.col");
    EXPECT_EQ(CartellaDi("a.col"), "");
    EXPECT_EQ(NomeDi("a.col"), "a.col");
    EXPECT_EQ(CartellaDi("/dati/"), "/dati/");
    EXPECT_EQ(NomeDi("/dati/"), "");
    EXPECT_EQ(CartellaDi(""), "");
    EXPECT_EQ(NomeDi(""), "");
}

TEST(ModFunzGeneriche, LEstensioneSiTagliaAllUltimoPunto)
{
    EXPECT_EQ(SenzaEstensione("a.b.col"), "a.b");
    EXPECT_EQ(SenzaEstensione("a"), "a");
    EXPECT_EQ(SenzaEstensione("a."), "a");
    EXPECT_EQ(SenzaEstensione(".col"), "");
    EXPECT_EQ(SenzaEstensione(""), "");
}

TEST(ModFunzGeneriche, IlSeparatoreSiAggiungeUnaVoltaSola)
{
    EXPECT_EQ(ConSeparatore("/dati"), "/dati/");
    EXPECT_EQ(ConSeparatore("/dati/"), "/dati/");
    EXPECT_EQ(ConSeparatore("/"), "/");
    EXPECT_EQ(ConSeparatore(""), "");
}

RC_GTEST_PROP(ModFunzGeneriche, CartellaENomeRifannoIlPercorso, ())
{
    const auto sPath = *rc::gen::container<std::string>(rc::gen::element('/', '.', 'a', 'b'));
    RC_ASSERT(CartellaDi(sPath) + NomeDi(sPath) == sPath);
    RC_ASSERT(NomeDi(sPath).find('/') == std::string::npos);
    RC_ASSERT(ConSeparatore(CartellaDi(sPath)) == CartellaDi(sPath));
}

} // namespace
} // namespace ordavel
