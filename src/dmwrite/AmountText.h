// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// Amounts as banks write them, in German or English notation.
namespace AmountText {

/// See ImportIntoDMHelper::scanCurrency. Not null. An amount beyond the range
/// of a double is an infinity.
double read(const char* text);

} // namespace AmountText
