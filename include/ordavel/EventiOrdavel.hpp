// EventiOrdavel.hpp - what the component tells its host.

#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace ordavel {

/// What a host may listen to.
struct EventiOrdavel {
    std::function<void()>
        CondizioniPressed; ///< the button "Condizioni", behind the repeat of the last editor
    /// The button "StampaSk" while there are columns; takes the game's name, which the host may change.
    std::function<void(std::string& sTipogioco)> StampaSk;
    std::function<void(std::string_view sProprieta)> PropertyChanged; ///< a setting changed, by its name
};

} // namespace ordavel
