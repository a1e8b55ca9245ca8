// ModRiduci.cpp - analysis, order, choice.

#include "riduzione/ModRiduci.hpp"

#include "core/Cadenza.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"
#include "core/ModOrdina.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <algorithm>

namespace ordavel {

namespace {

/// Without events a user waits no longer than this, give or take a step.
constexpr std::chrono::milliseconds kPausaEventi{50};

/// One run.
class Riduzione {
public:
    Riduzione(const ProblemaRiduzione& problema, eCopertura forma, const StatoRiduzione& stato,
              AvanzamentoRiduzione& avanzamento)
        : m_Problema(problema),
          m_Stato(stato),
          m_Avanzamento(avanzamento),
          m_Copertura(CreaCopertura(forma, problema, [this] { return Avanti(); })),
          m_aRecord(problema.aColonne.size()),
          m_aScelte(problema.aColonne.size())
    {}

    void AnalisiRappresentativita();
    void OrdinaRappresentativita();
    void EseguiRiduzione();
    [[nodiscard]] std::vector<Colonna> Ridotte() const;

private:
    [[nodiscard]] std::size_t Colonna0(std::size_t nPosto) const noexcept
    {
        return static_cast<std::size_t>(m_aRecord[nPosto].IdColonna - 1);
    }
    void EseguiLivello(std::int32_t nLivello);
    [[nodiscard]] std::vector<std::uint32_t> Candidati(std::int32_t nLivello);
    void LasciaEventi();
    [[nodiscard]] bool Avanti();

