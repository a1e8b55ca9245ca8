// ModStatistica.cpp - what a kind of condition measured over the draws of a game.

#include "analisi/ModStatistica.hpp"

#include "core/ModNumeri.hpp"
#include "core/ModTabelle.hpp"
#include "persistenza/ModBaseDati.hpp"

#include <algorithm>
#include <array>
#include <deque>
#include <map>
#include <optional>
#include <string_view>

namespace ordavel {

namespace {

constexpr std::int32_t kEstrazioniBlocco = 10000;

using Varianti = std::vector<VarianteStatistica>;

/// A way to measure a kind with its own metric, the parameters still to be set.
VarianteStatistica Nuova(const VoceCatalogo& voce, std::string sNome)
{
    VarianteStatistica variante{.sNome = std::move(sNome),
                                .metrica = MetricaDiTipo(voce.Tipo),
                                .record = {},
                                .bIntervalli = voce.forma == eForma::intervallo};
    variante.record.Tipo = voce.Tipo;
    return variante;
}

VarianteStatistica ConParametro(const VoceCatalogo& voce, std::string sNome, std::int16_t nParametro)
{
    VarianteStatistica variante = Nuova(voce, std::move(sNome));
    variante.record.Parametro = nParametro;
    return variante;
}

/// How many numbers of the draw satisfy something.
template <typename Scelta>
VarianteStatistica Conta(const VoceCatalogo& voce, std::string sNome, Scelta scelta)
{
    VarianteStatistica variante = Nuova(voce, std::move(sNome));
    variante.metrica = MetricaDiTipo(TipoCondizione::puntiColonna);
    for (std::uint8_t n = 1; n <= kNumeroMassimo; ++n) {
        variante.record.Numeri[n] = ComeBooleano(scelta(n));
    }
    return variante;
}

Varianti Nessuna(const VoceCatalogo& /*voce*/, std::int16_t /*nNumeri*/)
{
    return {};
}

Varianti Unica(const VoceCatalogo& voce, std::int16_t /*nNumeri*/)
{
    return {Nuova(voce, {})};
}

Varianti PerParita(const VoceCatalogo& voce, std::int16_t /*nNumeri*/)
{
    return {Conta(voce, std::string(voce.sParametri), [](std::uint8_t n) { return n % 2 == 0; }),
            Conta(voce, std::string(voce.sInverso), [](std::uint8_t n) { return n % 2 == 1; })};
}

Varianti PerDirezione(const VoceCatalogo& voce, std::int16_t /*nNumeri*/)
{
    return {ConParametro(voce, std::string(voce.sParametri), 1),
            ConParametro(voce, std::string(voce.sInverso), 2)};
}

/// One way for each parameter from the first to the last.
Varianti PerNumero(const VoceCatalogo& voce, std::string_view sDavanti, std::int16_t nPrimo,
                   std::int16_t nUltimo)
{
    Varianti aVarianti;
    for (std::int16_t n = nPrimo; n <= nUltimo; ++n) {
        aVarianti.push_back(ConParametro(voce, std::string(sDavanti) + std::to_string(n), n));
    }
    return aVarianti;
}

Varianti PerDivisore(const VoceCatalogo& voce, std::int16_t /*nNumeri*/)
{
    return PerNumero(voce, "Resto a ", 2, 9);
}

Varianti PerCasella(const VoceCatalogo& voce, std::int16_t nNumeri)
{
    return PerNumero(voce, "Casella ", 1, nNumeri);
}

/// All places together, then each alone.
Varianti PerCaselle(const VoceCatalogo& voce, std::int16_t nNumeri)
{
    Varianti aVarianti{Nuova(voce, "Tutte le caselle")};
    for (std::int16_t k = 1; k <= nNumeri; ++k) {
        aVarianti.front().record.Numeri[k] = kVero;
        aVarianti.push_back(Nuova(voce, "Casella " + std::to_string(k)));
        aVarianti.back().record.Numeri[k] = kVero;
    }
    return aVarianti;
}

/// Groups of each length; the reading goes on at the number behind the breaking one.
Varianti PerGruppo(const VoceCatalogo& voce, std::int16_t nNumeri)
{
    Varianti aVarianti = PerNumero(voce, "Gruppi di ", 2, std::min(nNumeri, kClasseMassima));
    for (VarianteStatistica& variante : aVarianti) {
        variante.record.Passo = 2;
    }
    return aVarianti;
}

/// Every pattern of two and of three parities, looked for at each place.
Varianti PerSequenza(const VoceCatalogo& voce, std::int16_t nNumeri)
{
    Varianti aVarianti;
    for (std::int16_t nLettere = 2; nLettere <= std::min<std::int16_t>(3, nNumeri); ++nLettere) {
        for (unsigned nSchema = 0; nSchema < 1U << nLettere; ++nSchema) {
            VarianteStatistica variante = ConParametro(voce, {}, nLettere);
            variante.record.Passo = 1;
            for (std::int16_t i = 0; i < nLettere; ++i) {
                const bool bDispari = (nSchema >> (nLettere - 1 - i) & 1U) != 0;
                variante.record.Numeri[i] = bDispari ? 1 : 0;
                variante.sNome += bDispari ? 'D' : 'P';
            }
            aVarianti.push_back(std::move(variante));
        }
    }
    return aVarianti;
}

struct CifraSpecifica {
    TipoCondizione Tipo;
    std::uint8_t nMassima;
    const TabellaNumeri& aTabella;
};

constexpr std::array kCifre = std::to_array<CifraSpecifica>({
    {TipoCondizione::figureSpecifiche, 9, kTabelle.TabFigure},
    {TipoCondizione::cadenzeSpecifiche, 9, kTabelle.TabCadenze},
    {TipoCondizione::decineSpecifiche, 8, kTabelle.TabDecine},
});

Varianti PerCifra(const VoceCatalogo& voce, std::int16_t /*nNumeri*/)
{
    Varianti aVarianti;
    const auto* cifra = std::find_if(kCifre.begin(), kCifre.end(),
                                     [&](const CifraSpecifica& c) { return c.Tipo == voce.Tipo; });
    for (std::uint8_t nCifra = 0; nCifra <= cifra->nMassima; ++nCifra) {
        aVarianti.push_back(Conta(voce, std::string(voce.sParametri) + std::to_string(nCifra),
                                  [&](std::uint8_t n) { return cifra->aTabella[n] == nCifra; }));
    }
    return aVarianti;
}

Varianti PerTerzo(const VoceCatalogo& voce, std::int16_t /*nNumeri*/)
{
    Varianti aVarianti;
    for (const int nTerzo : {1, 2, 3}) {
        aVarianti.push_back(
            Conta(voce, "Da " + std::to_string(30 * nTerzo - 29) + " a " + std::to_string(30 * nTerzo),
                  [nTerzo](std::uint8_t n) { return kTabelle.TabFormule[n] == nTerzo; }));
    }
    return aVarianti;
}

/// By what the kind's cell "Parametri" asks for.
struct RigaVarianti {
    eParametri parametri;
    Varianti (*crea)(const VoceCatalogo& voce, std::int16_t nNumeri);
};

constexpr std::array kVarianti = std::to_array<RigaVarianti>({
    {eParametri::nessuno, Unica},
    {eParametri::chiave, Unica},
    {eParametri::passo, Unica},
    {eParametri::parita, PerParita},
    {eParametri::direzione, PerDirezione},
    {eParametri::resto, PerDivisore},
    {eParametri::caselle, PerCaselle},
    {eParametri::casella, PerCasella},
    {eParametri::cifra, PerCifra},
    {eParametri::gruppo, PerGruppo},
    {eParametri::sequenza, PerSequenza},
    {eParametri::numeri, Nessuna},
    {eParametri::emulatore, Nessuna},
});

/// The numbers of a draw as a column; nothing when they do not make one.
std::optional<Colonna> ColonnaDi(const Estrazione& estrazione, const FonteStatistica& fonte)
{
    const std::int32_t nPrimo = HaRuote(*fonte.gioco) ? (fonte.nRuota - 1) * kNumeriRuota : 0;
    const std::int16_t nNumeri = NumeriColonnaDi(*fonte.gioco);
    Colonna colonna;
    const auto fine = std::copy_n(estrazione.begin() + nPrimo, nNumeri, colonna.aNumeri.begin());
    std::sort(colonna.aNumeri.begin(), fine);
    const bool bValida = colonna[1] > 0 && colonna[nNumeri] <= kNumeroMassimo &&
                         std::adjacent_find(colonna.aNumeri.begin(), fine) == fine;
    return bValida ? std::optional(colonna) : std::nullopt;
}

/// What is kept while the archive goes by.
class Conteggio {
public:
    Conteggio(const VarianteStatistica& variante, const FonteStatistica& fonte, std::int32_t nUltime)
        : m_Variante(variante), m_Fonte(fonte), m_nUltime(static_cast<std::size_t>(std::max(nUltime, 0)))
    {}

