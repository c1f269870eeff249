// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "intake/ColumnRoles.h"
#include "intake/Dates.h"
#include "intake/TableFinder.h"

/// Where the sign of an amount comes from.
enum class SignRule {
    asWritten,
    signColumn,    ///< a word beside the amount
    kindOfBooking, ///< the posting text, where no amount has a sign
    twoColumns,    ///< debit and credit
    inverted,      ///< a card statement that counts charges as positive
    fromBalance    ///< the running balance tells
};

/// Whether balances in the file confirm the reading.
enum class BalanceProof { none, certified, broken };

/// How one table of a file is read.
struct TablePlan {
    TableRegion region;
    ColumnRoles roles;
    DateOrder dateOrder = DateOrder::dayMonthYear;
    int centuryWindow = 30;
    /// Where dates have no year: the last day of the statement, from above the table.
    std::optional<Day> lastDay;
    char decimalMark = ',';
    bool markByUser = false;
    bool markIsProven = false; ///< by the user or by amounts that have decimals
    bool thousandths = false;  ///< "1,250" has three decimals: the column proves it
    SignRule sign = SignRule::asWritten;
    bool debitIsNegative = false;  ///< of two columns: the debits carry their minus
    bool creditIsNegative = false; ///< and the credits do, as what lowers a debt
    BalanceProof balance = BalanceProof::none;
    bool newestFirst = false;       ///< only told by a running balance
    std::vector<int> balanceBreaks; ///< lines from 1, where the chain does not hold
};
