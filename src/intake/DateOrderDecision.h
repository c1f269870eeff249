// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "intake/Dates.h"
#include "intake/Reason.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

/// The order of day, month and year of a table's dates, found from all of them.
struct DateOrderDecision {
    std::optional<DateOrder> order; ///< empty when nothing decides
    Reason reason;
    bool proven = false; ///< no other order reads as many dates, or none reads one differently
    int exampleLine = 0; ///< of an undecided date
    std::string example; ///< host bytes
};

namespace DateOrders {

/// `plan` needs its region, roles, century window and decimal mark.
DateOrderDecision decide(const RecordTable& table, const TablePlan& plan);

} // namespace DateOrders
