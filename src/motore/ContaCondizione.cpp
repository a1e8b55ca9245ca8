// ContaCondizione.cpp - counting by states, by groups of numbers and by pairs of partners.

#include "motore/ContaCondizione.hpp"

#include "condizioni/ModCatalogo.hpp"
#include "core/ModBinomiali.hpp"
#include "core/ModTabelle.hpp"
#include "motore/ContiAutoma.hpp"
#include "motore/ModVerifica.hpp"

#include <algorithm>
#include <utility>
#include <vector>

namespace ordavel {

namespace {

/// To make the steps or the verdicts of a state is as much work as so many pieces.
constexpr std::uint32_t kPassiStato = 64;

/// What a column of one condition comes to, by the plain form.
struct Giudizio {
    explicit Giudizio(const RecordCondizione& record) { stato.aCondizioni = {record}; }

    /// Adds so many columns that are all like one of them.
    void Aggiungi(std::int16_t nClasse, const Colonna& colonna, std::int64_t nQuante)
    {
        try {
            ValutaCondizioni(nClasse, colonna, stato);
        } catch (const Errore&) {
            contatori.bRotti = true; // whoever asks looks for the column itself
            return;
        }
        contatori.nOk += stato.aCondizioni[0].Esito != kFalso ? static_cast<double>(nQuante) : 0;
        contatori.nRec += stato.aCondizioni[0].EsitoRec != kFalso ? static_cast<double>(nQuante) : 0;
    }

    StatoSviluppo stato;
    ContatoriCondizione contatori;
};

/// Picks that are alike to a condition.
using Gruppi = std::vector<std::vector<std::uint8_t>>;

/// Columns by how many of their numbers fall into each group. The metric of such a kind sees nothing else.
class ContoGruppi {
public:
    ContoGruppi(const RecordCondizione& record, Gruppi aGruppi, std::int16_t nClasse,
                GuardiaConteggio& guardia)
        : m_Giudizio(record), m_nClasse(nClasse), m_Guardia(guardia), m_aGruppi(std::move(aGruppi))
    {}

    [[nodiscard]] ContatoriCondizione Esegui()
    {
        Scendi(0, 0, 1);
        return m_Giudizio.contatori;
    }

private:
    /// Takes    nDati     numbers taken from the groups in front
    ///          nQuante   in how many ways
    void Scendi(std::size_t nGruppo, std::size_t nDati, std::int64_t nQuante)
    {
        const std::size_t nMancano = static_cast<std::size_t>(m_nClasse) - nDati;
        if (nMancano == 0) {
            Giudica(nQuante);
            return;
        }
        if (nGruppo == m_aGruppi.size()) {
            return;
        }
        const std::vector<std::uint8_t>& aNumeri = m_aGruppi[nGruppo];
        for (std::size_t n = 0; n <= std::min(nMancano, aNumeri.size()); ++n) {
            if (n > 0) {
                m_Colonna.aNumeri[nDati + n - 1] = aNumeri[n - 1];
            }
            Scendi(nGruppo + 1, nDati + n, nQuante * Combinazioni(aNumeri.size(), n));
        }
    }

    void Giudica(std::int64_t nQuante)
    {
        m_Guardia.Passa(16);
        Colonna colonna = m_Colonna;
        std::sort(colonna.aNumeri.begin(), colonna.aNumeri.begin() + m_nClasse);
        std::fill(colonna.aNumeri.begin() + m_nClasse, colonna.aNumeri.end(), std::uint8_t{0});
        m_Giudizio.Aggiungi(m_nClasse, colonna, nQuante);
    }

