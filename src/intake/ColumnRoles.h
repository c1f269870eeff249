// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "intake/ColumnLexicon.h"
#include "intake/ColumnProfile.h"
#include "intake/RecordTable.h"
#include "intake/TableFinder.h"

/// Which column of a table (from 0) serves which purpose; -1 where none does.
struct ColumnRoles {
    int date = -1;
    int yearSource = -1; ///< a full date, where the date column has no year
    int amount = -1;
    int debit = -1;
    int credit = -1;
    int sign = -1;
    int balance = -1;
    int recipient = -1; ///< who gets the money; with `payer`, the sign decides
    int payer = -1;
    int counterparty = -1;    ///< the other side, whatever the sign; also where the two above are empty
    std::vector<int> purpose; ///< in file order
    int postingText = -1;
    int category = -1;
    int subcategory = -1;
    int status = -1;
    int width = 0; ///< columns that have a name; fields behind them belong to the last one
    bool overflowIsPurpose = false;
    bool postingTextInPurpose = false; ///< the purpose alone would often be empty

    bool twoAmounts() const { return amount < 0 && (debit >= 0 || credit >= 0); }
    bool complete() const { return date >= 0 && (amount >= 0 || debit >= 0 || credit >= 0); }
};

/// How sure the roles are, and on what they rest.
struct ColumnChoice {
    ColumnRoles roles;
    bool dateByName = false;
    bool amountByName = false;
    std::vector<int> rivalAmounts; ///< columns that could be the amount as well
    std::vector<int> otherAmounts; ///< amounts that their names make unlikely (gross, original, fee)
    std::vector<ColumnProfile> profiles;
};

namespace ColumnChooser {

/// Roles by the names in the header and the values below it; by the values
/// alone where there is no header.
ColumnChoice choose(const RecordTable& table, const TableRegion& region, const ColumnLexicon& lexicon);

/// Records of the region that the choice rests on: a sample from all over it.
std::vector<std::size_t> sample(const RecordTable& table, const TableRegion& region);

} // namespace ColumnChooser
