// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "intake/BookingRow.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

/// Whether a table is a card statement that counts what was bought as positive.
enum class CardSigns {
    asWritten,
    inverted, ///< purchases are positive, payments to the card negative
    unclear   ///< a card statement without any sign: purchases and payments are both positive
};

namespace CardStatements {

/// Judges by what the file says of cards and by the words beside positive and
/// negative amounts. `rows` are those of the plan's region.
CardSigns signs(const RecordTable& table, const TablePlan& plan, const std::vector<BookingRow>& rows);

} // namespace CardStatements
