// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "differential/PlainAmount.h"

#include <algorithm>
#include <cstddef>

#include <locale.h>
#include <stdlib.h>

namespace {

enum class Mark { undecided, comma, dot };

/// From the last character backwards, which is position 0: the first comma and
/// the first dot that are met can decide, each if it stands at position 2.
Mark markOf(const std::string& number) {
    Mark mark = Mark::undecided;
    bool commaSeen = false;
    bool dotSeen = false;
    for (std::size_t position = 0; position < number.size(); ++position) {
        const char c = number[number.size() - 1 - position];
        if (c == ',' && !commaSeen) {
            commaSeen = true;
            if (position == 2 && mark == Mark::undecided)
                mark = Mark::comma;
        }
        if (c == '.' && !dotSeen) {
            dotSeen = true;
            if (position == 2 && mark == Mark::undecided)
                mark = Mark::dot;
        }
    }
    if (mark != Mark::undecided)
        return mark;
    return dotSeen && !commaSeen ? Mark::dot : Mark::comma;
}

/// What the C runtime reads at the start of a text where "." is the decimal mark.
double runtimeNumber(const std::string& text) {
    static const locale_t plain = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return ::strtod_l(text.c_str(), nullptr, plain);
}

} // namespace

double plainAmount(const std::string& text) {
    std::string number;
    for (const char c : text) {
        if ((c >= '0' && c <= '9') || c == '.' || c == ',' || c == '-')
            number += c;
    }
    if (number.empty())
        return 0.0;
    const char decimal = markOf(number) == Mark::comma ? ',' : '.';
    std::string plain;
    for (const char c : number) {
        if (c == decimal)
            plain += '.';
        else if (c != '.' && c != ',')
            plain += c;
    }
    return runtimeNumber(plain);
}
