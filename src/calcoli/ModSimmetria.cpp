// ModSimmetria.cpp - metrics that read a column as a string of parities, or as pairs of numbers.

#include "calcoli/ModSimmetria.hpp"

#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

namespace {

/// The two-ended walk: both ends, and what was found so far.
class Camminata {
public:
    Camminata(std::int16_t nClasse, const SequenzaParita& aParita) : m_aParita(aParita), m_nDestra(nClasse) {}

    [[nodiscard]] bool Aperta() const { return m_nSinistra < m_nDestra; }
    [[nodiscard]] const EsitoVortice& Esito() const { return m_Esito; }

    /// Search A. It stops at the left end at the latest, whose parity is the wanted one.
    void CercaDaDestra()
    {
        if (m_nSinistra > m_nDestra) {
            return;
        }
        while (m_aParita[m_nDestra] != m_aParita[m_nSinistra]) {
            --m_nDestra;
        }
        ++m_nSinistra;
        Trovato(m_nDestra);
    }

    /// Search B, its mirror image.
    void CercaDaSinistra()
    {
        if (m_nSinistra > m_nDestra) {
            return;
        }
        while (m_aParita[m_nSinistra] != m_aParita[m_nDestra]) {
            ++m_nSinistra;
        }
        --m_nDestra;
        Trovato(m_nSinistra);
    }

private:
    void Trovato(int nPosizione)
    {
        m_Esito.nPos = nPosizione;
        ++m_Esito.nVortici;
    }

    const SequenzaParita& m_aParita;
    int m_nSinistra = 1;
    int m_nDestra;
    EsitoVortice m_Esito{0, -1}; // the count is one less than the hits from the start
};

/// Pairs of a position k of the first half with its companion: of equal parity when direct, else of different
/// parity.
template <typename Compagno>
std::int32_t ContaCoppie(std::int16_t nClasse, const SequenzaParita& aParita, std::int16_t nDirezione,
                         Compagno compagno)
{
    VerificaClasse(nClasse);
    const bool bUguali = nDirezione == kDiretto;
    std::int32_t nQuante = 0;
    for (int k = 1; k <= nClasse / 2; ++k) {
        nQuante += (aParita[k] == aParita[compagno(k)]) == bUguali ? 1 : 0;
    }
    return nQuante;
}

/// Numbers whose partner stands behind them.
template <typename Compagno>
std::int32_t ContaConCompagno(std::int16_t nClasse, const Colonna& colonna, Compagno compagno)
{
    VerificaClasse(nClasse);
    std::int32_t nQuanti = 0;
    for (int i = 1; i < nClasse; ++i) {
        const int nCercato = compagno(colonna[i]);
        int j = i + 1;
        while (j <= nClasse && colonna[j] != nCercato) {
            ++j;
        }
        nQuanti += j <= nClasse ? 1 : 0;
    }
    return nQuanti;
}

/// Is a place of the scan not beyond its last one? A scan goes down when its step is negative.
bool DentroScansione(int nPosto, int nUltimo, int nPasso)
{
    return nPasso < 0 ? nPosto >= nUltimo : nPosto <= nUltimo;
}

/// Do the parities from nDa on equal the pattern? Only a scan that goes down can leave the column: it fails at a
/// position outside, unless a difference came before.
bool TrattoUguale(std::int16_t nClasse, const SequenzaParita& aParita, int nDa, const FlagNumeri& aSchema,
                  int nLunghezza)
{
    if (nLunghezza < 1) {
        return true;
    }
    if (nDa < 1) {
        Solleva(eErrore::indice);
    }
    const int nLeggibili = std::min(nLunghezza, nClasse - nDa + 1);
    for (int j = 0; j < nLeggibili; ++j) {
        if (aParita[nDa + j] != aSchema[j]) {
            return false;
        }
    }
    if (nLeggibili < nLunghezza) {
        Solleva(eErrore::indice);
    }
    return true;
}

/// Scan for a pattern of letters, by steps of 1. The letters stand from element 1 on.
EsitoSequenze ScansionaTesto(std::int16_t nClasse, const Colonna& colonna, std::string_view sSeq)
{
    constexpr std::int16_t kPasso = 1;
    FlagNumeri aSchema;
    std::int16_t nLettere = 0;
    for (std::size_t i = 0; i < sSeq.size(); ++i) {
        ++nLettere;
        aSchema(nLettere) = UgualiSenzaCaso(sSeq.substr(i, 1), "P") ? 0 : 1;
    }
    return CalcolaSequenzeScansione(nClasse, CreaSequenzaParita(nClasse, colonna), aSchema, nLettere, kPasso);
}

} // namespace

