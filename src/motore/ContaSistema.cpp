// ContaSistema.cpp - counters first, then the columns that pass, and an estimate when that takes long.

#include "ordavel/ContaSistema.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "motore/ContaCamminando.hpp"
#include "motore/ContaCondizione.hpp"
#include "motore/ContiAutoma.hpp"
#include "motore/ModIntegrali.hpp"
#include "motore/ModVerifica.hpp"
#include "motore/StimaSistema.hpp"
#include "motore/VerdettoBlocchi.hpp"
#include "motore/VerdettoDiagrammi.hpp"

#include <algorithm>
#include <limits>

namespace ordavel {

namespace {

using Orologio = GuardiaConteggio::Orologio;

/// What the states of one condition may take.
constexpr std::size_t kByteAutoma = std::size_t{64} << 20U;
/// A node takes as long as so many verdicts of a walk; below so many nodes nobody minds.
constexpr double kVerdettiNodo = 20000;
constexpr double kNodiComunque = 100000;
constexpr std::int64_t kColonneStima = 30000;
constexpr std::chrono::milliseconds kDurataStima{35};

/// Nothing but the estimate was wanted, and it is there.
class BastaStima : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "basta la stima"; }
};

/// Conditions that have counted nothing yet.
StatoSviluppo ComeCompilato(const StatoSviluppo& stato)
{
    StatoSviluppo nuovo = stato;
    for (RecordCondizione& record : nuovo.aCondizioni) {
        record.ContaOk = record.ContaKo = record.ContaRec = 0;
        record.EsitoRec = kFalso;
    }
    return nuovo;
}

/// Columns of the whole system; with a class above 10 as near as a double comes.
double ColonneIntere(std::size_t nScelti, std::size_t nClasse)
{
    double nColonne = nScelti < nClasse ? 0 : 1;
    for (std::size_t k = 1; k <= nClasse && nColonne > 0; ++k) {
        nColonne = nColonne * static_cast<double>(nScelti - nClasse + k) / static_cast<double>(k);
    }
    return nColonne;
}

class Conteggio {
public:
    Conteggio(const SistemaDaContare& sistema, const OpzioniConteggio& opzioni, GuardiaConteggio& guardia,
              const StimaPronta& stima)
        : m_Stato(ComeCompilato(sistema.stato)),
          m_aNumeri(sistema.aNumeri),
          m_nClasse(sistema.nClasse),
          m_Opzioni(opzioni),
          m_Guardia(guardia),
          m_PresentaStima(stima),
          m_aScelti(Scelti(m_aNumeri))
    {
        m_Conto.nColonne = ColonneIntere(m_aScelti.size(), static_cast<std::size_t>(m_nClasse));
        for (const RecordCondizione& record : m_Stato.aCondizioni) {
            m_Conto.aCondizioni.push_back({.bEsatto = !SiMisura(record.Tipo)});
        }
    }

    [[nodiscard]] ConteggioSistema Esegui();

private:
    [[nodiscard]] bool ClasseInBreve() const noexcept
    {
        return m_nClasse >= kClasseMinima && m_nClasse <= kClasseMassima;
    }
    [[nodiscard]] bool TuttoEsatto() const;
    [[nodiscard]] Colonna ColonnaDi(const PostiColonna& aPosti) const;
    void ContaInBreve();
    void ContaSenzaStati(std::size_t nRecord);
    void ContaConStati(std::size_t nRecord);
    void SegnaContatori(std::size_t nRecord, const ContatoriCondizione& contatori);
    [[nodiscard]] std::size_t NodiConcessi() const;
    [[nodiscard]] bool SenzaInsieme(std::size_t nRecord) const;
    void PrendiInsiemi(std::size_t nRecord, Automa* automa);
    void FallisciSeRotta();
    void ContaInsieme();
    void SegnaPassano(double nPassano);
    void ContaTutte();
    void Stima();
    [[nodiscard]] ConteggioSistema Composto() const;

