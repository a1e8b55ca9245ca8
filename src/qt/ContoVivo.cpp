// ContoVivo.cpp - the count that follows the user.

#include "qt/ContoVivo.hpp"

#include "qt/Legami.hpp"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace ordavel::qt {

namespace {

/// A row of changes, as when numbers are chosen one by one, is counted once; a single one soon enough.
constexpr int kAttesaMillisecondi = 15;
constexpr int kGuardiaMillisecondi = 50;
constexpr double kColonneCamminate = 1e9;

} // namespace

/// One thread that counts the system it was given last, and tells of it in the thread of its owner.
class ContoVivo::Filo {
public:
    explicit Filo(ContoVivo& padrone)
        : m_Padrone(padrone), m_Filo([this](const std::stop_token& fine) { lavora(fine); })
    {}
    Filo(const Filo&) = delete;
    Filo& operator=(const Filo&) = delete;
    ~Filo() { annulla(); }

    /// The count on its way ends, and what it still says is not heard.
    void annulla()
    {
        ++m_nRichiesta;
        const std::scoped_lock presa(m_Serratura);
        m_Lavoro.reset();
    }

    void conta(SistemaDaContare sistema, const OpzioniConteggio& opzioni)
    {
        annulla();
        {
            const std::scoped_lock presa(m_Serratura);
            m_Lavoro = Lavoro{m_nRichiesta, std::move(sistema), opzioni};
        }
        m_Sveglia.notify_one();
    }

private:
    struct Lavoro {
        std::uint64_t nRichiesta = 0;
        SistemaDaContare sistema;
        OpzioniConteggio opzioni;
    };

    void lavora(const std::stop_token& fine)
    {
        while (true) {
            std::unique_lock presa(m_Serratura);
            if (!m_Sveglia.wait(presa, fine, [this] { return m_Lavoro.has_value(); })) {
                return;
            }
            const Lavoro lavoro = *std::exchange(m_Lavoro, std::nullopt);
            presa.unlock();
            esegui(lavoro);
        }
    }

    void esegui(const Lavoro& lavoro)
    {
        const std::uint64_t nRichiesta = lavoro.nRichiesta;
        const auto racconta = [&](const ConteggioSistema& conto, bool bUltimo) {
            posta(nRichiesta, [this, conto, bUltimo] { m_Padrone.arriva(conto, bUltimo); });
        };
        try {
            const auto conto = ContaSistema(
                lavoro.sistema, lavoro.opzioni, [&] { return m_nRichiesta.load() != nRichiesta; },
                [&](const ConteggioSistema& stima) { racconta(stima, false); });
            if (conto) {
                racconta(*conto, true);
            }
        } catch (const Errore& errore) {
            posta(nRichiesta,
                  [this, sMotivo = Testo(TestoFallimento(errore))] { m_Padrone.rinuncia(sMotivo); });
        } catch (const std::exception& errore) {
            posta(nRichiesta,
                  [this, sMotivo = QString::fromUtf8(errore.what())] { m_Padrone.rinuncia(sMotivo); });
        }
    }

    /// Has something said in the owner's thread, if it is still asked for then. The owner outlives its thread, and what
    /// has not been heard when it goes is dropped with it.
    template <typename Azione> void posta(std::uint64_t nRichiesta, Azione azione)
    {
        QMetaObject::invokeMethod(
            &m_Padrone,
            [this, nRichiesta, azione] {
                if (m_nRichiesta.load() == nRichiesta) {
                    azione();
                }
            },
            Qt::QueuedConnection);
    }

    ContoVivo& m_Padrone;
    std::atomic<std::uint64_t> m_nRichiesta{0};
    std::mutex m_Serratura;
    std::condition_variable_any m_Sveglia;
    std::optional<Lavoro> m_Lavoro;
    std::jthread m_Filo; ///< the last one: it uses all others
};

ContoVivo::ContoVivo(Ordavel& componente, QObject* padre)
    : QObject(padre),
      m_Componente(componente),
      m_Opzioni{.nColonneMassime = kColonneCamminate},
      m_Attesa(this),
      m_Guardia(this)
{
    m_Attesa.setSingleShot(true);
    m_Attesa.setInterval(kAttesaMillisecondi);
    connect(&m_Attesa, &QTimer::timeout, this, &ContoVivo::prepara);
    m_Guardia.setInterval(kGuardiaMillisecondi);
    connect(&m_Guardia, &QTimer::timeout, this, &ContoVivo::controlla);
}

