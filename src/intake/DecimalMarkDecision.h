// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "intake/Reason.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

/// The decimal mark of a table's amounts, found from all of them.
struct DecimalMarkDecision {
    std::optional<char> mark; ///< empty when nothing decides
    bool thousandths = false; ///< "1,250" has three decimals here, as every amount has
    Reason reason;
    int exampleLine = 0; ///< of an undecided amount
    std::string example; ///< host bytes
};

namespace DecimalMarks {

/// `plan` needs its region and roles. One mark serves all columns of amounts; the
/// balance has a say only where they leave it open.
DecimalMarkDecision decide(const RecordTable& table, const TablePlan& plan);

} // namespace DecimalMarks
