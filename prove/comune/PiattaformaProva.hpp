// PiattaformaProva.hpp - a desktop played by a test: a script of answers, a record of all that was shown.
//
// Every question and every file dialog takes the next answer of its script; one that finds none fails the test,
// and so does an answer that nobody asked for, a box that no test looked at, or a pointer left busy.

#pragma once

#include "ordavel/Piattaforma.hpp"

#include <gmock/gmock.h>

#include <chrono>
#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ordavel {

[[nodiscard]] inline bool operator==(const Messaggio& uno, const Messaggio& due)
{
    return uno.icona == due.icona && uno.sTitolo == due.sTitolo && uno.sTesto == due.sTesto &&
           uno.pulsanti == due.pulsanti;
}

inline std::ostream& operator<<(std::ostream& uscita, const Messaggio& m)
{
    return uscita << "{icona " << static_cast<int>(m.icona) << ", \"" << m.sTitolo << "\", \"" << m.sTesto
                  << "\", pulsanti " << static_cast<int>(m.pulsanti) << "}";
}

[[nodiscard]] inline bool operator==(const RichiestaFile& uno, const RichiestaFile& due)
{
    return uno.sTitolo == due.sTitolo && uno.sFiltro == due.sFiltro && uno.sEstensione == due.sEstensione &&
           uno.sNomeFile == due.sNomeFile && uno.sCartella == due.sCartella;
}

inline std::ostream& operator<<(std::ostream& uscita, const RichiestaFile& r)
{
    return uscita << "{\"" << r.sTitolo << "\", \"" << r.sFiltro << "\", \"" << r.sEstensione << "\", \""
                  << r.sNomeFile << "\", \"" << r.sCartella << "\"}";
}

} // namespace ordavel

namespace ordavel::prove {

/// A warning, which has no title of its own.
inline Messaggio Avviso(std::string_view sTesto)
{
    return {.icona = eIcona::avviso, .sTitolo = {}, .sTesto = std::string(sTesto), .pulsanti = ePulsanti::ok};
}

/// What is said when the draws of an emulator cannot be had.
inline Messaggio EmulatoreNonCreato()
{
    return {.icona = eIcona::nessuna,
            .sTitolo = {},
            .sTesto = "Filtro emulatore non creato",
            .pulsanti = ePulsanti::ok};
}

/// A question with yes and no.
inline Messaggio Domanda(std::string_view sTesto)
{
    return {
        .icona = eIcona::domanda, .sTitolo = {}, .sTesto = std::string(sTesto), .pulsanti = ePulsanti::siNo};
}

/// The box of a failure.
inline Messaggio Fallimento(std::string_view sOrigine, const Errore& errore)
{
    return {.icona = eIcona::critico,
            .sTitolo = std::string(sOrigine),
            .sTesto = TestoFallimento(errore),
            .pulsanti = ePulsanti::ok};
}

/// A file dialog that was shown.
struct DialogoFile {
    bool bSalva = false;
    RichiestaFile richiesta;

    [[nodiscard]] friend bool operator==(const DialogoFile&, const DialogoFile&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const DialogoFile& d)
    {
        return uscita << (d.bSalva ? "salva " : "apri ") << d.richiesta;
    }
};

class PiattaformaProva : public Piattaforma {
public:
    PiattaformaProva() = default;
    PiattaformaProva(const PiattaformaProva&) = delete;
    PiattaformaProva& operator=(const PiattaformaProva&) = delete;
    ~PiattaformaProva() override
    {
        EXPECT_THAT(m_aMessaggi, testing::IsEmpty()) << "finestre che nessuno ha guardato";
        EXPECT_THAT(m_aRisposte, testing::IsEmpty()) << "risposte che nessuno ha chiesto";
        EXPECT_THAT(m_aFile, testing::IsEmpty()) << "file che nessuno ha chiesto";
        EXPECT_TRUE(m_aGiochi.empty()) << m_aGiochi.size() << " finestre di dialogo mai mostrate";
        EXPECT_EQ(m_nOccupato, 0) << "puntatore lasciato in attesa";
    }

    /// The answer to the next question.
    void Rispondi(eRisposta risposta) { m_aRisposte.push_back(risposta); }

    /// The answer to the next file dialog; empty to give up.
    void Scegli(std::string sFile) { m_aFile.push_back(std::move(sFile)); }

    /// What the user does with the next dialog, which must be of that type. Left on show at the end, its window
    /// is closed.
    template <typename Finestra, typename Azione> void Gioca(Azione azione)
    {
        m_aGiochi.push_back([azione](Dialogo& dialogo) {
            auto* mostrata = dynamic_cast<Finestra*>(&dialogo);
            ASSERT_NE(mostrata, nullptr) << "si mostra " << dialogo.sNome;
            azione(*mostrata);
        });
    }

    /// What the clock shows at its next readings; the last time stays.
    void Orologio(std::initializer_list<float> aSecondi) { m_aSecondi = aSecondi; }

    /// The boxes since the last call, in their order.
    [[nodiscard]] std::vector<Messaggio> Messaggi() { return std::exchange(m_aMessaggi, {}); }

    /// The file dialogs since the last call, in their order.
    [[nodiscard]] std::vector<DialogoFile> Dialoghi() { return std::exchange(m_aDialoghi, {}); }

    [[nodiscard]] bool Occupato() const { return m_nOccupato > 0; }

