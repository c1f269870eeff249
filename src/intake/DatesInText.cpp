// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DatesInText.h"

#include <algorithm>

#include "intake/Dates.h"
#include "intake/TextTools.h"

namespace {

/// A word of digits and what joins them.
std::string_view nextNumberWord(std::string_view& text) {
    const auto belongs = [](char c) { return TextTools::isDigit(c) || c == '.' || c == '-' || c == '/'; };
    const auto* begin = std::find_if(text.begin(), text.end(), TextTools::isDigit);
    const auto* end = std::find_if_not(begin, text.end(), belongs);
    const auto from = static_cast<std::size_t>(begin - text.begin());
    const auto length = static_cast<std::size_t>(end - begin);
    std::string_view word = text.substr(from, length);
    text.remove_prefix(from + length);
    while (!word.empty() && !TextTools::isDigit(word.back()))
        word.remove_suffix(1);
    return word;
}

} // namespace

namespace DatesInText {

std::vector<Day> find(std::span<const std::string_view> cells, int centuryWindow) {
    std::vector<Day> days;
    for (std::string_view text : cells) {
        while (!text.empty()) {
            const auto date = DateCells::read(nextNumberWord(text));
            if (!date || date->form != DateCell::Form::numbers)
                continue;
            const bool yearAhead = date->digits[0] == 4;
            if (!yearAhead && (date->digits[2] != 4 || date->separator != '.'))
                continue;
            const DateOrder order = yearAhead ? DateOrder::yearMonthDay : DateOrder::dayMonthYear;
            if (const auto day = date->day(order, centuryWindow))
                days.push_back(*day);
        }
    }
    return days;
}

} // namespace DatesInText
