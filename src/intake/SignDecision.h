// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "intake/BookingRow.h"
#include "intake/ColumnChooser.h"
#include "intake/IntakeMessage.h"
#include "intake/Reason.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

/// How the signs of a table's amounts were settled.
struct SignDecision {
    std::vector<Reason> reasons;
    double doubt = 0.0;
    bool certified = false;                 ///< by balances
    std::optional<IntakeMessage> undecided; ///< nothing is imported then
};

namespace Signs {

/// What the columns themselves say, before any record is read.
void adoptColumns(TablePlan& plan, const ColumnChoice& choice);

/// Settles the sign rule, checks the balances, and gives the amounts of `rows`,
/// read under what `adoptColumns` found, their signs. What the user said of
/// columns (`columnsByUser`) is taken as it is written.
SignDecision decide(const RecordTable& table, const ColumnChoice& choice, bool columnsByUser, TablePlan& plan,
                    std::vector<BookingRow>& rows);

} // namespace Signs
