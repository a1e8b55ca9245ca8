// TorvanSvilSist_prova.cpp - the module from outside: its symbols, its files, its failures, its stop.

#include "comune/CartellaProva.hpp"
#include "comune/RecordProva.hpp"
#include "condizioni/ModCompila.hpp"
#include "motore/CorsaCasuale.hpp"
#include "motore/CorsaProva.hpp"
#include "persistenza/ModFileSistema.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <memory>
#include <set>
#include <sstream>
#include <sys/resource.h>
#include <thread>

namespace ordavel {
namespace {

using prove::CartellaProva;
using prove::Corsa;
using enum TipoCondizione;
using namespace std::chrono_literals;

/// The loaded module.
class Modulo {
public:
    Modulo() : m_Libreria(dlopen(ORDAVEL_TORVANSVILSIST, RTLD_NOW | RTLD_LOCAL))
    {
        EXPECT_NE(m_Libreria, nullptr) << dlerror();
        Prendi(m_Init, "InitSviluppo");
        Prendi(m_Sviluppate, "GetSviluppate");
        Prendi(m_Condizionate, "GetCondizionate");
        Prendi(m_Stop, "StopSviluppo");
    }
    Modulo(const Modulo&) = delete;
    Modulo& operator=(const Modulo&) = delete;
    ~Modulo() { dlclose(m_Libreria); }

    [[nodiscard]] int Init(std::string sCartella, std::string sSistema, std::string sEmulatore) const
    {
        return m_Init(sCartella.data(), sSistema.data(), sEmulatore.data());
    }
    [[nodiscard]] int InitNullo() const { return m_Init(nullptr, nullptr, nullptr); }
    [[nodiscard]] double Sviluppate() const { return m_Sviluppate(); }
    [[nodiscard]] double Condizionate() const { return m_Condizionate(); }
    void Stop() const { m_Stop(); }

private:
    template <typename Funzione> void Prendi(Funzione& funzione, const char* sNome)
    {
        funzione = reinterpret_cast<Funzione>(dlsym(m_Libreria, sNome));
        EXPECT_NE(funzione, nullptr) << sNome;
    }

    void* m_Libreria;
    int (*m_Init)(char*, char*, char*) = nullptr;
    double (*m_Sviluppate)() = nullptr;
    double (*m_Condizionate)() = nullptr;
    void (*m_Stop)() = nullptr;
};

/// A variable of the environment, for as long as it lives.
class Fili {
public:
    explicit Fili(const std::string& sFili) { setenv("ORDAVEL_THREADS", sFili.c_str(), 1); }
    Fili(const Fili&) = delete;
    Fili& operator=(const Fili&) = delete;
    ~Fili() { unsetenv("ORDAVEL_THREADS"); }
};

/// A folder with the files of one system.
class Banco {
public:
    explicit Banco(const Corsa& corsa, int nRiduzione = 0)
    {
        ParteSistema parte;
        parte.nClasse = static_cast<std::int16_t>(corsa.nClasse);
        parte.nRiduzione = static_cast<std::int16_t>(nRiduzione);
        for (const int n : corsa.aScelti) {
            parte.aNumeri[n] = kVero;
        }
        parte.aQuadroRec = corsa.aQuadro;
        const auto aByte = ComponiParteSistema(parte, corsa.aCondizioni);
        prove::ScriviFile(Sistema(), {reinterpret_cast<const char*>(aByte.data()), aByte.size()});
        const auto& aRighe = corsa.aEmulatore.Righe();
        prove::ScriviFile(Emulatore(), {reinterpret_cast<const char*>(aRighe.data()),
                                        aRighe.size() * sizeof(RigaEmulatore)});
    }

