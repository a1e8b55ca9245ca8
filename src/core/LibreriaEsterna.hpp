// LibreriaEsterna.hpp - a shared library of plain C functions, loaded at the first call.
//
// A system without the library works as long as nobody asks for it. It is looked for beside the code that asks, in
// the folder of libraries that belongs to an installed program, and where the platform looks; never in the working
// folder. It stays loaded until the process ends, since it may have threads of its own.

#pragma once

#include <functional>
#include <string>

namespace ordavel {

class LibreriaEsterna {
public:
    /// Takes    sNome   without folder and extension: "trvrdcol"
    explicit LibreriaEsterna(std::string sNome) : m_sNome(std::move(sNome)) {}

    /// A function of the library, as a pointer of the type that its description names.
    /// Fails    53: there is no such library; 438: it lacks the function
    template <typename F> [[nodiscard]] F* Funzione(const char* sFunzione)
    {
        // A data pointer and a function pointer are alike wherever libraries are loaded this way.
        return reinterpret_cast<F*>(Simbolo(sFunzione)); // NOLINT(*-reinterpret-cast)
    }

private:
    void Carica();
    [[nodiscard]] void* Simbolo(const char* sFunzione);

    std::string m_sNome;
    void* m_Libreria = nullptr;
};

/// Runs a call that blocks beside the caller, and lets the caller's events run until it has ended.
/// Takes    chiamata   ends without an exception; runs in a thread of its own
///          eventi     runs here, again and again; what it throws is passed on when the call has ended
void ChiamaConEventi(const std::function<void()>& chiamata, const std::function<void()>& eventi);

} // namespace ordavel