    const ProblemaRiduzione& m_Problema;
    const StatoRiduzione& m_Stato;
    AvanzamentoRiduzione& m_Avanzamento;
    Cadenza m_Eventi{kPausaEventi, Cadenza::Orologio::now() + kPausaEventi};
    std::unique_ptr<Copertura> m_Copertura;
    std::vector<RecordRiduzione> m_aRecord; ///< in file order, then sorted
    std::vector<bool> m_aScelte;            ///< by sorted place, from 0
    std::vector<std::vector<std::uint32_t>>
        m_aRimandati;            ///< places, by the value that they had when last looked at
    std::size_t m_nProssimo = 0; ///< first place that was never looked at
};

void Riduzione::AnalisiRappresentativita()
{
    const std::size_t nColonne = m_Problema.aColonne.size();
    std::vector<std::int32_t> aPunteggi(std::min(m_Copertura->Blocco(), nColonne));
    for (std::size_t nDa = 0; nDa < nColonne && !m_Stato.StopRiduzione; nDa += aPunteggi.size()) {
        const std::size_t nQuanti = std::min(aPunteggi.size(), nColonne - nDa);
        m_Copertura->ValoriIniziali(nDa, std::span(aPunteggi).first(nQuanti));
        for (std::size_t i = 0; i < nQuanti; ++i) {
            m_aRecord[nDa + i] = {aPunteggi[i], static_cast<std::int32_t>(nDa + i + 1)};
        }
        m_Avanzamento.MostraPercentuale(
            PercentualeProgress(static_cast<double>(nDa + nQuanti), static_cast<double>(nColonne)));
        LasciaEventi();
    }
}

void Riduzione::OrdinaRappresentativita()
{
    const auto davanti = [](const RecordRiduzione& a, const RecordRiduzione& b) {
        return a.Punteggio > b.Punteggio;
    };
    OrdinaRapido(m_aRecord, davanti);
}

/// The columns whose value may be nLivello, by place: those whose value was so great when they were last looked at.
std::vector<std::uint32_t> Riduzione::Candidati(std::int32_t nLivello)
{
    std::vector<std::uint32_t> aCandidati = std::move(m_aRimandati[static_cast<std::size_t>(nLivello)]);
    while (m_nProssimo < m_aRecord.size() && m_aRecord[m_nProssimo].Punteggio == nLivello) {
        aCandidati.push_back(static_cast<std::uint32_t>(m_nProssimo++));
    }
    std::ranges::sort(aCandidati);
    return aCandidati;
}

void Riduzione::LasciaEventi()
{
    m_Avanzamento.LasciaEventi();
    m_Eventi.Riparti(Cadenza::Orologio::now());
}

/// Lets events run now and then.
/// Gives    false once the reduction is stopped
bool Riduzione::Avanti()
{
    if (m_Eventi.Scaduta(Cadenza::Orologio::now())) {
        LasciaEventi();
    }
    return !m_Stato.StopRiduzione;
}

/// Values only fall. So a column that reaches the level stands among the candidates, each is looked at once, in order
/// of place, and a second pass over the same level would find nobody.
void Riduzione::EseguiLivello(std::int32_t nLivello)
{
    for (const std::uint32_t nPosto : Candidati(nLivello)) {
        const std::int32_t nValore = m_Copertura->Valore(Colonna0(nPosto));
        if (nValore == nLivello) {
            m_Copertura->Scegli(Colonna0(nPosto));
            m_aScelte[nPosto] = true;
        } else if (nValore > 0) {
            m_aRimandati[static_cast<std::size_t>(nValore)].push_back(nPosto);
        }
        if (!Avanti()) {
            return;
        }
    }
}

void Riduzione::EseguiRiduzione()
{
    m_Avanzamento.MostraPercentuale(0);
    const std::int32_t nPrimoLivello = m_aRecord.empty() ? 0 : m_aRecord.front().Punteggio;
    m_aRimandati.resize(static_cast<std::size_t>(nPrimoLivello) + 1);
    std::int16_t nMostrata = 0;
    for (std::int32_t nLivello = nPrimoLivello; nLivello > 0 && !m_Stato.StopRiduzione; --nLivello) {
        EseguiLivello(nLivello);
        const std::int32_t nFatti = nPrimoLivello - nLivello + 1;
        const std::int16_t nPercentuale = PercentualeProgress(nFatti, nPrimoLivello);
        if (nPercentuale != nMostrata) {
            nMostrata = nPercentuale;
            m_Avanzamento.MostraPercentuale(nPercentuale);
            LasciaEventi();
        }
    }
}

std::vector<Colonna> Riduzione::Ridotte() const
{
    std::vector<Colonna> aRidotte;
    for (std::size_t nPosto = 0; nPosto < m_aRecord.size(); ++nPosto) {
        if (m_aScelte[nPosto] || !m_Copertura->Coperta(Colonna0(nPosto))) {
            aRidotte.push_back(m_Problema.aColonne[Colonna0(nPosto)]);
        }
    }
    return aRidotte;
}

} // namespace

std::int16_t ClasseRiduzione(std::span<const Colonna> aColonne) noexcept
{
    std::int16_t nClasse = aColonne.empty() ? std::int16_t{0} : kNumeriColonna;
    while (nClasse > 0 && aColonne.front()[nClasse] == 0) {
        --nClasse;
    }
    return nClasse;
}

std::optional<std::vector<Colonna>> RiduciInMemoria(std::span<const Colonna> aColonne,
                                                    std::int32_t nPuntiRichiesti,
                                                    std::optional<eCopertura> forma,
                                                    const StatoRiduzione& stato,
                                                    AvanzamentoRiduzione& avanzamento)
{
    const ProblemaRiduzione problema{aColonne, ClasseRiduzione(aColonne), nPuntiRichiesti};
    avanzamento.MostraFase("Analisi rappresentatività colonne in corso ...");
    Riduzione riduzione(problema, forma.value_or(FormaMigliore(problema)), stato, avanzamento);
    riduzione.AnalisiRappresentativita();
    avanzamento.MostraFase("Ordinamento in corso ...");
    const bool bAnalizzate = !stato.StopRiduzione;
    if (bAnalizzate) {
        riduzione.OrdinaRappresentativita();
    }
    avanzamento.MostraFase("Riduzione colonne ...");
    if (!bAnalizzate) {
        return {};
    }
    riduzione.EseguiRiduzione();
    return riduzione.Ridotte();
}

void RiduzioneColonne(const std::string& sFileCol, std::int32_t nPuntiRichiesti,
                      std::vector<Colonna>& aColonneRidotte, StatoRiduzione& stato,
                      AvanzamentoRiduzione& avanzamento)
{
    stato.StopRiduzione = false;
    ConGestore(avanzamento, "ModRiduci.RiduzioneColonne", [&] {
        const auto nColonne = static_cast<std::int64_t>(ArrotondaPari(NumeroColonneFile(sFileCol)));
        const std::vector<Colonna> aColonne = LeggiColonne(sFileCol, nColonne);
        if (auto ridotte = RiduciInMemoria(aColonne, nPuntiRichiesti, {}, stato, avanzamento)) {
            aColonneRidotte = std::move(*ridotte);
        }
        avanzamento.MostraFase("");
        avanzamento.MostraPercentuale(0);
        if (stato.StopRiduzione) {
            avanzamento.MostraInterruzione();
        }
    });
}

} // namespace ordavel
