// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "report/CentSum.h"

/// What came in and what went out, and in how many records.
struct IncomeAndExpenses {
    std::size_t records = 0;
    CentSum income;
    CentSum expenses; ///< with their minus

    void add(std::int64_t cents) {
        ++records;
        (cents < 0 ? expenses : income).add(cents);
    }
    IncomeAndExpenses& operator+=(const IncomeAndExpenses& other) {
        records += other.records;
        income += other.income;
        expenses += other.expenses;
        return *this;
    }
    CentSum sum() const { return income + expenses; }
};
