// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "intake/BookingRow.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

/// How a table's balances fit its amounts.
struct BalanceCheck {
    BalanceProof proof = BalanceProof::none;
    bool newestFirst = false;
    bool runningColumn = false;    ///< checked booking by booking; otherwise opening against closing balance
    bool signsFromBalance = false; ///< the sizes fit, the signs only as the balance has them
    bool signsContradict = false;  ///< most sizes fit, most signs do not
    bool signsInverted = false;    ///< opening and closing balance fit when every sign is turned
    int steps = 0;                 ///< checked
    int fitting = 0;
    std::vector<int> breaks; ///< lines from 1 where the chain does not hold
};

namespace BalanceChecks {

/// Checks balance before plus amount against balance after, line for line, in
/// both directions of time; without a running column the opening and closing
/// balances around the table. `rows` are those of the plan's region.
BalanceCheck check(const RecordTable& table, const TablePlan& plan, const std::vector<BookingRow>& rows);

} // namespace BalanceChecks
