// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "report/DayValue.h"
#include "report/IncomeAndExpenses.h"
#include "report/ReportedRecord.h"

/// What a page tells of the records of an import. Takes them one by one and
/// keeps sums and a few of them, so that its size is that of its days.
class RecordDigest {
public:
    static constexpr std::size_t kShown = 5; ///< records from either end

    void add(ReportedRecord record);

    std::size_t count() const { return m_total.records; }
    const IncomeAndExpenses& total() const { return m_total; }
    const IncomeAndExpenses& undated() const { return m_undated; }
    const std::map<std::chrono::year_month_day, IncomeAndExpenses>& days() const { return m_days; }
    /// By name; records without one are under the empty name.
    const std::map<std::string, IncomeAndExpenses>& categories() const { return m_categories; }
    bool hasCategories() const;
    std::size_t roundedAmounts() const { return m_rounded; }

    const std::vector<ReportedRecord>& first() const { return m_first; }
    /// Those at the end that are not among the first ones.
    const std::deque<ReportedRecord>& last() const { return m_last; }

    /// The sum of all records up to each day; empty where it cannot be drawn.
    std::vector<DayValue> course() const;

private:
    IncomeAndExpenses m_total;
    IncomeAndExpenses m_undated;
    std::map<std::chrono::year_month_day, IncomeAndExpenses> m_days;
    std::map<std::string, IncomeAndExpenses> m_categories;
    std::size_t m_rounded = 0;
    std::vector<ReportedRecord> m_first;
    std::deque<ReportedRecord> m_last;
};
