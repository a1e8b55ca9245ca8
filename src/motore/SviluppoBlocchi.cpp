// SviluppoBlocchi.cpp - beginnings, blocks, runs of columns, and what is kept of them.

#include "motore/SviluppoBlocchi.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "motore/ModVerifica.hpp"

#include <algorithm>
#include <bit>
#include <limits>
#include <numeric>

namespace ordavel {

namespace {

/// With more of them the room for states would be too small for each, and the plain form is faster.
constexpr std::size_t kCondizioniBlocchi = 400;
constexpr std::uint64_t kTuttiBit = ~std::uint64_t{0};

eForma FormaDi(const RecordCondizione& record)
{
    const VoceCatalogo* voce = TrovaTipo(record.Tipo);
    return voce == nullptr ? eForma::nessuna : voce->forma;
}

bool SiMisura(const RecordCondizione& record)
{
    const eForma forma = FormaDi(record);
    return forma != eForma::nessuna && forma != eForma::link;
}

std::uint64_t QuantiBit(Maschera maschera) noexcept
{
    return static_cast<std::uint64_t>(std::popcount(maschera.nAlta)) +
           static_cast<std::uint64_t>(std::popcount(maschera.nBassa));
}

/// The last column of a mask: the lowest bit.
Maschera Ultima(Maschera maschera) noexcept
{
    const auto basso = [](std::uint64_t n) { return n & (~n + 1); };
    return maschera.nBassa != 0 ? Maschera{0, basso(maschera.nBassa)} : Maschera{basso(maschera.nAlta), 0};
}

/// The columns in front of the only one of a mask: the bits above.
Maschera Davanti(Maschera bit) noexcept
{
    const auto sopra = [](std::uint64_t n) { return ~(n | (n - 1)); };
    return bit.nBassa != 0 ? Maschera{kTuttiBit, sopra(bit.nBassa)} : Maschera{sopra(bit.nAlta), 0};
}

Maschera Senza(Maschera a, Maschera b) noexcept
{
    return {a.nAlta & ~b.nAlta, a.nBassa & ~b.nBassa};
}

/// Recovery verdicts of a pair: those of columns that do not pass, handed on to those that pass behind them.
/// Takes    nAttive   columns of the word, without a gap
///          bPrima    verdict of the column in front of them
std::uint64_t Tramanda(std::uint64_t nRec, std::uint64_t nOk, std::uint64_t nAttive, bool bPrima) noexcept
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

SviluppoBlocchi::Condizione::Condizione(Automa automaNuovo, std::size_t nRecordNuovo,
                                        const RecordCondizione& record)
    : automa(std::move(automaNuovo)),
      nRecord(nRecordNuovo),
      bCoppia(FormaDi(record) == eForma::coppia),
      aStati(kClasseMassima, Automa::kIniziale),
      nOk(static_cast<std::uint64_t>(record.ContaOk)),
      bRiporto(record.EsitoRec != kFalso)
{}

bool SviluppoBlocchi::Possibile(std::size_t nScelti, std::int16_t nClasse, const StatoSviluppo& stato)
{
    return nClasse >= kClasseMinima && nClasse <= kClasseMassima &&
           nScelti <= static_cast<std::size_t>(kNumeroMassimo) &&
           stato.aCondizioni.size() <= kCondizioniBlocchi && VerdettoBlocchi(stato).Possibile();
}

SviluppoBlocchi::SviluppoBlocchi(const CorsaBlocchi& corsa, BufferColonne& buffer, StatoSviluppo& stato,
                                 Avanzamento& avanzamento)
    : m_aScelti(corsa.aScelti.begin(), corsa.aScelti.end()),
      m_nClasse(corsa.nClasse),
      m_Buffer(buffer),
      m_nTotale(corsa.nTotale),
      m_Stato(stato),
      m_Avanzamento(avanzamento),
      m_Nucleo(ScegliNucleoBlocchi(corsa.nucleo)),
      m_Verdetto(stato),
      m_aOk(stato.aCondizioni.size(), kTuttiBit),
      m_aRec(stato.aCondizioni.size())
{
    CreaCondizioni(corsa.nByteAutomi / stato.aCondizioni.size());
    m_Blocco.nScelti = m_aScelti.size();
    for (std::size_t y = 0; y < m_aScelti.size(); ++y) {
        m_Tutte.Poni(y, PostiSopra(m_aScelti.size(), y));
    }
}

/// Takes    nByte   what an automaton may take
void SviluppoBlocchi::CreaCondizioni(std::size_t nByte)
{
    for (std::size_t i = 0; i < m_Stato.aCondizioni.size(); ++i) {
        const RecordCondizione& record = m_Stato.aCondizioni[i];
        if (SiMisura(record)) {
            m_aCondizioni.emplace_back(Automa(record, m_nClasse, m_aScelti, m_Stato, nByte), i, record);
        } else if (FormaDi(record) == eForma::link) {
            m_aOk[i] = record.Esito != kFalso ? kTuttiBit : 0; // nobody sets the verdict of a link
        }
    }
    m_aVoci.resize(m_aCondizioni.size());
}

void SviluppoBlocchi::Esegui()
{
    static_cast<void>(Scendi(0, 0));
    VersaConti();
    PoniUltimiValori();
}

bool SviluppoBlocchi::Scendi(std::int16_t nDati, std::size_t nDa)
{
    if (nDati == m_nClasse - 2) {
        return EseguiInizio(nDa);
    }
    const auto nMancano = static_cast<std::size_t>(m_nClasse - nDati);
    const auto nLivello = static_cast<std::size_t>(nDati);
    for (std::size_t i = nDa; i + nMancano <= m_aScelti.size(); ++i) {
        m_Inizio[nDati + 1] = m_aScelti[i];
        for (Condizione& condizione : m_aCondizioni) {
            if (condizione.automa.ConStati()) {
                condizione.aStati[nLivello + 1] = condizione.automa.Passo(condizione.aStati[nLivello], i);
            }
        }
        if (!Scendi(static_cast<std::int16_t>(nDati + 1), i + 1)) {
            return false;
        }
    }
    return true;
}

bool SviluppoBlocchi::EseguiInizio(std::size_t nPrimo)
{
    const auto nPosti = static_cast<std::int64_t>(m_aScelti.size() - nPrimo);
    const std::int64_t nColonne = nPosti * (nPosti - 1) / 2;
    if (Trabocca(nColonne) || !PrendiRighe(nPrimo)) {
        return EseguiPiano(nPrimo, 0);
    }
    return EseguiBlocco(nPrimo, nColonne);
}

/// May one of the counters of the run pass its end? Then it must fail at the very column.
bool SviluppoBlocchi::Trabocca(std::int64_t nColonne) const noexcept
{
    constexpr std::int64_t kMassimo = std::numeric_limits<std::int32_t>::max();
    return std::max(m_Stato.nSviluppate, m_Stato.nCondizionate) > kMassimo - nColonne;
}

/// Gives    false when some column of the beginning fails
bool SviluppoBlocchi::PrendiRighe(std::size_t nPrimo)
{
    const Maschera interne =
        nPrimo > 0 ? PostiSopra(m_aScelti.size(), nPrimo - 1) : Maschera{kTuttiBit, kTuttiBit};
    const auto nLivello = static_cast<std::size_t>(m_nClasse - 2);
    for (std::size_t c = 0; c < m_aCondizioni.size(); ++c) {
        Automa& automa = m_aCondizioni[c].automa;
        const RigaAutoma& riga = automa.ConStati()
                                     ? automa.Riga(m_aCondizioni[c].aStati[nLivello])
                                     : automa.RigaDi(m_Inizio, static_cast<std::ptrdiff_t>(nPrimo) - 1);
        if (!(riga.rotti & interne).Vuota()) {
            return false;
        }
        m_aVoci[c].riga = &riga;
    }
    return true;
}

/// A refresh falls behind a column that need not be the last of a block.
bool SviluppoBlocchi::EseguiBlocco(std::size_t nPrimo, std::int64_t nColonne)
{
    const std::int64_t nFinoA = kColonneAggiornamento - m_Stato.nSviluppate % kColonneAggiornamento;
    if (nColonne < nFinoA) {
        EseguiTratto(nPrimo, 0, nColonne, true);
        return true;
    }
    EseguiTratto(nPrimo, 0, nFinoA, nFinoA == nColonne);
    if (!Aggiornata()) {
        return false;
    }
    if (Trabocca(nColonne - nFinoA)) {
        return EseguiPiano(nPrimo, nFinoA);
    }
    if (nFinoA < nColonne) {
        EseguiTratto(nPrimo, nFinoA, nColonne, false);
    }
    return true;
}

bool SviluppoBlocchi::Aggiornata()
{
    VersaConti();
    return Aggiorna(m_nTotale, m_Stato, m_Avanzamento);
}

/// Marks the columns nDa to nA - 1 of a beginning, in order.
void SviluppoBlocchi::PreparaAttive(std::size_t nPrimo, std::int64_t nDa, std::int64_t nA)
{
    std::int64_t nDavanti = 0; // columns of the places in front
    for (std::size_t y = nPrimo; y < m_aScelti.size(); ++y) {
        const auto nSopra = static_cast<std::int64_t>(m_aScelti.size() - 1 - y);
        const auto dopo = [&](std::int64_t nQuante) { // all but the first nQuante columns of the place
            return PostiSopra(m_aScelti.size(),
                              y + static_cast<std::size_t>(std::clamp<std::int64_t>(nQuante, 0, nSopra)));
        };
        m_Alcune.Poni(y, Senza(dopo(nDa - nDavanti), dopo(nA - nDavanti)));
        nDavanti += nSopra;
    }
}

void SviluppoBlocchi::EseguiTratto(std::size_t nPrimo, std::int64_t nDa, std::int64_t nA, bool bIntero)
{
    m_Blocco.nPrimo = nPrimo;
    m_Blocco.bIntero = bIntero;
    m_Blocco.attive = &m_Tutte;
    if (!bIntero) {
        PreparaAttive(nPrimo, nDa, nA);
        m_Blocco.attive = &m_Alcune;
    }
    m_Nucleo(m_aVoci, m_Blocco);
    if (!m_Verdetto.Semplice()) {
        Componi(nPrimo);
    }
    for (std::size_t c = 0; c < m_aCondizioni.size(); ++c) {
        if (m_aCondizioni[c].bCoppia) {
            ContaCoppia(m_aCondizioni[c], *m_aVoci[c].riga);
        }
    }
    m_nEsaminate += nA - nDa;
    m_Stato.nSviluppate += static_cast<std::int32_t>(nA - nDa);
    Tieni(nPrimo);
}

/// A pair counts its recoveries from the columns that passed in front of the last one, and hands its verdict on.
void SviluppoBlocchi::ContaCoppia(Condizione& condizione, const RigaAutoma& riga)
{
    std::uint64_t nOk = 0;
    for (std::size_t y = m_Blocco.nPrimo; y < m_aScelti.size(); ++y) {
        const Maschera ok = riga.ok[y] & (*m_Blocco.attive)[y];
        const Maschera colpi = riga.rec[y] & (*m_Blocco.attive)[y];
        if (!colpi.Vuota()) {
            const std::uint64_t nDavanti = QuantiBit(ok & Davanti(Ultima(colpi)));
            m_Stato.aCondizioni[condizione.nRecord].ContaRec =
                static_cast<double>(condizione.nOk + nOk + nDavanti + 1);
        }
        if (const Maschera scartate = Senza((*m_Blocco.attive)[y], ok); !scartate.Vuota()) {
            condizione.bRiporto = !(Ultima(scartate) & colpi).Vuota();
        }
        nOk += QuantiBit(ok);
    }
    condizione.nOk += nOk;
}

/// Recovery and links: a word of columns at a time, in order.
void SviluppoBlocchi::Componi(std::size_t nPrimo)
{
    m_aRiporti.clear();
    for (const Condizione& condizione : m_aCondizioni) {
        m_aRiporti.push_back(condizione.bRiporto ? 1 : 0);
    }
    for (std::size_t y = nPrimo; y < m_aScelti.size(); ++y) {
        const std::uint64_t nAlta = ComponiParola(y, true);
        m_Blocco.tenute.Poni(y, {nAlta, ComponiParola(y, false)});
    }
}

std::uint64_t SviluppoBlocchi::ComponiParola(std::size_t nPosto, bool bAlta)
{
    const auto parola = [bAlta](Maschera maschera) { return bAlta ? maschera.nAlta : maschera.nBassa; };
    const std::uint64_t nAttive = parola((*m_Blocco.attive)[nPosto]);
    if (nAttive == 0) {
        return 0;
    }
    for (std::size_t c = 0; c < m_aCondizioni.size(); ++c) {
        const std::size_t nRecord = m_aCondizioni[c].nRecord;
        m_aOk[nRecord] = parola(m_aVoci[c].riga->ok[nPosto]);
        m_aRec[nRecord] = parola(m_aVoci[c].riga->rec[nPosto]);
        if (m_aCondizioni[c].bCoppia) {
            m_aRec[nRecord] =
                Tramanda(m_aRec[nRecord] & nAttive, m_aOk[nRecord], nAttive, m_aRiporti[c] != 0);
            m_aRiporti[c] = (m_aRec[nRecord] & nAttive & (~nAttive + 1)) != 0 ? 1 : 0;
        }
    }
    return m_Verdetto.Giudica(m_aOk, m_aRec) & nAttive;
}

void SviluppoBlocchi::Tieni(std::size_t nPrimo)
{
    Colonna colonna = m_Inizio;
    for (std::size_t y = nPrimo; y + 1 < m_aScelti.size(); ++y) {
        const Maschera tenute = m_Blocco.tenute[y];
        colonna[m_nClasse - 1] = m_aScelti[y];
        TieniParola(colonna, tenute.nAlta, 64);
        TieniParola(colonna, tenute.nBassa, 0);
    }
    SegnaUltima();
}

void SviluppoBlocchi::SegnaUltima()
{
    std::size_t y = m_aScelti.size() - 1;
    while ((*m_Blocco.attive)[y].Vuota()) {
        --y;
    }
    const Maschera ultima = Ultima((*m_Blocco.attive)[y]);
    const auto nBit = static_cast<std::size_t>(ultima.nBassa != 0 ? std::countr_zero(ultima.nBassa)
                                                                  : 64 + std::countr_zero(ultima.nAlta));
    m_Ultima = m_Inizio;
    m_Ultima[m_nClasse - 1] = m_aScelti[y];
    m_Ultima[m_nClasse] = m_aScelti[m_aScelti.size() - 1 - nBit];
    m_bEsaminata = true;
}

/// Keeps the columns of a word, the highest bit first.
void SviluppoBlocchi::TieniParola(Colonna& colonna, std::uint64_t nParola, std::size_t nBitSotto)
{
    while (nParola != 0) {
        const auto nBit = static_cast<std::size_t>(63 - std::countl_zero(nParola));
        nParola ^= std::uint64_t{1} << nBit;
        colonna[m_nClasse] = m_aScelti[m_aScelti.size() - 1 - nBitSotto - nBit];
        m_Buffer.Candidata() = colonna;
        if (m_Buffer.SuperaRiduzione()) {
            Aumenta(m_Stato.nCondizionate, 1);
            m_Buffer.Tieni(kColonneBuffer);
        }
    }
}

void SviluppoBlocchi::VersaConti()
{
    for (std::size_t c = 0; c < m_aCondizioni.size(); ++c) {
        RecordCondizione& record = m_Stato.aCondizioni[m_aCondizioni[c].nRecord];
        const auto nOk = static_cast<double>(
            std::accumulate(m_aVoci[c].aOk.begin(), m_aVoci[c].aOk.end(), std::uint64_t{0}));
        const auto nRec = static_cast<double>(
            std::accumulate(m_aVoci[c].aRec.begin(), m_aVoci[c].aRec.end(), std::uint64_t{0}));
        record.ContaOk += nOk;
        record.ContaKo += static_cast<double>(m_nEsaminate) - nOk;
        record.ContaRec += m_aCondizioni[c].bCoppia ? 0 : nRec;
        m_aVoci[c].aOk = {};
        m_aVoci[c].aRec = {};
    }
    m_nEsaminate = 0;
}

/// What the last column left in each record. The counters have it already.
void SviluppoBlocchi::PoniUltimiValori()
{
    if (!m_bEsaminata) {
        return;
    }
    const std::vector<RecordCondizione> aPrima = m_Stato.aCondizioni;
    for (const Condizione& condizione : m_aCondizioni) {
        if (condizione.bCoppia) {
            m_Stato.aCondizioni[condizione.nRecord].EsitoRec = ComeBooleano(condizione.bRiporto);
        }
    }
    static_cast<void>(VerificaColonna(m_nClasse, m_Ultima, m_Stato));
    for (std::size_t i = 0; i < aPrima.size(); ++i) {
        m_Stato.aCondizioni[i].ContaOk = aPrima[i].ContaOk;
        m_Stato.aCondizioni[i].ContaKo = aPrima[i].ContaKo;
        m_Stato.aCondizioni[i].ContaRec = aPrima[i].ContaRec;
    }
    m_bEsaminata = false;
}

/// The columns of a beginning from nDa on through the plain form, which goes on from what the blocks left and hands
/// back.
bool SviluppoBlocchi::EseguiPiano(std::size_t nPrimo, std::int64_t nDa)
{
    VersaConti();
    PoniUltimiValori();
    std::int64_t nColonna = 0;
    for (std::size_t y = nPrimo; y < m_aScelti.size(); ++y) {
        for (std::size_t x = y + 1; x < m_aScelti.size(); ++x) {
            if (nColonna++ >= nDa && !EseguiColonna(y, x)) {
                return false;
            }
        }
    }
    for (Condizione& condizione : m_aCondizioni) {
        const RecordCondizione& record = m_Stato.aCondizioni[condizione.nRecord];
        condizione.nOk = static_cast<std::uint64_t>(record.ContaOk);
        condizione.bRiporto = record.EsitoRec != kFalso;
    }
    return true;
}

bool SviluppoBlocchi::EseguiColonna(std::size_t nPosto, std::size_t nUltimo)
{
    Colonna& colonna = m_Buffer.Candidata();
    colonna = m_Inizio;
    colonna[m_nClasse - 1] = m_aScelti[nPosto];
    colonna[m_nClasse] = m_aScelti[nUltimo];
    if (VerificaColonna(m_nClasse, colonna, m_Stato) && m_Buffer.SuperaRiduzione()) {
        Aumenta(m_Stato.nCondizionate, 1);
        m_Buffer.Tieni(kColonneBuffer);
    }
    return ContaEsaminata(m_nTotale, m_Stato, m_Avanzamento);
}

} // namespace ordavel
