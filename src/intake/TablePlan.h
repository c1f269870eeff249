// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "intake/ColumnRoles.h"
#include "intake/Dates.h"
#include "intake/TableFinder.h"

/// Where the sign of an amount comes from.
enum class SignRule {
    asWritten,
    signColumn, ///< a word beside the amount
    twoColumns, ///< debit and credit
    inverted,   ///< a card statement that counts charges as positive
    fromBalance ///< the running balance tells
};

/// Whether balances in the file confirm the reading.
enum class BalanceProof { none, certified, broken };

/// How one table of a file is read.
struct TablePlan {
    TableRegion region;
    ColumnRoles roles;
    DateOrder dateOrder = DateOrder::dayMonthYear;
    char decimalMark = ',';
    SignRule sign = SignRule::asWritten;
    bool debitIsNegative = false; ///< of two columns: the debits carry their minus
    BalanceProof balance = BalanceProof::none;
    bool newestFirst = false;       ///< only told by a running balance
    std::vector<int> balanceBreaks; ///< lines from 1, where the chain does not hold
};
