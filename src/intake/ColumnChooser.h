// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "intake/ColumnLexicon.h"
#include "intake/ColumnProfile.h"
#include "intake/ColumnRoles.h"
#include "intake/RecordTable.h"
#include "intake/TableFinder.h"

/// The roles of a table's columns, how sure they are, and on what they rest.
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

} // namespace ColumnChooser
