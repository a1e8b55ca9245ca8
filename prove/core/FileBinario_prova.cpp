// FileBinario_prova.cpp - files as raw bytes.

#include "core/FileBinario.hpp"

#include "comune/CartellaProva.hpp"
#include "comune/Fallimenti.hpp"
#include "comune/SenzaPrivilegi.hpp"
#include "core/ModFunzGeneriche.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/stat.h>
#include <vector>

namespace ordavel {
namespace {

using prove::CartellaProva;
using prove::LeggiFile;
using prove::NumeroErrore;
using prove::ScriviFile;
using prove::SenzaPrivilegi;

std::optional<int> ErroreApertura(const std::string& sPath, eApertura apertura)
{
    return NumeroErrore([&] { const FileBinario file(sPath, apertura); });
}

std::span<const std::byte> Byte(std::string_view sTesto)
{
    return std::as_bytes(std::span(sTesto));
}

/// What Leggi leaves in a buffer of nQuanti marks.
std::string Letti(FileBinario& file, std::int64_t nPosizione, std::size_t nQuanti)
{
    std::string sTesto(nQuanti, '#');
    file.Leggi(nPosizione, std::as_writable_bytes(std::span(sTesto)));
    return sTesto;
}

/// Bytes whose value depends on the whole position, so that a shifted copy shows.
std::string Campione(std::size_t nByte)
{
    std::string sTesto(nByte, '\0');
    for (std::size_t i = 0; i < nByte; ++i) {
        sTesto[i] = static_cast<char>((i ^ (i >> 8U) ^ (i >> 16U)) & 0xFFU);
    }
    return sTesto;
}

/// No file may pass nByte bytes while it lives: a disk that fills up.
class DiscoPiccolo {
public:
    explicit DiscoPiccolo(rlim_t nByte) : m_Segnale(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_Prima);
        rlimit limite = m_Prima;
        limite.rlim_cur = nByte;
        m_bRiuscito = setrlimit(RLIMIT_FSIZE, &limite) == 0;
    }
    DiscoPiccolo(const DiscoPiccolo&) = delete;
    DiscoPiccolo& operator=(const DiscoPiccolo&) = delete;
    ~DiscoPiccolo()
    {
        setrlimit(RLIMIT_FSIZE, &m_Prima);
        std::signal(SIGXFSZ, m_Segnale);
    }

    [[nodiscard]] bool Riuscito() const { return m_bRiuscito; }

private:
    void (*m_Segnale)(int);
    rlimit m_Prima{};
    bool m_bRiuscito = false;
};

// --- opening

TEST(FileBinario, UnFileMancanteDa53)
{
    const CartellaProva cartella;
    EXPECT_EQ(ErroreApertura(cartella / "manca.dat", eApertura::lettura), 53);
    EXPECT_FALSE(FileEsiste(cartella / "manca.dat"));
    EXPECT_EQ(ErroreApertura("", eApertura::lettura), 53);
}

TEST(FileBinario, UnaCartellaMancanteDa76)
{
    const CartellaProva cartella;
    EXPECT_EQ(ErroreApertura(cartella / "manca/a.dat", eApertura::lettura), 76);
    EXPECT_EQ(ErroreApertura(cartella / "manca/a.dat", eApertura::scrittura), 76);
}

TEST(FileBinario, UnFileAlPostoDellaCartellaDa76)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "file", "x");
    EXPECT_EQ(ErroreApertura(cartella / "file/a.dat", eApertura::lettura), 76);
    EXPECT_EQ(ErroreApertura(cartella / "file/a.dat", eApertura::scrittura), 76);
}

TEST(FileBinario, QuelCheNonEUnFileDa75)
{
    const CartellaProva cartella;
    const std::string sCoda = cartella / "coda";
    ASSERT_EQ(mkfifo(sCoda.c_str(), 0600), 0);
    for (const std::string& sPath :
         {cartella / "", sCoda, std::string("/dev/null"), std::string("/dev/full")}) {
        EXPECT_EQ(ErroreApertura(sPath, eApertura::lettura), 75) << sPath;
        EXPECT_EQ(ErroreApertura(sPath, eApertura::scrittura), 75) << sPath;
    }
}

TEST(FileBinario, UnFileDiAltriDa70)
{
    const CartellaProva cartella;
    const std::string sPath = cartella / "chiuso.dat";
    ScriviFile(sPath, "x");
    std::filesystem::permissions(sPath, std::filesystem::perms::none);
    const SenzaPrivilegi senza;
    if (!senza.Riuscito()) {
        // Root without the right to change users: no permission would stop it.
        GTEST_SKIP() << "the user cannot be changed here";
    }
    EXPECT_EQ(ErroreApertura(sPath, eApertura::lettura), 70);
    EXPECT_EQ(ErroreApertura(sPath, eApertura::scrittura), 70);
}

