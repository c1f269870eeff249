// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// A table as every writer of pages shows it. Texts are printable UTF-8.
struct PageTable {
    enum class Kind {
        text,
        number, ///< to the right, never broken
        raw     ///< letter by letter, broken anywhere
    };
    struct Column {
        std::string title;
        Kind kind = Kind::text;
    };
    struct Cell {
        std::string text;
        std::string detail; ///< smaller, below it; may be empty
    };
    struct Row {
        enum class Kind {
            plain,
            total, ///< the sum of those above
            gap    ///< its only cell tells of rows that are not shown
        };
        std::vector<Cell> cells;
        Kind kind = Kind::plain;
    };

    std::string caption;
    std::vector<Column> columns;
    bool firstIsName = false; ///< the first cell of a row names it
    std::vector<Row> rows;
};