ContoVivo::~ContoVivo() = default;

ContoVivo::Impronta ContoVivo::impronta() const
{
    return {.nRevisione = m_Componente.GetGridCond().Revisione(),
            .nClasse = m_Componente.classe(),
            .numeri = m_Componente.Controlli().SelnovoNumeri1.Scelti.Valore(),
            .aQuadro = m_Componente.Controlli().LbQuadroRec.Voci.Valore()};
}

/// Is all as it was, also by its looks? Nothing is copied for it.
bool ContoVivo::uguale() const
{
    return m_Impronta.nRevisione == m_Componente.GetGridCond().Revisione() &&
           m_Impronta.nClasse == m_Componente.classe() &&
           m_Impronta.numeri == m_Componente.Controlli().SelnovoNumeri1.Scelti.Valore() &&
           m_Impronta.aQuadro == m_Componente.Controlli().LbQuadroRec.Voci.Valore();
}

/// Takes note of the system. A grid in which somebody might have written, and has not, is no change.
bool ContoVivo::cambiato()
{
    if (!m_bSporco && uguale()) {
        return false;
    }
    Impronta nuova = impronta();
    ContenutoSistema contenuto = m_Componente.Contenuto();
    const bool bCambiato =
        std::exchange(m_bSporco, false) || nuova.nClasse != m_Impronta.nClasse || !(contenuto == m_Contenuto);
    m_Impronta = std::move(nuova);
    m_Contenuto = std::move(contenuto);
    return bCambiato;
}

void ContoVivo::controlla()
{
    if (m_Componente.InCorso()) {
        ferma();
        return;
    }
    m_bFermo = false;
    if (cambiato()) {
        if (m_Filo) {
            m_Filo->annulla();
        }
        occupa(true);
        m_Attesa.start();
        Q_EMIT cominciato();
    }
}

void ContoVivo::ferma()
{
    m_bSporco = true;
    m_Attesa.stop();
    if (m_Filo && !m_bFermo) {
        m_Filo->annulla();
    }
    if (!std::exchange(m_bFermo, true)) {
        rinuncia(QStringLiteral("elaborazione in corso"));
    }
}

QString ContoVivo::impedimento() const
{
    if (m_Componente.classe() < 1) {
        return QStringLiteral("nessuna classe");
    }
    return m_Componente.ContaNumeriSel() < m_Componente.classe() ? QStringLiteral("numeri insufficienti")
                                                                 : QString();
}

void ContoVivo::prepara()
{
    if (m_Componente.InCorso()) {
        ferma();
        return;
    }
    try {
        if (const QString sMotivo = impedimento(); !sMotivo.isEmpty()) {
            rinuncia(sMotivo);
        } else {
            consegna();
        }
    } catch (const Errore& errore) {
        rinuncia(Testo(TestoFallimento(errore)));
    } catch (const std::exception& errore) {
        rinuncia(QString::fromUtf8(errore.what()));
    }
}

void ContoVivo::consegna()
{
    SistemaDaContare sistema = m_Componente.PreparaConteggio();
    if (!m_Filo) {
        m_Filo = std::make_unique<Filo>(*this);
    }
    m_Filo->conta(std::move(sistema), m_Opzioni);
}

void ContoVivo::occupa(bool bOccupato)
{
    m_bOccupato = bOccupato;
    if (!bOccupato) {
        m_Guardia.stop();
    } else if (!m_Guardia.isActive()) {
        m_Guardia.start();
    }
}

void ContoVivo::rinuncia(const QString& sMotivo)
{
    occupa(false);
    Q_EMIT nessuno(sMotivo);
    Q_EMIT finito();
}

void ContoVivo::arriva(const ConteggioSistema& conto, bool bUltimo)
{
    occupa(!bUltimo);
    if (conto.bEsatto) {
        Q_EMIT esatto(conto);
    } else {
        Q_EMIT stima(conto);
    }
    if (bUltimo) {
        Q_EMIT finito();
    }
}

} // namespace ordavel::qt
