// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "report/DayValue.h"

/// A value over time, ready to be drawn: each holds until the next day that has one.
struct LinePlot {
    std::string title;
    std::string description;         ///< the same in words
    std::vector<DayValue> values;    ///< at least two, ascending
    std::vector<std::int64_t> ticks; ///< round values, ascending; the first and the last one are the ends of the scale

    enum class Scale {
        any,     ///< from where the values are
        fromZero ///< with the zero in any case
    };

    /// Nothing for fewer than two days.
    static std::optional<LinePlot> of(std::string title, std::vector<DayValue> values, Scale scale = Scale::any);

    std::int64_t days() const; ///< between the first and the last one; above 0
    /// Whole steps of `width` between the first day and that of `value`.
    std::int64_t across(const DayValue& value, std::int64_t width) const;
    /// Whole steps of `height` between the lowest tick and `cents`.
    std::int64_t up(std::int64_t cents, std::int64_t height) const;
    /// A tick as a label: without decimals where none of them has any.
    std::string label(std::int64_t tick) const;
};
