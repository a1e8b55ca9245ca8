// Gruppi.hpp - groups of permutations of the numbers under which a problem looks the same.
//
// Good covers of regular problems are regular themselves: unions of orbits of some group. Which group is not known
// before, so many are made by chance, of the kinds that good covers are known to have. The numbers are laid out in
// blocks of m; every permutation moves all blocks alike, and may exchange blocks:
//     ring     block = the numbers modulo m: x + 1, a x
//     field    block = the field of m elements: x + b, a x, x^p, and -1/x with one number more, «infinity»
// What does not fill a block stays where it is or turns in shorter circles.

#pragma once

#include "Problema.hpp"
#include "Sorte.hpp"

#include <array>
#include <cstdint>
#include <vector>

namespace ordavel::trvrdcol {

/// Where each place goes.
using Permutazione = std::array<std::uint8_t, kPostiMassimi>;
/// The permutations from which all others of the group come.
using Gruppo = std::vector<Permutazione>;
/// Places that may be exchanged at will.
using Classe = std::vector<std::uint8_t>;

/// The places of a problem by classes: exchanging two of one class leaves the problem as it is. This is tried on a
/// sample of the sets, so it may turn out wrong for others.
[[nodiscard]] std::vector<Classe> ClassiDiPosti(const Problema& problema, const Dizionario& dizionario);

/// A group that keeps the classes, made by chance.
[[nodiscard]] Gruppo GruppoACaso(const std::vector<Classe>& aClassi, Sorte& sorte);

/// A part of a group, made by chance: a permutation is left out, or replaced by a power of itself.
[[nodiscard]] Gruppo Sottogruppo(Gruppo gruppo, Sorte& sorte);

/// The image of a set.
[[nodiscard]] Maschera Immagine(const Maschera& insieme, const Permutazione& permutazione) noexcept;

} // namespace ordavel::trvrdcol
