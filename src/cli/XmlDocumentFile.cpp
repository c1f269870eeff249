// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/XmlDocumentFile.h"

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <limits>
#include <system_error>

#include "cli/FormatTable.h"
#include "cli/SystemText.h"

namespace {

/// Behind it the library refuses a document by its size alone.
constexpr auto kMostBytes = static_cast<std::uintmax_t>(std::numeric_limits<int>::max());

} // namespace

XmlDocumentFile::XmlDocumentFile(const std::string& argument) : m_input(argument), m_problem(m_input.problem()) {
    if (!m_problem)
        read();
}

void XmlDocumentFile::read() {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(m_input.path(), error);
    m_isTooLarge = !error && size > kMostBytes;
    if (m_isTooLarge)
        return;
    errno = 0;
    std::ifstream file(m_input.path(), std::ios::binary);
    if (!error) {
        m_bytes.resize(static_cast<std::size_t>(size));
        file.read(m_bytes.data(), static_cast<std::streamsize>(m_bytes.size()));
    }
    if (error || !file)
        m_problem =
            Message::of(Problem::fileUnreadable, {m_input.argument(), systemText(error ? error.value() : errno)});
}

std::optional<std::string> XmlDocumentFile::nameForTheLibrary() {
    if (!m_input.mayBeAsked())
        return std::nullopt;
    try {
        return m_input.libraryName(FormatTable::ofFileName(m_input.argument()));
    } catch (const std::system_error&) {
        return std::nullopt; // no link to it could be made: there is a message about the file anyway
    }
}
