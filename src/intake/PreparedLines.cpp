// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/PreparedLines.h"

#include <numeric>
#include <utility>

void PreparedLines::write(int line, std::string text) {
    m_written.push_back(std::move(text));
    m_lines[static_cast<std::size_t>(line)] = m_written.back();
}

void PreparedLines::append(std::string text) {
    m_written.push_back(std::move(text));
    m_lines.emplace_back(m_written.back());
    m_added = true;
}

std::string PreparedLines::text() const {
    std::string text;
    text.reserve(std::accumulate(m_lines.begin(), m_lines.end(), m_lines.size(),
                                 [](std::size_t size, std::string_view line) { return size + line.size(); }));
    for (const std::string_view line : m_lines) {
        text += line;
        text += '\n';
    }
    if (!text.empty() && !m_file.endsWithNewline && !m_added)
        text.pop_back();
    return text;
}
