// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>

/// What something was worth at the end of a day, in hundredths.
struct DayValue {
    std::chrono::year_month_day day{};
    std::int64_t cents = 0;
};
