// CorsaCasuale.hpp - random runs: picks, class, conditions with recovery and links, draws.

#pragma once

#include "ordavel/StatoSviluppo.hpp"

#include "comune/GeneratoriSistema.hpp"
#include "condizioni/ModCompila.hpp"
#include "core/ModProcessore.hpp"

#include <rapidcheck.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace ordavel::prove {

/// What a run is made of.
struct Corsa {
    std::vector<int> aScelti{};
    int nClasse = 0;
    int nLimite = 0;
    std::vector<RecordCondizione> aCondizioni{};
    QuadroRecuperi aQuadro{};
    RigheEmulatore aEmulatore{};
    int nStop = 0; ///< event at which the user stops, 0 for none
};

/// The instruction sets of this processor.
inline std::vector<eNucleo> Nuclei()
{
    std::vector<eNucleo> aNuclei;
    for (int n = 0; n <= static_cast<int>(NucleoMigliore()); ++n) {
        aNuclei.push_back(static_cast<eNucleo>(n));
    }
    return aNuclei;
}

inline std::vector<int> SceltiCasuali(int nQuanti)
{
    auto aScelti =
        *rc::gen::unique<std::vector<int>>(static_cast<std::size_t>(nQuanti), rc::gen::inRange(1, 91));
    std::ranges::sort(aScelti);
    return aScelti;
}

/// So many picks that a run has some thousand columns at most.
inline int QuantiScelti(int nClasse)
{
    return Tra(nClasse, nClasse + (nClasse <= 3 ? 25 : nClasse <= 5 ? 9 : 6));
}

inline RigheEmulatore EstrazioniCasuali()
{
    std::vector<RigaEmulatore> aRighe(static_cast<std::size_t>(Tra(1, 70)));
    for (RigaEmulatore& aRiga : aRighe) {
        for (int n = 0; n < 12; ++n) {
            aRiga(Tra(1, 90)) = 1;
        }
    }
    return RigheEmulatore(std::move(aRighe));
}

inline Corsa CorsaCasuale(int nMassime)
{
    Corsa corsa;
    corsa.nClasse = Tra(2, 10);
    corsa.aScelti = SceltiCasuali(QuantiScelti(corsa.nClasse));
    corsa.nLimite = Tra(0, corsa.nClasse);
    const auto nClasse = static_cast<std::int16_t>(corsa.nClasse);
    const auto aRighe = *GenCondizioni(nClasse, nMassime);
    LeggiCondizioniDaGriglia(corsa.aCondizioni, GrigliaDi(aRighe), *GenQuadro(), corsa.aQuadro);
    EstendiRecuperiSequenze(corsa.aCondizioni);
    corsa.aEmulatore = EstrazioniCasuali();
    return corsa;
}

/// Records of any content, such as a damaged file brings: values outside of lists, no modulus, steps that stand still.
inline void Guasta(std::vector<RecordCondizione>& aCondizioni)
{
    for (RecordCondizione& record : aCondizioni) {
        if (UnaVoltaSu(3)) {
            record.Parametro = static_cast<std::int16_t>(Tra(-2, 24));
            record.Passo = static_cast<std::int16_t>(Tra(-2, 3));
        }
    }
}

} // namespace ordavel::prove
