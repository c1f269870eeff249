// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DMDate.h"
#include "support/SmartDateFixture.h"

namespace {

/// How a program starts; taken before any test runs.
const int g_orderAtStart = SmartDate::sm_order;
const bool g_qifSyntaxAtStart = SmartDate::m_useQIFSyntax;
const unsigned short g_windowAtStart = SmartDate::sm_CenturyWindowStart;

TEST(SmartDateStartTest, ProgramStartsWithNoOrderNoQifSyntaxAndAWindowOf30) {
    EXPECT_EQ(g_orderAtStart, 0);
    EXPECT_FALSE(g_qifSyntaxAtStart);
    EXPECT_EQ(g_windowAtStart, 30);
}

class SmartDateOrderTest : public SmartDateFixture {};

/// Puts one number into a fresh date and tells the order and the validity after it.
TEST_F(SmartDateOrderTest, NumberAbove12ProvesTheOrderOrContradictsIt) {
    struct Case {
        int index;
        int before;
        int after;
        bool valid;
        const char* why;
    };
    const Case cases[] = {
        {0, 0, 1, true, "first number: day first is learned"},
        {0, 1, 1, true, "first number: day first is confirmed"},
        {0, 2, 2, false, "first number contradicts month first"},
        {0, 3, 3, false, "first number under an order that is none"},
        {0, -1, -1, false, "first number under an order that is none"},
        {1, 0, 2, true, "second number: month first is learned"},
        {1, 2, 2, true, "second number: month first is confirmed"},
        {1, 1, 1, false, "second number contradicts day first"},
        {1, 3, 3, false, "second number under an order that is none"},
        {1, -1, -1, false, "second number under an order that is none"},
    };
    for (const Case& c : cases) {
        for (const char* digits : {"13", "31", "45"}) {
            SmartDate date;
            SmartDate::sm_order = c.before;
            date.setNumber(c.index, digits);
            EXPECT_EQ(SmartDate::sm_order, c.after) << c.why << ", " << digits;

            // A contradiction shows even once the numbers themselves make a day in some order.
            date.setNumber(0, "1");
            date.setNumber(1, "1");
            date.setNumber(2, "2004");
            const bool knownOrder = c.after >= 0 && c.after <= 2;
            EXPECT_EQ(date.isValid(), c.valid && knownOrder) << c.why << ", " << digits;
        }
    }
}

TEST_F(SmartDateOrderTest, NumberUpTo12ChangesNothing) {
    for (const int order : {0, 1, 2, 3}) {
        for (const int index : {0, 1}) {
            for (const char* digits : {"0", "1", "12", ""}) {
                SmartDate date;
                SmartDate::sm_order = order;
                date.setNumber(index, digits);
                EXPECT_EQ(SmartDate::sm_order, order) << "number \"" << digits << "\" at " << index;
            }
        }
    }
}

TEST_F(SmartDateOrderTest, FirstNumberAbove12FixesDayFirst) {
    EXPECT_EQ(read("31.12.2004"), DMDate(31, 12, 2004));
    EXPECT_EQ(SmartDate::sm_order, kDayFirst);
}

TEST_F(SmartDateOrderTest, SecondNumberAbove12FixesMonthFirst) {
    EXPECT_EQ(read("12/31/2004"), DMDate(31, 12, 2004));
    EXPECT_EQ(SmartDate::sm_order, kMonthFirst);
    EXPECT_EQ(read("31.12.2004"), kNoDate) << "day first is wrong from now on";
    EXPECT_EQ(read("05/06/2004"), DMDate(6, 5, 2004)) << "read month first from now on";
    EXPECT_EQ(SmartDate::sm_order, kMonthFirst) << "and it stays so";
}

TEST_F(SmartDateOrderTest, DateThatFitsBothOrdersIsReadDayFirstAndTeachesNothing) {
    EXPECT_EQ(read("05.06.2004"), DMDate(5, 6, 2004));
    EXPECT_EQ(SmartDate::sm_order, kUnknown);
    EXPECT_EQ(read("12.12.2004"), DMDate(12, 12, 2004));
    EXPECT_EQ(SmartDate::sm_order, kUnknown);
}

TEST_F(SmartDateOrderTest, DateAgainstTheLearnedDayFirstIsInvalid) {
    ASSERT_EQ(read("25.05.2004"), DMDate(25, 5, 2004));
    EXPECT_EQ(read("05/25/2004"), kNoDate);
    EXPECT_EQ(SmartDate::sm_order, kDayFirst);
}

TEST_F(SmartDateOrderTest, LearnedOrderServesEveryObject) {
    SmartDate early;
    ASSERT_TRUE(early.parse("05/06/2004"));
    EXPECT_EQ(early.getDate(), DMDate(5, 6, 2004));
    EXPECT_EQ(read("05/25/2004"), DMDate(25, 5, 2004));
    EXPECT_EQ(early.getDate(), DMDate(6, 5, 2004)) << "even one that was read before";
    EXPECT_TRUE(early.isValid());
}

TEST_F(SmartDateOrderTest, ResettingTheOrderLetsItBeLearnedAfresh) {
    ASSERT_EQ(read("12/31/2004"), DMDate(31, 12, 2004));
    SmartDate::sm_order = kUnknown;
    EXPECT_EQ(read("31.12.2004"), DMDate(31, 12, 2004));
    EXPECT_EQ(SmartDate::sm_order, kDayFirst);
}

TEST_F(SmartDateOrderTest, OrderIsLearnedFromDatesThatAreThemselvesInvalid) {
    EXPECT_EQ(read("45.1.2004"), kNoDate);
    EXPECT_EQ(SmartDate::sm_order, kDayFirst) << "no such day, but no such month either";
    SmartDate::sm_order = kUnknown;
    EXPECT_EQ(read("1/45"), kNoDate);
    EXPECT_EQ(SmartDate::sm_order, kUnknown) << "a second number without separator behind is never taken";
    EXPECT_EQ(read("45.1"), kNoDate);
    EXPECT_EQ(SmartDate::sm_order, kDayFirst) << "the first number was";
}

TEST_F(SmartDateOrderTest, OrderThatIsNoneMakesEveryDateInvalid) {
    for (const int order : {3, -1, 99}) {
        SmartDate::sm_order = order;
        SmartDate date;
        EXPECT_FALSE(date.parse("1.2.2004")) << order;
        EXPECT_FALSE(date.isValid()) << order;
        EXPECT_EQ(date.getDate(), kNoDate) << order;
        EXPECT_EQ(SmartDate::sm_order, order);
    }
}

} // namespace
