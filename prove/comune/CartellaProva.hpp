// CartellaProva.hpp - a folder of a test's own, gone with it.

#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace ordavel::prove {

/// A new empty folder that is removed with its content at the end.
class CartellaProva {
public:
    CartellaProva()
    {
        static std::atomic<int> nProgressivo{0};
        m_Path = std::filesystem::temp_directory_path() /
                 ("ordavel-prova-" + std::to_string(getpid()) + "-" + std::to_string(nProgressivo++));
        std::filesystem::remove_all(m_Path); // a process that was killed may have left one of that name
        std::filesystem::create_directories(m_Path);
    }
    CartellaProva(const CartellaProva&) = delete;
    CartellaProva& operator=(const CartellaProva&) = delete;
    ~CartellaProva()
    {
        std::error_code ignorato;
        std::filesystem::remove_all(m_Path, ignorato);
    }

    /// Path of a name in the folder; the folder itself, with its separator, for an empty name.
    [[nodiscard]] std::string operator/(std::string_view sNome) const { return (m_Path / sNome).string(); }

private:
    std::filesystem::path m_Path;
};

/// Writes a whole file.
inline void ScriviFile(const std::string& sPath, std::string_view sContenuto)
{
    std::ofstream file(sPath, std::ios::binary);
    file.write(sContenuto.data(), static_cast<std::streamsize>(sContenuto.size()));
    ASSERT_TRUE(file.good()) << sPath;
}

/// Reads a whole file; empty when it is missing.
inline std::string LeggiFile(const std::string& sPath)
{
    std::ifstream file(sPath, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace ordavel::prove
