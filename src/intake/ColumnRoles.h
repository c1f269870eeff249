// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

/// Which column of a table (from 0) serves which purpose; -1 where none does.
struct ColumnRoles {
    int date = -1;
    int yearSource = -1; ///< a full date, where the date column has no year
    int amount = -1;
    int debit = -1;
    int credit = -1;
    int sign = -1;
    int balance = -1;
    int currency = -1;
    int recipient = -1; ///< who gets the money; with `payer`, the sign decides
    int payer = -1;
    int counterparty = -1;    ///< the other side, whatever the sign; also where the two above are empty
    std::vector<int> purpose; ///< in file order
    int postingText = -1;
    int kind = -1; ///< the kind of booking, whether it serves as posting text, as purpose or not at all
    int category = -1;
    int subcategory = -1;
    int status = -1;
    int width = 0; ///< columns that have a name; fields behind them belong to the last one
    /// Fields that a record has; 0 where that is not known. What stands behind
    /// them was cut off a text by a delimiter inside it.
    int fullWidth = 0;
    int firstText = -1; ///< the first column of free text
    bool overflowIsPurpose = false;
    bool postingTextInPurpose = false; ///< the purpose alone would often be empty

    bool twoAmounts() const { return amount < 0 && (debit >= 0 || credit >= 0); }
    bool complete() const { return date >= 0 && (amount >= 0 || debit >= 0 || credit >= 0); }
};
