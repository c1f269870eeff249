// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Amounts in decimal digits: the fewest that read back as the same number,
/// under every locale alike and never with an exponent.
namespace AmountDigits {

/// Appends `amount` (any number but infinities) with `mark` and at least `leastDecimals` decimals.
void append(std::string& out, double amount, char mark, int leastDecimals = 2);

/// The same with at most `mostDecimals`, 100 or fewer; false when it had to be rounded.
bool appendRounded(std::string& out, double amount, char mark, int leastDecimals, int mostDecimals);

} // namespace AmountDigits
