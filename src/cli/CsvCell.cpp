// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/CsvCell.h"

namespace {

/// The text of a cell: what stands before its first quote is lost, and the
/// character behind every further quote is kept whatever it is.
std::string unquoted(std::string_view cell) {
    const std::size_t quote = cell.find('"');
    if (quote == std::string_view::npos)
        return std::string(cell);
    std::string text;
    for (std::size_t at = quote + 1; at < cell.size(); ++at) {
        if (cell[at] == '"' && ++at == cell.size())
            break;
        text += cell[at];
    }
    return text;
}

} // namespace

CsvCell CsvCell::of(std::string_view line, char delimiter, int column) {
    line = line.substr(0, line.find('\0'));
    std::size_t first = 0;
    bool insideQuotes = false;
    for (std::size_t at = 0; at <= line.size(); ++at) {
        if (at < line.size() && line[at] == '"')
            insideQuotes = !insideQuotes;
        if (at < line.size() && (line[at] != delimiter || insideQuotes))
            continue;
        if (column-- == 0)
            return {first, at - first, unquoted(line.substr(first, at - first))};
        first = at + 1;
    }
    return {line.size(), 0, {}};
}
