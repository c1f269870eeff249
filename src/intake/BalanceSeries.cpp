// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BalanceSeries.h"

#include <cstddef>
#include <map>

std::vector<BalanceOfDay> BalanceSeries::of(const DelimitedFile& file) {
    if (file.plan.tables.size() != 1 || file.plan.undecided)
        return {};
    const TablePlan& plan = file.plan.tables.front();
    if (plan.roles.balance < 0 || plan.balance == BalanceProof::none)
        return {};
    const std::vector<BookingRow>& rows = file.rows.front();
    std::map<Day, Money> balances; // the last one of a day counts
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const BookingRow& row = plan.newestFirst ? rows[rows.size() - 1 - i] : rows[i];
        if (row.kind == BookingRow::Kind::booking && row.balance)
            balances[*row.day] = *row.balance;
    }
    std::vector<BalanceOfDay> series;
    series.reserve(balances.size());
    for (const auto& [day, balance] : balances)
        series.push_back({day, balance});
    return series;
}
