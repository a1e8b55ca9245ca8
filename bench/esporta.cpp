// esporta.cpp - how fast columns are written as text, beside what reading and writing alone take.
//
// One million columns of class 5: 20 MB to read, 16 MB to write. All files stand in one folder of the system's
// temporary one.

#include "ordavel/Ordavel.hpp"

#include "comune/CartellaProva.hpp"
#include "core/FileBinario.hpp"

#include <benchmark/benchmark.h>

#include <memory>
#include <span>
#include <string>

namespace ordavel {
namespace {

constexpr int kColonne = 1000000;
constexpr std::size_t kByteRiga = 16;
constexpr std::size_t kRigheBuffer = 1000;

class SenzaStatistica : public Statistica {
public:
    void Avvia() override {}
    void Ferma() override {}
    void MostraStatistica(std::int32_t, std::int16_t) override {}
};

/// A desktop where nobody sits, and whose answer is always the same file.
class SenzaDesktop : public Piattaforma {
public:
    explicit SenzaDesktop(std::string sFile) : m_sFile(std::move(sFile)) {}

    eRisposta MostraMessaggio(const Messaggio&) override { return eRisposta::no; }
    std::string DialogoApri(const RichiestaFile&) override { return {}; }
    std::string DialogoSalva(const RichiestaFile&) override { return m_sFile; }
    std::string ScegliCartella(const std::string&) override { return {}; }
    void MostraModale(Dialogo&) override {}
    std::unique_ptr<Statistica> CreaStatistica() override { return std::make_unique<SenzaStatistica>(); }
    void LasciaEventi() override {}
    void PuntatoreOccupato(bool) override {}
    float SecondiDaMezzanotte() override { return 0; }

private:
    std::string m_sFile;
};

/// The bytes of the columns, no two neighbours alike.
std::string ByteColonne()
{
    std::string sByte;
    for (int n = 0; n < kColonne; ++n) {
        Colonna colonna;
        for (int i = 1; i <= 5; ++i) {
            colonna[i] = static_cast<std::uint8_t>((i - 1) * 18 + (n >> i) % 18 + 1);
        }
        sByte.append(colonna.aNumeri.begin(), colonna.aNumeri.end());
    }
    return sByte;
}

void ScriviColonne(const std::string& sFile)
{
    const std::string sByte = ByteColonne();
    FileBinario file(sFile, eApertura::scrittura);
    file.Accoda(std::as_bytes(std::span(sByte)));
    file.Chiudi();
}

/// A line whose file has not the length that it should is an error.
void Concludi(benchmark::State& giri, const std::string& sFile, std::uintmax_t nByte)
{
    giri.SetItemsProcessed(giri.iterations() * kColonne);
    if (std::filesystem::file_size(sFile) != nByte) {
        giri.SkipWithError("i byte non tornano");
    }
}

void EsportaUnMilione(benchmark::State& giri)
{
    const prove::CartellaProva cartella;
    const std::string sTesto = cartella / "colonne.txt";
    SenzaDesktop desktop(sTesto);
    Ordavel sistema(desktop);
    sistema.PoniPercorsoTemp(cartella / "temp");
    ScriviColonne(sistema.FileColonne());
    for (auto _ : giri) {
        benchmark::DoNotOptimize(sistema.SalvaFileColonneTesto());
    }
    Concludi(giri, sTesto, kColonne * kByteRiga);
}

void CopiaLeColonne(benchmark::State& giri)
{
    const prove::CartellaProva cartella;
    const std::string sColonne = cartella / "colonne.col";
    const std::string sCopia = cartella / "copia.col";
    ScriviColonne(sColonne);
    for (auto _ : giri) {
        std::filesystem::remove(sCopia);
        FileBinario origine(sColonne, eApertura::lettura);
        FileBinario copia(sCopia, eApertura::scrittura);
        CopiaBlocco(origine, 1, origine.Lunghezza(), copia);
        copia.Chiudi();
    }
    Concludi(giri, sCopia, kColonne * std::uintmax_t{kByteColonna});
}

/// The same text over and over, in writes of as many lines.
void ScriviSoltantoIlTesto(benchmark::State& giri)
{
    const prove::CartellaProva cartella;
    const std::string sTesto = cartella / "colonne.txt";
    const std::string sBuffer(kRigheBuffer * kByteRiga, 'x');
    for (auto _ : giri) {
        std::filesystem::remove(sTesto);
        FileBinario testo(sTesto, eApertura::scrittura);
        for (std::size_t n = 0; n < kColonne / kRigheBuffer; ++n) {
            testo.Accoda(std::as_bytes(std::span(sBuffer)));
        }
        testo.Chiudi();
    }
    Concludi(giri, sTesto, kColonne * kByteRiga);
}

BENCHMARK(EsportaUnMilione)->Unit(benchmark::kMillisecond);
BENCHMARK(CopiaLeColonne)->Unit(benchmark::kMillisecond);
BENCHMARK(ScriviSoltantoIlTesto)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace ordavel
