// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Money.h"

#include <algorithm>

namespace {

std::int64_t powerOfTen(int exponent) {
    std::int64_t power = 1;
    while (exponent-- > 0)
        power *= 10;
    return power;
}

// Both amounts of 17 digits at most; a wider result would not be a bank's.
std::int64_t scaled(const Money& amount, int scale) {
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(amount.mantissa) *
                                     static_cast<std::uint64_t>(powerOfTen(scale - amount.scale)));
}

} // namespace

bool operator==(const Money& a, const Money& b) {
    const int scale = std::max(a.scale, b.scale);
    return scaled(a, scale) == scaled(b, scale);
}

Money operator+(const Money& a, const Money& b) {
    const int scale = std::max(a.scale, b.scale);
    return {static_cast<std::int64_t>(static_cast<std::uint64_t>(scaled(a, scale)) +
                                      static_cast<std::uint64_t>(scaled(b, scale))),
            scale};
}

std::string Money::text() const {
    std::string digits = std::to_string(static_cast<std::uint64_t>(magnitude().mantissa));
    int decimals = scale;
    while (decimals > 2 && digits.back() == '0' && digits.size() > 1) {
        digits.pop_back();
        --decimals;
    }
    for (; decimals == 1; ++decimals)
        digits += '0';
    if (decimals > 0) {
        if (static_cast<int>(digits.size()) <= decimals)
            digits.insert(0, static_cast<std::size_t>(decimals) + 1 - digits.size(), '0');
        digits.insert(digits.size() - static_cast<std::size_t>(decimals), 1, ',');
    }
    return mantissa < 0 ? "-" + digits : digits;
}
