// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "intake/Dates.h"

/// The days of a table, in file order, as one order of day and month reads them.
class DateSequence {
public:
    struct Winner {
        DateOrder order;
        const char* why;
    };

    DateSequence(DateOrder order, std::vector<Day> days);

    /// The reading in which the bookings follow one another, or lie close
    /// together, as those of an account do; nothing where several do.
    /// `varied`: the bookings are about different things, so that they are
    /// hardly a series of the same day every month.
    static std::optional<Winner> mostLikely(const std::vector<DateSequence>& readings, bool varied);

    /// Days from the first to the last.
    int span() const;

private:
    bool isSorted() const;
    int distinctDays() const;
    bool isRegularSeries() const;

    DateOrder m_order;
    std::vector<Day> m_days;
    std::vector<Day> m_distinct; ///< in order of time
};
