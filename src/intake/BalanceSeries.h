// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "intake/Day.h"
#include "intake/DelimitedInspector.h"
#include "intake/Money.h"

/// What an account held at the end of a day, as the file says.
struct BalanceOfDay {
    Day day;
    Money balance;
};

namespace BalanceSeries {

/// Of each day with bookings, ascending. Empty where the file has no running
/// balance that fits its amounts, and for several tables, which are several accounts.
std::vector<BalanceOfDay> of(const DelimitedFile& file);

} // namespace BalanceSeries
