// Diagramma.cpp - equal nodes found again, and two diagrams walked through together.

#include "motore/Diagramma.hpp"

#include "core/ModBinomiali.hpp"

#include <queue>

#include <algorithm>
#include <utility>

namespace ordavel {

namespace {

constexpr std::size_t kTavolaIniziale = 4096;

/// Spreads two numbers over a table whose size is a power of two.
std::size_t Sparsi(std::uint64_t nUno, std::uint64_t nDue) noexcept
{
    std::uint64_t n = nUno * 0x9E3779B97F4A7C15U ^ nDue * 0xC2B2AE3D27D4EB4FU;
    n ^= n >> 29U;
    n *= 0xBF58476D1CE4E5B9U;
    return static_cast<std::size_t>(n ^ n >> 32U);
}

/// Where a node is looked for.
std::size_t Impronta(std::size_t nPosto, std::size_t nMancano, Diagramma basso, Diagramma alto) noexcept
{
    return Sparsi(std::uint64_t{basso} << 32U | alto, std::uint64_t{nPosto} << 8U | nMancano);
}

/// Two diagrams are looked at in many more pairs than make a new node.
constexpr std::size_t VociPerNodi(std::size_t nNodi) noexcept
{
    return nNodi * 2;
}

/// What an operation says of two diagrams without looking inside; kIgnoto of Diagrammi when it must.
constexpr Diagramma kDaVedere = 0xFFFFFFFFU;

struct OperazioneE {
    Diagramma operator()(Diagramma a, Diagramma b) const noexcept
    {
        if (a == 0 || b == 0) {
            return 0;
        }
        return a == 1 || a == b ? b : b == 1 ? a : kDaVedere;
    }
};

struct OperazioneOppure {
    Diagramma operator()(Diagramma a, Diagramma b) const noexcept
    {
        if (a == 1 || b == 1) {
            return 1;
        }
        return a == 0 || a == b ? b : b == 0 ? a : kDaVedere;
    }
};

struct OperazioneSomma {
    Diagramma nTetto;

