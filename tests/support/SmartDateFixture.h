// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "dmwrite/SmartDate.h"

/// What a text that is no date is read as.
inline const DMDate kNoDate(0, 0, 0);

/// What `SmartDate` learns is class-wide: every test starts and ends with the
/// state of a fresh program.
class SmartDateFixture : public testing::Test {
protected:
    static constexpr int kUnknown = 0;
    static constexpr int kDayFirst = 1;
    static constexpr int kMonthFirst = 2;

    SmartDateFixture() { reset(); }
    ~SmartDateFixture() override { reset(); }

    static void reset() {
        SmartDate::sm_order = kUnknown;
        SmartDate::m_useQIFSyntax = false;
        SmartDate::sm_CenturyWindowStart = 30;
    }

    /// The date that a fresh object reads.
    static DMDate read(const char* text) {
        SmartDate date;
        date.parse(text);
        return date.getDate();
    }

    /// The same with the QIF syntax on.
    static DMDate readQif(const char* text) {
        SmartDate date;
        SmartDate::m_useQIFSyntax = true;
        date.parse(text);
        return date.getDate();
    }
};

/// Shown by failing expectations.
inline void PrintTo(const DMDate& date, std::ostream* out) {
    *out << date.day() << '.' << date.month() << '.' << date.year();
}
