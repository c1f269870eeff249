// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/TimeOfDay.h"

#include <algorithm>

#include "intake/TextTools.h"

namespace {

/// Takes a number of one or two digits below `limit` off the front.
bool takeNumber(std::string_view& text, std::size_t leastDigits, int limit) {
    std::size_t digits = 0;
    int value = 0;
    while (digits < text.size() && digits < 2 && TextTools::isDigit(text[digits]))
        value = value * 10 + (text[digits++] - '0');
    if (digits < leastDigits || value >= limit)
        return false;
    text.remove_prefix(digits);
    return true;
}

bool takeOneOf(std::string_view& text, std::string_view characters) {
    if (text.empty() || characters.find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    return true;
}

/// What stands between date and time.
void skipLink(std::string_view& text) {
    text = TextTools::trim(text);
    if (takeOneOf(text, ",T-_"))
        text = TextTools::trim(text);
    for (const std::string_view word : {"um ", "at "}) {
        if (text.starts_with(word))
            text = TextTools::trim(text.substr(word.size()));
    }
}

/// "Z", "+01:00", "PM EST", "Uhr": words, and a number behind a sign.
bool isZone(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) {
        return TextTools::isAsciiLetter(c) || TextTools::isDigit(c) || TextTools::isBlank(c) || c == '+' || c == '-' ||
               c == ':' || c == '.' || c == '/' || c == '(' || c == ')';
    });
}

} // namespace

namespace TimeOfDay {

bool isTimeOrNothing(std::string_view rest) {
    skipLink(rest);
    if (rest.empty())
        return true;
    if (!takeNumber(rest, 1, 25) || !takeOneOf(rest, ":.h") || !takeNumber(rest, 2, 60))
        return false;
    if (takeOneOf(rest, ":.")) {
        if (!takeNumber(rest, 2, 61)) // 60 is a leap second
            return false;
        if (takeOneOf(rest, ".,:")) { // fractions of a second
            while (!rest.empty() && TextTools::isDigit(rest.front()))
                rest.remove_prefix(1);
        }
    }
    // A further digit would make it another number than a time.
    return rest.empty() || (!TextTools::isDigit(rest.front()) && isZone(rest));
}

} // namespace TimeOfDay
