// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// One cell of a delimited line, for messages: where it stands and what it says.
struct CsvCell {
    std::size_t first; ///< bytes of the line, quotes included
    std::size_t length;
    std::string text; ///< without its quotes

    /// The cell of that column, from 0, as the library splits a line; empty, at
    /// the end of the line, where the line has no such column.
    static CsvCell of(std::string_view line, char delimiter, int column);
};