    [[nodiscard]] int Sviluppa(bool bEmulatore = true) const
    {
        return m_Modulo.Init(m_Cartella / "", Sistema(), bEmulatore ? Emulatore() : "-");
    }
    [[nodiscard]] std::string Sistema() const { return m_Cartella / "Sviluppo.sic"; }
    [[nodiscard]] std::string Emulatore() const { return m_Cartella / "Emulatore.dat"; }
    [[nodiscard]] std::string Colonne() const { return m_Cartella / "Sviluppo.col"; }
    [[nodiscard]] std::string Motivo() const { return prove::LeggiFile(m_Cartella / "Sviluppo.err"); }
    [[nodiscard]] bool Fallito() const { return FileEsiste(m_Cartella / "Sviluppo.err"); }
    [[nodiscard]] ParteSistema Parte() const
    {
        FileBinario file(Sistema(), eApertura::lettura);
        return LeggiParteSistema(file).value();
    }
    [[nodiscard]] const Modulo& M() const { return m_Modulo; }

private:
    CartellaProva m_Cartella;
    Modulo m_Modulo;
};

Corsa Piccola(std::vector<RecordCondizione> aCondizioni = {RecordCondizione{}})
{
    Corsa corsa;
    corsa.aScelti = prove::Fila(1, 12);
    corsa.nClasse = 4;
    corsa.aCondizioni = std::move(aCondizioni);
    return corsa;
}

/// One that takes a while: the columns of 90 numbers in class 9, hardly any of which passes.
Corsa Lunga()
{
    Corsa corsa = Piccola({prove::Lista(simmetrieNum, {4}), prove::Lista(paralleliNum, {4})});
    corsa.aScelti = prove::Fila(1, 90);
    corsa.nClasse = 9;
    return corsa;
}

std::string Stampa(const std::string& sComando)
{
    struct Chiudi {
        void operator()(std::FILE* file) const { pclose(file); }
    };
    const std::unique_ptr<std::FILE, Chiudi> tubo(popen(sComando.c_str(), "r"));
    std::string sTutto;
    std::array<char, 256> aByte{};
    while (tubo && std::fgets(aByte.data(), aByte.size(), tubo.get()) != nullptr) {
        sTutto += aByte.data();
    }
    return sTutto;
}

TEST(TorvanSvilSist, QuattroFunzioniENientAltro)
{
    std::istringstream righe(Stampa("nm -D --defined-only " ORDAVEL_TORVANSVILSIST));
    std::set<std::string> aNomi;
    for (std::string sIndirizzo, sTipo, sNome; righe >> sIndirizzo >> sTipo >> sNome;) {
        aNomi.insert(sTipo.append(" ").append(sNome));
    }
    EXPECT_EQ(aNomi, (std::set<std::string>{"T GetCondizionate", "T GetSviluppate", "T InitSviluppo",
                                            "T StopSviluppo"}));
}

/// The results of a record, and nothing else.
auto Risultati(const RecordCondizione& r)
{
    return std::tuple(r.ContaOk, r.ContaKo, r.ContaRec, r.Valore, r.Valore2, r.Esito, r.EsitoRec,
                      r.EsitoLink);
}

RC_GTEST_PROP(TorvanSvilSist, ComeIlMotoreInterno, ())
{
    Corsa corsa = prove::CorsaCasuale(12);
    if (prove::UnaVoltaSu(4)) {
        prove::Guasta(corsa.aCondizioni);
    }
    const int nRiduzione = prove::Tra(0, 5);
    const Fili fili(std::to_string(*rc::gen::element(1, 2, 3, 8)));
    const Banco banco(corsa, nRiduzione);
    const ParteSistema prima = banco.Parte();
    const int nErrore = banco.Sviluppa();

    prove::CorsaProva interna(corsa.aCondizioni);
    interna.stato.aQuadroRec = corsa.aQuadro;
    interna.stato.aEmulatore = corsa.aEmulatore;
    EstendiRecuperiSequenze(interna.stato.aCondizioni);
    std::vector<Colonna> aColonne;
    const auto nAtteso = prove::NumeroErrore(
        [&] { aColonne = interna.Sviluppa(corsa.aScelti, corsa.nClasse, corsa.nClasse - nRiduzione); });
    RC_ASSERT(nErrore == nAtteso.value_or(0));
    RC_ASSERT(banco.Fallito() == nAtteso.has_value());
    RC_ASSERT(prove::ColonneDelFile(banco.Colonne()) == aColonne);
    ParteSistema dopo = banco.Parte();
    for (std::size_t i = 0; i < dopo.aCondizioni.size(); ++i) {
        RC_ASSERT(Risultati(dopo.aCondizioni[i]) == Risultati(interna.stato.aCondizioni[i]));
    }
    if (!nAtteso) {
        RC_ASSERT(banco.M().Sviluppate() == interna.stato.nSviluppate);
        RC_ASSERT(banco.M().Condizionate() == interna.stato.nCondizionate);
    }
    // Nothing but the results has changed.
    for (std::size_t i = 0; i < dopo.aCondizioni.size(); ++i) {
        RecordCondizione& r = dopo.aCondizioni[i];
        std::tie(r.ContaOk, r.ContaKo, r.ContaRec, r.Valore, r.Valore2, r.Esito, r.EsitoRec, r.EsitoLink) =
            Risultati(prima.aCondizioni[i]);
    }
    RC_ASSERT(dopo == prima);
}

TEST(TorvanSvilSist, DueVolteDiSeguitoComeUna)
{
    const Banco banco(Piccola({prove::Dispari({2}), prove::Sequenza({1, 0}, {1}, {0, 2})}));
    ASSERT_EQ(banco.Sviluppa(false), 0);
    const std::string sColonne = prove::LeggiFile(banco.Colonne());
    const std::string sSistema = prove::LeggiFile(banco.Sistema());
    ASSERT_EQ(banco.Sviluppa(false), 0);
    EXPECT_EQ(prove::LeggiFile(banco.Colonne()), sColonne + sColonne);
    EXPECT_EQ(prove::LeggiFile(banco.Sistema()), sSistema);
}

TEST(TorvanSvilSist, SenzaCondizioniPassanoTutte)
{
    const Banco banco(Piccola({}));
    ASSERT_EQ(banco.Sviluppa(false), 0);
    EXPECT_EQ(prove::ColonneDelFile(banco.Colonne()).size(), 495U);
    EXPECT_EQ(banco.M().Sviluppate(), 495);
    EXPECT_EQ(banco.M().Condizionate(), 495);
    EXPECT_EQ(DimensioneFile(banco.Sistema()), 317);
}

TEST(TorvanSvilSist, SenzaFileDellEmulatoreUnaEstrazioneVuota)
{
    RecordCondizione record;
    record.Tipo = emulatore;
    record.PuntiOk(0) = record.PuntiRec(0) = 1; // one draw, without a hit
    const Banco banco(Piccola({record}));
    std::filesystem::remove(banco.Emulatore());
    ASSERT_EQ(banco.Sviluppa(true), 0);
    ASSERT_EQ(banco.Sviluppa(false), 0);
    EXPECT_EQ(banco.M().Condizionate(), 495);
    EXPECT_EQ(banco.Parte().aCondizioni[0].ContaOk, 495);
}

TEST(TorvanSvilSist, UnFallimentoSiRacconta)
{
    RecordCondizione record = prove::ConParametro(prove::Lista(resto, {1, 2}), 15);
    const Banco banco(Piccola({prove::Passa(), record}));
    EXPECT_EQ(banco.Sviluppa(false), 9);
    EXPECT_NE(banco.Motivo().find("9- "), std::string::npos) << banco.Motivo();
    // Sums of 10 come first: 1 2 3 4 is the one column that is measured whole.
    EXPECT_EQ(banco.Parte().aCondizioni[0].ContaOk, 2);
    EXPECT_EQ(banco.Parte().aCondizioni[1].ContaKo, 1);
}

TEST(TorvanSvilSist, UnaCorsaBuonaToglieIlMotivoDiPrima)
{
    const Banco banco(Piccola());
    prove::ScriviFile(CartellaDi(banco.Colonne()) + "Sviluppo.err", "vecchio");
    EXPECT_EQ(banco.Sviluppa(false), 0);
    EXPECT_FALSE(banco.Fallito());
}

TEST(TorvanSvilSist, FileCheMancanoOGuasti)
{
    const Banco banco(Piccola());
    EXPECT_EQ(banco.M().InitNullo(), 5);
    const std::string sCartella = CartellaDi(banco.Colonne());
    prove::ScriviFile(sCartella + "corto.sic", std::string(316, 'x'));
    EXPECT_EQ(banco.M().Init(sCartella, sCartella + "corto.sic", "-"), 9);
    prove::ScriviFile(sCartella + "vuoto.dat", "");
    EXPECT_EQ(banco.M().Init(sCartella, banco.Sistema(), sCartella + "vuoto.dat"), 9);
    EXPECT_TRUE(banco.Fallito());
    EXPECT_EQ(banco.M().Init(sCartella + "manca", banco.Sistema(), "-"), 76);
    EXPECT_EQ(banco.M().Init(sCartella, sCartella, "-"), 75);
    EXPECT_EQ(banco.M().Init(sCartella, sCartella + "manca.sic", "-"), 53);
    EXPECT_FALSE(FileEsiste(sCartella + "manca.sic"));
}

TEST(TorvanSvilSist, LaCartellaAncheSenzaSeparatore)
{
    const Banco banco(Piccola());
    std::string sCartella = CartellaDi(banco.Colonne());
    sCartella.pop_back();
    EXPECT_EQ(banco.M().Init(sCartella, banco.Sistema(), "-"), 0);
    EXPECT_EQ(prove::ColonneDelFile(banco.Colonne()).size(), 495U);
}

TEST(TorvanSvilSist, UnNumeroDiFiliSbagliatoNonFermaNiente)
{
    for (const char* sFili : {"0", "-1", "molti", "257", "2x", "99999999999"}) {
        const Fili fili(sFili);
        const Banco banco(Piccola());
        EXPECT_EQ(banco.Sviluppa(false), 0) << sFili;
    }
}

/// A limit to the length of files, for as long as it lives.
class LimiteFile {
public:
    explicit LimiteFile(rlim_t nByte)
    {
        m_Segnale = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_Prima);
        const rlimit nuovo{nByte, m_Prima.rlim_max};
        setrlimit(RLIMIT_FSIZE, &nuovo);
    }
    LimiteFile(const LimiteFile&) = delete;
    LimiteFile& operator=(const LimiteFile&) = delete;
    ~LimiteFile()
    {
        setrlimit(RLIMIT_FSIZE, &m_Prima);
        std::signal(SIGXFSZ, m_Segnale);
    }

private:
    rlimit m_Prima{};
    void (*m_Segnale)(int);
};

TEST(TorvanSvilSist, UnDiscoPienoLasciaColonneIntere)
{
    Corsa corsa = Piccola();
    corsa.aScelti = prove::Fila(1, 40);
    const Banco intero(corsa);
    ASSERT_EQ(intero.Sviluppa(false), 0);
    const Banco banco(corsa);
    int nErrore = 0;
    {
        const LimiteFile limite(450007);
        nErrore = banco.Sviluppa(false);
    }
    EXPECT_NE(nErrore, 0);
    const auto aTutte = prove::ColonneDelFile(intero.Colonne());
    const auto aColonne = prove::ColonneDelFile(banco.Colonne());
    EXPECT_EQ(DimensioneFile(banco.Colonne()) % kByteColonna, 0);
    EXPECT_GE(aColonne.size(), 20000U);
    EXPECT_LT(aColonne.size(), aTutte.size());
    EXPECT_TRUE(std::equal(aColonne.begin(), aColonne.end(), aTutte.begin()));
    EXPECT_TRUE(banco.Fallito());
}

TEST(TorvanSvilSist, LoStopArrivaSubito)
{
    const Banco banco(Lunga());
    std::chrono::steady_clock::time_point stop;
    double nPrima = 0;
    std::jthread filo([&] {
        while (banco.M().Sviluppate() < 1000000) {
            std::this_thread::sleep_for(1ms);
        }
        nPrima = banco.M().Sviluppate();
        stop = std::chrono::steady_clock::now();
        banco.M().Stop();
    });
    EXPECT_EQ(banco.Sviluppa(false), 0);
    const auto fine = std::chrono::steady_clock::now();
    filo.join();
    const auto durata = fine - stop;
    EXPECT_LT(durata, 1s); // a tenth is what it takes on a machine that does nothing else
    EXPECT_GE(banco.M().Sviluppate(), nPrima);
    const ParteSistema parte = banco.Parte();
    EXPECT_EQ(parte.aCondizioni[0].ContaOk + parte.aCondizioni[0].ContaKo, banco.M().Sviluppate());
    EXPECT_FALSE(banco.Fallito());
    // The next run begins anew.
    const Banco altro(Piccola());
    EXPECT_EQ(altro.Sviluppa(false), 0);
    EXPECT_EQ(altro.M().Sviluppate(), 495);
}

TEST(TorvanSvilSist, UnaSecondaCorsaMentreUnaAndaSiRifiuta)
{
    const Banco banco(Lunga());
    const Banco altro(Piccola());
    int nSecondo = 0;
    std::jthread filo([&] {
        while (banco.M().Sviluppate() < 1000000) {
            std::this_thread::sleep_for(1ms);
        }
        nSecondo = altro.Sviluppa(false);
        banco.M().Stop();
    });
    EXPECT_EQ(banco.Sviluppa(false), 0);
    filo.join();
    EXPECT_EQ(nSecondo, 70);
    EXPECT_FALSE(FileEsiste(altro.Colonne()));
}

} // namespace
} // namespace ordavel
