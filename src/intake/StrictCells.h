// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The records of a delimited text that keeps the rules: a field stands in
/// quotes as a whole or has none, quotes inside are doubled, line feeds end
/// records. Field for field and byte for byte; whoever wants to read what banks
/// write takes RecordTable.
class StrictCells {
public:
    /// `text` must outlive the object.
    StrictCells(std::string_view text, char delimiter) : m_text(text), m_delimiter(delimiter) {}

    /// Goes on to the next record; false at the end of the text, or where it breaks the rules.
    bool next();
    bool isDamaged() const { return m_damaged; }

    /// Of the record read last.
    const std::vector<std::string>& cells() const { return m_cells; }
    /// Its lines, from 0; of a damaged text where the record begins that is.
    int firstLine() const { return m_firstLine; }
    int lineCount() const { return m_line - m_firstLine; }

private:
    bool readQuoted(std::string& cell);
    void readPlain(std::string& cell);

    std::string_view m_text;
    char m_delimiter;
    std::size_t m_at = 0;
    int m_line = 0; ///< at which the next record begins
    int m_firstLine = 0;
    bool m_damaged = false;
    std::vector<std::string> m_cells;
};
