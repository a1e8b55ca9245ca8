// CorsaProva.hpp - whole runs in a folder of their own.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "comune/AvanzamentoProva.hpp"
#include "comune/CartellaProva.hpp"
#include "core/FileBinario.hpp"
#include "core/ModFunzGeneriche.hpp"
#include "motore/ModFiltro.hpp"
#include "motore/ModSviluppo.hpp"
#include "persistenza/ModFileColonne.hpp"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ordavel::prove {

/// Picks, in ascending order.
inline NumeriScelti Pronostico(const std::vector<int>& aScelti)
{
    NumeriScelti aNumeri;
    std::int16_t nPosto = 0;
    for (const int nNumero : aScelti) {
        aNumeri(++nPosto) = static_cast<std::int16_t>(nNumero);
    }
    return aNumeri;
}

/// The picks nPrimo to nUltimo.
inline std::vector<int> Fila(int nPrimo, int nUltimo)
{
    std::vector<int> aScelti;
    for (int n = nPrimo; n <= nUltimo; ++n) {
        aScelti.push_back(n);
    }
    return aScelti;
}

/// The state of a run over some conditions; none means the one zero record.
inline StatoSviluppo StatoDi(const std::vector<RecordCondizione>& aCondizioni)
{
    StatoSviluppo stato;
    if (!aCondizioni.empty()) {
        stato.aCondizioni = aCondizioni;
        stato.nCondizioni = static_cast<std::int32_t>(aCondizioni.size());
    }
    return stato;
}

/// All columns of a file.
inline std::vector<Colonna> ColonneDelFile(const std::string& sPath)
{
    return LeggiColonne(sPath, DimensioneFile(sPath) / kByteColonna);
}

/// One run at a time, in a folder that is gone with it.
class CorsaProva {
public:
    explicit CorsaProva(const std::vector<RecordCondizione>& aCondizioni = {}) : stato(StatoDi(aCondizioni))
    {}

    /// Develops the picks and gives the columns of the file.
    std::vector<Colonna> Sviluppa(const std::vector<int>& aScelti, int nClasse, int nLimite = 0,
                                  std::optional<eNucleo> nucleo = NucleoMigliore())
    {
        FileBinario file(m_Cartella / "Sviluppo.col", eApertura::scrittura);
        SviluppaColonne(Pronostico(aScelti), static_cast<std::int16_t>(nClasse),
                        static_cast<std::int16_t>(nLimite), file, stato, avanzamento, nucleo);
        file.Chiudi();
        return ColonneDelFile(m_Cartella / "Sviluppo.col");
    }

    /// Filters the bytes of a column file and gives the columns of the result.
    std::vector<Colonna> Filtra(std::string_view sByte, int nClasse, int nLimite = 0)
    {
        ScriviFile(m_Cartella / "Origine.col", sByte);
        FileBinario file(m_Cartella / "Filtro.col", eApertura::scrittura);
        FiltraFile(m_Cartella / "Origine.col", static_cast<std::int16_t>(nClasse),
                   static_cast<std::int16_t>(nLimite), file, stato, avanzamento);
        file.Chiudi();
        return ColonneDelFile(m_Cartella / "Filtro.col");
    }

    std::vector<Colonna> Filtra(std::span<const Colonna> aColonne, int nClasse, int nLimite = 0)
    {
        const auto aByte = std::as_bytes(aColonne);
        return Filtra(std::string_view(reinterpret_cast<const char*>(aByte.data()), aByte.size()), nClasse,
                      nLimite);
    }

    StatoSviluppo stato;
    AvanzamentoProva avanzamento;

private:
    CartellaProva m_Cartella;
};

} // namespace ordavel::prove
