// CartellaLavoro.hpp - the folder of temporary files of one running program, which no other one uses.

#pragma once

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

#include <optional>

namespace ordavel::desktop {

/// The first program takes the folder itself, and finds its last columns there again; another one that runs
/// meanwhile gets a folder inside, gone at its end.
class CartellaLavoro {
public:
    explicit CartellaLavoro(const QString& sBase);

    [[nodiscard]] const QString& Base() const noexcept { return m_sBase; }
    [[nodiscard]] QString Path() const { return m_Propria ? m_Propria->path() : m_sBase; }

private:
    QString m_sBase;
    QLockFile m_Blocco;
    std::optional<QTemporaryDir> m_Propria;
};

} // namespace ordavel::desktop
