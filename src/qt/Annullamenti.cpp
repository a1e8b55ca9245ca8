// Annullamenti.cpp - undo by comparing contents.

#include "qt/Annullamenti.hpp"

#include "ordavel/Ordavel.hpp"

#include "qt/Legami.hpp"

#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace ordavel::qt {

namespace {

/// Steps that are kept.
constexpr int kPassiMassimi = 500;

using Righe = std::vector<Condizione>;

std::size_t InizioUguale(const Righe& aPrima, const Righe& aDopo)
{
    const auto nComuni = std::min(aPrima.size(), aDopo.size());
    std::size_t n = 0;
    while (n < nComuni && aPrima[n] == aDopo[n]) {
        ++n;
    }
    return n;
}

/// "Elimina condizione Peso"
QString DescriviRighe(const Righe& aPrima, const Righe& aDopo)
{
    const std::size_t nPosto = InizioUguale(aPrima, aDopo);
    const bool bTolta = aDopo.size() < aPrima.size();
    const Righe& aNomi = bTolta ? aPrima : aDopo;
    const QString sNome = nPosto < aNomi.size() ? Testo(aNomi[nPosto].sCondizione) : QString();
    const auto nDifferenza = bTolta ? aPrima.size() - aDopo.size() : aDopo.size() - aPrima.size();
    if (nDifferenza > 1) {
        return bTolta ? QStringLiteral("Elimina condizioni") : QStringLiteral("Inserisci condizioni");
    }
    if (sNome.isEmpty()) {
        return QStringLiteral("Inserisci riga");
    }
    const char* sVerbo = nDifferenza == 0 ? "Modifica" : bTolta ? "Elimina" : "Inserisci";
    return QString("%1 condizione %2").arg(QLatin1String(sVerbo), sNome);
}

QString Descrivi(const ContenutoSistema& prima, const ContenutoSistema& dopo)
{
    if (prima.aCondizioni != dopo.aCondizioni) {
        return DescriviRighe(prima.aCondizioni, dopo.aCondizioni);
    }
    return prima.numeri != dopo.numeri ? QStringLiteral("Selezione numeri")
                                       : QStringLiteral("Quadro recuperi");
}

/// What differs between two contents: the rows between an equal beginning and an equal end, and the rest.
struct Differenza {
    Differenza(const ContenutoSistema& prima, const ContenutoSistema& dopo)
        : nInizio(InizioUguale(prima.aCondizioni, dopo.aCondizioni)),
          aPrima(Mezzo(prima, dopo)),
          aDopo(Mezzo(dopo, prima)),
          numeriPrima(prima.numeri),
          numeriDopo(dopo.numeri),
          aQuadroPrima(prima.aQuadro),
          aQuadroDopo(dopo.aQuadro),
          aAltezzePrima(prima.aAltezze),
          aAltezzeDopo(dopo.aAltezze)
    {}

    /// One side put in place of the other.
    [[nodiscard]] ContenutoSistema Applica(ContenutoSistema contenuto, bool bIndietro) const
    {
        const Righe& aVia = bIndietro ? aDopo : aPrima;
        const Righe& aNuove = bIndietro ? aPrima : aDopo;
        const auto posto = contenuto.aCondizioni.begin() + static_cast<std::ptrdiff_t>(nInizio);
        contenuto.aCondizioni.insert(
            contenuto.aCondizioni.erase(posto, posto + static_cast<std::ptrdiff_t>(aVia.size())),
            aNuove.begin(), aNuove.end());
        contenuto.numeri = bIndietro ? numeriPrima : numeriDopo;
        contenuto.aQuadro = bIndietro ? aQuadroPrima : aQuadroDopo;
        contenuto.aAltezze = bIndietro ? aAltezzePrima : aAltezzeDopo;
        return contenuto;
    }

