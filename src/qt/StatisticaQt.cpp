// StatisticaQt.cpp - the statistics of a component on Qt's desktop.

#include "qt/StatisticaQt.hpp"

#include "qt/F_Statistica_vista.hpp"
#include "qt/PiattaformaQt.hpp"

#include <memory>
#include <utility>

namespace ordavel::qt {

StatisticaQt::StatisticaQt(PiattaformaQt& piattaforma, ArchivioDi archivioDi)
    : m_Piattaforma(piattaforma), m_ArchivioDi(std::move(archivioDi))
{}

void StatisticaQt::MostraStatistica(std::int32_t nIdStatistica, std::int16_t nGioco)
{
    const std::string sArchivio = m_ArchivioDi ? m_ArchivioDi(nGioco) : std::string();
    if (const auto ostacolo = OstacoloStatistica(nIdStatistica, nGioco, sArchivio)) {
        m_Piattaforma.MostraMessaggio(*ostacolo);
        return;
    }
    std::unique_ptr<F_Statistica> dialogo;
    {
        const PuntatoreInAttesa attesa(m_Piattaforma);
        dialogo = std::make_unique<F_Statistica>(nIdStatistica, nGioco, sArchivio);
    }
    F_StatisticaVista vista(*dialogo, m_Piattaforma, m_Piattaforma.Davanti());
    dialogo->Mostra();
    vista.exec();
    dialogo->Visibile.Poni(false);
}

} // namespace ordavel::qt