    void Aggiungi(std::int32_t nEstrazione, const Estrazione& estrazione)
    {
        const std::optional<Colonna> colonna = ColonnaDi(estrazione, m_Fonte);
        if (!colonna) {
            ++m_Esito.nSaltate;
            return;
        }
        const std::int16_t nNumeri = NumeriColonnaDi(*m_Fonte.gioco);
        ColonnaInProva inProva(nNumeri, *colonna);
        const std::int32_t nValore = m_Variante.metrica(inProva, m_Variante.record).nValore;
        ++m_aQuante[nValore];
        m_nSomma += nValore;
        ++m_Esito.nUsate;
        m_aUltime.push_back(
            {nEstrazione, nValore, {colonna->aNumeri.begin(), colonna->aNumeri.begin() + nNumeri}});
        if (m_aUltime.size() > m_nUltime) {
            m_aUltime.pop_front();
        }
    }

    [[nodiscard]] EsitoStatistica Esito()
    {
        m_Esito.bArchivio = true;
        m_Esito.aUltime.assign(m_aUltime.rbegin(), m_aUltime.rend());
        if (m_Esito.nUsate > 0) {
            m_Esito.nMinimo = m_aQuante.begin()->first;
            m_Esito.nMassimo = m_aQuante.rbegin()->first;
            m_Esito.nMedia = static_cast<double>(m_nSomma) / static_cast<double>(m_Esito.nUsate);
            Barre();
        }
        return m_Esito;
    }

private:
    void Barre()
    {
        const std::int32_t nLarghezza =
            m_Variante.bIntervalli ? LarghezzaIntervalli(m_Esito.nMinimo, m_Esito.nMassimo) : 1;
        // 1 to 10, 11 to 20 and so on; where a 0 occurs, 0 to 9, 10 to 19.
        const std::int32_t nBase = m_Esito.nMinimo > 0 ? 1 : 0;
        const std::int32_t nPrimo = (m_Esito.nMinimo - nBase) / nLarghezza * nLarghezza + nBase;
        for (std::int32_t nDa = nPrimo; nDa <= m_Esito.nMassimo; nDa += nLarghezza) {
            m_Esito.aBarre.push_back({.nDa = nDa,
                                      .nA = nDa + nLarghezza - 1,
                                      .nQuante = 0,
                                      .nUltime = 0,
                                      .nQuota = 0,
                                      .nQuotaUltime = 0});
        }
        const auto barra = [&](std::int32_t nValore) -> BarraStatistica& {
            return m_Esito.aBarre[static_cast<std::size_t>((nValore - nPrimo) / nLarghezza)];
        };
        for (const auto& [nValore, nQuante] : m_aQuante) {
            barra(nValore).nQuante += nQuante;
        }
        for (const UltimaEstrazione& ultima : m_aUltime) {
            ++barra(ultima.nValore).nUltime;
        }
        Quote();
    }

