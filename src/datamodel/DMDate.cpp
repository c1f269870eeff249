// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DMDate.h"

namespace {

bool isLeapYear(unsigned year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

constexpr unsigned kDaysOfMonth[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr unsigned kFebruary = 2;
constexpr unsigned kLastYear = 9999; // what dd.mm.yyyy can show

} // namespace

int DMDate::DayWithinMonth(unsigned month, unsigned day, unsigned year) {
    if (year < 1 || year > kLastYear || month < 1 || month > 12 || day < 1)
        return 0;
    const unsigned leapDay = month == kFebruary && isLeapYear(year) ? 1 : 0;
    return day <= kDaysOfMonth[month - 1] + leapDay ? 1 : 0;
}