TEST(FileBinario, IlFallimentoDiceIlPercorso)
{
    const CartellaProva cartella;
    const std::string sPath = cartella / "manca.dat";
    try {
        const FileBinario file(sPath, eApertura::lettura);
        FAIL();
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.Descrizione(), "File non trovato: " + sPath);
    }
}

TEST(FileBinario, LaScritturaCreaIlFileCheManca)
{
    const CartellaProva cartella;
    FileBinario file(cartella / "nuovo.dat", eApertura::scrittura);
    EXPECT_EQ(file.Lunghezza(), 0);
    file.Chiudi();
    EXPECT_TRUE(FileEsiste(cartella / "nuovo.dat"));
}

TEST(FileBinario, LaScritturaConservaIlFileCheCE)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "abcdef");
    FileBinario file(cartella / "a.dat", eApertura::scrittura);
    EXPECT_EQ(file.Lunghezza(), 6);
    file.Chiudi();
    EXPECT_EQ(LeggiFile(cartella / "a.dat"), "abcdef");
}

// --- reading

TEST(FileBinario, LePosizioniPartonoDaUno)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "abcdef");
    FileBinario file(cartella / "a.dat", eApertura::lettura);
    EXPECT_EQ(Letti(file, 1, 2), "ab");
    EXPECT_EQ(Letti(file, 6, 1), "f");
    EXPECT_EQ(Letti(file, 3, 3), "cde");
}

TEST(FileBinario, UnaPosizioneSottoUnoFallisce)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "abcdef");
    FileBinario file(cartella / "a.dat", eApertura::scrittura);
    for (const std::int64_t nPosizione : {std::int64_t{0}, std::int64_t{-5}}) {
        EXPECT_EQ(NumeroErrore([&] { (void)Letti(file, nPosizione, 1); }), 57);
        EXPECT_EQ(NumeroErrore([&] { file.Scrivi(nPosizione, Byte("x")); }), 57);
    }
    file.Chiudi();
    EXPECT_EQ(LeggiFile(cartella / "a.dat"), "abcdef");
}

TEST(FileBinario, UnaLetturaCortaDiceQuantiByteEConservaGliAltri)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "abcdef");
    FileBinario file(cartella / "a.dat", eApertura::lettura);
    std::string sTesto(4, '#');
    EXPECT_EQ(file.Leggi(5, std::as_writable_bytes(std::span(sTesto))), 2U);
    EXPECT_EQ(sTesto, "ef##");
    EXPECT_EQ(file.Leggi(7, std::as_writable_bytes(std::span(sTesto))), 0U);
    EXPECT_EQ(file.Leggi(700, std::as_writable_bytes(std::span(sTesto))), 0U);
    EXPECT_EQ(sTesto, "ef##");
    EXPECT_EQ(Letti(file, 1, 6), "abcdef");
}

TEST(FileBinario, LeggereNessunByteNonEUnFallimento)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "");
    FileBinario file(cartella / "a.dat", eApertura::lettura);
    EXPECT_EQ(file.Leggi(1, {}), 0U);
}

// --- writing

TEST(FileBinario, LaScritturaToccaSoloISuoiByte)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "abcdef");
    FileBinario file(cartella / "a.dat", eApertura::scrittura);
    file.Scrivi(3, Byte("XY"));
    EXPECT_EQ(Letti(file, 1, 6), "abXYef");
    file.Chiudi();
    EXPECT_EQ(LeggiFile(cartella / "a.dat"), "abXYef");
}

TEST(FileBinario, OltreLaFineIlVuotoEDiZeri)
{
    const CartellaProva cartella;
    FileBinario file(cartella / "a.dat", eApertura::scrittura);
    file.Scrivi(4, Byte("X"));
    EXPECT_EQ(file.Lunghezza(), 4);
    file.Chiudi();
    EXPECT_EQ(LeggiFile(cartella / "a.dat"), std::string("\0\0\0X", 4));
}

TEST(FileBinario, AccodaScriveDietroLUltimoByte)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "abc");
    FileBinario file(cartella / "a.dat", eApertura::scrittura);
    EXPECT_EQ(Letti(file, 1, 1), "a");
    file.Accoda(Byte("de"));
    file.Accoda(Byte("f"));
    EXPECT_EQ(file.Lunghezza(), 6);
    file.Chiudi();
    EXPECT_EQ(LeggiFile(cartella / "a.dat"), "abcdef");
}

TEST(FileBinario, UnFileApertoInLetturaNonSiScrive)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "abc");
    FileBinario file(cartella / "a.dat", eApertura::lettura);
    EXPECT_EQ(NumeroErrore([&] { file.Scrivi(1, Byte("X")); }), 57);
    EXPECT_EQ(NumeroErrore([&] { file.Accoda(Byte("X")); }), 57);
    EXPECT_EQ(LeggiFile(cartella / "a.dat"), "abc");
}

