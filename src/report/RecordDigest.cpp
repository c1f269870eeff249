// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/RecordDigest.h"

#include <utility>

void RecordDigest::add(ReportedRecord record) {
    m_total.add(record.cents);
    (record.day ? m_days[*record.day] : m_undated).add(record.cents);
    m_categories[record.category].add(record.cents);
    m_rounded += record.isRounded ? 1 : 0;
    if (m_first.size() < kShown) {
        m_first.push_back(std::move(record));
        return;
    }
    m_last.push_back(std::move(record));
    if (m_last.size() > kShown)
        m_last.pop_front();
}

bool RecordDigest::hasCategories() const {
    return m_categories.size() > 1 || (m_categories.size() == 1 && !m_categories.begin()->first.empty());
}

std::vector<DayValue> RecordDigest::course() const {
    std::vector<DayValue> values;
    values.reserve(m_days.size());
    CentSum sum;
    for (const auto& [day, amounts] : m_days) {
        sum += amounts.sum();
        const std::optional<std::int64_t> cents = sum.drawable();
        if (!cents)
            return {};
        values.push_back({day, *cents});
    }
    return values;
}
