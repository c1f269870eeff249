// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "intake/Dates.h"
#include "intake/Money.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

/// One record of a table, read under its plan.
struct BookingRow {
    enum class Kind {
        booking,
        pending,      ///< not booked yet
        continuation, ///< further text of the booking before
        balance,      ///< an opening or closing balance, a total
        blank,
        badDate,   ///< an amount, but a date that cannot be read
        badAmount, ///< a date, but an amount that cannot be read
        noAmount,  ///< a date and no amount at all
        noSign,    ///< an amount whose sign the balance should tell and cannot
        noDate,    ///< an amount and no date at all
        other      ///< no booking
    };

    Kind kind = Kind::other;
    std::optional<Day> day;
    std::optional<Money> amount;  ///< signed, from the account holder's view
    std::optional<Money> balance; ///< of the running column
};

namespace BookingRows {

/// Reads a record; the sign rule `fromBalance` leaves the amount as written.
BookingRow read(const RecordTable& table, std::size_t record, const TablePlan& plan, int centuryWindow);

/// Whether a text speaks of a balance or a total.
bool mentionsBalance(const RecordTable& table, std::size_t record);

} // namespace BookingRows
