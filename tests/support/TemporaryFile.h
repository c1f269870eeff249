// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

/// A folder of its own below the temporary folder, removed with this object.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "import_module_XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder can be made: " + pattern);
        m_path = pattern;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// A file with the given bytes in a folder of its own, so that its name is free to choose.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string_view bytes, const std::string& name = "import.csv")
        : m_path((m_folder.path() / name).string()) {
        std::ofstream file(m_path, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!file.flush())
            throw std::runtime_error("cannot be written: " + m_path);
    }

    /// Valid as long as this object.
    const char* path() const { return m_path.c_str(); }

private:
    TemporaryFolder m_folder;
    std::string m_path;
};