    StatoSviluppo m_Stato;
    NumeriScelti m_aNumeri;
    std::int16_t m_nClasse;
    const OpzioniConteggio& m_Opzioni;
    GuardiaConteggio& m_Guardia;
    const StimaPronta& m_PresentaStima;
    std::vector<std::uint8_t> m_aScelti;
    ConteggioSistema m_Conto; ///< what is exact so far
    std::optional<Campione> m_Campione;
    std::optional<Colonna> m_Rotta;       ///< the first column that fails, of the conditions counted so far
    std::optional<Diagrammi> m_Diagrammi; ///< as long as the short way is open
    PianoVerdetto m_Piano;
    InsiemiCondizioni m_Insiemi;
};

ConteggioSistema Conteggio::Esegui()
{
    if (m_Conto.nColonne == 0) {
        std::ranges::for_each(m_Conto.aCondizioni, [](ContoCondizione& conto) { conto.bEsatto = true; });
        SegnaPassano(0);
        return m_Conto;
    }
    m_Guardia.PoniScadenza(Orologio::now() + m_Opzioni.attesa, [this] { Stima(); });
    try {
        if (ClasseInBreve()) {
            ContaInBreve();
        }
        ContaTutte();
    } catch (const BastaStima&) {
    }
    return Composto();
}

Colonna Conteggio::ColonnaDi(const PostiColonna& aPosti) const
{
    Colonna colonna;
    for (std::int16_t k = 1; k <= m_nClasse; ++k) {
        colonna[k] = m_aScelti[aPosti[static_cast<std::size_t>(k - 1)]];
    }
    return colonna;
}

bool Conteggio::TuttoEsatto() const
{
    return m_Conto.bEsatto && std::ranges::all_of(m_Conto.aCondizioni, &ContoCondizione::bEsatto);
}

/// Counters and columns by states and diagrams, as far as that goes.
void Conteggio::ContaInBreve()
{
    const bool bPossibile = !VerdettoPuoFallire(m_Stato);
    m_Insiemi.aOk.resize(m_Stato.aCondizioni.size(), 1);
    m_Insiemi.aRec.resize(m_Stato.aCondizioni.size(), 0);
    if (bPossibile) {
        m_Piano = PianificaVerdetto(m_Stato);
        m_Diagrammi.emplace(m_aScelti.size(), static_cast<std::size_t>(m_nClasse), NodiConcessi(), m_Guardia);
    }
    for (std::size_t i = 0; i < m_Stato.aCondizioni.size(); ++i) {
        ContaSenzaStati(i);
    }
    // What was counted already needs its states for the diagram alone, and waits for the counters of the others.
    const std::vector<ContoCondizione> aContate = m_Conto.aCondizioni;
    for (const bool bContate : {false, true}) {
        for (std::size_t i = 0; i < aContate.size(); ++i) {
            if (SiMisura(m_Stato.aCondizioni[i].Tipo) && aContate[i].bEsatto == bContate) {
                ContaConStati(i);
                m_Guardia.Guarda();
            }
        }
    }
    if (bPossibile) {
        FallisciSeRotta();
        ContaInsieme();
    }
    m_Diagrammi.reset();
}

/// The room for diagrams. Where a walk is the other way, the short one must not take longer than that.
std::size_t Conteggio::NodiConcessi() const
{
    if (m_Opzioni.bSoloStima || m_Conto.nColonne > m_Opzioni.nColonneMassime) {
        return m_Opzioni.nNodi;
    }
    const double nVerdetti = m_Conto.nColonne * static_cast<double>(m_Stato.aCondizioni.size());
    const double nNodi = std::max(kNodiComunque, nVerdetti / kVerdettiNodo);
    return static_cast<std::size_t>(std::min(static_cast<double>(m_Opzioni.nNodi), nNodi));
}

/// A condition that has no diagram, whatever it counts.
bool Conteggio::SenzaInsieme(std::size_t nRecord) const
{
    const TipoCondizione tipo = m_Stato.aCondizioni[nRecord].Tipo;
    return tipo == TipoCondizione::emulatore ||
           (FormaDiTipo(tipo) == eForma::coppia && m_Piano.InGruppo(nRecord));
}

