// SviluppoTratti.cpp - threads, the writing in order, and what is left at the end.

#include "motore/SviluppoTratti.hpp"

#include "core/Fili.hpp"
#include "motore/ModVerifica.hpp"
#include "motore/RangoColonne.hpp"

#include <algorithm>
#include <memory>

namespace ordavel {

namespace {

class Sviluppo {
public:
    Sviluppo(const NumeriScelti& aNumeri, std::int16_t nClasse, BufferColonne& buffer, StatoSviluppo& stato,
             ComandiTratti& comandi, const OpzioniTratti& opzioni)
        : m_aNumeri(aNumeri),
          m_aScelti(Scelti(aNumeri)),
          m_nClasse(nClasse),
          m_Buffer(buffer),
          m_Stato(stato),
          m_Comandi(comandi),
          m_Opzioni(opzioni)
    {}

    FineTratti Esegui()
    {
        if (!PreparaCamminate()) {
            EseguiPiano();
            return {};
        }
        FineTratti fine;
        if (!m_aCamminate[0]->Condizioni().Interrotte()) {
            fine.bContatori = DividiInTratti();
            Cammina();
        }
        return fine;
    }

private:
    /// Makes one walker for each thread.
    /// Gives    false when the plain form is to be taken
    [[nodiscard]] bool PreparaCamminate()
    {
        if (!BlocchiPossibili(m_aScelti.size(), m_nClasse, m_Stato)) {
            return false;
        }
        const CorsaBlocchi corsa{.aScelti = m_aScelti,
                                 .nClasse = m_nClasse,
                                 .nTotale = 0,
                                 .nucleo = m_Opzioni.nucleo,
                                 .nByteAutomi = m_Opzioni.nByteAutomi};
        m_aCamminate.resize(std::max(m_Opzioni.nFili, 1U));
        m_aCamminate[0] = NuovaCamminata(corsa, nullptr);
        const CondizioniBlocchi& condizioni = m_aCamminate[0]->Condizioni();
        if (condizioni.Interrotte() || condizioni.Falliscono()) {
            return condizioni.Interrotte();
        }
        if (condizioni.InCatena()) {
            m_aCamminate.resize(1);
        }
        InParallelo(static_cast<unsigned>(m_aCamminate.size()), [&](unsigned nFilo) {
            if (nFilo > 0) {
                m_aCamminate[nFilo] = NuovaCamminata(corsa, m_aCamminate[0].get());
            }
        });
        return true;
    }

    [[nodiscard]] std::unique_ptr<CamminataTratto> NuovaCamminata(const CorsaBlocchi& corsa,
                                                                  const CamminataTratto* modello)
    {
        return std::make_unique<CamminataTratto>(corsa, m_Stato, m_Opzioni.limiti, m_Comandi.bFerma, modello);
    }

    [[nodiscard]] bool DividiInTratti()
    {
        const bool bGuardaTutto = NumeroColonne() <= m_Opzioni.nColonneGuardate;
        bool bContatori = true;
        for (const std::unique_ptr<CamminataTratto>& camminata : m_aCamminate) {
            if (camminata) {
                bContatori = camminata->Condizioni().DividiInTratti(bGuardaTutto);
            }
        }
        return bContatori;
    }

    [[nodiscard]] std::int64_t NumeroColonne() const
    {
        return QuanteColonne(m_aScelti.size(), static_cast<std::size_t>(m_nClasse), 0, 0);
    }

    void Cammina()
    {
        TrattiInOrdine tratti(NumeroColonne(), m_Opzioni.coda, m_Comandi.bFerma);
        try {
            InParallelo(static_cast<unsigned>(m_aCamminate.size()),
                        [&](unsigned nFilo) { Lavora(m_aCamminate[nFilo].get(), tratti); });
        } catch (...) {
            PoniUltimiValori();
            throw;
        }
        PoniUltimiValori();
        if (m_bFallisce && !m_Comandi.bFerma) {
            EseguiPiano();
        }
    }

    /// What each thread does until the end.
    void Lavora(CamminataTratto* camminata, TrattiInOrdine& tratti)
    {
        if (camminata == nullptr) {
            return; // a thread that was not there when the walkers were made
        }
        try {
            while (TrattiInOrdine::Tratto* tratto = tratti.Prossimo()) {
                if (tratto->stato == TrattiInOrdine::eStato::inScrittura) {
                    Scrivi(tratto->fatto);
                    m_bFallisce ? tratti.Finisci() : tratti.Scritto();
                } else {
                    tratti.Camminato(*tratto, camminata->Cammina(tratto->nDa, tratto->nA));
                }
            }
        } catch (...) {
            tratti.Finisci();
            throw;
        }
    }

    /// One thread at a time, stretch after stretch.
    void Scrivi(const TrattoFatto& fatto)
    {
        std::int64_t nTenute = m_Comandi.nCondizionate;
        if (m_Buffer.Riduce()) {
            for (const Colonna& colonna : fatto.aTenute) {
                nTenute += Tieni(colonna) ? 1 : 0;
            }
        } else {
            TieniTutte(fatto.aTenute);
            nTenute += static_cast<std::int64_t>(fatto.aTenute.size());
        }
        Somma(fatto);
        m_bFallisce = fatto.bFallisce;
        m_nEsaminate = fatto.nFine;
        m_Comandi.nCondizionate = nTenute;
        m_Comandi.nSviluppate = fatto.nFine;
    }

