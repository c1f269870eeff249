// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/Console.h"

/// One column of a table for people.
struct TableColumn {
    enum class Kind {
        text,   ///< left, and cut where the terminal is too narrow
        fixed,  ///< left, cut last
        number, ///< right, cut last
        amount, ///< the same, and red below zero
    };
    std::string heading; ///< printable
    Kind kind = Kind::text;
};

/// Writes a table in columns of equal width: of what they hold where nobody
/// minds, cut to the width of a terminal. The rows go through it twice, so that
/// nobody holds the whole table: first `measure` each, then `begin`, then
/// `write` each. Cells are printable.
class TableWriter {
public:
    TableWriter(Console& console, std::vector<TableColumn> columns);

    void measure(const std::vector<std::string>& cells);
    /// Settles the widths and writes the headings.
    void begin();
    void write(const std::vector<std::string>& cells);

private:
    std::size_t total() const;
    void shrink(bool textOnly, std::size_t least);
    void fit();
    std::string padded(const std::string& cell, std::size_t column, bool colored) const;

    Console& m_console;
    std::vector<TableColumn> m_columns;
    std::vector<std::size_t> m_widths;
    std::size_t m_shown; ///< columns that have a place
};
