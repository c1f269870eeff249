// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "framework/datamodel_api/DmApi.h"

/// A calendar day of the proleptic Gregorian calendar, years 1 to 9999, or the
/// zero date ("no date"). A small value; copying costs nothing.
class DM_API DMDate {
public:
    /// The zero date.
    constexpr DMDate() = default;

    /// Day, month, year, in this order. Numbers that no calendar day can have
    /// (day above 31, month above 12, year above 9999) make the zero date;
    /// whether the day exists in its month is `DayWithinMonth`'s question.
    constexpr DMDate(unsigned day, unsigned month, unsigned year)
        : m_year(fits(day, month, year) ? static_cast<std::uint16_t>(year) : std::uint16_t{0}),
          m_month(fits(day, month, year) ? static_cast<std::uint8_t>(month) : std::uint8_t{0}),
          m_day(fits(day, month, year) ? static_cast<std::uint8_t>(day) : std::uint8_t{0}) {}

    /// Non-zero when the day exists. Provided by the host.
    static int DayWithinMonth(unsigned month, unsigned day, unsigned year);

    constexpr unsigned day() const { return m_day; }
    constexpr unsigned month() const { return m_month; }
    constexpr unsigned year() const { return m_year; }
    constexpr bool isZero() const { return m_day == 0 && m_month == 0 && m_year == 0; }

    friend constexpr bool operator==(const DMDate& a, const DMDate& b) {
        return a.m_year == b.m_year && a.m_month == b.m_month && a.m_day == b.m_day;
    }
    friend constexpr bool operator!=(const DMDate& a, const DMDate& b) { return !(a == b); }

private:
    static constexpr bool fits(unsigned day, unsigned month, unsigned year) {
        return day <= 31 && month <= 12 && year <= 9999;
    }

    std::uint16_t m_year = 0;
    std::uint8_t m_month = 0;
    std::uint8_t m_day = 0;
};
