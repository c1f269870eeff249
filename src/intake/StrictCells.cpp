// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/StrictCells.h"

#include <algorithm>

bool StrictCells::next() {
    m_firstLine = m_line;
    if (m_damaged || m_at >= m_text.size())
        return false;
    m_cells.clear();
    for (;;) {
        std::string& cell = m_cells.emplace_back();
        if (m_at < m_text.size() && m_text[m_at] == '"') {
            m_damaged = !readQuoted(cell);
        } else {
            readPlain(cell);
        }
        if (m_damaged)
            return false;
        if (m_at < m_text.size() && m_text[m_at] == m_delimiter) {
            ++m_at;
            continue;
        }
        m_at += m_at < m_text.size() && m_text[m_at] == '\r' ? 1U : 0U;
        ++m_at; // the line feed, or the end of the text
        ++m_line;
        return true;
    }
}

/// Ends before the delimiter or before the end of the line.
bool StrictCells::readQuoted(std::string& cell) {
    for (std::size_t from = m_at + 1;;) {
        const std::size_t quote = m_text.find('"', from);
        if (quote == std::string_view::npos)
            return false;
        const std::string_view piece = m_text.substr(from, quote - from);
        cell += piece;
        m_line += static_cast<int>(std::count(piece.begin(), piece.end(), '\n'));
        if (quote + 1 < m_text.size() && m_text[quote + 1] == '"') {
            cell += '"';
            from = quote + 2;
            continue;
        }
        m_at = quote + 1;
        const std::string_view rest = m_text.substr(m_at);
        return rest.empty() || rest.front() == m_delimiter || rest.front() == '\n' || rest.starts_with("\r\n") ||
               rest == "\r";
    }
}

void StrictCells::readPlain(std::string& cell) {
    std::size_t end = m_at;
    while (end < m_text.size() && m_text[end] != m_delimiter && m_text[end] != '\n')
        ++end;
    if (end > m_at && m_text[end - 1] == '\r' && (end == m_text.size() || m_text[end] == '\n'))
        --end;
    cell = m_text.substr(m_at, end - m_at);
    m_damaged = cell.find('"') != std::string::npos;
    m_at = end;
}
