// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "intake/PhysicalLines.h"
#include "intake/RecordTable.h"

/// A text cut into lines and records, all of which it keeps alive.
class Cells {
public:
    explicit Cells(std::string_view text, char delimiter = ';')
        : m_text(std::make_unique<std::string>(text)), m_lines(LineSplitting::split(*m_text)),
          m_table(RecordTable::read(m_lines.lines, delimiter, m_lines.lines.size())) {}

    const RecordTable& table() const { return m_table; }
    const PhysicalLines& lines() const { return m_lines; }
    std::vector<std::string> record(std::size_t index) const {
        const auto cells = m_table.cells(index);
        return {cells.begin(), cells.end()};
    }

private:
    std::unique_ptr<std::string> m_text; // on the heap: views into it survive a move
    PhysicalLines m_lines;
    RecordTable m_table;
};
