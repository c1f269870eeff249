// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/RecordTable.h"

#include <algorithm>

#include "intake/TextTools.h"

namespace {

/// A quoted field that is still open after so many lines was never meant as one.
constexpr std::size_t kMaxLinesOfField = 40;

} // namespace

class RecordTable::Reader {
public:
    Reader(RecordTable& table, std::span<const std::string_view> lines, char delimiter)
        : m_table(table), m_lines(lines), m_delimiter(delimiter) {}

    /// Reads one record that begins at line `line`; returns the line behind it.
    std::size_t readRecord(std::size_t line) {
        Record record;
        record.firstLine = static_cast<int>(line);
        record.firstCell = m_table.m_cells.size();
        m_line = line;
        m_at = 0;
        m_plain = true;
        if (text().find('"') == std::string_view::npos) {
            splitAtDelimiters();
        } else {
            while (readField()) {
            }
        }
        record.cellCount = static_cast<int>(m_table.m_cells.size() - record.firstCell);
        record.lineCount = static_cast<int>(m_line - line) + 1;
        record.plain = m_plain && record.lineCount == 1;
        const auto cells = std::span(m_table.m_cells).subspan(record.firstCell);
        record.blank = std::all_of(cells.begin(), cells.end(), [](auto text) { return TextTools::trim(text).empty(); });
        m_table.m_records.push_back(record);
        return m_line + 1;
    }

private:
    std::string_view text() const { return m_lines[m_line]; }

    bool isPadding(char c) const { return c == ' ' && m_delimiter != ' '; }

    /// A line without quotes, which is what most lines are.
    void splitAtDelimiters() {
        const std::string_view line = text();
        std::size_t from = 0;
        for (std::size_t at = 0; at < line.size(); ++at) {
            if (line[at] != m_delimiter)
                continue;
            m_table.m_cells.push_back(line.substr(from, at - from));
            from = at + 1;
        }
        m_table.m_cells.push_back(line.substr(from));
    }

    /// Reads one field; false when it was the line's last.
    bool readField() {
        std::size_t start = m_at;
        while (start < text().size() && isPadding(text()[start]))
            ++start;
        if (start < text().size() && text()[start] == '"' && readQuotedField(start))
            return m_more;
        const std::size_t end = std::min(text().find(m_delimiter, m_at), text().size());
        std::string_view field = text().substr(m_at, end - m_at);
        if (field.find('"') != std::string_view::npos) {
            m_plain = false;
            field = withoutStrayQuote(field);
        }
        store(field, end);
        return m_more;
    }

    /// `Firma";` lost its opening quote somewhere; the other one means nothing then.
    static std::string_view withoutStrayQuote(std::string_view field) {
        if (field.size() >= 3 && field.starts_with("=\"") && field.back() == '"') // a spreadsheet's text formula
            return field.substr(2, field.size() - 3);
        if (std::count(field.begin(), field.end(), '"') == 1 && (field.back() == '"' || field.front() == '"')) {
            field.remove_suffix(field.back() == '"' ? 1 : 0);
            field.remove_prefix(!field.empty() && field.front() == '"' ? 1 : 0);
        }
        return field;
    }

    void store(std::string_view field, std::size_t end) {
        m_table.m_cells.push_back(field);
        m_more = end < text().size();
        m_at = end + 1;
    }

    /// Where the line goes on behind a closing quote at `at`: the delimiter or
    /// the end of the line, blanks before it skipped. npos for no closing quote.
    std::size_t endBehindQuote(std::string_view line, std::size_t at) const {
        std::size_t end = at + 1;
        while (end < line.size() && isPadding(line[end]))
            ++end;
        return end == line.size() || line[end] == m_delimiter ? end : std::string_view::npos;
    }

    /// Reads a field whose opening quote stands at `quote`. False, and nothing
    /// is read, when no closing quote follows within reason: a quote that opens
    /// by mistake must not swallow the bookings below it up to the next one.
    bool readQuotedField(std::size_t quote) {
        std::string joined; // what is read so far, where it is no piece of one line
        bool oddQuote = false;
        std::size_t from = quote + 1;
        const std::size_t lastLine = std::min(m_lines.size(), m_line + kMaxLinesOfField);
        for (std::size_t line = m_line; line < lastLine; ++line, from = 0) {
            const std::string_view current = m_lines[line];
            std::size_t at = from;
            while ((at = current.find('"', at)) != std::string_view::npos) {
                const std::size_t end = endBehindQuote(current, at);
                const bool doubled = at + 1 < current.size() && current[at + 1] == '"';
                if (end != std::string_view::npos && !doubled) {
                    const bool tight = quote == m_at && end == at + 1;
                    m_plain = m_plain && tight && !oddQuote && line == m_line;
                    storeQuoted(line, end, current.substr(from, at - from), std::move(joined));
                    return true;
                }
                if (!doubled && line > m_line)
                    return false;
                joined.append(current, from, at - from + 1);
                oddQuote = oddQuote || !doubled;
                at += doubled ? 2 : 1;
                from = at;
            }
            if (oddQuote)
                return false;
            joined.append(current.substr(from));
            joined += '\n';
        }
        return false;
    }

    void storeQuoted(std::size_t line, std::size_t end, std::string_view tail, std::string&& joined) {
        m_line = line;
        if (joined.empty()) {
            store(tail, end);
            return;
        }
        joined += tail;
        m_table.m_rewritten.push_back(std::move(joined));
        store(m_table.m_rewritten.back(), end);
    }

    RecordTable& m_table;
    std::span<const std::string_view> m_lines;
    char m_delimiter;
    std::size_t m_line = 0;
    std::size_t m_at = 0; ///< start of the next field in its line
    bool m_more = false;
    bool m_plain = true;
};

RecordTable RecordTable::read(std::span<const std::string_view> lines, char delimiter, std::size_t maxLines) {
    RecordTable table;
    Reader reader(table, lines, delimiter);
    table.m_records.reserve(std::min(lines.size(), maxLines));
    std::size_t line = 0;
    while (line < lines.size() && line < maxLines)
        line = reader.readRecord(line);
    return table;
}

std::string_view RecordTable::cell(std::size_t record, int column) const {
    const Record& r = m_records[record];
    return column >= 0 && column < r.cellCount ? m_cells[r.firstCell + static_cast<std::size_t>(column)]
                                               : std::string_view();
}

std::span<const std::string_view> RecordTable::cells(std::size_t record) const {
    const Record& r = m_records[record];
    return std::span(m_cells).subspan(r.firstCell, static_cast<std::size_t>(r.cellCount));
}
