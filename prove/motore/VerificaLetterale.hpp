// VerificaLetterale.hpp - the column test once more, as its definition reads and without any care for speed.
//
// The oracle of the property tests: every kind by its number, a copy of all records for the links, and a new scan
// from the start behind each collapse.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "calcoli/ModCifre.hpp"
#include "calcoli/ModSimmetria.hpp"

#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace ordavel::prove {

/// One column and one record, judged by kind.
class GiudizioLetterale {
public:
    GiudizioLetterale(std::int16_t nClasse, const Colonna& colonna, StatoSviluppo& stato)
        : n(nClasse), c(colonna), p(CreaSequenzaParita(nClasse, colonna)), m_Stato(stato)
    {}

    void Giudica(RecordCondizione& r) const
    {
        const auto nTipo = static_cast<int>(r.Tipo);
        if (nTipo == 1 || nTipo == 2) {
            return;
        }
        // clang-format off
        switch (nTipo) {
        case 3: case 4: return Lista(r, ContaPuntiColonna(n, c, r.Numeri));
        case 5: return Range(r, CalcolaPeso(n, c, r.Numeri));
        case 6: return Lista(r, Somma() % r.Parametro);
        case 7: return Range(r, CalcolaAmpiezza(n, c));
        case 8: return Lista(r, CalcolaVortice(n, p, r.Parametro).nPos);
        case 9: return Lista(r, CalcolaSimmetrie(n, p, r.Parametro));
        case 10: return Lista(r, CalcolaConsecutivi(n, c));
        case 11: return Lista(r, CalcolaInterruzioniPD(n, p));
        case 12: return Range(r, static_cast<std::int32_t>(std::floor(static_cast<double>(Somma()) / n)));
        case 13: return Range(r, CalcolaDistanzaMinima(n, c));
        case 14: return Range(r, CalcolaDistanzaMassima(n, c));
        case 15: return Range(r, c(r.Parametro));
        case 16: return Lista(r, CalcolaPonte(n, c));
        case 17: return Coppia(r, CalcolaSequenzeScansione(n, p, r.Numeri, r.Parametro, r.Passo));
        case 18: return Lista(r, CalcolaParalleli(n, p, r.Parametro));
        case 19: return Lista(r, CalcolaGruppiDiConsecutivi(n, c, r.Parametro, r.Passo));
        case 20: return Lista(r, CalcolaInterruzioni(n, c));
        case 21: return Lista(r, CalcolaConsecutiviPD(n, p));
        case 22: return Lista(r, CalcolaCadenze(n, c));
        case 23: return Lista(r, CalcolaDecine(n, c));
        case 24: return Lista(r, CalcolaFigure(n, c));
        case 25: return Terna(r, CalcolaFormule(n, c));
        case 26: return Istogramma(r, CalcolaEmulatore(n, c, m_Stato.aEmulatore.Righe()));
        case 27: return Lista(r, CalcolaSimmetrieNum(n, c));
        case 28: return Lista(r, CalcolaParalleliNum(n, c));
        case 29: return Lista(r, CalcolaFulcro(n, p, r.Parametro));
        case 30: return Range(r, CalcolaSommaCadenze(n, c, r.Numeri));
        case 31: return Range(r, CalcolaSommaDecine(n, c, r.Numeri));
        case 32: return Range(r, CalcolaSommaFigure(n, c, r.Numeri));
        case 33: return Range(r, CalcolaSommaNumeretti(n, c, r.Numeri));
        case 34: return Range(r, CalcolaSommaComplessiva(n, c, r.Numeri));
        default: r.Esito = -1;
        }
        // clang-format on
    }

private:
    [[nodiscard]] std::int32_t Somma() const
    {
        std::int32_t nSomma = 0;
        for (int k = 1; k <= n; ++k) {
            nSomma += c[k];
        }
        return nSomma;
    }

    static void Conta(RecordCondizione& r)
    {
        if (r.Esito != 0) {
            r.ContaOk = r.ContaOk + 1;
        } else {
            r.ContaKo = r.ContaKo + 1;
        }
    }

    static void ContaRecupero(RecordCondizione& r)
    {
        if (r.EsitoRec != 0) {
            r.ContaRec = r.ContaRec + 1;
        }
    }

    static void Lista(RecordCondizione& r, std::int32_t v)
    {
        r.Valore = v;
        r.Esito = r.PuntiOk(v) != 0 ? -1 : 0;
        Conta(r);
        r.EsitoRec = r.PuntiRec(v) != 0 ? -1 : 0;
        ContaRecupero(r);
    }

