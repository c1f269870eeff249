// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <string>

#include "support/SmartDateFixture.h"

namespace {

struct Question {
    unsigned month = 0;
    unsigned day = 0;
    unsigned year = 0;
};

Question g_asked;
int g_answer = 1;

} // namespace

// This program's host decides which days there are.
int DMDate::DayWithinMonth(unsigned month, unsigned day, unsigned year) {
    g_asked = {month, day, year};
    return g_answer;
}

namespace {

class HostCalendarTest : public SmartDateFixture {
protected:
    HostCalendarTest() { g_answer = 1; }

    static void expectAsked(unsigned month, unsigned day, unsigned year, const char* why) {
        EXPECT_EQ(g_asked.month, month) << why;
        EXPECT_EQ(g_asked.day, day) << why;
        EXPECT_EQ(g_asked.year, year) << why;
    }
};

TEST_F(HostCalendarTest, IsAskedForMonthDayAndYearInThisOrder) {
    SmartDate::sm_order = kUnknown;
    read("5.6.2004");
    expectAsked(6, 5, 2004, "unknown order: day first");
    SmartDate::sm_order = kDayFirst;
    read("5.6.2005");
    expectAsked(6, 5, 2005, "day first");
    SmartDate::sm_order = kMonthFirst;
    read("5.6.2006");
    expectAsked(5, 6, 2006, "month first");
    SmartDate::sm_order = 3;
    read("5.6.2007");
    expectAsked(0, 0, 2007, "an order that is none has neither day nor month");
}

TEST_F(HostCalendarTest, DecidesAboutNumbersThatNoCalendarHas) {
    SmartDate date;
    EXPECT_TRUE(date.parse("45.0.98765"));
    expectAsked(0, 45, 98765, "passed as they are");
    g_answer = 0;
    EXPECT_FALSE(date.isValid());
    EXPECT_TRUE(date.getDate().isZero());
}

TEST_F(HostCalendarTest, MayAnswerAnythingButZeroForYes) {
    for (const int yes : {1, 2, -1, INT_MIN}) {
        g_answer = yes;
        EXPECT_EQ(read("5.6.2004"), DMDate(5, 6, 2004)) << yes;
    }
    g_answer = 0;
    EXPECT_TRUE(read("5.6.2004").isZero());
}

TEST_F(HostCalendarTest, IsNotAskedAboutADateThatContradictsTheOrder) {
    SmartDate::sm_order = kDayFirst;
    g_asked = {77, 77, 77};
    SmartDate date;
    EXPECT_FALSE(date.parse("5.25.2004"));
    expectAsked(77, 77, 77, "invalid by itself");
}

TEST_F(HostCalendarTest, IsNotAskedAboutATextOfLessThanThreeNumbers) {
    g_asked = {77, 77, 77};
    for (const char* text : {"20040101", "01.02", "abc", ".", ""}) {
        SmartDate date;
        EXPECT_FALSE(date.parse(text)) << text;
    }
    expectAsked(77, 77, 77, "invalid by itself");
}

TEST_F(HostCalendarTest, TakingMonthAndDayZeroStillGetsTheZeroDateUnderAnOrderThatIsNone) {
    SmartDate::sm_order = 3;
    SmartDate date;
    EXPECT_TRUE(date.parse("5.6.2004"));
    EXPECT_TRUE(date.isValid());
    EXPECT_TRUE(date.getDate().isZero());
}

TEST_F(HostCalendarTest, NumbersTooLargeForAnIntAreTheLargestInt) {
    read(("1." + std::string(30, '9') + ".2004").c_str());
    expectAsked(1, INT_MAX, 2004, "month first is what it proves");
}

} // namespace
