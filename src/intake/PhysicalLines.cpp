// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/PhysicalLines.h"

namespace LineSplitting {

std::string_view name(LineEnds ends) {
    switch (ends) {
    case LineEnds::none:
        return "none";
    case LineEnds::lf:
        return "lf";
    case LineEnds::crlf:
        return "crlf";
    case LineEnds::cr:
        return "cr";
    case LineEnds::mixed:
        return "mixed";
    }
    return "none";
}

PhysicalLines split(std::string_view text) {
    PhysicalLines result;
    const bool hasLineFeed = text.find('\n') != std::string_view::npos;
    const char end = hasLineFeed ? '\n' : '\r';
    std::size_t withReturn = 0;
    std::size_t ends = 0;
    std::size_t from = 0;
    constexpr std::size_t kUsualLength = 64;
    result.lines.reserve(text.size() / kUsualLength + 1);
    for (;;) {
        const std::size_t at = text.find(end, from);
        if (at == std::string_view::npos)
            break;
        std::string_view line = text.substr(from, at - from);
        if (hasLineFeed && !line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
            ++withReturn;
        }
        result.lines.push_back(line);
        ++ends;
        from = at + 1;
    }
    result.endsWithNewline = from == text.size() && ends > 0;
    if (!result.endsWithNewline && !text.empty())
        result.lines.push_back(text.substr(from));

    if (ends == 0)
        result.ends = LineEnds::none;
    else if (!hasLineFeed)
        result.ends = LineEnds::cr;
    else if (withReturn == 0)
        result.ends = LineEnds::lf;
    else
        result.ends = withReturn == ends ? LineEnds::crlf : LineEnds::mixed;
    return result;
}

} // namespace LineSplitting
