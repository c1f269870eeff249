// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/DateSequence.h"

#include <algorithm>
#include <utility>

namespace {

// Fewer days are in order, or close together, by chance.
constexpr std::size_t kBookingsThatTell = 3;
constexpr int kDaysThatTell = 2;
constexpr int kDaysThatProve = 4;
constexpr int kCloserBy = 4; // times

int months(const Day& day) { return day.year * 12 + day.month; }

} // namespace

DateSequence::DateSequence(DateOrder order, std::vector<Day> days)
    : m_order(order), m_days(std::move(days)), m_distinct(m_days) {
    std::sort(m_distinct.begin(), m_distinct.end());
    m_distinct.erase(std::unique(m_distinct.begin(), m_distinct.end()), m_distinct.end());
}

bool DateSequence::isSorted() const {
    return std::is_sorted(m_days.begin(), m_days.end()) || std::is_sorted(m_days.rbegin(), m_days.rend());
}

int DateSequence::span() const {
    return m_distinct.empty() ? 0 : m_distinct.back().number() - m_distinct.front().number();
}

int DateSequence::distinctDays() const { return static_cast<int>(m_distinct.size()); }

/// The same day of every month, or of every third: a standing order, interest.
/// In another order of day and month it looks like bookings day after day.
bool DateSequence::isRegularSeries() const {
    for (std::size_t i = 1; i < m_distinct.size(); ++i) {
        if (m_distinct[i].day != m_distinct[0].day ||
            months(m_distinct[i]) - months(m_distinct[i - 1]) != months(m_distinct[1]) - months(m_distinct[0]))
            return false;
    }
    return true;
}

std::optional<DateSequence::Winner> DateSequence::mostLikely(const std::vector<DateSequence>& readings, bool varied) {
    std::vector<const DateSequence*> sorted;
    for (const DateSequence& reading : readings) {
        if (reading.m_days.size() < kBookingsThatTell || reading.distinctDays() < kDaysThatTell)
            return std::nullopt;
        if (reading.isSorted())
            sorted.push_back(&reading);
    }
    std::vector<const DateSequence*> bySpan;
    bySpan.reserve(readings.size());
    for (const DateSequence& reading : readings)
        bySpan.push_back(&reading);
    std::sort(bySpan.begin(), bySpan.end(), [](auto* a, auto* b) { return a->span() < b->span(); });
    const DateSequence& closest = *bySpan.front();

    if (sorted.size() == 1 && (sorted.front()->distinctDays() >= kDaysThatProve || sorted.front() == &closest))
        return Winner{sorted.front()->m_order, "Nur in dieser Reihenfolge stehen die Buchungen zeitlich geordnet."};
    const bool equallyOrdered = sorted.size() != 1;
    const bool farCloser = std::all_of(bySpan.begin() + 1, bySpan.end(), [&](const DateSequence* other) {
        return other->span() > closest.span() * kCloserBy && (varied || !other->isRegularSeries());
    });
    if (equallyOrdered && farCloser)
        return Winner{closest.m_order, "In dieser Reihenfolge liegen die Buchungen eng beieinander."};
    return std::nullopt;
}
