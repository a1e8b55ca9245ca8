// Automa.cpp - states and steps length by length, verdicts at the end, counts backwards.

#include "motore/Automa.hpp"

#include "motore/ModVerifica.hpp"

#include <algorithm>
#include <numeric>

namespace ordavel {

namespace {

/// Keys below this are found by index.
constexpr std::uint64_t kChiaviPiccole = 4096;

} // namespace

Automa::Automa(const RecordCondizione& record, std::int16_t nClasse, std::span<const std::uint8_t> aScelti,
               const StatoSviluppo& stato)
    : m_nClasse(nClasse), m_Forma(FormaChiave(record.Tipo)), m_aScelti(aScelti.begin(), aScelti.end())
{
    m_Prova.aCondizioni = {record};
    if (record.Tipo == TipoCondizione::emulatore) {
        m_Prova.aEmulatore = stato.aEmulatore;
    }
}

Automa::Automa(const Automa& altro, Condivisi /*condivisi*/)
    : m_nClasse(altro.m_nClasse),
      m_Forma(altro.m_Forma),
      m_aScelti(altro.m_aScelti),
      m_Prova(altro.m_Prova),
      m_aLivelli(altro.m_aLivelli),
      m_Tavole(altro.m_Tavole),
      m_aRighe(altro.m_aRighe.size(), nullptr)
{
    Esponi();
}

void Automa::Esponi() noexcept
{
    m_aPassi = m_Tavole->aPassi;
    m_aOk = m_Tavole->aOk;
    m_aRec = m_Tavole->aRec;
    m_aRottiFino = m_Tavole->aRottiFino;
    m_aVerdetti = m_Tavole->aVerdetti;
}

bool Automa::Prepara(std::size_t nByte, const Continua& continua)
{
    if (m_Forma == eChiave::nessuna || m_aScelti.size() < Classe()) {
        return true;
    }
    bool bAvanti = CreaStati(nByte, continua);
    const bool bPosto = ByteUsati() <= nByte;
    bAvanti = bAvanti && (!bPosto || (CreaVerdetti(continua) && CreaConti(continua)));
    if (!bAvanti || !bPosto) {
        Abbandona();
    }
    m_aStati = {};
    return bAvanti;
}

/// The first place that is too far up for the number behind nDati others.
std::size_t Automa::FinePosti(std::size_t nDati) const noexcept
{
    return m_aScelti.size() + nDati + 1 - Classe();
}

void Automa::Abbandona()
{
    m_aLivelli.clear();
    m_Tavole = std::make_shared<Tavole>();
    Esponi();
}

/// What states, counts, verdicts and all rows take, about.
std::size_t Automa::ByteUsati() const noexcept
{
    const std::size_t nConPassi = m_Tavole->aPassi.size() / m_aScelti.size();
    const std::size_t nPerPosto = sizeof(std::uint32_t) + 2 * sizeof(std::uint64_t);
    const std::size_t nRighe =
        m_aLivelli.size() == Classe() ? m_aLivelli[Livelli() - 1] - m_aLivelli[Livelli() - 2] : 0;
    return m_aStati.size() * (sizeof(Stato) + sizeof(Verdetti)) + nConPassi * m_aScelti.size() * nPerPosto +
           nRighe * sizeof(RigaAutoma);
}

bool Automa::CreaStati(std::size_t nByte, const Continua& continua)
{
    m_aStati.push_back({});
    m_aStati[0].nChiave = ChiaveDi(m_Prova.aCondizioni[0], 0, {});
    m_aLivelli.push_back(0);
    bool bAvanti = true;
    for (std::size_t nDati = 0; nDati + 1 < Classe() && bAvanti && ByteUsati() <= nByte; ++nDati) {
        bAvanti = CreaLivello(nDati, nByte, continua);
    }
    return bAvanti;
}

/// Makes the steps from all states of a length, and the states they lead to.
/// Gives    false when it was not to go on
bool Automa::CreaLivello(std::size_t nDati, std::size_t nByte, const Continua& continua)
{
    const auto nFine = static_cast<std::uint32_t>(m_aStati.size());
    const Aggiunte aAggiunte = AggiunteDi(nDati);
    Indice indice{std::vector<std::uint32_t>(kChiaviPiccole, kIgnoto), {}};
    for (std::uint32_t nStato = m_aLivelli.back(); nStato < nFine; ++nStato) {
        if (!continua()) {
            return false;
        }
        if (ByteUsati() <= nByte) {
            CreaPassi(nStato, nDati, aAggiunte, indice);
        }
    }
    m_aLivelli.push_back(nFine);
    return true;
}

Automa::Aggiunte Automa::AggiunteDi(std::size_t nDati) const
{
    if (!SiSomma(m_Forma)) {
        return {};
    }
    Aggiunte aAggiunte;
    const Stato& stato = m_aStati[m_aLivelli.back()];
    Colonna dopo = stato.inizio;
    for (const std::uint8_t nNumero : m_aScelti) {
        dopo[static_cast<std::int64_t>(nDati) + 1] = nNumero;
        aAggiunte.push_back(ChiaveDi(m_Prova.aCondizioni[0], static_cast<std::int16_t>(nDati + 1), dopo) -
                            stato.nChiave);
    }
    return aAggiunte;
}

std::uint64_t Automa::ChiaveDopo(const Stato& stato, const Colonna& dopo, std::size_t nDati,
                                 std::size_t nPosto, const Aggiunte& aAggiunte) const
{
    return aAggiunte.empty() ? ChiaveDi(m_Prova.aCondizioni[0], static_cast<std::int16_t>(nDati + 1), dopo)
                             : stato.nChiave + aAggiunte[nPosto];
}

std::uint32_t& Automa::Trova(Indice& indice, std::uint64_t nChiave)
{
    if (nChiave < indice.aPiccole.size()) {
        return indice.aPiccole[nChiave];
    }
    return indice.aGrandi.try_emplace(nChiave, kIgnoto).first->second;
}

void Automa::CreaPassi(std::uint32_t nStato, std::size_t nDati, const Aggiunte& aAggiunte, Indice& indice)
{
    const Stato stato = m_aStati[nStato];
    Colonna dopo = stato.inizio;
    m_Tavole->aPassi.resize((nStato + std::size_t{1}) * m_aScelti.size(), kIgnoto);
    for (std::size_t p = stato.nPrimo; p < FinePosti(nDati); ++p) {
        dopo[static_cast<std::int64_t>(nDati) + 1] = m_aScelti[p];
        const std::uint64_t nChiave = ChiaveDopo(stato, dopo, nDati, p, aAggiunte);
        std::uint32_t& nDopo = Trova(indice, nChiave);
        if (nDopo == kIgnoto) {
            nDopo = static_cast<std::uint32_t>(m_aStati.size());
            m_aStati.push_back({dopo, nChiave, p + 1});
        }
        m_aStati[nDopo].nPrimo = std::min(m_aStati[nDopo].nPrimo, p + 1);
        m_Tavole->aPassi[nStato * m_aScelti.size() + p] = nDopo;
    }
}

bool Automa::CreaVerdetti(const Continua& continua)
{
    for (std::size_t n = m_aLivelli.back(); n < m_aStati.size(); ++n) {
        if (!continua()) {
            return false;
        }
        m_Tavole->aVerdetti.push_back(Giudica(m_aStati[n].inizio, m_aStati[n].nPrimo));
    }
    return true;
}

/// Verdicts of the plain form for each last number from a place on.
Verdetti Automa::Giudica(const Colonna& inizio, std::size_t nDa)
{
    Verdetti verdetti;
    Colonna colonna = inizio;
    RecordCondizione& record = m_Prova.aCondizioni[0];
    for (std::size_t x = nDa; x < m_aScelti.size(); ++x) {
        colonna[m_nClasse] = m_aScelti[x];
        const Maschera bit = BitDelPosto(m_aScelti.size(), x);
        record.EsitoRec = kFalso;
        try {
            ValutaCondizioni(m_nClasse, colonna, m_Prova);
        } catch (const Errore&) {
            // Whether the run comes to this column is not known here: whoever asks has it judged apart.
            verdetti.rotti = verdetti.rotti | bit;
            continue;
        }
        verdetti.ok = record.Esito != kFalso ? verdetti.ok | bit : verdetti.ok;
        verdetti.rec = record.EsitoRec != kFalso ? verdetti.rec | bit : verdetti.rec;
    }
    return verdetti;
}

bool Automa::CreaConti(const Continua& continua)
{
    const auto recupera = [](const Verdetti& verdetti) { return !verdetti.rec.Vuota(); };
    m_Tavole->aOk.assign(m_aLivelli.back() * (m_aScelti.size() + 1), 0);
    m_Tavole->aRec.assign(std::ranges::any_of(m_Tavole->aVerdetti, recupera) ? m_Tavole->aOk.size() : 0, 0);
    m_Tavole->aRottiFino.assign(m_aStati.size(), 0);
    Esponi();
    m_aRighe.assign(m_aLivelli[Livelli() - 1] - m_aLivelli[Livelli() - 2], nullptr);
    std::size_t nDati = Classe() - 1;
    for (auto nStato = static_cast<std::uint32_t>(m_aStati.size()); nStato-- > 0;) { // lengths downwards
        if (!continua()) {
            return false;
        }
        nDati -= nStato < m_aLivelli[nDati] ? 1U : 0U;
        nDati + 1 == Classe() ? ContaVerdetti(nStato) : ContaStato(nStato, nDati);
    }
    return true;
}

void Automa::PoniConti(std::uint32_t nStato, std::size_t nPosto, Conti conti) noexcept
{
    const std::size_t n = nStato * (m_aScelti.size() + 1) + nPosto;
    m_Tavole->aOk[n] = conti.nOk;
    if (!m_Tavole->aRec.empty()) {
        m_Tavole->aRec[n] = conti.nRec;
    }
}

/// Where the last of the numbers is missing, the verdicts are the counts.
void Automa::ContaVerdetti(std::uint32_t nStato)
{
    const Maschera rotti = VerdettiDi(nStato).rotti;
    for (std::size_t p = m_aScelti.size(); p-- > m_aStati[nStato].nPrimo && m_aRottiFino[nStato] == 0;) {
        m_Tavole->aRottiFino[nStato] =
            Contiene(rotti, m_aScelti.size(), p) ? static_cast<std::uint8_t>(p + 1) : std::uint8_t{0};
    }
}

void Automa::ContaStato(std::uint32_t nStato, std::size_t nDati)
{
    Conti conti;
    for (std::size_t p = FinePosti(nDati); p-- > m_aStati[nStato].nPrimo;) {
        const std::uint32_t nDopo = Passo(nStato, p);
        conti = conti + ContiDa(nDopo, p + 1);
        PoniConti(nStato, p, conti);
        if (m_aRottiFino[nStato] == 0 && RottiDa(nDopo, p + 1)) {
            m_Tavole->aRottiFino[nStato] = static_cast<std::uint8_t>(p + 1);
        }
    }
}

void Automa::Unisci(RigaAutoma& riga, std::size_t nPosto, const Verdetti& verdetti) const
{
    const Maschera sopra = PostiSopra(m_aScelti.size(), nPosto);
    const Maschera rec = verdetti.rec & sopra;
    riga.ok.Poni(nPosto, verdetti.ok & sopra);
    riga.rec.Poni(nPosto, rec);
    riga.bRecuperi = riga.bRecuperi || !rec.Vuota();
    if (!(verdetti.rotti & sopra).Vuota()) {
        riga.rotti = riga.rotti | BitDelPosto(m_aScelti.size(), nPosto);
    }
}

const RigaAutoma& Automa::NuovaRiga(std::uint32_t nStato)
{
    RigaAutoma& riga = m_aFatte.emplace_back();
    for (std::size_t y = 0; y < FinePosti(Classe() - 2); ++y) {
        if (const std::uint32_t nDopo = Passo(nStato, y); nDopo != kIgnoto) {
            Unisci(riga, y, VerdettiDi(nDopo));
        }
    }
    m_aRighe[nStato - m_aLivelli[Livelli() - 2]] = &riga;
    return riga;
}

const RigaAutoma& Automa::RigaDi(const Colonna& inizio, std::size_t nPrimo)
{
    m_Volante = {};
    Colonna colonna = inizio;
    for (std::size_t y = nPrimo; y + 1 < m_aScelti.size(); ++y) {
        colonna[m_nClasse - 1] = m_aScelti[y];
        Unisci(m_Volante, y, Giudica(colonna, y + 1));
    }
    return m_Volante;
}

} // namespace ordavel