    void Quote()
    {
        for (BarraStatistica& barra : m_Esito.aBarre) {
            barra.nQuota = static_cast<double>(barra.nQuante) / static_cast<double>(m_Esito.nUsate);
            barra.nQuotaUltime = m_aUltime.empty() ? 0
                                                   : static_cast<double>(barra.nUltime) /
                                                         static_cast<double>(m_aUltime.size());
        }
    }

    const VarianteStatistica& m_Variante;
    const FonteStatistica& m_Fonte;
    std::size_t m_nUltime;
    std::map<std::int32_t, std::int64_t> m_aQuante;
    std::int64_t m_nSomma = 0;
    std::deque<UltimaEstrazione> m_aUltime;
    EsitoStatistica m_Esito;
};

} // namespace

const VoceCatalogo* TrovaStatistica(std::int32_t nIdStatistica) noexcept
{
    const auto aVoci = Catalogo();
    const auto voce = std::find_if(aVoci.begin(), aVoci.end(), [nIdStatistica](const VoceCatalogo& v) {
        return v.nIdStatistica != 0 && v.nIdStatistica == nIdStatistica;
    });
    return voce == aVoci.end() ? nullptr : &*voce;
}

bool HaRuote(const ProfiloGioco& gioco) noexcept
{
    return gioco.nNumeriEstrazione == static_cast<std::int32_t>(kNumeriEstrazione);
}

std::int16_t NumeriColonnaDi(const ProfiloGioco& gioco) noexcept
{
    return static_cast<std::int16_t>(HaRuote(gioco) ? kNumeriRuota : gioco.nNumeriEstrazione);
}

std::vector<VarianteStatistica> VariantiStatistica(const VoceCatalogo& voce, std::int16_t nNumeri)
{
    if (voce.nIdStatistica == 0) {
        return {};
    }
    if (voce.forma == eForma::terna) {
        return PerTerzo(voce, nNumeri);
    }
    const auto* riga = std::find_if(kVarianti.begin(), kVarianti.end(),
                                    [&](const RigaVarianti& r) { return r.parametri == voce.parametri; });
    return riga == kVarianti.end() ? Varianti{} : riga->crea(voce, nNumeri);
}

EsitoStatistica CalcolaStatistica(const VarianteStatistica& variante, const FonteStatistica& fonte,
                                  std::int32_t nUltime)
{
    if (HaRuote(*fonte.gioco) &&
        (fonte.nRuota < 1 || static_cast<std::size_t>(fonte.nRuota) > Ruote().size())) {
        Solleva(eErrore::indice);
    }
    const TracciatoEstrazione tracciato = TracciatoDi(*fonte.gioco);
    const std::optional<double> nTutte = ContaEstrazioni(tracciato, fonte.sArchivio);
    if (!nTutte) {
        return {};
    }
    const auto nUltima = ComeIntero<std::int32_t>(*nTutte);
    Conteggio conteggio(variante, fonte, nUltime);
    Estrazioni blocco;
    for (std::int32_t nPrima = 1; nPrima <= nUltima; nPrima += kEstrazioniBlocco) {
        const std::int32_t nFine = std::min(nUltima, nPrima + kEstrazioniBlocco - 1);
        if (!LeggiEstrazioni(tracciato, nPrima, nFine, blocco, fonte.sArchivio)) {
            return {};
        }
        for (std::size_t i = 0; i < blocco.aEstrazioni.size(); ++i) {
            conteggio.Aggiungi(nPrima + static_cast<std::int32_t>(i), blocco.aEstrazioni[i]);
        }
    }
    return conteggio.Esito();
}

std::int32_t LarghezzaIntervalli(std::int32_t nMinimo, std::int32_t nMassimo) noexcept
{
    constexpr std::array kCifreTonde{1, 2, 5};
    for (std::int32_t nDecina = 1;; nDecina *= 10) {
        for (const std::int32_t nCifra : kCifreTonde) {
            const std::int32_t nLarghezza = nCifra * nDecina;
            // One more than the values fill: the first interval begins where its width says.
            if ((nMassimo - nMinimo) / nLarghezza + 2 <= kBarreMassime) {
                return nLarghezza;
            }
        }
    }
}

} // namespace ordavel
