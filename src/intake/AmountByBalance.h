// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "intake/ColumnChooser.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

namespace AmountByBalance {

/// Where several columns could be the amount: looks for the one column, or the
/// pair of debit and credit, that moves another column from booking to booking,
/// and gives these columns their roles. False, and nothing changes, where there
/// is none or more than one. `plan` needs its decimal mark and date order.
bool settle(const RecordTable& table, const ColumnChoice& choice, TablePlan& plan);

} // namespace AmountByBalance