    Giudizio m_Giudizio;
    std::int16_t m_nClasse;
    GuardiaConteggio& m_Guardia;
    Gruppi m_aGruppi;
    Colonna m_Colonna;
};

/// The picks by what a function gives each of them, 0 to 9.
template <typename Funzione> Gruppi GruppiPer(std::span<const std::uint8_t> aScelti, Funzione funzione)
{
    Gruppi aGruppi(10);
    for (const std::uint8_t nNumero : aScelti) {
        aGruppi[static_cast<std::size_t>(funzione(nNumero))].push_back(nNumero);
    }
    return aGruppi;
}

/// The groups of a kind that sees nothing else; none for any other.
Gruppi GruppiDi(const RecordCondizione& record, std::span<const std::uint8_t> aScelti)
{
    switch (record.Tipo) {
    case TipoCondizione::puntiColonna:
    case TipoCondizione::pariDispari:
        return GruppiPer(aScelti, [&](std::uint8_t n) { return record.Numeri[n] != 0 ? 1 : 0; });
    case TipoCondizione::cadenze:
        return GruppiPer(aScelti, kTabelle.TabCadenze);
    case TipoCondizione::decine:
        return GruppiPer(aScelti, kTabelle.TabDecine);
    case TipoCondizione::figure:
        return GruppiPer(aScelti, kTabelle.TabFigure);
    case TipoCondizione::formule:
        return GruppiPer(aScelti, kTabelle.TabFormule);
    default:
        return {};
    }
}

/// The number that a kind looks for beside another; two numbers are partners of each other.
using Compagno = int (*)(int);

/// Columns by how many pairs of partners they hold.
ContatoriCondizione ContaCompagni(const RecordCondizione& record, Compagno compagno,
                                  std::span<const std::uint8_t> aScelti, std::int16_t nClasse)
{
    const auto bScelto = [&](int n) { return std::ranges::find(aScelti, n) != aScelti.end(); };
    const auto nInCoppia = static_cast<std::size_t>(
        std::ranges::count_if(aScelti, [&](std::uint8_t n) { return bScelto(compagno(n)); }));
    const std::size_t nCoppie = nInCoppia / 2;
    const std::size_t nSoli = aScelti.size() - nInCoppia;
    const auto nNumeri = static_cast<std::size_t>(nClasse);
    ContatoriCondizione contatori;
    for (std::size_t nIntere = 0; nIntere <= std::min(nCoppie, nNumeri / 2); ++nIntere) {
        const std::size_t nRestano = nNumeri - 2 * nIntere;
        std::int64_t nQuante = 0;
        for (std::size_t nMezze = 0; nMezze <= std::min(nCoppie - nIntere, nRestano); ++nMezze) {
            nQuante += Combinazioni(nCoppie - nIntere, nMezze) * (std::int64_t{1} << nMezze) *
                       Combinazioni(nSoli, nRestano - nMezze);
        }
        const auto nColonne = static_cast<double>(nQuante * Combinazioni(nCoppie, nIntere));
        const auto nValore = static_cast<std::int64_t>(nIntere);
        contatori.nOk += record.PuntiOk[nValore] != 0 ? nColonne : 0;
        contatori.nRec += record.PuntiRec[nValore] != 0 ? nColonne : 0;
    }
    return contatori;
}

} // namespace

std::optional<ContatoriCondizione> ContaConAutoma(Automa& automa, TipoCondizione tipo, std::size_t nByte,
                                                  GuardiaConteggio& guardia)
{
    const bool bFatto = automa.Prepara(nByte, [&guardia] {
        guardia.Passa(kPassiStato);
        return true;
    });
    if (!bFatto || !automa.ConStati()) {
        return std::nullopt;
    }
    const Conti conti = automa.ContiDa(Automa::kIniziale, 0);
    ContatoriCondizione contatori{static_cast<double>(conti.nOk), static_cast<double>(conti.nRec),
                                  automa.RottiDa(Automa::kIniziale, 0)};
    if (FormaDiTipo(tipo) == eForma::coppia && conti.nRec > 0) {
        contatori.nRec = static_cast<double>(ContiAutoma(automa).OkDavanti(conti.nRec) + 1);
    }
    return contatori;
}

std::optional<ContatoriCondizione> ContaInBreve(const RecordCondizione& record,
                                                std::span<const std::uint8_t> aScelti, std::int16_t nClasse,
                                                GuardiaConteggio& guardia)
{
    switch (record.Tipo) {
    case TipoCondizione::simmetrieNum:
        return ContaCompagni(
            record, [](int n) { return kNumeroMassimo + 1 - n; }, aScelti, nClasse);
    case TipoCondizione::paralleliNum:
        return ContaCompagni(
            record,
            [](int n) { return n > kNumeroMassimo / 2 ? n - kNumeroMassimo / 2 : n + kNumeroMassimo / 2; },
            aScelti, nClasse);
    default:
        break;
    }
    Gruppi aGruppi = GruppiDi(record, aScelti);
    if (aGruppi.empty()) {
        return std::nullopt;
    }
    return ContoGruppi(record, std::move(aGruppi), nClasse, guardia).Esegui();
}

} // namespace ordavel
