// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <iterator>

#include "intake/InspectionOptions.h"
#include "support/FuzzInput.h"

/// What the user fixed, chosen by two bytes: a bit for each thing that is fixed
/// (encoding, delimiter, header, date order, decimal mark, columns, undated
/// records taken), then to what.
inline InspectionOptions chosenOptions(FuzzInput& input) {
    static constexpr Encoding kEncodings[] = {Encoding::ascii,   Encoding::utf8,   Encoding::utf16le,
                                              Encoding::utf16be, Encoding::latin1, Encoding::windows1252};
    static constexpr DateOrder kOrders[] = {DateOrder::dayMonthYear, DateOrder::monthDayYear, DateOrder::yearMonthDay};
    static constexpr char kDelimiters[] = {';', ',', '\t', '|', ':', ' ', '.', 'a'};
    const unsigned fixed = input.byte();
    const unsigned to = input.byte();
    InspectionOptions options;
    if ((fixed & 1U) != 0)
        options.encoding = kEncodings[to % std::size(kEncodings)];
    if ((fixed & 2U) != 0)
        options.delimiter = kDelimiters[to % std::size(kDelimiters)];
    if ((fixed & 4U) != 0)
        options.header = to % 2 == 0;
    if ((fixed & 8U) != 0)
        options.dateOrder = kOrders[to % std::size(kOrders)];
    if ((fixed & 16U) != 0)
        options.decimalMark = to % 2 == 0 ? ',' : '.';
    if ((fixed & 32U) != 0) {
        options.columns = {{"Datum", static_cast<int>(to % 5)},
                           {"Betrag", static_cast<int>(to / 5 % 5)},
                           {"Verwendungszweck", static_cast<int>(to / 25 % 5)}};
        options.furtherPurpose = {static_cast<int>(to % 7)};
    }
    options.allowUndated = (fixed & 64U) != 0;
    return options;
}
