// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Day.h"

#include <array>
#include <cstdio>

bool Day::exists() const {
    constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1)
        return false;
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return day <= kDays[static_cast<std::size_t>(month) - 1] + (leap && month == 2 ? 1 : 0);
}

int Day::number() const {
    const int y = month < 3 ? year - 1 : year;
    const int m = month < 3 ? month + 9 : month - 3;
    return 365 * y + y / 4 - y / 100 + y / 400 + (153 * m + 2) / 5 + day - 307;
}

std::string Day::germanText() const {
    char text[40];
    std::snprintf(text, sizeof text, "%02d.%02d.%04d", day, month, year);
    return text;
}
