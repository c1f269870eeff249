// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/TableWriter.h"

#include <algorithm>
#include <utility>

#include "cli/Color.h"
#include "cli/TextWidth.h"

namespace {

constexpr std::size_t kGap = 2;
constexpr std::size_t kLeastText = 8;
constexpr std::size_t kLeast = 4;

bool isRight(TableColumn::Kind kind) { return kind == TableColumn::Kind::number || kind == TableColumn::Kind::amount; }

} // namespace

TableWriter::TableWriter(Console& console, std::vector<TableColumn> columns)
    : m_console(console), m_columns(std::move(columns)), m_shown(m_columns.size()) {
    for (const TableColumn& column : m_columns)
        m_widths.push_back(TextWidth::of(column.heading));
}

void TableWriter::measure(const std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_widths[i] = std::max(m_widths[i], TextWidth::of(cells[i]));
}

std::size_t TableWriter::total() const {
    std::size_t total = 0;
    for (std::size_t i = 0; i < m_shown; ++i)
        total += m_widths[i] + kGap;
    const bool cut = m_shown < m_columns.size();
    return total - (m_shown > 0 ? kGap : 0) + (cut ? kGap + 1 : 0);
}

/// Takes from the widest columns until the table fits or nothing is left to take.
void TableWriter::shrink(bool textOnly, std::size_t least) {
    while (total() > m_console.width()) {
        std::size_t widest = m_columns.size();
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const bool candidate = !textOnly || m_columns[i].kind == TableColumn::Kind::text;
            if (candidate && m_widths[i] > least && (widest == m_columns.size() || m_widths[i] > m_widths[widest]))
                widest = i;
        }
        if (widest == m_columns.size())
            return;
        --m_widths[widest];
    }
}

void TableWriter::fit() {
    if (m_console.width() == 0)
        return;
    shrink(true, kLeastText);
    shrink(true, kLeast);
    shrink(false, kLeast);
    while (m_shown > 1 && total() > m_console.width())
        --m_shown;
}

void TableWriter::begin() {
    fit();
    std::string line;
    for (std::size_t i = 0; i < m_shown; ++i)
        line += (i == 0 ? "" : std::string(kGap, ' ')) + padded(m_columns[i].heading, i, false);
    line.erase(line.find_last_not_of(' ') + 1);
    m_console.write(colored(line, Color::bold, m_console.colorsOutput()) + "\n");
}

void TableWriter::write(const std::vector<std::string>& cells) {
    std::string line;
    for (std::size_t i = 0; i < m_shown; ++i)
        line += (i == 0 ? "" : std::string(kGap, ' ')) + padded(cells[i], i, m_console.colorsOutput());
    if (m_shown < m_columns.size())
        line += std::string(kGap, ' ') + "…";
    line.erase(line.find_last_not_of(' ') + 1);
    m_console.write(line + "\n");
}

std::string TableWriter::padded(const std::string& cell, std::size_t column, bool color) const {
    const std::string text = TextWidth::fitted(cell, m_widths[column]);
    const std::string space(m_widths[column] - TextWidth::of(text), ' ');
    const TableColumn::Kind kind = m_columns[column].kind;
    const bool red = color && kind == TableColumn::Kind::amount && text.starts_with('-');
    const std::string shown = colored(text, Color::red, red);
    return isRight(kind) ? space + shown : shown + space;
}