    eRisposta MostraMessaggio(const Messaggio& messaggio) override
    {
        m_aMessaggi.push_back(messaggio);
        if (finestra) {
            finestra();
        }
        return messaggio.pulsanti == ePulsanti::ok ? eRisposta::ok
                                                   : Prossima(m_aRisposte, eRisposta::no, messaggio);
    }

    std::string DialogoApri(const RichiestaFile& richiesta) override { return Chiedi({false, richiesta}); }
    std::string DialogoSalva(const RichiestaFile& richiesta) override { return Chiedi({true, richiesta}); }

    /// The next folder is an answer of the same script as the files.
    std::string ScegliCartella(const std::string& sCartella) override
    {
        return Prossima(m_aFile, std::string(), sCartella);
    }

    void MostraModale(Dialogo& dialogo) override
    {
        aMostrati.push_back(dialogo.sNome);
        if (m_aGiochi.empty()) {
            ADD_FAILURE() << "nessuno sa che fare di " << dialogo.sNome;
            return;
        }
        const auto gioco = std::move(m_aGiochi.front());
        m_aGiochi.pop_front();
        dialogo.Mostra();
        gioco(dialogo);
        dialogo.Visibile.Poni(false);
    }

    void MostraAccanto(Dialogo& dialogo) override
    {
        aMostrati.push_back(dialogo.sNome);
        dialogo.Mostra();
    }

    void Beep() override { ++nBeep; }

    [[nodiscard]] double LarghezzaTesto(std::string_view sTesto) const override { return larghezza(sTesto); }
    [[nodiscard]] double AltezzaTesto(std::string_view sTesto) const override { return altezza(sTesto); }

    /// What was asked of the statistics of the component, and its starts and stops.
    struct RegistroStatistica {
        std::vector<std::pair<std::int32_t, std::int16_t>> aMostrate;
        int nAvvii = 0;
        int nFermate = 0;
    };

    std::unique_ptr<Statistica> CreaStatistica() override;

    void LasciaEventi() override
    {
        ++nEventi;
        if (eventi) {
            eventi();
        }
    }

    void PuntatoreOccupato(bool bOccupato) override
    {
        m_nOccupato += bOccupato ? 1 : -1;
        EXPECT_GE(m_nOccupato, 0) << "puntatore liberato senza essere in attesa";
    }

    float SecondiDaMezzanotte() override
    {
        const float nSecondi = m_aSecondi.front();
        if (m_aSecondi.size() > 1) {
            m_aSecondi.pop_front();
        }
        return nSecondi;
    }

    std::chrono::steady_clock::time_point Adesso() override { return adesso(); }

    /// The clock that decides how often things are shown; at first so much passes that it is always time.
    std::function<std::chrono::steady_clock::time_point()> adesso = [ora = std::chrono::hours{0}]() mutable {
        return std::chrono::steady_clock::time_point(++ora);
    };
    std::function<void()> finestra;     ///< what happens while a box is shown
    std::function<void()> eventi;       ///< what happens whenever events are let run
    int nBeep = 0;                      ///< sounds
    int nEventi = 0;                    ///< how often they were
    std::vector<std::string> aMostrati; ///< the names of all dialogs that were shown
    RegistroStatistica statistica;
    /// Sizes of a text: at first those of any desktop.
    std::function<double(std::string_view)> larghezza = [this](std::string_view sTesto) {
        return Piattaforma::LarghezzaTesto(sTesto);
    };
    std::function<double(std::string_view)> altezza = [this](std::string_view sTesto) {
        return Piattaforma::AltezzaTesto(sTesto);
    };

private:
    std::string Chiedi(const DialogoFile& dialogo)
    {
        m_aDialoghi.push_back(dialogo);
        return Prossima(m_aFile, std::string(), dialogo);
    }

    template <typename Risposta, typename Domanda>
    static Risposta Prossima(std::deque<Risposta>& aCopione, Risposta senza, const Domanda& domanda)
    {
        if (aCopione.empty()) {
            ADD_FAILURE() << "nessuna risposta per " << domanda;
            return senza;
        }
        Risposta risposta = std::move(aCopione.front());
        aCopione.pop_front();
        return risposta;
    }

    std::vector<Messaggio> m_aMessaggi;
    std::vector<DialogoFile> m_aDialoghi;
    std::deque<eRisposta> m_aRisposte;
    std::deque<std::string> m_aFile;
    std::deque<std::function<void(Dialogo&)>> m_aGiochi;
    std::deque<float> m_aSecondi{0};
    int m_nOccupato = 0;
};

/// Remembers what it was asked for.
class StatisticaProva : public Statistica {
public:
    explicit StatisticaProva(PiattaformaProva::RegistroStatistica& registro) : m_Registro(registro) {}

    void Avvia() override { ++m_Registro.nAvvii; }
    void Ferma() override { ++m_Registro.nFermate; }
    void MostraStatistica(std::int32_t nIdStatistica, std::int16_t nGioco) override
    {
        m_Registro.aMostrate.emplace_back(nIdStatistica, nGioco);
    }

private:
    PiattaformaProva::RegistroStatistica& m_Registro;
};

inline std::unique_ptr<Statistica> PiattaformaProva::CreaStatistica()
{
    return std::make_unique<StatisticaProva>(statistica);
}

} // namespace ordavel::prove
