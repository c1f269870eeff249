// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

/// How the lines of a file end.
enum class LineEnds { none, lf, crlf, cr, mixed };

/// The lines of a text as a person counts them, without their ends. Views into
/// the text; line n of the file (from 1) is element n - 1.
struct PhysicalLines {
    std::vector<std::string_view> lines;
    LineEnds ends = LineEnds::none;
    bool endsWithNewline = false; ///< the last line is closed; no empty line follows it
};

namespace LineSplitting {

std::string_view name(LineEnds ends);

/// A carriage return by itself ends a line only where the text has no line feed.
PhysicalLines split(std::string_view text);

} // namespace LineSplitting