    static void Range(RecordCondizione& r, std::int32_t v)
    {
        r.Valore = v;
        r.Esito = v < r.OkMin || v > r.OkMax ? 0 : -1;
        Conta(r);
        r.EsitoRec = v < r.RecMin || v > r.RecMax ? 0 : -1;
        ContaRecupero(r);
    }

    static void Coppia(RecordCondizione& r, const EsitoSequenze& valori)
    {
        r.Valore = valori.nQuante;
        r.Valore2 = valori.nCatena;
        r.Esito = r.PuntiOk(r.Valore) != 0 && r.PuntiOk2(r.Valore2) != 0 ? -1 : 0;
        Conta(r);
        if (r.Esito == 0) {
            r.EsitoRec = r.PuntiRec(r.Valore) != 0 && r.PuntiRec2(r.Valore2) != 0 ? -1 : 0;
            r.ContaRec = r.EsitoRec != 0 ? r.ContaOk + 1 : r.ContaRec;
        }
    }

    static bool Uguale(const ContatoriFormule& aConta, const FlagPunti& aTerna)
    {
        return std::array{aConta(1), aConta(2), aConta(3)} == std::array{aTerna(1), aTerna(2), aTerna(3)};
    }

    static void Terna(RecordCondizione& r, const ContatoriFormule& aConta)
    {
        r.Esito = Uguale(aConta, r.PuntiOk2) ? -1 : 0;
        Conta(r);
        r.EsitoRec = Uguale(aConta, r.PuntiRec2) ? -1 : 0;
        ContaRecupero(r);
    }

    void Istogramma(RecordCondizione& r, const ContatoriEmulatore& aConta) const
    {
        r.Esito = -1;
        for (int k = 0; k <= n && r.Esito != 0; ++k) {
            r.Esito = aConta(k) < r.PuntiOk(k) || aConta(k) > r.PuntiRec(k) ? 0 : -1;
        }
        Conta(r);
    }

    std::int16_t n;
    const Colonna& c;
    SequenzaParita p;
    StatoSviluppo& m_Stato;
};

/// Stage 2, group by group.
inline void RecuperiLetterali(StatoSviluppo& stato)
{
    Tabella<std::int32_t, 0, 20> aConta;
    for (const RecordCondizione& r : stato.aCondizioni) {
        if (r.EsitoRec != 0) {
            ++aConta(r.IdRecupero);
        }
    }
    for (int g = 1; g <= 20; ++g) {
        const VoceRecupero& voce = stato.aQuadroRec(g);
        if (voce.Attiva == 0 || aConta(g) < voce.MinPunti || aConta(g) > voce.MaxPunti) {
            continue;
        }
        for (RecordCondizione& r : stato.aCondizioni) {
            r.Esito = r.IdRecupero == g && r.EsitoRec != 0 ? kVero : r.Esito;
        }
    }
}

/// Stage 3, on a copy that shrinks.
inline bool LinkLetterali(const std::vector<RecordCondizione>& aCompilate)
{
    std::vector<RecordCondizione> aLavoro = aCompilate;
    while (true) {
        bool bEsito = true;
        std::size_t i = 0;
        while (i < aLavoro.size() && aLavoro[i].Tipo != TipoCondizione::linkClose) {
            bEsito = bEsito && (aLavoro[i].Tipo == TipoCondizione::linkOpen || aLavoro[i].Esito != 0);
            ++i;
        }
        if (i == aLavoro.size()) {
            return bEsito;
        }
        std::size_t a = i;
        while (a > 0 && aLavoro[a].Tipo != TipoCondizione::linkOpen) {
            --a;
        }
        std::int32_t nEsiti = 0;
        for (std::size_t k = a; k <= i; ++k) {
            nEsiti += aLavoro[k].Esito != 0 ? 1 : 0;
        }
        RecordCondizione blocco;
        blocco.Esito = blocco.EsitoLink = aCompilate[i].Numeri(nEsiti) != 0 ? kVero : kFalso;
        aLavoro[a] = blocco;
        aLavoro.erase(aLavoro.begin() + static_cast<std::ptrdiff_t>(a) + 1,
                      aLavoro.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    }
}

/// The three stages.
inline bool VerificaLetterale(std::int16_t nClasse, const Colonna& colonna, StatoSviluppo& stato)
{
    const GiudizioLetterale giudizio(nClasse, colonna, stato);
    for (RecordCondizione& r : stato.aCondizioni) {
        giudizio.Giudica(r);
    }
    RecuperiLetterali(stato);
    return LinkLetterali(stato.aCondizioni);
}

} // namespace ordavel::prove
