// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/DisplayText.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>

namespace {

std::string fixedPoint(double magnitude, unsigned short decimals) {
    constexpr std::size_t kMostIntegerDigits = std::numeric_limits<double>::max_exponent10 + 1;
    std::string text(kMostIntegerDigits + 1 + decimals, '\0');
    const char* const end =
        std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::fixed, decimals).ptr;
    text.resize(static_cast<std::size_t>(end - text.data()));
    return text;
}

void appendInteger(std::string& out, std::string_view digits, bool grouped) {
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (grouped && i != 0 && (digits.size() - i) % 3 == 0)
            out.push_back('.');
        out.push_back(digits[i]);
    }
}

void appendPadded(std::string& out, unsigned number, std::size_t width) {
    const std::string digits = std::to_string(number);
    if (digits.size() < width)
        out.append(width - digits.size(), '0');
    out.append(digits);
}

} // namespace

namespace DisplayText {

std::string amount(double value, bool grouped, unsigned short decimals) {
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value < 0 ? "-inf" : "inf";

    const std::string plain = fixedPoint(std::fabs(value), decimals);
    const std::size_t point = plain.find('.');
    const bool isZero = plain.find_first_not_of("0.") == std::string::npos;

    std::string text;
    if (value < 0 && !isZero)
        text.push_back('-');
    appendInteger(text, std::string_view(plain).substr(0, point), grouped);
    if (point != std::string::npos) {
        text.push_back(',');
        text.append(plain, point + 1);
    }
    return text;
}

std::string date(const DMDate& date) {
    std::string text;
    if (date.isZero())
        return text;
    appendPadded(text, date.day(), 2);
    text.push_back('.');
    appendPadded(text, date.month(), 2);
    text.push_back('.');
    appendPadded(text, date.year(), 4);
    return text;
}

} // namespace DisplayText
