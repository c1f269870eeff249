// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/AmountDigits.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <string_view>

namespace {

/// A sign, the digits of the largest or the decimals of the smallest number, and a mark.
constexpr std::size_t kMostCharacters = 2 * std::numeric_limits<double>::max_exponent10 + 32;

using Digits = std::array<char, kMostCharacters>;

std::string_view written(const Digits& digits, const char* end) {
    return {digits.data(), static_cast<std::size_t>(end - digits.data())};
}

std::string_view decimalsOf(std::string_view digits) {
    const std::size_t mark = digits.find('.');
    return mark == std::string_view::npos ? std::string_view() : digits.substr(mark + 1);
}

void appendPadded(std::string& out, std::string_view digits, char mark, int leastDecimals) {
    const std::string_view decimals = decimalsOf(digits);
    out += digits.substr(0, digits.find('.'));
    if (decimals.empty() && leastDecimals == 0)
        return;
    out += mark;
    out += decimals;
    for (auto have = static_cast<int>(decimals.size()); have < leastDecimals; ++have)
        out += '0';
}

std::string_view shortest(Digits& digits, double amount) {
    return written(digits,
                   std::to_chars(digits.data(), digits.data() + digits.size(), amount, std::chars_format::fixed).ptr);
}

} // namespace

namespace AmountDigits {

void append(std::string& out, double amount, char mark, int leastDecimals) {
    Digits digits{};
    appendPadded(out, shortest(digits, amount), mark, leastDecimals);
}

bool appendRounded(std::string& out, double amount, char mark, int leastDecimals, int mostDecimals) {
    Digits digits{};
    std::string_view text = shortest(digits, amount);
    const bool fits = decimalsOf(text).size() <= static_cast<std::size_t>(mostDecimals);
    if (!fits) {
        text = written(digits, std::to_chars(digits.data(), digits.data() + digits.size(), amount,
                                             std::chars_format::fixed, mostDecimals)
                                   .ptr);
        text.remove_suffix(text.size() - 1 - text.find_last_not_of('0'));
    }
    appendPadded(out, text, mark, leastDecimals);
    return fits;
}

} // namespace AmountDigits
