// RegolaEsclusione.cpp - a value is accepted, or it may be recovered, never both.

#include "editor/RegolaEsclusione.hpp"

#include "core/ModNumeri.hpp"
#include "core/ModTesti.hpp"

#include <algorithm>

namespace ordavel {

void LoadComboquadroRec(Combo& combo)
{
    combo.Aggiungi(" ");
    combo.AggiungiNumeri(1, kGruppiRecupero);
    combo.SelezionaPrima();
}

bool ConGruppo(const Combo& combo)
{
    return !TogliBlank(combo.Testo()).empty();
}

RegolaEsclusione::RegolaEsclusione(SerieSpunte& punti, SerieSpunte& recupero, const Combo& gruppo)
    : m_Punti(punti), m_Recupero(recupero), m_Gruppo(gruppo)
{
    m_Punti.AlClick([this](std::int32_t nValore) {
        if (ConGruppo(m_Gruppo)) {
            Escludi(nValore);
        }
    });
}

void RegolaEsclusione::Carica(std::int32_t nUltimo)
{
    for (SerieSpunte* serie : {&m_Punti, &m_Recupero}) {
        serie->Taglia(serie->Primo());
        serie->Estendi(serie->Primo() == 0 ? std::max(nUltimo, 0) : nUltimo);
    }
    AbilitaChkRecupero();
}

void RegolaEsclusione::AbilitaChkRecupero()
{
    const bool bGruppo = ConGruppo(m_Gruppo);
    for (std::int32_t n = m_Recupero.Primo(); n <= m_Recupero.Ultimo(); ++n) {
        if (bGruppo) {
            Escludi(n);
        } else {
            m_Recupero(n).Segnata.Poni(false);
            m_Recupero(n).Abilitato.Poni(false);
        }
    }
}

void RegolaEsclusione::Escludi(std::int32_t nValore)
{
    const bool bAccettato = m_Punti(nValore).Segnata.Valore();
    Spunta& recupero = m_Recupero(nValore);
    if (bAccettato) {
        recupero.Segnata.Poni(false);
    }
    recupero.Abilitato.Poni(!bAccettato);
}

void SegnaLista(SerieSpunte& serie, std::string_view sLista, std::string_view sSep)
{
    for (const std::string_view sValore : Dividi(sLista, sSep)) {
        serie(LeggiIntero<std::int32_t>(sValore)).Segnata.Poni(true);
    }
}

} // namespace ordavel
