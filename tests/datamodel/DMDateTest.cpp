// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DMDate.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

struct DayCase {
    unsigned day;
    unsigned month;
    unsigned year;
    bool exists;
    const char* why;
};

constexpr DayCase kDays[] = {
    {1, 1, 1, true, "first day of the calendar"},
    {31, 12, 9999, true, "last day of the calendar"},
    {1, 1, 0, false, "year 0"},
    {31, 12, 0, false, "year 0, end"},
    {1, 1, 10000, false, "year after the last"},
    {0, 1, 2024, false, "day 0"},
    {1, 0, 2024, false, "month 0"},
    {0, 0, 0, false, "zero date"},
    {1, 13, 2024, false, "month 13"},
    {31, 1, 2023, true, "January has 31 days"},
    {32, 1, 2023, false, "January has no 32nd"},
    {28, 2, 2023, true, "February of a common year"},
    {29, 2, 2023, false, "no leap day in a common year"},
    {29, 2, 2024, true, "leap day, year divisible by 4"},
    {30, 2, 2024, false, "February never has 30 days"},
    {29, 2, 1900, false, "century not divisible by 400"},
    {28, 2, 1900, true, "last of February 1900"},
    {29, 2, 2000, true, "century divisible by 400"},
    {29, 2, 4, true, "proleptic leap year"},
    {29, 2, 100, false, "proleptic century"},
    {29, 2, 400, true, "proleptic leap century"},
    {15, 10, 1582, true, "first Gregorian day"},
    {10, 10, 1582, true, "day the reform left out; the calendar is proleptic"},
    {31, 3, 2023, true, "March"},
    {31, 4, 2023, false, "April has 30 days"},
    {30, 4, 2023, true, "April"},
    {31, 5, 2023, true, "May"},
    {31, 6, 2023, false, "June has 30 days"},
    {30, 6, 2023, true, "June"},
    {31, 7, 2023, true, "July"},
    {31, 8, 2023, true, "August"},
    {31, 9, 2023, false, "September has 30 days"},
    {30, 9, 2023, true, "September"},
    {31, 10, 2023, true, "October"},
    {31, 11, 2023, false, "November has 30 days"},
    {30, 11, 2023, true, "November"},
    {31, 12, 2023, true, "December"},
    {32, 12, 2023, false, "December has no 32nd"},
    {UINT_MAX, 1, 2024, false, "huge day"},
    {1, UINT_MAX, 2024, false, "huge month"},
    {1, 1, UINT_MAX, false, "huge year"},
    {UINT_MAX, UINT_MAX, UINT_MAX, false, "everything huge"},
    {1, 257, 2024, false, "month that is 1 in eight bits"},
    {257, 1, 2024, false, "day that is 1 in eight bits"},
    {1, 1, 65536 + 2024, false, "year that is 2024 in sixteen bits"},
};

TEST(DMDate, DayExistsAsTheProlepticCalendarSays) {
    for (const DayCase& c : kDays) {
        EXPECT_EQ(DMDate::DayWithinMonth(c.month, c.day, c.year) != 0, c.exists)
            << c.why << ": " << c.day << '.' << c.month << '.' << c.year;
    }
}

TEST(DMDate, FourCenturiesHaveTheDaysOfTheCalendarCycle) {
    int days = 0;
    for (unsigned year = 1601; year <= 2000; ++year) {
        for (unsigned month = 0; month <= 13; ++month) {
            for (unsigned day = 0; day <= 33; ++day)
                days += DMDate::DayWithinMonth(month, day, year) != 0 ? 1 : 0;
        }
    }
    EXPECT_EQ(days, 146097);
}

TEST(DMDate, NumbersThatNoDayHasMakeTheZeroDate) {
    EXPECT_TRUE(DMDate().isZero());
    EXPECT_TRUE(DMDate(0, 0, 0).isZero());
    EXPECT_TRUE(DMDate(32, 1, 2024).isZero());
    EXPECT_TRUE(DMDate(1, 13, 2024).isZero());
    EXPECT_TRUE(DMDate(1, 1, 10000).isZero());
    EXPECT_TRUE(DMDate(257, 257, 65536 + 2024).isZero()) << "never cut to fit";
    EXPECT_FALSE(DMDate(31, 12, 9999).isZero());
}

TEST(DMDate, HoldsDayMonthAndYearInTheOrderGiven) {
    constexpr DMDate kDate(3, 4, 2005);
    EXPECT_EQ(kDate.day(), 3U);
    EXPECT_EQ(kDate.month(), 4U);
    EXPECT_EQ(kDate.year(), 2005U);
    EXPECT_EQ(kDate, DMDate(3, 4, 2005));
    EXPECT_NE(kDate, DMDate(4, 3, 2005));
    EXPECT_NE(kDate, DMDate(3, 4, 2006));
    EXPECT_NE(kDate, DMDate(2, 4, 2005));
}

} // namespace