TEST(FileBinario, ChiudereDueVolteNonEUnFallimento)
{
    const CartellaProva cartella;
    FileBinario file(cartella / "a.dat", eApertura::scrittura);
    file.Accoda(Byte("abc"));
    file.Chiudi();
    EXPECT_EQ(NumeroErrore([&] { file.Chiudi(); }), std::nullopt);
}

TEST(FileBinario, LaFineDellaVitaChiudeIlFile)
{
    const CartellaProva cartella;
    {
        FileBinario file(cartella / "a.dat", eApertura::scrittura);
        file.Accoda(Byte("abc"));
    }
    EXPECT_EQ(LeggiFile(cartella / "a.dat"), "abc");
}

TEST(FileBinario, UnDiscoPienoDa61)
{
    const CartellaProva cartella;
    std::optional<int> nPochi;
    std::optional<int> nTanti;
    bool bRiuscito = false;
    {
        const DiscoPiccolo disco(100);
        bRiuscito = disco.Riuscito();
        nPochi = NumeroErrore([&] { // the bytes wait until the file is closed
            FileBinario file(cartella / "pochi.dat", eApertura::scrittura);
            file.Accoda(Byte(std::string(101, 'x')));
            file.Chiudi();
        });
        nTanti = NumeroErrore([&] { // they do not wait
            FileBinario file(cartella / "tanti.dat", eApertura::scrittura);
            file.Accoda(Byte(std::string(100000, 'x')));
        });
    }
    ASSERT_TRUE(bRiuscito);
    EXPECT_EQ(nPochi, 61);
    EXPECT_EQ(nTanti, 61);
}

RC_GTEST_PROP(FileBinario, LeScrittureMiscelateDannoIlModello, ())
{
    const CartellaProva cartella;
    FileBinario file(cartella / "a.dat", eApertura::scrittura);
    std::string sModello;
    const auto nOperazioni = *rc::gen::inRange(0, 12);
    for (int i = 0; i < nOperazioni; ++i) {
        const auto sByte = *rc::gen::nonEmpty(rc::gen::string<std::string>());
        const auto nPosizione = *rc::gen::inRange<std::size_t>(1, sModello.size() + 20);
        if (*rc::gen::arbitrary<bool>()) {
            file.Accoda(Byte(sByte));
            sModello += sByte;
        } else {
            file.Scrivi(static_cast<std::int64_t>(nPosizione), Byte(sByte));
            sModello.resize(std::max(sModello.size(), nPosizione - 1 + sByte.size()), '\0');
            sModello.replace(nPosizione - 1, sByte.size(), sByte);
        }
        RC_ASSERT(Letti(file, 1, sModello.size()) == sModello);
        RC_ASSERT(file.Lunghezza() == static_cast<std::int64_t>(sModello.size()));
    }
    file.Chiudi();
    RC_ASSERT(LeggiFile(cartella / "a.dat") == sModello);
}

// --- copying

TEST(FileBinario, CopiaBloccoSuperaIlConfineDi10485760Byte)
{
    constexpr std::size_t kBlocco = 10485760;
    const CartellaProva cartella;
    const std::string sOrigine = Campione(kBlocco + 5);
    ScriviFile(cartella / "a.dat", sOrigine);
    for (const std::size_t nByte : {kBlocco - 1, kBlocco, kBlocco + 1, kBlocco + 3}) {
        ScriviFile(cartella / "b.dat", "testa");
        FileBinario origine(cartella / "a.dat", eApertura::lettura);
        FileBinario destinazione(cartella / "b.dat", eApertura::scrittura);
        CopiaBlocco(origine, 3, static_cast<std::int64_t>(nByte), destinazione);
        destinazione.Chiudi();
        EXPECT_TRUE(LeggiFile(cartella / "b.dat") == "testa" + sOrigine.substr(2, nByte)) << nByte;
    }
}

TEST(FileBinario, CopiareNessunByteNonCambiaNulla)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "abc");
    FileBinario origine(cartella / "a.dat", eApertura::lettura);
    FileBinario destinazione(cartella / "b.dat", eApertura::scrittura);
    CopiaBlocco(origine, 1, 0, destinazione);
    CopiaBlocco(origine, 1, -7, destinazione);
    EXPECT_EQ(destinazione.Lunghezza(), 0);
}

TEST(FileBinario, UnOrigineCheFinisceDa57)
{
    const CartellaProva cartella;
    ScriviFile(cartella / "a.dat", "abc");
    FileBinario origine(cartella / "a.dat", eApertura::lettura);
    FileBinario destinazione(cartella / "b.dat", eApertura::scrittura);
    EXPECT_EQ(NumeroErrore([&] { CopiaBlocco(origine, 1, 4, destinazione); }), 57);
    EXPECT_EQ(NumeroErrore([&] { CopiaBlocco(origine, 2, std::int64_t{1} << 60, destinazione); }), 57);
    EXPECT_EQ(destinazione.Lunghezza(), 0);
}

} // namespace
} // namespace ordavel
