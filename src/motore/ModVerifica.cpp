// ModVerifica.cpp - the plain form of the column test.

#include "motore/ModVerifica.hpp"

#include "calcoli/ModEmulazione.hpp"
#include "condizioni/ModCatalogo.hpp"
#include "motore/ModMetriche.hpp"

#include <algorithm>
#include <string>

namespace ordavel {

namespace {

/// Both counters are written: which of them rises is hard to guess, and a wrong guess costs more than an addition.
void SegnaEsito(RecordCondizione& record, bool bOk)
{
    record.Esito = ComeBooleano(bOk);
    record.ContaOk += bOk ? 1 : 0;
    record.ContaKo += bOk ? 0 : 1;
}

void SegnaRecupero(RecordCondizione& record, bool bRec)
{
    record.EsitoRec = ComeBooleano(bRec);
    record.ContaRec += bRec ? 1 : 0;
}

void ConfrontaLista(RecordCondizione& record, std::int32_t nValore)
{
    record.Valore = nValore;
    SegnaEsito(record, record.PuntiOk(nValore) != 0);
    SegnaRecupero(record, record.PuntiRec[nValore] != 0);
}

void ConfrontaIntervallo(RecordCondizione& record, std::int32_t nValore)
{
    record.Valore = nValore;
    SegnaEsito(record, nValore >= record.OkMin && nValore <= record.OkMax);
    SegnaRecupero(record, nValore >= record.RecMin && nValore <= record.RecMax);
}

/// A pair that passes leaves the recovery verdict of the column before, and a pair that recovers counts from
/// `ContaOk`: both are how the counters of sequences are defined.
void ConfrontaCoppia(RecordCondizione& record, const ValoriMetrica& valori)
{
    record.Valore = valori.nValore;
    record.Valore2 = valori.nValore2;
    SegnaEsito(record, record.PuntiOk(valori.nValore) != 0 && record.PuntiOk2(valori.nValore2) != 0);
    if (record.Esito != kFalso) {
        return;
    }
    const bool bRec = record.PuntiRec(valori.nValore) != 0 && record.PuntiRec2(valori.nValore2) != 0;
    record.EsitoRec = ComeBooleano(bRec);
    if (bRec) {
        record.ContaRec = record.ContaOk + 1;
    }
}

bool UgualiTerna(const ContatoriFormule& aContatori, const FlagPunti& aTerna)
{
    return aContatori[1] == aTerna[1] && aContatori[2] == aTerna[2] && aContatori[3] == aTerna[3];
}

void ConfrontaTerna(RecordCondizione& record, const ContatoriFormule& aContatori)
{
    SegnaEsito(record, UgualiTerna(aContatori, record.PuntiOk2));
    SegnaRecupero(record, UgualiTerna(aContatori, record.PuntiRec2));
}

bool DentroLimiti(std::int16_t nClasse, const ContatoriEmulatore& aContatori, const RecordCondizione& record)
{
    for (std::int16_t k = 0; k <= nClasse; ++k) {
        if (aContatori[k] < record.PuntiOk(k) || aContatori[k] > record.PuntiRec(k)) {
            return false;
        }
    }
    return true;
}

/// Where a failure came from, for whoever must find it among many: "condizione 3 Resto".
std::string NomeCondizione(const StatoSviluppo& stato, const RecordCondizione& record)
{
    const VoceCatalogo* voce = TrovaTipo(record.Tipo);
    return "condizione " + std::to_string(&record - stato.aCondizioni.data() + 1) + " " +
           std::string(voce == nullptr ? std::string_view() : voce->sChiave);
}

void Valuta(ColonnaInProva& colonna, StatoSviluppo& stato, RecordCondizione& record)
{
    switch (FormaDiTipo(record.Tipo)) {
    case eForma::nessuna:
        record.Esito = kVero;
        return;
    case eForma::link:
        return;
    case eForma::lista:
        return ConfrontaLista(record, MetricaDiTipo(record.Tipo)(colonna, record).nValore);
    case eForma::intervallo:
        return ConfrontaIntervallo(record, MetricaDiTipo(record.Tipo)(colonna, record).nValore);
    case eForma::coppia:
        return ConfrontaCoppia(record, MetricaDiTipo(record.Tipo)(colonna, record));
    case eForma::terna:
        return ConfrontaTerna(record, CalcolaFormule(colonna.Classe(), colonna.Numeri()));
    case eForma::istogramma:
        return SegnaEsito(record,
                          DentroLimiti(colonna.Classe(),
                                       CalcolaEmulatore(colonna.Classe(), colonna.Numeri(), stato.aEmulatore),
                                       record));
    }
}

/// Collapses every link, from the first "LinkClose" in order. What stands in front of a "LinkClose" has
/// collapsed already, so the working copy is filled record by record and its end is always the working index.
void CollassaLink(StatoSviluppo& stato)
{
    std::vector<VoceLink>& aVoci = stato.aLavoroLink;
    aVoci.clear();
    for (const RecordCondizione& record : stato.aCondizioni) {
        aVoci.push_back({record.Tipo, record.Esito});
        if (record.Tipo != TipoCondizione::linkClose) {
            continue;
        }
        const std::size_t nChiuso = aVoci.size() - 1;
        const std::size_t nAperto = TrovaLinkOpen(aVoci, nChiuso);
        const std::int32_t nEsiti = ContaEsiti(aVoci, nAperto, nChiuso);
        const bool bPassa = stato.aCondizioni[nChiuso].Numeri(nEsiti) != 0;
        aVoci.resize(nAperto);
        aVoci.push_back({TipoCondizione::nessuno, ComeBooleano(bPassa)});
    }
}

} // namespace

bool VerificaColonna(std::int16_t nClasse, const Colonna& colonna, StatoSviluppo& stato)
{
    ValutaCondizioni(nClasse, colonna, stato);
    ApplicaRecuperi(stato);
    return ValutaLink(stato);
}

void ValutaCondizioni(std::int16_t nClasse, const Colonna& colonna, StatoSviluppo& stato)
{
    ColonnaInProva inProva(nClasse, colonna);
    RecordCondizione* record = stato.aCondizioni.data();
    const RecordCondizione* const fine = record + stato.aCondizioni.size();
    try {
        for (; record != fine; ++record) {
            Valuta(inProva, stato, *record);
        }
    } catch (const Errore& errore) {
        throw Errore(errore.Numero(), NomeCondizione(stato, *record));
    }
}

void ApplicaRecuperi(StatoSviluppo& stato)
{
    const auto inRecupero = [](const RecordCondizione& record) { return record.EsitoRec != kFalso; };
    if (std::none_of(stato.aCondizioni.begin(), stato.aCondizioni.end(), inRecupero)) {
        return;
    }
    Tabella<std::int32_t, 0, kGruppiRecupero> aConta;
    for (const RecordCondizione& record : stato.aCondizioni) {
        if (inRecupero(record)) {
            aConta(record.IdRecupero) += 1;
        }
    }
    for (RecordCondizione& record : stato.aCondizioni) {
        if (!inRecupero(record) || record.IdRecupero == 0) {
            continue;
        }
        const VoceRecupero& gruppo = stato.aQuadroRec[record.IdRecupero];
        const std::int32_t nMembri = aConta[record.IdRecupero];
        if (gruppo.Attiva != 0 && nMembri >= gruppo.MinPunti && nMembri <= gruppo.MaxPunti) {
            record.Esito = kVero;
        }
    }
}

bool ValutaLink(StatoSviluppo& stato)
{
    bool bPassa = true;
    for (const RecordCondizione& record : stato.aCondizioni) {
        if (record.Tipo == TipoCondizione::linkClose) {
            CollassaLink(stato);
            return std::all_of(stato.aLavoroLink.begin(), stato.aLavoroLink.end(), [](const VoceLink& voce) {
                return voce.Tipo == TipoCondizione::linkOpen || voce.Esito != kFalso;
            });
        }
        bPassa &= record.Esito != kFalso || record.Tipo == TipoCondizione::linkOpen;
    }
    return bPassa;
}

std::size_t TrovaLinkOpen(const std::vector<VoceLink>& aVoci, std::size_t nIndice) noexcept
{
    std::size_t i = nIndice;
    while (i > 0 && aVoci[i].Tipo != TipoCondizione::linkOpen) {
        --i;
    }
    return i;
}

std::int32_t ContaEsiti(const std::vector<VoceLink>& aVoci, std::size_t nDa, std::size_t nA) noexcept
{
    std::int32_t nEsiti = 0;
    for (std::size_t i = nDa; i <= nA; ++i) {
        nEsiti += aVoci[i].Esito != kFalso ? 1 : 0;
    }
    return nEsiti;
}

} // namespace ordavel
