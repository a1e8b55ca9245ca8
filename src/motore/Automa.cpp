// Automa.cpp - states, steps and rows, made when they are first asked for.

#include "motore/Automa.hpp"

#include "motore/ModVerifica.hpp"

#include <algorithm>

namespace ordavel {

namespace {

constexpr unsigned kBitDati = 4; ///< a length, 0 to 10

Maschera Oppure(Maschera a, Maschera b) noexcept
{
    return {a.nAlta | b.nAlta, a.nBassa | b.nBassa};
}

} // namespace

Automa::Automa(const RecordCondizione& record, std::int16_t nClasse, std::span<const std::uint8_t> aScelti,
               const StatoSviluppo& stato, std::size_t nByte)
    : m_nClasse(nClasse),
      m_Forma(FormaChiave(record.Tipo)),
      m_nByteMassimi(nByte),
      m_aScelti(aScelti.begin(), aScelti.end())
{
    m_Prova.aCondizioni = {record};
    if (record.Tipo == TipoCondizione::emulatore) {
        m_Prova.aEmulatore = stato.aEmulatore;
    }
    StatoDi({});
}

/// The place from which numbers may follow a state.
std::size_t Automa::PrimoPosto(const Stato& stato) const
{
    if (!ConUltimo(m_Forma) || stato.nDati == 0) {
        return 0;
    }
    const auto ultimo = std::ranges::upper_bound(m_aScelti, stato.inizio[stato.nDati]);
    return static_cast<std::size_t>(ultimo - m_aScelti.begin());
}

std::uint32_t Automa::StatoDi(const Stato& stato)
{
    const std::uint64_t nChiave = ChiaveDi(m_Prova.aCondizioni[0], stato.nDati, stato.inizio);
    const auto nNuovo = static_cast<std::uint32_t>(m_aStati.size());
    const auto [voce, bNuovo] =
        m_aPerChiave.try_emplace(nChiave << kBitDati | static_cast<std::uint64_t>(stato.nDati), nNuovo);
    if (bNuovo) {
        m_nByte += sizeof(Stato) + sizeof(Verdetti) + m_aScelti.size() * sizeof(std::uint32_t);
        m_aStati.push_back(stato);
        m_aPassi.resize(m_aPassi.size() + m_aScelti.size(), kIgnoto);
        m_aRighe.push_back(nullptr);
        m_aVerdetti.push_back(nullptr);
    }
    return voce->second;
}

std::uint32_t Automa::NuovoPasso(std::uint32_t nStato, std::size_t nPosto)
{
    Stato dopo = m_aStati[nStato];
    dopo.inizio[++dopo.nDati] = m_aScelti[nPosto];
    const std::uint32_t nDopo = StatoDi(dopo);
    m_aPassi[nStato * m_aScelti.size() + nPosto] = nDopo;
    return nDopo;
}

/// Verdicts of the plain form for each last number from a place on.
Automa::Verdetti Automa::Giudica(const Stato& stato, std::size_t nDa)
{
    Verdetti verdetti;
    Colonna colonna = stato.inizio;
    RecordCondizione& record = m_Prova.aCondizioni[0];
    for (std::size_t x = nDa; x < m_aScelti.size(); ++x) {
        colonna[m_nClasse] = m_aScelti[x];
        const Maschera bit = BitDelPosto(m_aScelti.size(), x);
        record.EsitoRec = kFalso;
        try {
            ValutaCondizioni(m_nClasse, colonna, m_Prova);
        } catch (const Errore&) {
            // Whether the run comes to this column is not known here: whoever asks for the row has it judged apart.
            verdetti.rotti = Oppure(verdetti.rotti, bit);
            continue;
        }
        verdetti.ok = record.Esito != kFalso ? Oppure(verdetti.ok, bit) : verdetti.ok;
        verdetti.rec = record.EsitoRec != kFalso ? Oppure(verdetti.rec, bit) : verdetti.rec;
    }
    return verdetti;
}

const Automa::Verdetti& Automa::VerdettiDi(std::uint32_t nStato)
{
    std::unique_ptr<Verdetti>& verdetti = m_aVerdetti[nStato];
    if (!verdetti) {
        verdetti = std::make_unique<Verdetti>(Giudica(m_aStati[nStato], PrimoPosto(m_aStati[nStato])));
    }
    return *verdetti;
}

void Automa::Unisci(RigaAutoma& riga, std::size_t nPosto, const Verdetti& verdetti) const
{
    const Maschera sopra = PostiSopra(m_aScelti.size(), nPosto);
    const Maschera rec = verdetti.rec & sopra;
    riga.ok.Poni(nPosto, verdetti.ok & sopra);
    riga.rec.Poni(nPosto, rec);
    riga.bRecuperi = riga.bRecuperi || !rec.Vuota();
    if (!(verdetti.rotti & sopra).Vuota()) {
        riga.rotti = Oppure(riga.rotti, BitDelPosto(m_aScelti.size(), nPosto));
    }
}

const RigaAutoma& Automa::NuovaRiga(std::uint32_t nStato)
{
    RigaAutoma& riga = m_aFatte.emplace_back();
    m_nByte += sizeof riga;
    for (std::size_t y = PrimoPosto(m_aStati[nStato]); y + 1 < m_aScelti.size(); ++y) {
        Unisci(riga, y, VerdettiDi(Passo(nStato, y)));
    }
    m_aRighe[nStato] = &riga;
    return riga;
}

const RigaAutoma& Automa::RigaDi(const Colonna& inizio, std::ptrdiff_t nUltimo)
{
    m_Volante = {};
    Stato stato{inizio, static_cast<std::int16_t>(m_nClasse - 1)};
    for (auto y = static_cast<std::size_t>(nUltimo + 1); y + 1 < m_aScelti.size(); ++y) {
        stato.inizio[stato.nDati] = m_aScelti[y];
        Unisci(m_Volante, y, Giudica(stato, y + 1));
    }
    return m_Volante;
}

} // namespace ordavel
