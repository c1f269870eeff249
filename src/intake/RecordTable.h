// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The logical records of a delimited text: the fields of a line, or of several
/// lines where a line break stands inside quotes.
///
/// Reads what programs really write: blanks around quotes, quotes inside an
/// unquoted field, unescaped quotes inside a quoted one, a quote that is never
/// closed. Holds views into the text it was read from, which must outlive it.
class RecordTable {
public:
    struct Record {
        int firstLine = 0; ///< from 0
        int lineCount = 1;
        std::size_t firstCell = 0;
        int cellCount = 0;
        bool plain = true;  ///< one line, and every reader of quotes sees the same fields
        bool blank = false; ///< no field has any content
    };

    /// Reads the records that begin in the first `maxLines` of `lines`.
    static RecordTable read(std::span<const std::string_view> lines, char delimiter, std::size_t maxLines);

    std::size_t size() const { return m_records.size(); }
    const Record& record(std::size_t index) const { return m_records[index]; }
    /// The field's text without quotes, not trimmed; empty behind the last field.
    std::string_view cell(std::size_t record, int column) const;
    std::span<const std::string_view> cells(std::size_t record) const;

private:
    class Reader;

    std::vector<Record> m_records;
    std::vector<std::string_view> m_cells;
    std::deque<std::string> m_rewritten; ///< fields that are no part of the text as it stands
};