    Diagramma operator()(Diagramma a, Diagramma b) const noexcept
    {
        if (a < Diagrammi::kValori && b < Diagrammi::kValori) {
            return std::min(a + b, nTetto);
        }
        return a == 0 ? b : b == 0 ? a : kDaVedere;
    }
};

} // namespace

Diagramma& Diagrammi::Memoria::operator()(Diagramma a, Diagramma b)
{
    if (m_nPiene * 2 >= m_aVoci.Quanti()) {
        Allarga();
    }
    const std::size_t nMaschera = m_aVoci.Quanti() - 1;
    std::size_t n = Sparsi(a, b) & nMaschera;
    while (m_aVoci[n].nGiro == m_nGiro && (m_aVoci[n].a != a || m_aVoci[n].b != b)) {
        n = (n + 1) & nMaschera;
    }
    if (m_aVoci[n].nGiro != m_nGiro) {
        m_aVoci[n] = {a, b, kIgnoto, m_nGiro};
        ++m_nPiene;
    }
    return m_aVoci[n].valore;
}

void Diagrammi::Memoria::Svuota()
{
    ++m_nGiro;
    m_nPiene = 0;
}

void Diagrammi::Memoria::Allarga()
{
    if (m_nPiene >= m_nVociMassime) {
        throw TroppiNodi();
    }
    ArrayAPezzi<Voce> aVecchie(m_aVoci.Quanti() * 2);
    std::swap(aVecchie, m_aVoci);
    const std::uint32_t nVecchio = std::exchange(m_nGiro, 1);
    m_nPiene = 0;
    for (std::size_t n = 0; n < aVecchie.Quanti(); ++n) {
        const Voce& voce = aVecchie[n];
        if (voce.nGiro == nVecchio) {
            m_Guardia.Passa();
            (*this)(voce.a, voce.b) = voce.valore;
        }
    }
}

Diagrammi::Diagrammi(std::size_t nScelti, std::size_t nClasse, std::size_t nNodi, GuardiaConteggio& guardia)
    : m_nScelti(nScelti),
      m_nClasse(nClasse),
      m_nNodiMassimi(nNodi),
      m_Guardia(guardia),
      m_aTavola(kTavolaIniziale),
      m_Memoria(VociPerNodi(nNodi), guardia)
{}

void Diagrammi::AllargaTavola()
{
    ArrayAPezzi<Diagramma> aTavola(m_aTavola.Quanti() * 2);
    const std::size_t nMaschera = aTavola.Quanti() - 1;
    for (std::size_t i = 0; i < m_nNodi; ++i) {
        const Nodo& nodo = m_aNodi[i];
        m_Guardia.Passa();
        std::size_t n = Impronta(nodo.nPosto, nodo.nMancano, nodo.basso, nodo.alto) & nMaschera;
        while (aTavola[n] != 0) {
            n = (n + 1) & nMaschera;
        }
        aTavola[n] = static_cast<Diagramma>(i) + kValori;
    }
    m_aTavola = std::move(aTavola);
}

/// The node, or what stands in its place.
Diagramma Diagrammi::Crea(std::size_t nPosto, std::size_t nMancano, Diagramma basso, Diagramma alto)
{
    if (basso == alto && Foglia(basso)) {
        return basso;
    }
    if (m_nNodi * 2 >= m_aTavola.Quanti()) {
        AllargaTavola();
    }
    const std::size_t nMaschera = m_aTavola.Quanti() - 1;
    std::size_t n = Impronta(nPosto, nMancano, basso, alto) & nMaschera;
    for (; m_aTavola[n] != 0; n = (n + 1) & nMaschera) {
        const Nodo& nodo = Di(m_aTavola[n]);
        if (nodo.basso == basso && nodo.alto == alto && nodo.nPosto == nPosto && nodo.nMancano == nMancano) {
            return m_aTavola[n];
        }
    }
    if (m_nNodi >= m_nNodiMassimi) {
        throw TroppiNodi();
    }
    m_aTavola[n] = static_cast<Diagramma>(m_nNodi) + kValori;
    m_aNodi.Allunga(m_nNodi + 1);
    m_aNodi[m_nNodi++] = {static_cast<std::uint16_t>(nPosto), static_cast<std::uint16_t>(nMancano), basso,
                          alto};
    return m_aTavola[n];
}

/// Walks through the states of a condition.
/// Takes    scelta   what counts: a mask of verdicts, and how many of the counted columns have it
template <typename Scelta> Diagramma Diagrammi::DaAutoma(const Automa& automa, Scelta scelta)
{
    Memoria fatti(VociPerNodi(m_nNodiMassimi), m_Guardia);
    const auto scendi = [&](const auto& se, std::uint32_t nStato, std::size_t nPosto,
                            std::size_t nMancano) -> Diagramma {
        const std::int64_t nQuante = scelta.Quante(automa.ContiDa(nStato, nPosto));
        if (nQuante == 0 || nQuante == Combinazioni(m_nScelti - nPosto, nMancano)) {
            return nQuante == 0 ? 0 : 1;
        }
        const Diagramma nGia = fatti(nStato, static_cast<Diagramma>(nPosto));
        if (nGia != kIgnoto) {
            return nGia;
        }
        m_Guardia.Passa(8);
        Diagramma alto = 0;
        if (nMancano == 1) {
            const Maschera qui = scelta.Quali(automa.VerdettiDi(nStato)) & BitDelPosto(m_nScelti, nPosto);
            alto = qui.Vuota() ? 0 : 1;
        } else {
            alto = se(se, automa.Passo(nStato, nPosto), nPosto + 1, nMancano - 1);
        }
        const Diagramma basso = se(se, nStato, nPosto + 1, nMancano);
        const Diagramma nodo = Crea(nPosto, nMancano, basso, alto);
        fatti(nStato, static_cast<Diagramma>(nPosto)) = nodo;
        return nodo;
    };
    return scendi(scendi, Automa::kIniziale, 0, m_nClasse);
}

Diagramma Diagrammi::Passano(const Automa& automa)
{
    struct Scelta {
        static std::int64_t Quante(Conti conti) { return static_cast<std::int64_t>(conti.nOk); }
        static Maschera Quali(const Verdetti& verdetti) { return verdetti.ok; }
    };
    return DaAutoma(automa, Scelta{});
}

Diagramma Diagrammi::Recuperano(const Automa& automa)
{
    struct Scelta {
        static std::int64_t Quante(Conti conti) { return static_cast<std::int64_t>(conti.nRec); }
        static Maschera Quali(const Verdetti& verdetti) { return verdetti.rec; }
    };
    return DaAutoma(automa, Scelta{});
}

/// Two diagrams place by place; the operation does not mind their order.
template <typename Operazione>
Diagramma Diagrammi::Applica(Diagramma a, Diagramma b, const Operazione& operazione)
{
    m_Memoria.Svuota();
    const auto scendi = [&](const auto& se, Diagramma uno, Diagramma due) -> Diagramma {
        const Diagramma nSubito = operazione(uno, due);
        if (nSubito != kDaVedere) {
            return nSubito;
        }
        if (uno > due) {
            std::swap(uno, due); // values stand below nodes: the second is one
        }
        const Diagramma nGia = m_Memoria(uno, due);
        if (nGia != kIgnoto) {
            return nGia;
        }
        m_Guardia.Passa(8);
        const Nodo nodo = Di(due);
        const bool bFoglia = Foglia(uno);
        const Diagramma bassoUno = bFoglia ? uno : Di(uno).basso;
        const Diagramma altoUno = bFoglia ? uno : Di(uno).alto;
        const Diagramma alto = se(se, altoUno, nodo.alto);
        const Diagramma basso = se(se, bassoUno, nodo.basso);
        const Diagramma fatto = Crea(nodo.nPosto, nodo.nMancano, basso, alto);
        m_Memoria(uno, due) = fatto;
        return fatto;
    };
    return scendi(scendi, a, b);
}

Diagramma Diagrammi::E(Diagramma a, Diagramma b)
{
    return Applica(a, b, OperazioneE{});
}

Diagramma Diagrammi::Oppure(Diagramma a, Diagramma b)
{
    return Applica(a, b, OperazioneOppure{});
}

Diagramma Diagrammi::Somma(Diagramma a, Diagramma b, Diagramma nTetto)
{
    return Applica(a, b, OperazioneSomma{nTetto});
}

Diagramma Diagrammi::Dove(Diagramma a, const std::function<bool(Diagramma nValore)>& vale)
{
    Memoria fatti(VociPerNodi(m_nNodiMassimi), m_Guardia);
    const auto scendi = [&](const auto& se, Diagramma uno) -> Diagramma {
        if (Foglia(uno)) {
            return vale(uno) ? 1 : 0;
        }
        const Diagramma nGia = fatti(uno, 0);
        if (nGia != kIgnoto) {
            return nGia;
        }
        m_Guardia.Passa(8);
        const Nodo nodo = Di(uno);
        const Diagramma alto = se(se, nodo.alto);
        const Diagramma fatto = Crea(nodo.nPosto, nodo.nMancano, se(se, nodo.basso), alto);
        fatti(uno, 0) = fatto;
        return fatto;
    };
    return scendi(scendi, a);
}

Diagramma Diagrammi::Tutti(const std::vector<Diagramma>& aInsiemi)
{
    using Voce = std::pair<std::size_t, Diagramma>;
    std::priority_queue<Voce, std::vector<Voce>, std::greater<>> coda;
    for (const Diagramma a : aInsiemi) {
        coda.emplace(Nodi(a), a);
    }
    Diagramma tutti = 1;
    while (!coda.empty()) {
        tutti = coda.top().second;
        coda.pop();
        if (coda.empty() || tutti == 0) {
            break;
        }
        const Diagramma due = coda.top().second;
        coda.pop();
        tutti = E(tutti, due);
        coda.emplace(Nodi(tutti), tutti);
    }
    return tutti;
}

std::int64_t Diagrammi::ContaDa(Diagramma a, std::size_t nPosto, std::size_t nMancano)
{
    if (Foglia(a)) {
        return a == 0 ? 0 : Combinazioni(m_nScelti - nPosto, nMancano);
    }
    std::int64_t& nGia = m_aConti[a - kValori];
    if (nGia == 0) {
        m_Guardia.Passa();
        const Nodo nodo = Di(a);
        nGia = ContaDa(nodo.alto, nPosto + 1, nMancano - 1) + ContaDa(nodo.basso, nPosto + 1, nMancano);
    }
    return nGia;
}

std::int64_t Diagrammi::Conta(Diagramma a)
{
    m_aConti.Allunga(m_nNodi);
    return ContaDa(a, 0, m_nClasse);
}

Diagramma Diagrammi::Valore(Diagramma a, std::span<const std::size_t> aPosti) const
{
    std::size_t nPresi = 0;
    while (!Foglia(a)) {
        const Nodo& nodo = Di(a);
        const bool bPreso = nPresi < aPosti.size() && aPosti[nPresi] == nodo.nPosto;
        nPresi += bPreso ? 1 : 0;
        a = bPreso ? nodo.alto : nodo.basso;
    }
    return a;
}

std::size_t Diagrammi::Nodi(Diagramma a) const
{
    std::vector<Diagramma> aDaVedere{a};
    std::vector<bool> visti(m_nNodi);
    std::size_t nNodi = 0;
    while (!aDaVedere.empty()) {
        const Diagramma uno = aDaVedere.back();
        aDaVedere.pop_back();
        if (Foglia(uno) || visti[uno - kValori]) {
            continue;
        }
        m_Guardia.Passa();
        visti[uno - kValori] = true;
        ++nNodi;
        aDaVedere.push_back(Di(uno).basso);
        aDaVedere.push_back(Di(uno).alto);
    }
    return nNodi;
}

} // namespace ordavel
