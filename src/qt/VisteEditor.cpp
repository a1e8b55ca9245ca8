// VisteEditor.cpp - table of windows.

#include "qt/CreaVista.hpp"

namespace ordavel::qt {

std::span<const RigaVista> VisteEditor() noexcept
{
    return {};
}

} // namespace ordavel::qt
