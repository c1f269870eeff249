// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "intake/RecordTable.h"

/// What kind of values a column holds, counted over some records.
struct ColumnProfile {
    int rows = 0;
    int filled = 0;
    int dates = 0;        ///< a date with a year
    int dayMonths = 0;    ///< could be a date without a year
    int digits8 = 0;      ///< could be a date of eight digits
    int commaAmounts = 0; ///< amounts when the comma is the decimal mark
    int dotAmounts = 0;
    int marked = 0; ///< amounts with a decimal mark, a currency or a sign
    int negative = 0;
    int signs = 0;          ///< amounts with a sign, be it a plus
    int zeros = 0;          ///< amounts of nothing
    int wordsOnly = 0;      ///< no digit in them
    int minusWords = 0;     ///< marks for debit
    int plusWords = 0;      ///< marks for credit
    int codes = 0;          ///< account numbers, IBANs and the like
    int distinct = 0;       ///< different values, counted up to a limit
    std::size_t length = 0; ///< bytes of all values

    int amounts() const { return commaAmounts > dotAmounts ? commaAmounts : dotAmounts; }
    bool isDate() const { return filled > 0 && dates * 10 >= filled * 7; }
    /// Dates, and words such as "offen" where there is none yet.
    bool isDateOrWord() const { return isDate() || (dates > 0 && dates + wordsOnly == filled); }
    bool isDayMonth() const { return filled > 0 && dayMonths * 10 >= filled * 8; }
    bool isCompactDate() const { return filled > 0 && digits8 * 10 >= filled * 9; }
    bool isAmount() const { return filled > 0 && amounts() * 10 >= filled * 6; }
    bool isSignColumn() const { return filled > 0 && (minusWords + plusWords) * 10 >= filled * 9; }
    bool isCode() const { return filled > 0 && codes * 10 >= filled * 8; }
    bool isConstant() const { return rows > 1 && filled == rows && distinct == 1; }
    bool isText() const { return filled > 0 && !isDate() && !isAmount() && !isCompactDate() && !isCode(); }
    double averageLength() const { return filled > 0 ? static_cast<double>(length) / filled : 0.0; }
};

namespace ColumnProfiles {

std::vector<ColumnProfile> make(const RecordTable& table, std::span<const std::size_t> records, int columns);

} // namespace ColumnProfiles
