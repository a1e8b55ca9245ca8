// sviluppo.cpp - any bytes as a system, developed by the plain form and by the block form: all that they leave is alike.
//
// The bytes are read as fixed pieces, and what is missing is 0, so that a byte changed changes one thing. Values are
// those that a compilation gives, and others: numbers of kinds, of groups and of positions that there are not, a
// modulus of 0, steps that stand still.

#include "Pretende.hpp"
#include "core/FileBinario.hpp"
#include "core/ModProcessore.hpp"
#include "motore/ModSviluppo.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace ordavel;
using fuzz::Pretende;

constexpr std::size_t kCondizioni = 12;
constexpr std::size_t kCondizioniLunga = 2; ///< of a run of many columns
constexpr std::size_t kGruppi = 4;
constexpr std::size_t kNumeriEstratti = 12;
constexpr std::size_t kRigheMassime = 24;

/// How many picks a class has at most: in a run of some hundred columns, and in one with refreshes on its way.
struct Scelti {
    std::size_t nBreve;
    std::size_t nLunga;
};
constexpr std::array<Scelti, 11> kScelti{
    {{}, {}, {90, 90}, {20, 68}, {13, 26}, {12, 20}, {12, 18}, {12, 17}, {12, 17}, {12, 17}, {13, 17}}};

/// The bytes, one after the other; zeros behind the last.
class Lettore {
public:
    explicit Lettore(std::span<const std::uint8_t> aDati) : m_aDati(aDati) {}

    std::uint8_t Byte()
    {
        if (m_aDati.empty()) {
            return 0;
        }
        const std::uint8_t nByte = m_aDati.front();
        m_aDati = m_aDati.subspan(1);
        return nByte;
    }
    std::size_t Sotto(std::size_t nFine) { return Byte() % nFine; }
    std::int16_t Corto() { return static_cast<std::int8_t>(Byte()); }
    std::int16_t Parola()
    {
        const unsigned nBasso = Byte();
        return static_cast<std::int16_t>(nBasso | static_cast<unsigned>(Byte()) << 8U);
    }

private:
    std::span<const std::uint8_t> m_aDati;
};

/// What a run is made of.
struct Corsa {
    std::int16_t nClasse = 0;
    std::int16_t nLimite = 0;
    int nStop = 0; ///< event at which the user stops, 0 for none
    NumeriScelti aNumeri;
    StatoSviluppo stato;
};

/// What stands in a list: flags, the parities of a pattern, or numbers as they come.
enum class eElenco : std::uint8_t { segni, parita, valori };

template <typename Elenco> void LeggiElenco(Lettore& dati, eElenco forma, Elenco& elenco)
{
    std::uint8_t nByte = 0;
    for (std::size_t i = 0; i < elenco.aElementi.size(); ++i) {
        nByte = i % 8 == 0 ? dati.Byte() : nByte;
        const int nBit = nByte >> (i % 8) & 1;
        const int nValore = forma == eElenco::parita ? nBit : (nByte + static_cast<int>(i)) % 7;
        elenco.aElementi[i] =
            forma == eElenco::segni ? ComeBooleano(nBit != 0) : static_cast<std::int16_t>(nValore);
    }
}

/// A range: where it begins, and how long it is.
void LeggiRange(Lettore& dati, std::int32_t& nMinimo, std::int32_t& nMassimo)
{
    nMinimo = dati.Parola();
    nMassimo = nMinimo + dati.Parola();
}

RecordCondizione LeggiCondizione(Lettore& dati)
{
    RecordCondizione record;
    record.Tipo = static_cast<TipoCondizione>(static_cast<int>(dati.Sotto(kTipiCondizione + 3)) - 1);
    const std::uint8_t nModo = dati.Byte();
    record.IdRecupero = static_cast<std::int16_t>(static_cast<int>(dati.Sotto(kGruppiRecupero + 4)) - 1);
    record.Parametro = (nModo & 1U) != 0 ? dati.Parola() : dati.Corto();
    record.Passo = dati.Corto();
    LeggiRange(dati, record.OkMin, record.OkMax);
    LeggiRange(dati, record.RecMin, record.RecMax);
    for (FlagPunti* elenco : {&record.PuntiOk, &record.PuntiRec, &record.PuntiOk2, &record.PuntiRec2}) {
        LeggiElenco(dati, (nModo & 2U) != 0 ? eElenco::valori : eElenco::segni, *elenco);
    }
    const bool bSchema = record.Tipo == TipoCondizione::sequenze;
    const eElenco consueto = bSchema ? eElenco::parita : eElenco::segni;
    LeggiElenco(dati, (nModo & 4U) != 0 ? eElenco::valori : consueto, record.Numeri);
    return record;
}

