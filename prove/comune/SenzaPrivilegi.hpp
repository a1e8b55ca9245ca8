// SenzaPrivilegi.hpp - tests of permissions that hold for root too, whom no permission stops.

#pragma once

#include <unistd.h>

namespace ordavel::prove {

/// While it lives, the process has no rights but those of everybody. Whoever is not root keeps his own.
class SenzaPrivilegi {
public:
    SenzaPrivilegi() : m_bRoot(geteuid() == 0), m_bRiuscito(!m_bRoot || seteuid(kNessuno) == 0) {}
    SenzaPrivilegi(const SenzaPrivilegi&) = delete;
    SenzaPrivilegi& operator=(const SenzaPrivilegi&) = delete;
    ~SenzaPrivilegi()
    {
        if (m_bRoot && m_bRiuscito && seteuid(0) != 0) {
            _exit(1); // what follows would fail for the wrong reason
        }
    }

    /// Did it work? A box without the right to change users cannot run the test.
    [[nodiscard]] bool Riuscito() const { return m_bRiuscito; }

private:
    static constexpr uid_t kNessuno = 65534;
    bool m_bRoot;
    bool m_bRiuscito;
};

} // namespace ordavel::prove
