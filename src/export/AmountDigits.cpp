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

} // namespace

void AmountDigits::append(std::string& out, double amount, char mark, int leastDecimals) {
    std::array<char, kMostCharacters> digits{};
    const char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), amount, std::chars_format::fixed).ptr;
    const std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
    const std::string_view whole = text.substr(0, text.find('.'));
    const std::string_view decimals = whole.size() == text.size() ? std::string_view() : text.substr(whole.size() + 1);
    out += whole;
    if (decimals.empty() && leastDecimals == 0)
        return;
    out += mark;
    out += decimals;
    for (auto have = static_cast<int>(decimals.size()); have < leastDecimals; ++have)
        out += '0';
}
