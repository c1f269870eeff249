// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "intake/Day.h"

/// Which number of a date comes first.
enum class DateOrder { dayMonthYear, monthDayYear, yearMonthDay };

/// The numbers of a date as they stand in a cell.
struct DateCell {
    enum class Form {
        numbers,  ///< three numbers between separators
        dayMonth, ///< two numbers, the year is left to the reader
        compact,  ///< eight digits in a row
        named     ///< the month is a word
    };

    Form form = Form::numbers;
    int numbers[3] = {}; ///< in the order of the cell; of `named` day, month, year
    int digits[3] = {};
    char separator = '\0';
    bool apostropheYear = false; ///< 1/5'05: the year lies in the 2000s, whatever the window
    bool time = false;           ///< a time of day stands behind it
    bool plain = false;          ///< nothing but digits and separators, no blanks

    /// The day under `order`; nothing when it does not exist, or lies in a year
    /// that no account has seen (a slip such as 0204 for 2024). `assumedYear`
    /// serves cells without a year. Two-digit years up to `centuryWindow` lie
    /// in the 2000s.
    std::optional<Day> day(DateOrder order, int centuryWindow, std::optional<int> assumedYear = std::nullopt) const;
};

namespace DateCells {

std::string_view name(DateOrder order);
std::optional<DateOrder> parseOrder(std::string_view name);

/// The numbers of a date, of any of the forms; nothing for any other text.
/// Behind it a time of day and a time zone may stand, before it a weekday.
std::optional<DateCell> read(std::string_view raw);

} // namespace DateCells
