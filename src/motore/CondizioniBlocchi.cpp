// CondizioniBlocchi.cpp - steps, rows and counters of all conditions of a run.

#include "motore/CondizioniBlocchi.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "core/ModBinomiali.hpp"
#include "motore/ModVerifica.hpp"

#include <algorithm>
#include <bit>

namespace ordavel {

namespace {

/// Can nothing pass behind a state, whatever the other conditions say?
bool Esclude(eRuolo ruolo, const Automa& automa, std::uint32_t nStato, std::size_t nPosto)
{
    switch (ruolo) {
    case eRuolo::indispensabile:
        return automa.OkDa(nStato, nPosto) == 0;
    case eRuolo::recuperabile:
        return automa.ContiDa(nStato, nPosto) == Conti{};
    case eRuolo::libero:
        break;
    }
    return false;
}

/// Recovery verdicts of a pair: those of columns that do not pass, handed on to those that pass behind them.
/// Takes    nAttive   columns of the word, without a gap
///          bPrima    verdict of the column in front of them
std::uint64_t TramandaParola(std::uint64_t nRec, std::uint64_t nOk, std::uint64_t nAttive,
                             bool bPrima) noexcept
{
    const std::uint64_t nPrimo = std::bit_floor(nAttive);
    std::uint64_t nPassa = nOk & nAttive;
    nRec |= bPrima ? nPrimo & nPassa : 0;
    for (unsigned n = 1; n < 64; n *= 2) {
        nRec |= nPassa & (nRec >> n);
        nPassa &= nPassa >> n;
    }
    return nRec;
}

} // namespace

CondizioniBlocchi::CondizioniBlocchi(std::span<const std::uint8_t> aScelti, std::int16_t nClasse,
                                     StatoSviluppo& stato, eNucleo nucleo, std::size_t nByte,
                                     const Automa::Continua& continua, const CondizioniBlocchi* modello)
    : m_Stato(stato),
      m_aPrima(stato.aCondizioni),
      m_Piano(PianificaVerdetto(stato)),
      m_Lavoro(m_Piano),
      m_Nucleo(ScegliNucleoBlocchi(nucleo)),
      m_aScelti(aScelti.begin(), aScelti.end()),
      m_nScelti(aScelti.size()),
      m_nClasse(nClasse)
{
    for (std::size_t y = 0; y < m_nScelti; ++y) {
        m_Tutte.Poni(y, PostiSopra(m_nScelti, y));
    }
    CreaCondizioni(aScelti, nucleo, nByte, continua, modello);
    OrdinaCondizioni();
    CreaRigheFisse();
}

void CondizioniBlocchi::CreaCondizioni(std::span<const std::uint8_t> aScelti, eNucleo nucleo,
                                       std::size_t nByte, const Automa::Continua& continua,
                                       const CondizioniBlocchi* modello)
{
    for (std::size_t i = 0; i < m_aPrima.size() && !m_bInterrotte; ++i) {
        if (!SiMisura(m_aPrima[i].Tipo)) {
            continue;
        }
        const std::size_t nQui = m_aCondizioni.size();
        Condizione& condizione = m_aCondizioni.emplace_back(
            modello != nullptr ? modello->m_aCondizioni[nQui].automa.Gemello()
                               : CreaAutoma(i, aScelti, nByte / m_aPrima.size(), continua));
        if (RigheVolanti::Adatte(m_aPrima[i], m_Stato)) {
            condizione.volanti.emplace(m_aPrima[i], m_nClasse, aScelti, m_Stato, nucleo);
        }
        condizione.nRecord = i;
        condizione.ruolo = m_Piano.aRuoli[i];
        condizione.bCoppia = FormaDiTipo(m_aPrima[i].Tipo) == eForma::coppia;
        condizione.bRiporto = m_aPrima[i].EsitoRec != kFalso;
        condizione.aStati.assign(static_cast<std::size_t>(kClasseMassima), Automa::kIniziale);
    }
}

Automa CondizioniBlocchi::CreaAutoma(std::size_t nRecord, std::span<const std::uint8_t> aScelti,
                                     std::size_t nByte, const Automa::Continua& continua)
{
    Automa automa(m_aPrima[nRecord], m_nClasse, aScelti, m_Stato);
    m_bInterrotte = !automa.Prepara(nByte, continua);
    return automa;
}

void CondizioniBlocchi::OrdinaCondizioni()
{
    const auto usata = [this](std::size_t nRecord) {
        return std::ranges::find(m_Piano.aUsati, nRecord) != m_Piano.aUsati.end();
    };
    m_bPiene = m_Piano.Semplice();
    for (Condizione& condizione : m_aCondizioni) {
        const bool bConStati = condizione.automa.ConStati();
        condizione.bOgniBlocco = !bConStati || (condizione.bCoppia && m_Piano.InGruppo(condizione.nRecord));
        if (bConStati) {
            m_bVuote = m_bVuote || Esclude(condizione.ruolo, condizione.automa, Automa::kIniziale, 0);
            m_bFalliscono = m_bFalliscono || condizione.automa.RottiDa(Automa::kIniziale, 0);
            (condizione.bOgniBlocco ? m_aSempre : m_aPassi).push_back(&condizione);
        }
        condizione.bContata = condizione.bOgniBlocco;
        if (condizione.bOgniBlocco) {
            m_aOgniBlocco.push_back(&condizione);
        }
        if (condizione.ruolo == eRuolo::indispensabile) {
            m_aIndispensabili.push_back(&condizione);
        }
        if (usata(condizione.nRecord)) {
            m_aNelVerdetto.push_back(&condizione);
        }
        m_bPiene = m_bPiene && (!condizione.bOgniBlocco || condizione.ruolo == eRuolo::libero);
    }
    m_aContate = m_aOgniBlocco;
    m_bOgniBlocco = !m_aOgniBlocco.empty();
    std::ranges::stable_sort(m_aPassi, [](const Condizione* a, const Condizione* b) {
        const auto misura = [](const Condizione& c) {
            return std::pair(c.ruolo == eRuolo::libero, c.automa.OkDa(Automa::kIniziale, 0));
        };
        return misura(*a) < misura(*b);
    });
}

/// The rows of records that are not measured, which no block changes.
void CondizioniBlocchi::CreaRigheFisse()
{
    for (const RecordCondizione& record : m_aPrima) {
        const bool bLink = FormaDiTipo(record.Tipo) == eForma::link;
        // Nobody sets the verdict of a link; the other kinds that are not measured hold always.
        m_aOk.push_back(bLink && record.Esito == kFalso ? &m_Nessuna : &m_Tutte);
        m_aRec.push_back(&m_Nessuna);
    }
    m_aRighe.reserve(m_aIndispensabili.size() + 1);
}

std::optional<PostiColonna> CondizioniBlocchi::PrimaRotta() const
{
    std::optional<PostiColonna> prima;
    for (const Condizione& condizione : m_aCondizioni) {
        const std::optional<PostiColonna> sua =
            condizione.automa.ConStati() ? condizione.conti.PrimaRotta() : std::nullopt;
        prima = sua && (!prima || *sua < *prima) ? sua : prima;
    }
    return prima;
}

CondizioniBlocchi::Seguito CondizioniBlocchi::Passo(std::size_t nDati, std::size_t nPosto, Seguito prima)
{
    for (Condizione* condizione : m_aSempre) {
        condizione->aStati[nDati + 1] = condizione->automa.Passo(condizione->aStati[nDati], nPosto);
    }
    if (prima.bVuoto) {
        return prima;
    }
    const std::uint64_t nColonne =
        kBinomiali[m_nScelti - nPosto - 1][static_cast<std::size_t>(m_nClasse) - nDati - 1];
    bool bPieno = m_bPiene;
    for (Condizione* condizione : m_aPassi) {
        const Automa& automa = condizione->automa;
        const std::uint32_t nStato = automa.Passo(condizione->aStati[nDati], nPosto);
        condizione->aStati[nDati + 1] = nStato;
        if (Esclude(condizione->ruolo, automa, nStato, nPosto + 1)) {
            return {.bVuoto = true};
        }
        bPieno =
            bPieno && (condizione->ruolo == eRuolo::libero || automa.OkDa(nStato, nPosto + 1) == nColonne);
    }
    return {.bPieno = bPieno};
}

const RigaAutoma& CondizioniBlocchi::RigaDi(Condizione& condizione) const
{
    return condizione.automa.Riga(condizione.aStati[static_cast<std::size_t>(m_nClasse) - 2]);
}

const RigaAutoma& CondizioniBlocchi::RigaDelBlocco(Condizione& condizione, const Colonna& inizio,
                                                   std::size_t nPrimo) const
{
    if (condizione.volanti) {
        return condizione.volanti->Riga(inizio, nPrimo);
    }
    return condizione.automa.ConStati() ? RigaDi(condizione) : condizione.automa.RigaDi(inizio, nPrimo);
}

bool CondizioniBlocchi::PrendiRighe(const Colonna& inizio, std::size_t nPrimo)
{
    const Maschera interne = PostiDa(m_nScelti, nPrimo);
    return std::ranges::all_of(m_aOgniBlocco, [&](Condizione* condizione) {
        condizione->riga = &RigaDelBlocco(*condizione, inizio, nPrimo);
        return (condizione->riga->rotti & interne).Vuota();
    });
}

void CondizioniBlocchi::RaccogliRighe()
{
    m_aRighe.clear();
    for (Condizione* condizione : m_aIndispensabili) {
        condizione->riga = condizione->bOgniBlocco ? condizione->riga : &RigaDi(*condizione);
        m_aRighe.push_back(&condizione->riga->ok);
    }
    if (m_aRighe.empty()) {
        m_aRighe.push_back(&m_Tutte);
    }
}

bool CondizioniBlocchi::Giudica(std::size_t nPrimo, MaschereRiga& tenute)
{
    const TrattiBlocco tratti(nPrimo, m_nScelti);
    RaccogliRighe();
    if (!m_Nucleo.incrocia(tratti, m_aRighe, tenute)) {
        return false;
    }
    if (!m_Piano.Semplice()) {
        RaccogliVerdetto(nPrimo);
        m_Nucleo.componi(tratti, m_Piano, {m_aOk, m_aRec}, m_Lavoro, tenute);
    }
    return true;
}

std::uint64_t CondizioniBlocchi::QuantePassano(std::size_t nPrimo)
{
    const TrattiBlocco tratti(nPrimo, m_nScelti);
    if (m_Piano.Semplice()) {
        RaccogliRighe();
        return m_Nucleo.conta(tratti, m_aRighe);
    }
    const MaschereRiga* const aTenute = &m_Tenute;
    return Giudica(nPrimo, m_Tenute) ? m_Nucleo.conta(tratti, {&aTenute, 1}) : 0;
}

void CondizioniBlocchi::RaccogliVerdetto(std::size_t nPrimo)
{
    for (Condizione* condizione : m_aNelVerdetto) {
        condizione->riga = condizione->bOgniBlocco ? condizione->riga : &RigaDi(*condizione);
        m_aOk[condizione->nRecord] = &condizione->riga->ok;
        m_aRec[condizione->nRecord] = &condizione->riga->rec;
        if (condizione->bCoppia && condizione->bOgniBlocco) {
            Tramanda(*condizione, nPrimo);
            m_aRec[condizione->nRecord] = &condizione->tramandati;
        }
    }
}

/// Hands the recovery verdicts of a pair on along the block, a word of columns at a time.
void CondizioniBlocchi::Tramanda(Condizione& condizione, std::size_t nPrimo) const
{
    bool bRiporto = condizione.bRiporto;
    const auto tramanda = [&bRiporto](std::uint64_t nRec, std::uint64_t nOk, std::uint64_t nAttive) {
        const std::uint64_t nDopo = TramandaParola(nRec & nAttive, nOk, nAttive, bRiporto);
        bRiporto = nAttive == 0 ? bRiporto : (nDopo & nAttive & (~nAttive + 1)) != 0;
        return nDopo;
    };
    for (std::size_t y = nPrimo; y + 1 < m_nScelti; ++y) {
        const Maschera ok = condizione.riga->ok[y];
        const Maschera rec = condizione.riga->rec[y];
        const std::uint64_t nAlta = tramanda(rec.nAlta, ok.nAlta, m_Tutte[y].nAlta);
        condizione.tramandati.Poni(y, {nAlta, tramanda(rec.nBassa, ok.nBassa, m_Tutte[y].nBassa)});
    }
}

void CondizioniBlocchi::ContaBlocco(std::size_t nPrimo, const MaschereRiga& attive)
{
    for (Condizione* condizione : m_aContate) {
        condizione->bCoppia ? ContaCoppia(*condizione, nPrimo, attive)
                            : ContaRighe(*condizione, nPrimo, attive);
    }
}

void CondizioniBlocchi::ContaRighe(Condizione& condizione, std::size_t nPrimo,
                                   const MaschereRiga& attive) const
{
    const TrattiBlocco tratti(nPrimo, m_nScelti);
    const auto conta = [&](const MaschereRiga& riga) {
        const std::array aRighe{&riga, &attive};
        return m_Nucleo.conta(tratti, aRighe);
    };
    condizione.contati.nOk += conta(condizione.riga->ok);
    condizione.contati.nRec += condizione.riga->bRecuperi ? conta(condizione.riga->rec) : 0;
}

/// A pair counts its recoveries from the columns that passed in front of the last one, and hands its verdict on.
void CondizioniBlocchi::ContaCoppia(Condizione& condizione, std::size_t nPrimo,
                                    const MaschereRiga& attive) const
{
    for (std::size_t y = nPrimo; y + 1 < m_nScelti; ++y) {
        const Maschera ok = condizione.riga->ok[y] & attive[y];
        const Maschera colpi = condizione.riga->rec[y] & attive[y];
        if (!colpi.Vuota()) {
            condizione.contati.nRec += QuantiBit(colpi);
            condizione.nOkAlRecupero = condizione.contati.nOk + QuantiBit(ok & Davanti(Ultima(colpi)));
        }
        if (const Maschera scartate = Senza(attive[y], ok); !scartate.Vuota()) {
            condizione.bRiporto = !(Ultima(scartate) & colpi).Vuota();
        }
        condizione.contati.nOk += QuantiBit(ok);
    }
}

void CondizioniBlocchi::PoniConti(std::uint64_t nColonne, const PostiColonna& aPosti)
{
    const auto nDiversi = static_cast<std::size_t>(
        m_nColonne == 0 ? 0 : std::ranges::mismatch(aPosti, m_Ultimi).in1 - aPosti.begin());
    m_nColonne = nColonne;
    m_Ultimi = aPosti;
    for (Condizione& condizione : m_aCondizioni) {
        if (!condizione.bContata) {
            ContaFinoA(condizione, aPosti, nDiversi);
        }
        PoniConti(condizione);
    }
}

void CondizioniBlocchi::ContaFinoA(Condizione& condizione, const PostiColonna& aPosti, std::size_t nDiversi)
{
    if (condizione.compagni) {
        condizione.contati = condizione.compagni->FinoA(aPosti);
        return;
    }
    const std::uint64_t nRec = condizione.contati.nRec;
    condizione.contati = condizione.conti.FinoA(aPosti, nDiversi);
    if (condizione.bCoppia && condizione.contati.nRec != nRec) {
        condizione.nOkAlRecupero = condizione.conti.OkDavanti(condizione.contati.nRec);
    }
}

void CondizioniBlocchi::PoniConti(const Condizione& condizione)
{
    const RecordCondizione& prima = m_aPrima[condizione.nRecord];
    RecordCondizione& record = m_Stato.aCondizioni[condizione.nRecord];
    const auto nOk = static_cast<double>(condizione.contati.nOk);
    const auto nRec = static_cast<double>(condizione.contati.nRec);
    const std::uint64_t nColonne = condizione.bContata ? m_nGuardate.value_or(m_nColonne) : m_nColonne;
    record.ContaOk = prima.ContaOk + nOk;
    record.ContaKo = prima.ContaKo + (static_cast<double>(nColonne) - nOk);
    record.ContaRec = prima.ContaRec + nRec;
    if (condizione.bCoppia) {
        record.ContaRec = condizione.contati.nRec == 0
                              ? prima.ContaRec
                              : prima.ContaOk + static_cast<double>(condizione.nOkAlRecupero) + 1;
    }
}

/// What the last column left in each record. The counters have it already.
void CondizioniBlocchi::PoniUltimiValori(const Colonna& ultima)
{
    for (Condizione& condizione : m_aCondizioni) {
        if (condizione.bCoppia && !condizione.bContata) {
            condizione.bRiporto = RiportoDopo(condizione, m_nColonne, condizione.contati);
        }
        if (condizione.bCoppia) {
            m_Stato.aCondizioni[condizione.nRecord].EsitoRec = ComeBooleano(condizione.bRiporto);
        }
    }
    static_cast<void>(VerificaColonna(m_nClasse, ultima, m_Stato));
    for (const Condizione& condizione : m_aCondizioni) {
        PoniConti(condizione);
    }
}

/// The recovery verdict of a pair behind so many columns: as long as all pass, that before the first.
bool CondizioniBlocchi::RiportoDopo(const Condizione& condizione, std::uint64_t nColonne, Conti conti) const
{
    return condizione.conti.UltimaRecupera(nColonne, conti)
        .value_or(m_aPrima[condizione.nRecord].EsitoRec != kFalso);
}

bool CondizioniBlocchi::InCatena() const
{
    return std::ranges::any_of(m_aOgniBlocco, [this](const Condizione* condizione) {
        return condizione->bCoppia && !condizione->automa.ConStati() && m_Piano.InGruppo(condizione->nRecord);
    });
}

bool CondizioniBlocchi::DividiInTratti(bool bGuardaTutto)
{
    m_aContate.clear();
    bool bSoloQui = false; // does a condition count in blocks alone?
    for (Condizione* condizione : m_aOgniBlocco) {
        const RecordCondizione& record = m_aPrima[condizione->nRecord];
        if (ContiCompagni::Adatta(record.Tipo)) {
            condizione->compagni.emplace(record, m_nClasse, m_aScelti);
        }
        condizione->bContata = !condizione->automa.ConStati() && !condizione->compagni;
        bSoloQui = bSoloQui || condizione->bContata;
        if (!condizione->compagni) { // a pair's verdict is handed on from block to block
            m_aContate.push_back(condizione);
        }
    }
    m_bOgniBlocco = bSoloQui && (bGuardaTutto || InCatena());
    return !bSoloQui || m_bOgniBlocco;
}

void CondizioniBlocchi::RiprendiDa(std::uint64_t nColonne, const PostiColonna& aUltimi)
{
    for (Condizione* condizione : m_aSempre) {
        condizione->bRiporto = nColonne == 0
                                   ? m_aPrima[condizione->nRecord].EsitoRec != kFalso
                                   : RiportoDopo(*condizione, nColonne, condizione->conti.FinoA(aUltimi, 0));
    }
}

std::vector<ContiTratto> CondizioniBlocchi::PrendiConti()
{
    std::vector<ContiTratto> aConti;
    for (Condizione* condizione : m_aContate) {
        aConti.push_back({condizione->contati, condizione->nOkAlRecupero, condizione->bRiporto});
        condizione->contati = {};
        condizione->nOkAlRecupero = 0;
    }
    return aConti;
}

void CondizioniBlocchi::PoniContiTratti(std::span<const ContiTratto> aConti, std::uint64_t nGuardate)
{
    m_nGuardate = nGuardate;
    for (std::size_t i = 0; i < m_aContate.size(); ++i) {
        Condizione& condizione = *m_aContate[i];
        // Where the automaton counts, PoniConti begins anew.
        condizione.contati = condizione.bContata ? aConti[i].conti : Conti{};
        condizione.nOkAlRecupero = aConti[i].nOkAlRecupero;
        if (condizione.contati.nOk != nGuardate) {
            condizione.bRiporto = aConti[i].bRiporto;
        }
    }
}

void CondizioniBlocchi::RiprendiConti()
{
    for (Condizione* condizione : m_aOgniBlocco) {
        const RecordCondizione& prima = m_aPrima[condizione->nRecord];
        const RecordCondizione& record = m_Stato.aCondizioni[condizione->nRecord];
        condizione->contati.nOk = static_cast<std::uint64_t>(record.ContaOk - prima.ContaOk);
        if (condizione->bCoppia) {
            const bool bColpita = record.ContaRec != prima.ContaRec;
            condizione->contati.nRec = bColpita ? 1 : 0;
            condizione->nOkAlRecupero =
                bColpita ? static_cast<std::uint64_t>(record.ContaRec - prima.ContaOk - 1) : 0;
            condizione->bRiporto = record.EsitoRec != kFalso;
        } else {
            condizione->contati.nRec = static_cast<std::uint64_t>(record.ContaRec - prima.ContaRec);
        }
    }
}

} // namespace ordavel
