// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <unistd.h>

/// A file in memory with a name of its own, for what takes nothing but a path.
/// Written anew for every input; gone with this object, and where a find ends the
/// program scripts/fuzz.sh removes it.
class ScratchFile {
public:
    /// `extension` without the dot.
    explicit ScratchFile(const std::string& extension) {
        const std::filesystem::path memory("/dev/shm");
        const std::filesystem::path folder =
            std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
        m_path = (folder / ("import-module-fuzz-" + std::to_string(::getpid()) + "." + extension)).string();
    }
    ~ScratchFile() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    /// The path of the file, which then holds just these bytes.
    const std::string& write(std::string_view bytes) const {
        std::ofstream file(m_path, std::ios::binary | std::ios::trunc);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return m_path;
    }
    /// What the file holds now; nothing where it is gone.
    std::string read() const {
        std::ifstream file(m_path, std::ios::binary | std::ios::ate);
        std::string bytes(file ? static_cast<std::size_t>(file.tellg()) : 0, '\0');
        file.seekg(0).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return bytes;
    }
    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};
