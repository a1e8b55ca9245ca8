// PathProvvisorio.hpp - the path of a file that is gone at the end.

#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <unistd.h>

namespace ordavel::fuzz {

class PathProvvisorio {
public:
    explicit PathProvvisorio(const std::string& sNome)
        : m_Path(std::filesystem::temp_directory_path() /
                 ("ordavel-fuzz-" + std::to_string(getpid()) + "-" + sNome))
    {}
    PathProvvisorio(const PathProvvisorio&) = delete;
    PathProvvisorio& operator=(const PathProvvisorio&) = delete;
    ~PathProvvisorio()
    {
        std::error_code ignorato;
        std::filesystem::remove(m_Path, ignorato);
    }

    [[nodiscard]] std::string Testo() const { return m_Path.string(); }

private:
    std::filesystem::path m_Path;
};

} // namespace ordavel::fuzz
