// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoreDate.h"

namespace {

void writeDigits(char* out, unsigned number, int count) {
    for (int i = count - 1; i >= 0; --i) {
        out[i] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
}

std::optional<unsigned> readDigits(std::string_view text) {
    unsigned number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return std::nullopt;
        number = number * 10 + static_cast<unsigned>(c - '0');
    }
    return number;
}

} // namespace

void StoreDate::write(char* out, const DMDate& date) {
    writeDigits(out, date.year(), 4);
    out[4] = '-';
    writeDigits(out + 5, date.month(), 2);
    out[7] = '-';
    writeDigits(out + 8, date.day(), 2);
}

std::optional<DMDate> StoreDate::read(std::string_view text) {
    if (text.size() != kLength || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const auto year = readDigits(text.substr(0, 4));
    const auto month = readDigits(text.substr(5, 2));
    const auto day = readDigits(text.substr(8, 2));
    if (!year || !month || !day)
        return std::nullopt;
    const DMDate date(*day, *month, *year);
    const bool isZeroDate = *year == 0 && *month == 0 && *day == 0;
    if (!isZeroDate && DMDate::DayWithinMonth(*month, *day, *year) == 0)
        return std::nullopt;
    return date;
}