/// The counters that have a shorter way than states, and the end of the short way to the columns that pass.
void Conteggio::ContaSenzaStati(std::size_t nRecord)
{
    const RecordCondizione& record = m_Stato.aCondizioni[nRecord];
    if (!SiMisura(record.Tipo)) {
        if (FormaDiTipo(record.Tipo) == eForma::link) {
            m_Insiemi.aOk[nRecord] = record.Esito != kFalso ? 1 : 0; // nobody sets it
        }
        return;
    }
    const auto breve = ordavel::ContaInBreve(record, m_aScelti, m_nClasse, m_Guardia);
    if (breve && !breve->bRotti) {
        SegnaContatori(nRecord, *breve);
    }
    if (SenzaInsieme(nRecord)) {
        m_Diagrammi.reset();
    }
}

void Conteggio::ContaConStati(std::size_t nRecord)
{
    const RecordCondizione& record = m_Stato.aCondizioni[nRecord];
    const bool bServe = !m_Conto.aCondizioni[nRecord].bEsatto || m_Diagrammi;
    if (!bServe || FormaChiave(record.Tipo) == eChiave::nessuna) {
        PrendiInsiemi(nRecord, nullptr);
        return;
    }
    Automa automa(record, m_nClasse, m_aScelti, m_Stato);
    const auto contatori = ContaConAutoma(automa, record.Tipo, kByteAutoma, m_Guardia);
    if (contatori && contatori->bRotti) {
        const Colonna rotta = ColonnaDi(*ContiAutoma(automa).PrimaRotta());
        m_Rotta = !m_Rotta || rotta.aNumeri < m_Rotta->aNumeri ? rotta : m_Rotta;
        m_Diagrammi.reset();
        return;
    }
    if (contatori) {
        SegnaContatori(nRecord, *contatori);
    }
    PrendiInsiemi(nRecord, contatori ? &automa : nullptr);
}

void Conteggio::SegnaContatori(std::size_t nRecord, const ContatoriCondizione& contatori)
{
    m_Conto.aCondizioni[nRecord] = {.nOk = contatori.nOk,
                                    .nKo = m_Conto.nColonne - contatori.nOk,
                                    .nRec = contatori.nRec,
                                    .nErrore = 0,
                                    .bEsatto = true};
}

/// The sets of a condition, or the end of the short way.
/// Takes    automa   nullptr when there is none: then only a condition that says the same of all columns has a set
void Conteggio::PrendiInsiemi(std::size_t nRecord, Automa* automa)
{
    if (!m_Diagrammi) {
        return;
    }
    const bool bRecupero = m_Piano.InGruppo(nRecord);
    const ContoCondizione& conto = m_Conto.aCondizioni[nRecord];
    const auto bUguali = [&](double nQuante) { return nQuante == 0 || nQuante == m_Conto.nColonne; };
    if (automa == nullptr && !(conto.bEsatto && bUguali(conto.nOk) && (!bRecupero || bUguali(conto.nRec)))) {
        m_Diagrammi.reset();
        return;
    }
    try {
        m_Insiemi.aOk[nRecord] = automa != nullptr ? m_Diagrammi->Passano(*automa) : conto.nOk == 0 ? 0 : 1;
        if (bRecupero) {
            m_Insiemi.aRec[nRecord] = automa != nullptr ? m_Diagrammi->Recuperano(*automa)
                                      : conto.nRec == 0 ? 0
                                                        : 1;
        }
    } catch (const TroppiNodi&) {
        m_Diagrammi.reset();
    }
}

/// A development would fail at the first column that some condition fails of, and so does the count.
void Conteggio::FallisciSeRotta()
{
    if (m_Rotta) {
        ValutaCondizioni(m_nClasse, *m_Rotta, m_Stato);
    }
}

void Conteggio::ContaInsieme()
{
    const bool bNessuna = std::ranges::any_of(m_Conto.aCondizioni, [](const ContoCondizione& conto) {
        return conto.bEsatto && conto.nKo > 0 && conto.nOk == 0;
    });
    if (m_Piano.Semplice() && bNessuna) {
        SegnaPassano(0);
        return;
    }
    if (!m_Diagrammi) {
        return;
    }
    try {
        const Diagramma passano = ComponiVerdetto(*m_Diagrammi, m_Piano, m_Insiemi);
        SegnaPassano(static_cast<double>(m_Diagrammi->Conta(passano)));
    } catch (const TroppiNodi&) {
    }
}

