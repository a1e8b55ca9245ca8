// OrdavelGriglia.cpp - how conditions and picks look: widths, highlight, strip of numbers, outside counters.

#include "ordavel/Ordavel.hpp"

#include "core/ModGestore.hpp"
#include "core/ModNumeri.hpp"

#include <algorithm>
#include <numeric>

namespace ordavel {

namespace {

constexpr Colore kScelto = 0x00FF00;
constexpr Colore kNonScelto = 0xAA1111;
constexpr std::int32_t kUltimoDellaPrimaLinea = 45;
constexpr std::int32_t kLettereMassime = 50;

std::int32_t Arrotonda(double nValore)
{
    return ComeIntero<std::int32_t>(nValore);
}

} // namespace

void Ordavel::LayOutGrid()
{
    ConGestore(m_Piattaforma, "F_EleEst.LayOutGrid", [&] {
        VistaCondizioni& vista = m_Controlli.GrdCond;
        vista.Evidenziata.Poni(0);
        m_GrdCond.Svuota();
        vista.Larghezza.Poni(Arrotonda(m_Piattaforma.LarghezzaTesto(kTestoLarghezza)));
        vista.PrimaColonna.Poni(1);
    });
}

void Ordavel::MisuraLarghezze()
{
    m_LarghezzaCorta = Arrotonda(m_Piattaforma.LarghezzaTesto(kTestoCorto));
    m_LarghezzaLunga = Arrotonda(m_Piattaforma.LarghezzaTesto(kTestoLungo));
}

std::int32_t Ordavel::LarghezzaColonna(std::int32_t nId) const
{
    switch (m_GrdCond.Altezza(nId)) {
    case eAltezza::normale:
        return m_LarghezzaLunga;
    case eAltezza::link:
        return m_LarghezzaCorta;
    case eAltezza::comune:
        break;
    }
    return m_Controlli.GrdCond.Larghezza.Valore();
}

void Ordavel::VariaLarghezzaColonne(std::int32_t nVerso)
{
    const double nLettera = m_Piattaforma.LarghezzaTesto("W");
    const double nNuova = LarghezzaColonna(1) + nVerso * nLettera;
    if (nNuova > nLettera && nNuova <= kLettereMassime * nLettera) {
        m_GrdCond.PareggiaAltezze();
        m_Controlli.GrdCond.Larghezza.Poni(Arrotonda(nNuova));
    }
}

void Ordavel::SetColonnaGrid(std::int32_t nId)
{
    GrdCond_EnterCell(nId);
    m_Controlli.GrdCond.PortaInVista(nId);
}

void Ordavel::GrdCond_EnterCell(std::int32_t nId)
{
    m_GrdCond.PoniCorrente(nId);
    // The column that has the highlight already is not painted again.
    m_Controlli.GrdCond.Evidenziata.Poni(nId);
}

void Ordavel::DisegnaNumeriProno()
{
    const double nMargine = m_Piattaforma.LarghezzaTesto("W") / 4;
    const double nAlta = m_Piattaforma.AltezzaTesto("W");
    const double nPasso = m_Piattaforma.LarghezzaTesto("00") + nMargine;
    std::int32_t nX = Arrotonda(nMargine);
    std::int32_t nY = Arrotonda((m_Controlli.PicProno.Altezza.Valore() / 2.0 - nAlta) / 2);
    std::vector<Scritta> aScritte;
    for (std::int32_t n = 1; n <= kNumeroMassimo; ++n) {
        const Colore nColore = m_Controlli.SelnovoNumeri1.Scelto(n) ? kScelto : kNonScelto;
        aScritte.push_back({.nX = nX, .nY = nY, .nColore = nColore, .sTesto = Formatta00(n)});
        nX = Arrotonda(nX + nPasso);
        if (n == kUltimoDellaPrimaLinea) {
            nX = Arrotonda(nMargine);
            nY = Arrotonda(nY + nAlta);
        }
    }
    m_Controlli.PicProno.Scritte.Poni(std::move(aScritte));
}

/// Gives each thread its two boxes; a change of one is a new count.
void Ordavel::PreparaContatori()
{
    const auto nThread = static_cast<std::size_t>(std::max<std::int16_t>(m_NumeroThreadsSviluppo, 0));
    m_SviluppatePerThread.assign(nThread, 0);
    m_CondizionatePerThread.assign(nThread, 0);
    const auto prepara = [&](std::deque<CasellaTesto>& aCaselle, std::vector<std::int32_t>& aContatori) {
        aCaselle.clear();
        for (std::size_t i = 0; i < nThread; ++i) {
            CasellaTesto& casella = aCaselle.emplace_back();
            casella.Testo.AlCambio([this, &casella, &aContatori, i] {
                aContatori[i] = LeggiIntero<std::int32_t>(casella.Testo.Valore());
                SommaContatori();
            });
        }
    };
    prepara(m_Controlli.TxtPMin, m_SviluppatePerThread);
    prepara(m_Controlli.TxtPMax, m_CondizionatePerThread);
}

void Ordavel::SommaContatori()
{
    const auto somma = [](const std::vector<std::int32_t>& aContatori) {
        return FormattaNumero(std::accumulate(aContatori.begin(), aContatori.end(), 0.0));
    };
    m_Controlli.LabSviluppate.Testo.Poni(somma(m_SviluppatePerThread));
    m_Controlli.LabCondizionate.Testo.Poni(somma(m_CondizionatePerThread));
}

} // namespace ordavel