EsitoVortice CalcolaVortice(std::int16_t nClasse, const SequenzaParita& aParita, std::int16_t nDirezione)
{
    VerificaClasse(nClasse);
    Camminata camminata(nClasse, aParita);
    while (camminata.Aperta()) {
        if (nDirezione == kDiretto) {
            camminata.CercaDaDestra();
            camminata.CercaDaSinistra();
        } else {
            camminata.CercaDaSinistra();
            camminata.CercaDaDestra();
        }
    }
    return camminata.Esito();
}

std::int32_t CalcolaVorticeDiretto(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaVortice(nClasse, CreaSequenzaParita(nClasse, colonna), kDiretto).nPos;
}

std::int32_t CalcolaVorticeInverso(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaVortice(nClasse, CreaSequenzaParita(nClasse, colonna), kInverso).nPos;
}

std::int32_t CalcolaSimmetrie(std::int16_t nClasse, const SequenzaParita& aParita, std::int16_t nDirezione)
{
    return ContaCoppie(nClasse, aParita, nDirezione, [nClasse](int k) { return nClasse + 1 - k; });
}

std::int32_t CalcolaSimmetrieDirette(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaSimmetrie(nClasse, CreaSequenzaParita(nClasse, colonna), kDiretto);
}

std::int32_t CalcolaSimmetrieInverse(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaSimmetrie(nClasse, CreaSequenzaParita(nClasse, colonna), kInverso);
}

std::int32_t CalcolaParalleli(std::int16_t nClasse, const SequenzaParita& aParita, std::int16_t nDirezione)
{
    return ContaCoppie(nClasse, aParita, nDirezione, [nClasse](int k) { return k + nClasse / 2; });
}

std::int32_t CalcolaParalleliDiretti(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaParalleli(nClasse, CreaSequenzaParita(nClasse, colonna), kDiretto);
}

std::int32_t CalcolaParalleliInversi(std::int16_t nClasse, const Colonna& colonna)
{
    return CalcolaParalleli(nClasse, CreaSequenzaParita(nClasse, colonna), kInverso);
}

std::int32_t CalcolaSimmetrieNum(std::int16_t nClasse, const Colonna& colonna)
{
    return ContaConCompagno(nClasse, colonna, [](int nNumero) { return kNumeroMassimo + 1 - nNumero; });
}

std::int32_t CalcolaParalleliNum(std::int16_t nClasse, const Colonna& colonna)
{
    constexpr int kMeta = kNumeroMassimo / 2;
    return ContaConCompagno(nClasse, colonna,
                            [](int nNumero) { return nNumero > kMeta ? nNumero - kMeta : nNumero + kMeta; });
}

EsitoSequenze CalcolaSequenzeScansione(std::int16_t nClasse, const SequenzaParita& aParita,
                                       const FlagNumeri& aSchema, std::int16_t nLunghezza,
                                       std::int16_t nPasso)
{
    VerificaClasse(nClasse);
    const int nUltimo = nClasse - nLunghezza + 1;
    if (nPasso == 0 && nUltimo >= 1) {
        Solleva(eErrore::overflow);
    }
    EsitoSequenze esito;
    std::int32_t nCatena = 0;
    for (int nPosto = 1; DentroScansione(nPosto, nUltimo, nPasso); nPosto += nPasso) {
        if (TrattoUguale(nClasse, aParita, nPosto, aSchema, nLunghezza)) {
            ++esito.nQuante;
            ++nCatena;
            esito.nCatena = std::max(esito.nCatena, nCatena);
        } else {
            nCatena = 0;
        }
    }
    return esito;
}

std::int32_t CalcolaSequenze(std::int16_t nClasse, const Colonna& colonna, std::string_view sSeq)
{
    return ScansionaTesto(nClasse, colonna, sSeq).nQuante;
}

std::int32_t CalcolaPuntiSequenze(std::int16_t nClasse, const Colonna& colonna, std::string_view sSeq,
                                  std::int32_t& nRetConsec)
{
    const EsitoSequenze esito = ScansionaTesto(nClasse, colonna, sSeq);
    nRetConsec = esito.nCatena;
    return esito.nQuante;
}

std::int32_t CalcolaFulcro(std::int16_t nClasse, const SequenzaParita& aParita, std::int16_t nParametro)
{
    constexpr std::int16_t kPari = 1;
    VerificaClasse(nClasse);
    const int nParita = nParametro == kPari ? 0 : 1;
    std::int32_t nSomma = 0;
    std::int32_t nQuante = 0;
    for (int k = 1; k <= nClasse; ++k) {
        const bool bScelta = aParita[k] == nParita;
        nSomma += bScelta ? k : 0;
        nQuante += bScelta ? 1 : 0;
    }
    return nQuante == 0 ? 0 : nSomma / nQuante;
}

} // namespace ordavel
