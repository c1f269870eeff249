// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// An exact decimal amount: `mantissa` / 10^`scale`. Never a double.
struct Money {
    std::int64_t mantissa = 0;
    int scale = 0; ///< digits behind the decimal mark, 0 to 9

    bool isNegative() const { return mantissa < 0; }
    bool isZero() const { return mantissa == 0; }
    /// Wraps around like the sums below, rather than overflow on a number that no account holds.
    Money negated() const { return {static_cast<std::int64_t>(0U - static_cast<std::uint64_t>(mantissa)), scale}; }
    Money magnitude() const { return isNegative() ? negated() : *this; }

    /// Equal as numbers: 1.5 is 1.50.
    friend bool operator==(const Money& a, const Money& b);
    friend Money operator+(const Money& a, const Money& b);
    friend Money operator-(const Money& a, const Money& b) { return a + b.negated(); }

    /// With a decimal comma, at least two decimals unless there are none, no grouping: "-1234,50".
    std::string text() const;
};

/// An amount as it stands in a cell, with what its writing says about the sign.
struct AmountCell {
    enum class Sign { none, minus, plus };

    Money magnitude;
    Sign sign = Sign::none;
    bool marked = false;   ///< has a decimal mark
    bool currency = false; ///< names a currency
    bool thousand = false; ///< "1.234": the mark could as well group the digits of a thousand

    Money value() const { return sign == Sign::minus ? magnitude.negated() : magnitude; }
};

namespace AmountCells {

/// Reads `cell` with `decimalMark` "," or "."; the other one, blanks and
/// apostrophes group digits in threes. Around the number may stand a sign on
/// either side, brackets for minus, a currency, and "S", "H", "D", "C", "DR" or
/// "CR" for debit and credit. Anything else is no amount, and so is a number of
/// more than 17 digits.
std::optional<AmountCell> read(std::string_view cell, char decimalMark);

} // namespace AmountCells
