// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/GermanText.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char*, 12> kMonths = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                                                 "Juli",   "August",  "September", "Oktober", "November", "Dezember"};

std::string padded(unsigned number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

} // namespace

namespace GermanText {

std::string grouped(std::uint64_t number) {
    const std::string digits = std::to_string(number);
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i != 0 && (digits.size() - i) % 3 == 0)
            text += '.';
        text += digits[i];
    }
    return text;
}

std::string counted(std::size_t count, const char* one, const char* many) {
    return grouped(count) + " " + (count == 1 ? one : many);
}

std::string date(std::chrono::year_month_day day) {
    return padded(static_cast<unsigned>(day.day()), 2) + "." + padded(static_cast<unsigned>(day.month()), 2) + "." +
           padded(static_cast<unsigned>(static_cast<int>(day.year())), 4);
}

std::string month(std::chrono::year_month month) {
    return kMonths.at(static_cast<unsigned>(month.month()) - 1) +
           (" " + std::to_string(static_cast<int>(month.year())));
}

} // namespace GermanText
