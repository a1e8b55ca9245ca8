// VisteSistema.cpp - table of windows.

#include "qt/CreaVista.hpp"

namespace ordavel::qt {

std::span<const RigaVista> VisteSistema() noexcept
{
    return {};
}

} // namespace ordavel::qt