    std::size_t nInizio;
    Righe aPrima;
    Righe aDopo;
    SegniNumeri numeriPrima;
    SegniNumeri numeriDopo;
    std::vector<std::string> aQuadroPrima;
    std::vector<std::string> aQuadroDopo;
    std::vector<eAltezza> aAltezzePrima;
    std::vector<eAltezza> aAltezzeDopo;

private:
    /// The rows of one content that are not at the beginning or the end that it shares with the other.
    [[nodiscard]] Righe Mezzo(const ContenutoSistema& uno, const ContenutoSistema& altro) const
    {
        const auto nResto =
            static_cast<std::ptrdiff_t>(std::min(uno.aCondizioni.size(), altro.aCondizioni.size()) - nInizio);
        std::ptrdiff_t nFine = 0;
        while (nFine < nResto &&
               *(uno.aCondizioni.end() - 1 - nFine) == *(altro.aCondizioni.end() - 1 - nFine)) {
            ++nFine;
        }
        return {uno.aCondizioni.begin() + static_cast<std::ptrdiff_t>(nInizio),
                uno.aCondizioni.end() - nFine};
    }
};

} // namespace

class Annullamenti::Passo : public QUndoCommand {
public:
    Passo(Annullamenti& annullamenti, const ContenutoSistema& prima, const ContenutoSistema& dopo)
        : QUndoCommand(Descrivi(prima, dopo)), m_Annullamenti(annullamenti), m_Differenza(prima, dopo)
    {}

    void undo() override { Applica(true); }

    void redo() override
    {
        // Pushing a step runs it once; what it says has happened already.
        if (std::exchange(m_bNuovo, false)) {
            return;
        }
        Applica(false);
    }

private:
    void Applica(bool bIndietro)
    {
        const QUndoStack& pila = m_Annullamenti.m_Pila;
        const int nArrivo = pila.index() + (bIndietro ? -1 : 1);
        m_Annullamenti.Rimetti(m_Differenza.Applica(m_Annullamenti.m_Noto, bIndietro),
                               nArrivo != pila.cleanIndex());
    }

    Annullamenti& m_Annullamenti;
    Differenza m_Differenza;
    bool m_bNuovo = true;
};

Annullamenti::Annullamenti(Ordavel& ordavel, QObject* padre)
    : QObject(padre),
      m_Ordavel(ordavel),
      m_Noto(ordavel.Contenuto()),
      m_nRevisione(ordavel.GetGridCond().Revisione())
{
    m_Pila.setUndoLimit(kPassiMassimi);
}

void Annullamenti::Controlla()
{
    const ControlliOrdavel& controlli = m_Ordavel.Controlli();
    const std::uint64_t nRevisione = m_Ordavel.GetGridCond().Revisione();
    if (m_Ordavel.InCorso() ||
        (nRevisione == m_nRevisione && controlli.SelnovoNumeri1.Scelti.Valore() == m_Noto.numeri &&
         controlli.LbQuadroRec.Voci.Valore() == m_Noto.aQuadro)) {
        return;
    }
    m_nRevisione = nRevisione;
    ContenutoSistema contenuto = m_Ordavel.Contenuto();
    if (!(contenuto == m_Noto)) {
        m_Pila.push(new Passo(*this, m_Noto, contenuto));
    }
    m_Noto = std::move(contenuto);
}

void Annullamenti::Ricomincia()
{
    m_Noto = m_Ordavel.Contenuto();
    m_nRevisione = m_Ordavel.GetGridCond().Revisione();
    m_Pila.clear();
}

void Annullamenti::Salvato()
{
    Controlla();
    m_Pila.setClean();
}

void Annullamenti::Rimetti(const ContenutoSistema& contenuto, bool bModificato)
{
    m_Ordavel.PoniContenuto(contenuto, bModificato);
    m_Noto = m_Ordavel.Contenuto();
    m_nRevisione = m_Ordavel.GetGridCond().Revisione();
}

} // namespace ordavel::qt