    [[nodiscard]] bool Tieni(const Colonna& colonna)
    {
        m_Buffer.Candidata() = colonna;
        if (!m_Buffer.SuperaRiduzione()) {
            return false;
        }
        m_Buffer.Tieni(kColonneBuffer);
        return true;
    }

    void TieniTutte(std::span<const Colonna> aColonne)
    {
        while (!aColonne.empty()) {
            const std::span<Colonna> aLiberi = m_Buffer.Liberi();
            const std::size_t nQuante = std::min(aLiberi.size(), aColonne.size());
            std::ranges::copy(aColonne.first(nQuante), aLiberi.begin());
            m_Buffer.TieniLiberi(nQuante);
            aColonne = aColonne.subspan(nQuante);
        }
    }

    /// Adds what a stretch counted to what those in front of it did.
    void Somma(const TrattoFatto& fatto)
    {
        m_aConti.resize(fatto.aConti.size());
        for (std::size_t i = 0; i < m_aConti.size(); ++i) {
            ContiTratto& somma = m_aConti[i];
            const ContiTratto& conti = fatto.aConti[i];
            if (conti.conti.nRec > 0) {
                somma.nOkAlRecupero = somma.conti.nOk + conti.nOkAlRecupero;
            }
            if (conti.conti.nOk != static_cast<std::uint64_t>(fatto.nGuardate)) {
                somma.bRiporto = conti.bRiporto;
            }
            somma.conti = somma.conti + conti.conti;
        }
        m_nGuardate += fatto.nGuardate;
    }

    /// What the last column examined leaves in the records.
    void PoniUltimiValori()
    {
        if (m_nEsaminate == 0) {
            return;
        }
        CondizioniBlocchi& condizioni = m_aCamminate[0]->Condizioni();
        const PostiColonna aPosti =
            PostiDi(m_aScelti.size(), static_cast<std::size_t>(m_nClasse), m_nEsaminate - 1);
        Colonna ultima;
        for (std::size_t k = 0; k < static_cast<std::size_t>(m_nClasse); ++k) {
            ultima.aNumeri[k] = m_aScelti[aPosti[k]];
        }
        condizioni.PoniContiTratti(m_aConti, static_cast<std::uint64_t>(m_nGuardate));
        condizioni.PoniConti(static_cast<std::uint64_t>(m_nEsaminate), aPosti);
        condizioni.PoniUltimiValori(ultima);
    }

    /// The plain form, from the first column that was not examined on: to the end, or to a column that fails.
    void EseguiPiano()
    {
        Enumeratore enumeratore(m_aNumeri, m_nClasse);
        if (m_nEsaminate > 0) {
            enumeratore.Vai(PostiDi(m_aScelti.size(), static_cast<std::size_t>(m_nClasse), m_nEsaminate));
        }
        bool bAvanti = enumeratore.Presente();
        while (bAvanti && !m_Comandi.bFerma.load(std::memory_order_relaxed)) {
            Colonna& colonna = m_Buffer.Candidata();
            enumeratore.Componi(colonna);
            if (VerificaColonna(m_nClasse, colonna, m_Stato) && m_Buffer.SuperaRiduzione()) {
                m_Buffer.Tieni(kColonneBuffer);
                m_Comandi.nCondizionate.fetch_add(1, std::memory_order_relaxed);
            }
            m_Comandi.nSviluppate.store(++m_nEsaminate, std::memory_order_relaxed);
            bAvanti = enumeratore.Avanza();
        }
    }

    const NumeriScelti& m_aNumeri;
    std::vector<std::uint8_t> m_aScelti;
    std::int16_t m_nClasse;
    BufferColonne& m_Buffer;
    StatoSviluppo& m_Stato;
    ComandiTratti& m_Comandi;
    const OpzioniTratti& m_Opzioni;
    std::vector<std::unique_ptr<CamminataTratto>> m_aCamminate; ///< by thread
    // Of the writing, which one thread does at a time.
    std::vector<ContiTratto> m_aConti;
    std::int64_t m_nEsaminate = 0;
    std::int64_t m_nGuardate = 0;
    bool m_bFallisce = false; ///< the block behind the last stretch does
};

} // namespace

FineTratti SviluppaTratti(const NumeriScelti& aNumeri, std::int16_t nClasse, std::int16_t nLimite,
                          FileBinario& file, StatoSviluppo& stato, ComandiTratti& comandi,
                          const OpzioniTratti& opzioni)
{
    if (nClasse < 1 || nClasse > kNumeriColonna) {
        Solleva(eErrore::indice);
    }
    if (ContaNumeri(aNumeri) < nClasse) {
        Solleva(eErrore::divisione);
    }
    // Two different columns share less than the class, so that a limit from there on thins nothing.
    BufferColonne buffer(file, nClasse, nLimite < nClasse ? nLimite : std::int16_t{0});
    const FineTratti fine = Sviluppo(aNumeri, nClasse, buffer, stato, comandi, opzioni).Esegui();
    buffer.ScriviResto();
    return fine;
}

} // namespace ordavel
