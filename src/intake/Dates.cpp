// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Dates.h"

#include <array>
#include <utility>

namespace {

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2199;

constexpr std::array<std::pair<DateOrder, std::string_view>, 3> kOrderNames = {{
    {DateOrder::dayMonthYear, "dmy"},
    {DateOrder::monthDayYear, "mdy"},
    {DateOrder::yearMonthDay, "ymd"},
}};

int widen(int year, int digits, int centuryWindow) {
    if (digits > 2)
        return year;
    return year + (year <= centuryWindow ? 2000 : 1900);
}

std::optional<Day> existing(int year, int month, int day) {
    const Day result{year, month, day};
    return year >= kFirstYear && year <= kLastYear && result.exists() ? std::optional(result) : std::nullopt;
}

/// Of two numbers and a year; `first` stands before `second` in the cell.
std::optional<Day> inOrder(DateOrder order, int year, int first, int second) {
    return order == DateOrder::dayMonthYear ? existing(year, second, first) : existing(year, first, second);
}

} // namespace

std::optional<Day> DateCell::day(DateOrder order, int centuryWindow, std::optional<int> assumedYear) const {
    switch (form) {
    case Form::named:
        return existing(widen(numbers[2], digits[2], centuryWindow), numbers[1], numbers[0]);
    case Form::compact: {
        const int all = numbers[0];
        if (order == DateOrder::yearMonthDay)
            return existing(all / 10000, all / 100 % 100, all % 100);
        return inOrder(order, all % 10000, all / 1000000, all / 10000 % 100);
    }
    case Form::dayMonth: // a cell without a year has day and month, with no year ahead of them
        if (!assumedYear)
            return std::nullopt;
        return order == DateOrder::monthDayYear ? existing(*assumedYear, numbers[0], numbers[1])
                                                : existing(*assumedYear, numbers[1], numbers[0]);
    case Form::numbers:
        break;
    }
    const int yearAt = order == DateOrder::yearMonthDay ? 0 : 2;
    // Four digits are a year, and only a year has them.
    for (int i = 0; i < 3; ++i) {
        if (digits[i] > 2 && i != yearAt)
            return std::nullopt;
    }
    const int year = apostropheYear && digits[yearAt] <= 2 ? 2000 + numbers[yearAt]
                                                           : widen(numbers[yearAt], digits[yearAt], centuryWindow);
    return yearAt == 0 ? existing(year, numbers[1], numbers[2]) : inOrder(order, year, numbers[0], numbers[1]);
}

namespace DateCells {

std::string_view name(DateOrder order) { return kOrderNames[static_cast<std::size_t>(order)].second; }

std::optional<DateOrder> parseOrder(std::string_view name) {
    for (const auto& [order, orderName] : kOrderNames) {
        if (orderName == name)
            return order;
    }
    return std::nullopt;
}

} // namespace DateCells
