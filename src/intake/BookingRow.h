// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "intake/Day.h"
#include "intake/Money.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

/// One record of a table, read under its plan.
struct BookingRow {
    enum class Kind {
        booking,
        pending,      ///< not booked yet
        failed,       ///< declined or cancelled: never booked
        continuation, ///< further text of the booking before
        balance,      ///< an opening or closing balance, a total
        blank,
        badDate,       ///< an amount, but a date that cannot be read
        badAmount,     ///< a date, but an amount that cannot be read
        noAmount,      ///< a date and no amount at all
        noSign,        ///< an amount whose sign the balance should tell and cannot
        noDate,        ///< an amount and no date at all
        wordForDate,   ///< an amount, and a word where the date should be
        tooManyFields, ///< a delimiter inside a text moved the fields behind it
        other          ///< no booking
    };

    Kind kind = Kind::other;
    std::optional<Day> day;
    std::optional<Money> amount;  ///< signed, from the account holder's view
    std::optional<Money> balance; ///< of the running column
};

namespace BookingRows {

/// Reads the records of the plan's region, one element each. Under the sign
/// rules `inverted` and `fromBalance` the amounts are left as written.
std::vector<BookingRow> read(const RecordTable& table, const TablePlan& plan);

} // namespace BookingRows