NumeriScelti LeggiNumeri(Lettore& dati, std::size_t nQuanti)
{
    std::set<int> aScelti;
    while (aScelti.size() < nQuanti) {
        int nNumero = static_cast<int>(dati.Sotto(kNumeroMassimo));
        while (!aScelti.insert(nNumero + 1).second) {
            nNumero = (nNumero + 1) % kNumeroMassimo;
        }
    }
    NumeriScelti aNumeri;
    std::int16_t nPosto = 0;
    for (const int nNumero : aScelti) {
        aNumeri(++nPosto) = static_cast<std::int16_t>(nNumero);
    }
    return aNumeri;
}

RigheEmulatore LeggiEstrazioni(Lettore& dati, std::size_t nRighe)
{
    std::vector<RigaEmulatore> aRighe(nRighe);
    for (RigaEmulatore& aRiga : aRighe) {
        for (std::size_t i = 0; i < kNumeriEstratti; ++i) {
            aRiga(static_cast<int>(dati.Sotto(kNumeroMassimo)) + 1) = 1;
        }
    }
    return RigheEmulatore(std::move(aRighe));
}

void LeggiQuadro(Lettore& dati, QuadroRecuperi& aQuadro)
{
    for (std::size_t g = 1; g <= kGruppi; ++g) {
        const std::int16_t nAttiva = dati.Corto();
        const std::int16_t nMinimo = dati.Corto();
        aQuadro(static_cast<int>(g)) = {nAttiva, nMinimo, static_cast<std::int16_t>(nMinimo + dati.Corto())};
    }
}

Corsa LeggiCorsa(Lettore dati)
{
    Corsa corsa;
    const std::size_t nClasse = kClasseMinima + dati.Sotto(kClasseMassima - kClasseMinima + 1);
    corsa.nClasse = static_cast<std::int16_t>(nClasse);
    const bool bLunga = dati.Sotto(32) == 1;
    const std::size_t nMassimi = bLunga ? kScelti[nClasse].nLunga : kScelti[nClasse].nBreve;
    const std::size_t nScelti = nClasse + dati.Sotto(nMassimi - nClasse + 1);
    corsa.nLimite = static_cast<std::int16_t>(static_cast<int>(dati.Sotto(nClasse + 3)) - 1);
    corsa.nStop = static_cast<int>(dati.Sotto(4));
    const std::size_t nCondizioni = dati.Sotto((bLunga ? kCondizioniLunga : kCondizioni) + 1);
    const std::size_t nRighe = dati.Sotto(kRigheMassime + 1);
    LeggiQuadro(dati, corsa.stato.aQuadroRec);
    if (nCondizioni > 0) {
        corsa.stato.aCondizioni.clear();
    }
    for (std::size_t i = 0; i < nCondizioni; ++i) {
        corsa.stato.aCondizioni.push_back(LeggiCondizione(dati));
    }
    corsa.stato.nCondizioni = static_cast<std::int32_t>(corsa.stato.aCondizioni.size());
    corsa.aNumeri = LeggiNumeri(dati, nScelti);
    corsa.stato.aEmulatore = LeggiEstrazioni(dati, nRighe);
    return corsa;
}

/// One refresh, or the end.
struct Mostrato {
    std::int32_t nSviluppate;
    std::int32_t nCondizionate;
    std::int16_t nPercentuale;

    friend bool operator==(const Mostrato&, const Mostrato&) = default;
};

/// The user's side, who stops at an event.
class Utente : public Avanzamento {
public:
    Utente(StatoSviluppo& stato, int nStop) : m_Stato(stato), m_nStop(nStop) {}