void Conteggio::SegnaPassano(double nPassano)
{
    m_Conto.nPassano = nPassano;
    m_Conto.nErrore = 0;
    m_Conto.bEsatto = true;
}

/// What has no short way: all columns, when they are not too many.
void Conteggio::ContaTutte()
{
    if (TuttoEsatto()) {
        return;
    }
    // A walk through no more columns than an estimate draws is the better estimate.
    const double nMassime = m_Opzioni.bSoloStima ? std::min<double>(kColonneStima, m_Opzioni.nColonneMassime)
                                                 : m_Opzioni.nColonneMassime;
    if (m_Conto.nColonne > nMassime) {
        if (!m_Campione) {
            Stima();
        }
        if (m_Campione->guasto) {
            throw Errore(*m_Campione->guasto);
        }
        return;
    }
    StatoSviluppo stato = m_Stato;
    const auto nPassano = static_cast<double>(ContaCamminando(m_aNumeri, m_nClasse, stato, m_Guardia));
    SegnaPassano(nPassano);
    for (std::size_t i = 0; i < stato.aCondizioni.size(); ++i) {
        const RecordCondizione& record = stato.aCondizioni[i];
        m_Conto.aCondizioni[i] = {record.ContaOk, record.ContaKo, record.ContaRec, 0, true};
    }
}

/// Draws columns, and shows what they come to unless one of them fails: then the exact count finds the first.
void Conteggio::Stima()
{
    m_Guardia.TogliScadenza();
    const auto fine = Orologio::now() + kDurataStima;
    m_Campione = Sorteggia(m_Stato, m_aScelti, m_nClasse, m_Opzioni.nSeme, [&](std::int64_t nProve) {
        m_Guardia.Guarda();
        return nProve == 0 || (nProve < kColonneStima && Orologio::now() < fine);
    });
    if (m_Campione->guasto) {
        if (m_Opzioni.bSoloStima) {
            throw Errore(*m_Campione->guasto);
        }
        return;
    }
    if (m_PresentaStima) {
        m_PresentaStima(Composto());
    }
    if (m_Opzioni.bSoloStima) {
        throw BastaStima();
    }
}

/// What is exact, and for the rest what the columns drawn say.
ConteggioSistema Conteggio::Composto() const
{
    ConteggioSistema conto = m_Conto;
    if (!m_Campione || m_Campione->nProve == 0) {
        return conto;
    }
    const auto quota = [&](std::int64_t nColpi) {
        const Quota q = QuotaDi(nColpi, m_Campione->nProve);
        return Quota{q.nQuota * conto.nColonne, q.nErrore * conto.nColonne};
    };
    if (!conto.bEsatto) {
        const Quota passano = quota(m_Campione->nPassano);
        conto.nPassano = passano.nQuota;
        conto.nErrore = passano.nErrore;
    }
    for (std::size_t i = 0; i < conto.aCondizioni.size(); ++i) {
        if (!conto.aCondizioni[i].bEsatto) {
            const Quota ok = quota(m_Campione->aOk[i]);
            const Quota rec = quota(m_Campione->aRec[i]);
            conto.aCondizioni[i] = {ok.nQuota, conto.nColonne - ok.nQuota, rec.nQuota,
                                    std::max(ok.nErrore, rec.nErrore), false};
        }
    }
    return conto;
}

} // namespace

std::optional<ConteggioSistema> ContaSistema(const SistemaDaContare& sistema, const OpzioniConteggio& opzioni,
                                             const ContoAnnullato& annullato, const StimaPronta& stima)
{
    if (sistema.nClasse < 1 || sistema.nClasse > kNumeriColonna) {
        Solleva(eErrore::indice);
    }
    GuardiaConteggio guardia(annullato);
    try {
        return Conteggio(sistema, opzioni, guardia, stima).Esegui();
    } catch (const ConteggioAnnullato&) {
        return std::nullopt;
    }
}

} // namespace ordavel
