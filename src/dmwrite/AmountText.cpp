// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "dmwrite/AmountText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "framework/AssertTypeSizes.h"

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// What of a text can belong to an amount.
std::string numberCharacters(const char* text) {
    std::string kept;
    for (; *text != '\0'; ++text) {
        if (isDigit(*text) || *text == '.' || *text == ',' || *text == '-')
            kept += *text;
    }
    return kept;
}

/// The mark with exactly two characters behind it, looking only at the last
/// comma and the last dot; of two such marks the right one. Otherwise a dot
/// where there is no comma, else the comma: 1.234 is one and a bit, not a
/// thousand.
char decimalMark(std::string_view number) {
    constexpr std::size_t kDecimals = 2;
    const auto digitsBehind = [&](char mark) {
        const std::size_t at = number.rfind(mark);
        return at == std::string_view::npos ? at : number.size() - 1 - at;
    };
    const std::size_t behindComma = digitsBehind(',');
    const std::size_t behindDot = digitsBehind('.');
    if (behindComma == kDecimals)
        return ',';
    if (behindDot == kDecimals)
        return '.';
    return behindComma == std::string_view::npos && behindDot != std::string_view::npos ? '.' : ',';
}

/// The number at the start of a text of digits, "-" and "."; 0 where there is
/// none. The same under every locale.
double leadingNumber(std::string_view text) {
    double number = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (result.ec != std::errc::result_out_of_range)
        return number;
    // Too large or too small for a double; the digits before the mark tell which.
    const bool negative = text.front() == '-';
    const std::string_view whole = text.substr(0, text.find('.'));
    const bool large = whole.find_first_not_of("-0") != std::string_view::npos;
    const double magnitude = large ? HUGE_VAL : 0.0;
    return negative ? -magnitude : magnitude;
}

/// The value of an optional sign, digits and at most one mark with two digits behind it, as nearly all amounts are
/// written: no character is left out then, and the mark is a decimal one. Both numbers of the division are exact, so
/// that its result is the nearest double.
std::optional<double> plainAmount(const char* text) {
    constexpr std::ptrdiff_t kExactDigits = 15;
    const bool negative = *text == '-';
    const char* at = negative ? text + 1 : text;
    const char* const first = at;
    std::int64_t number = 0;
    for (; isDigit(*at) && at - first < kExactDigits; ++at)
        number = number * 10 + (*at - '0');
    if (at == first)
        return std::nullopt;
    double scale = 1.0;
    if (*at == ',' || *at == '.') {
        if (at - first > kExactDigits - 2 || !isDigit(at[1]) || !isDigit(at[2]))
            return std::nullopt;
        number = number * 100 + std::int64_t{10} * (at[1] - '0') + (at[2] - '0');
        scale = 100.0;
        at += 3;
    }
    if (*at != '\0')
        return std::nullopt;
    const double magnitude = static_cast<double>(number) / scale;
    return negative ? -magnitude : magnitude;
}

} // namespace

double AmountText::read(const char* text) {
    if (const std::optional<double> amount = plainAmount(text))
        return *amount;
    std::string number = numberCharacters(text);
    if (number.empty())
        return 0.0;
    const char mark = decimalMark(number);
    const char other = mark == ',' ? '.' : ',';
    std::erase(number, other);
    std::replace(number.begin(), number.end(), mark, '.');
    return leadingNumber(number);
}