    void Mostra(std::int32_t nSviluppate, std::int32_t nCondizionate, std::int16_t nPercentuale) override
    {
        aMostrati.push_back({nSviluppate, nCondizionate, nPercentuale});
    }
    void LasciaEventi() override { m_Stato.bStopSviluppo = ++nEventi == m_nStop; }
    void MostraFallimento(std::string_view /*sOrigine*/, const Errore& /*errore*/) override {}

    std::vector<Mostrato> aMostrati;
    int nEventi = 0;

private:
    StatoSviluppo& m_Stato;
    int m_nStop;
};

/// A file that lives in memory, emptied for each run.
class FileInMemoria {
public:
    FileInMemoria() : m_nFile(memfd_create("colonne", MFD_CLOEXEC)) {}
    FileInMemoria(const FileInMemoria&) = delete;
    FileInMemoria& operator=(const FileInMemoria&) = delete;
    ~FileInMemoria() { close(m_nFile); }

    void Svuota() const { Pretende(ftruncate(m_nFile, 0) == 0, "il file si svuota"); }
    [[nodiscard]] std::string Path() const { return "/proc/self/fd/" + std::to_string(m_nFile); }
    [[nodiscard]] std::vector<Colonna> Colonne() const
    {
        std::vector<Colonna> aColonne(static_cast<std::size_t>(lseek(m_nFile, 0, SEEK_END) / kByteColonna));
        const auto aByte = std::as_writable_bytes(std::span(aColonne));
        Pretende(pread(m_nFile, aByte.data(), aByte.size(), 0) == static_cast<ssize_t>(aByte.size()),
                 "le colonne si rileggono");
        return aColonne;
    }

private:
    int m_nFile;
};

/// All that a run leaves.
struct Lasciato {
    std::vector<Colonna> aColonne;
    std::vector<RecordCondizione> aCondizioni;
    std::vector<Mostrato> aMostrati;
    int nEventi = 0;
    std::int32_t nSviluppate = 0;
    std::int32_t nCondizionate = 0;
    std::optional<Errore> errore;
};

Lasciato Esegui(const Corsa& corsa, std::optional<eNucleo> nucleo)
{
    static const FileInMemoria memoria;
    memoria.Svuota();
    StatoSviluppo stato = corsa.stato;
    Utente utente(stato, corsa.nStop);
    Lasciato lasciato;
    FileBinario file(memoria.Path(), eApertura::scrittura);
    try {
        SviluppaColonne(corsa.aNumeri, corsa.nClasse, corsa.nLimite, file, stato, utente, nucleo);
    } catch (const Errore& errore) {
        lasciato.errore = errore;
    }
    file.Chiudi();
    lasciato.aColonne = memoria.Colonne();
    lasciato.aCondizioni = std::move(stato.aCondizioni);
    lasciato.aMostrati = std::move(utente.aMostrati);
    lasciato.nEventi = utente.nEventi;
    lasciato.nSviluppate = stato.nSviluppate;
    lasciato.nCondizionate = stato.nCondizionate;
    return lasciato;
}

bool StessoErrore(const std::optional<Errore>& a, const std::optional<Errore>& b)
{
    return a.has_value() == b.has_value() &&
           (!a || (a->Numero() == b->Numero() && a->Descrizione() == b->Descrizione()));
}

void Prova(const Corsa& corsa)
{
    const Lasciato piano = Esegui(corsa, std::nullopt);
    for (int n = 0; n <= static_cast<int>(CercaNucleo()); ++n) {
        const Lasciato blocchi = Esegui(corsa, static_cast<eNucleo>(n));
        Pretende(StessoErrore(blocchi.errore, piano.errore), "lo stesso fallimento");
        Pretende(blocchi.nSviluppate == piano.nSviluppate, "le stesse colonne esaminate");
        Pretende(blocchi.nCondizionate == piano.nCondizionate, "le stesse colonne tenute");
        Pretende(blocchi.aColonne == piano.aColonne, "lo stesso file");
        Pretende(blocchi.aCondizioni == piano.aCondizioni, "gli stessi record");
        Pretende(blocchi.aMostrati == piano.aMostrati, "gli stessi aggiornamenti");
        Pretende(blocchi.nEventi == piano.nEventi, "gli stessi eventi");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aDati, std::size_t nDati)
{
    Prova(LeggiCorsa(Lettore(std::span(aDati, nDati))));
    return 0;
}
