// F_Statistica.hpp - the statistic of a kind of condition over the draws of a game, as a user looks at it.

#pragma once

#include "ordavel/Dialogo.hpp"
#include "ordavel/Piattaforma.hpp"

#include "analisi/ModStatistica.hpp"

#include <optional>
#include <string>
#include <vector>

namespace ordavel {

/// What is told in place of a statistic that cannot be shown: no such kind, a kind without one, no game, no archive,
/// or nothing in it.
/// Takes    nGioco   from 1
///          sArchivio   path of its archive; empty when it was never set
[[nodiscard]] ORDAVEL_EXPORT std::optional<Messaggio>
OstacoloStatistica(std::int32_t nIdStatistica, std::int16_t nGioco, const std::string& sArchivio);

/// A value, or the interval of a bar: "12", "11-20".
[[nodiscard]] ORDAVEL_EXPORT std::string TestoValori(const BarraStatistica& barra);

/// A bar in words: "11-20: 1.234 estrazioni, 12,3 %; ultime 20: 3, 15,0 %".
[[nodiscard]] ORDAVEL_EXPORT std::string TestoBarra(const BarraStatistica& barra, std::size_t nUltime);

/// A share as a percentage of one decimal: "12,3 %".
[[nodiscard]] ORDAVEL_EXPORT std::string TestoQuota(double nQuota);

class ORDAVEL_EXPORT F_Statistica : public Dialogo {
public:
    /// Takes    nIdStatistica, nGioco, sArchivio   for which OstacoloStatistica found nothing
    /// Fails    9: there is no such kind or game
    F_Statistica(std::int32_t nIdStatistica, std::int16_t nGioco, std::string sArchivio);

    /// Measures again, with what is selected. Runs by itself at each selection.
    void Calcola();

    /// The bar, from 0, that one of the latest draws fell into; -1 when there is none.
    [[nodiscard]] std::int32_t BarraDi(const UltimaEstrazione& ultima) const noexcept;

    /// Where the mean stands among the bars: 0 at the left edge of the first, 1 at the left edge of the second.
    [[nodiscard]] double PostoMedia() const noexcept;

    Etichetta LabGioco; ///< with how many numbers of a draw are looked at
    Combo CmbRuota;     ///< visible for a game with wheels
    Combo CmbVariante;  ///< visible for a kind with a parameter
    Combo CmbUltime;    ///< how many of the latest draws
    Etichetta LabUsate;
    Etichetta LabMedia;
    Etichetta LabLimiti;
    Stato<EsitoStatistica> Esito;

private:
    const VoceCatalogo& m_Voce;
    FonteStatistica m_Fonte;
    std::vector<VarianteStatistica> m_aVarianti;
};

} // namespace ordavel
