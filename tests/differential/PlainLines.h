// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The rules for delimited lines as one would tell them.
namespace PlainLines {

struct Split {
    std::vector<std::string> fields; ///< none where the line is refused
    std::string error;               ///< what is told of it, without the line's number
};

/// A line of any width, of which the first 49 fields are read.
Split splitAnyWidth(const std::string& line, char delimiter);
/// A line that must have just so many fields.
Split splitFixedWidth(const std::string& line, char delimiter, int width);

/// The best delimiter of a whole file; 0 when none qualifies.
char bestDelimiter(const std::vector<std::string>& lines);

} // namespace PlainLines
