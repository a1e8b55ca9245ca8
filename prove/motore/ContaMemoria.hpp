// ContaMemoria.hpp - how often a program has asked for memory.

#pragma once

#include <cstdint>

namespace ordavel::prove {

/// Calls of operator new since the start of the program.
[[nodiscard]] std::int64_t RichiesteMemoria() noexcept;

} // namespace ordavel::prove
