// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/Cells.h"
#include "intake/DateOrderDecision.h"
#include "intake/DecimalMarkDecision.h"

namespace {

/// A table without a header: dates, amounts, texts, and value dates where they are given.
TablePlan planOf(const Cells& cells) {
    TablePlan plan;
    plan.region.end = cells.table().size();
    plan.roles.date = 0;
    plan.roles.amount = 1;
    plan.roles.purpose = {2};
    plan.roles.width = 4;
    return plan;
}

struct OrderCase {
    std::string_view text;
    char mark;
    std::optional<DateOrder> order;
    bool proven;
    const char* why;
};
constexpr auto kDmy = DateOrder::dayMonthYear;
constexpr auto kMdy = DateOrder::monthDayYear;
constexpr auto kYmd = DateOrder::yearMonthDay;

TEST(DateOrderDecision, WholeColumnDecides) {
    const OrderCase kCases[] = {
        {"01/02/2024;1;a\n13/02/2024;1;b\n", '.', kDmy, true, "a day above twelve in front"},
        {"01/02/2024;1;a\n02/13/2024;1;b\n", '.', kMdy, true, "a day above twelve behind"},
        {"2024-01-02;1;a\n", '.', kYmd, true, "the year in front"},
        {"05/05/2024;1;a\n", '.', kDmy, true, "every order means the same day"},
        {"5 Jan 2024;1;a\n", '.', kDmy, true, "the month is a word"},
        {"01.02.2024;1;a\n", '.', kDmy, false, "points"},
        {"01/02/2024;1;a\n", ',', kDmy, false, "a decimal comma"},
        {"03/01/2024;1;a\n03/02/2024;1;b\n03/03/2024;1;c\n", ',', kDmy, false,
         "a decimal comma outweighs a close sequence"},
        {"01/02/2024;1;a;13/02/2024\n", '.', kDmy, false, "the value dates show it"},
        {"01/02/2024;1;a;02/13/2024\n", ',', kMdy, false, "value dates outweigh a decimal comma"},
        {"01/02/2024;1;a;2024-02-13\n", '.', std::nullopt, false, "dates written otherwise show nothing"},
        {"01/02/2024;1;a\n", '.', std::nullopt, false, "one date, two meanings"},
        {"01/02/2024;1;a\n02/03/2024;1;b\n", '.', std::nullopt, false, "two dates are always in order"},
        {"12/08/2024;1;a\n12/07/2024;1;b\n12/06/2024;1;c\n12/05/2024;1;d\n", '.', kMdy, false,
         "different things, day after day"},
        {"05/01/2024;1;Zins\n05/02/2024;1;Zins\n05/03/2024;1;Zins\n05/04/2024;1;Zins\n", '.', std::nullopt, false,
         "the same thing every month, or every day"},
        {"01/02/2024;1;a\n01/05/2024;1;b\n02/03/2024;1;c\n03/07/2024;1;d\n", '.', kMdy, false,
         "in order of time only with the month in front"},
        {"13/01/2024;1;a\n01/13/2024;1;b\n", '.', std::nullopt, false, "dates that contradict one another"},
        {"13/01/2024;1;a\n14/01/2024;1;b\n01/15/2024;1;c\n", '.', kDmy, true, "most dates decide"},
        {"13.14.2024;1;a\n", '.', std::nullopt, false, "no order makes a day of it"},
        {"20240213;1;a\n", '.', kYmd, true, "eight digits"},
        {"13022024;1;a\n", '.', kDmy, true, "eight digits, day in front"},
        {"09.03.;1;a\n", '.', kDmy, false, "no year"},
        {"99-01-02;1;a\n99-02-13;1;b\n", '.', kYmd, true, "two digits, year in front"},
        {"24-01-02;1;a\n24-02-13;1;b\n", '.', kYmd, false, "read as days, the years scatter the bookings"},
        {"02/01/24;1;a\n13/02/24;1;b\n", ',', kDmy, false, "and so do days read as years"},
    };
    for (const OrderCase& c : kCases) {
        const Cells cells(c.text);
        TablePlan plan = planOf(cells);
        plan.decimalMark = c.mark;
        plan.markIsProven = true;
        const DateOrderDecision decision = DateOrders::decide(cells.table(), plan);
        EXPECT_EQ(decision.order, c.order) << c.text << c.why;
        EXPECT_EQ(decision.proven, c.proven) << c.text << c.why;
        EXPECT_NE(decision.order.has_value(), decision.reason.text.empty()) << c.why;
    }
}

TEST(DateOrderDecision, ProofIsNamedWithItsLine) {
    const Cells cells("01/02/2024;1;a\n02/03/2024;1;b\n02/13/2024;1;c\n");
    EXPECT_EQ(DateOrders::decide(cells.table(), planOf(cells)).reason.line, 3);
}

TEST(DateOrderDecision, UndecidedDateIsNamedWithItsLine) {
    const Cells cells("x;1;a\n 01/02/2024;1;b\n");
    TablePlan plan = planOf(cells);
    plan.decimalMark = '.';
    const DateOrderDecision decision = DateOrders::decide(cells.table(), plan);
    EXPECT_EQ(decision.order, std::nullopt);
    EXPECT_EQ(decision.exampleLine, 2);
    EXPECT_EQ(decision.example, "01/02/2024");
}

TEST(DateOrderDecision, DateAboveTheTableShowsTheOrder) {
    const Cells cells("Stand;31/01/2024\nDatum;Betrag;Text\n01/02/2024;1;a\n");
    TablePlan plan = planOf(cells);
    plan.decimalMark = '.';
    plan.region.header = 1;
    plan.region.begin = 2;
    const DateOrderDecision decision = DateOrders::decide(cells.table(), plan);
    EXPECT_EQ(decision.order, kDmy);
    EXPECT_EQ(decision.reason.line, 1);
}

struct MarkCase {
    std::string_view amounts; ///< one a line
    std::optional<char> mark;
    std::string_view example; ///< of what is undecided
    const char* why;
};

TEST(DecimalMarkDecision, WholeColumnDecides) {
    const MarkCase kCases[] = {
        {"1,50\n2,00\n", ',', "", "two decimals behind a comma"},
        {"1.50\n2.00\n", '.', "", "two decimals behind a point"},
        {"1.000\n2.000\n", ',', "", "nobody counts in thousandths: thousands"},
        {"1,000\n2,000\n", '.', "", "thousands, English"},
        {"1.000\n2,50\n", ',', "", "a thousand and a decimal comma"},
        {"5\n1.234,56\n", ',', "", "both marks in one amount"},
        {"-100,250\n-1500,000\n", ',', "", "three decimals, as a number that no thousands group proves"},
        {"-100,250\n-12,500\n", std::nullopt, "-100,250", "thousands, or cents with a zero behind them"},
        {"-100,250\n-12,500\n500\n", '.', "", "whole amounts beside them: thousands"},
        {"-100,250\n-12,345\n", '.', "", "no zero behind cents: thousands"},
        {"1'000.50\n", '.', "", "Swiss groups"},
        {"5\n6\n", ',', "", "whole amounts read the same"},
        {"Fr. 5\nFr. 6\n", ',', "", "the point belongs to the currency"},
        {"0.375\n", '.', "", "nobody groups a zero"},
        {"-35.2000\n", '.', "", "four decimals"},
        {"1.5\n1.234\n", '.', "", "an amount that only the point reads outweighs a doubtful one"},
        {"1.234\n1,234\n", std::nullopt, "1,234", "one speaks for each"},
        {"1.5\n1,5\n", std::nullopt, "1,5", "no mark reads both"},
        {"1.5\n2.5\n1,5\n", '.', "", "no mark reads all, one reads more"},
        {"x\ny\n", std::nullopt, "", "no amounts at all"},
    };
    for (const MarkCase& c : kCases) {
        std::string text(c.amounts);
        for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1)
            text.insert(at, "01.02.2024;");
        const Cells cells(text);
        const DecimalMarkDecision decision = DecimalMarks::decide(cells.table(), planOf(cells));
        EXPECT_EQ(decision.mark, c.mark) << c.amounts << c.why;
        EXPECT_EQ(decision.example, c.example) << c.amounts << c.why;
    }
}

TEST(DecimalMarkDecision, BalanceDecidesForWholeAmounts) {
    const Cells cells("01.02.2024;5;a;1.234,56\n");
    TablePlan plan = planOf(cells);
    plan.roles.balance = 3;
    EXPECT_EQ(DecimalMarks::decide(cells.table(), plan).mark, ',');
}

TEST(DecimalMarkDecision, BalanceWrittenOtherwiseHasNoSay) {
    const Cells cells("01.02.2024;5,50;a;1234.56\n");
    TablePlan plan = planOf(cells);
    plan.roles.balance = 3;
    EXPECT_EQ(DecimalMarks::decide(cells.table(), plan).mark, ',');
}

TEST(DecimalMarkDecision, ProofIsNamedWithItsLineAndColumn) {
    const Cells cells("01.02.2024;5;a\n01.02.2024;6,50;a\n");
    const DecimalMarkDecision decision = DecimalMarks::decide(cells.table(), planOf(cells));
    EXPECT_EQ(decision.reason.line, 2);
    EXPECT_EQ(decision.reason.column, 1);
}

} // namespace
