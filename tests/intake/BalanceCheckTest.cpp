// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/AmountByBalance.h"
#include "intake/BalanceCheck.h"
#include "intake/Cells.h"
#include "intake/ColumnProfile.h"

namespace {

/// Dates, amounts, balances in this order, below a header where `header` is set.
TablePlan planOf(const Cells& cells, std::size_t header, bool running) {
    TablePlan plan;
    plan.region.header = header;
    plan.region.begin = header + 1;
    plan.region.end = cells.table().size();
    plan.roles.date = 0;
    plan.roles.amount = 1;
    plan.roles.balance = running ? 2 : -1;
    plan.roles.purpose = {running ? 3 : 2};
    plan.roles.width = 4;
    return plan;
}

BalanceCheck check(std::string_view text, std::size_t header = 0, bool running = true) {
    const Cells cells(text);
    const TablePlan plan = planOf(cells, header, running);
    return BalanceChecks::check(cells.table(), plan, BookingRows::read(cells.table(), plan));
}

struct Case {
    std::string_view rows;
    BalanceProof proof;
    bool newestFirst;
    bool signsFromBalance;
    std::vector<int> breaks;
    const char* why;
};

TEST(BalanceCheck, RunningBalanceIsFollowedLineForLine) {
    const std::vector<Case> cases = {
        {"01.02.2024;-5,00;95,00\n02.02.2024;10,00;105,00\n03.02.2024;-1,00;104,00\n",
         BalanceProof::certified,
         false,
         false,
         {},
         "oldest first"},
        {"03.02.2024;-1,00;104,00\n02.02.2024;10,00;105,00\n01.02.2024;-5,00;95,00\n",
         BalanceProof::certified,
         true,
         false,
         {},
         "newest first"},
        {"01.02.2024;5,00;95,00\n02.02.2024;10,00;105,00\n03.02.2024;1,00;104,00\n",
         BalanceProof::certified,
         false,
         true,
         {},
         "sizes fit, signs are missing"},
        {"01.02.2024;-5,00;95,00\n02.02.2024;10,00;105,00\n03.02.2024;-1,00;104,00\n04.02.2024;-1,00;100,00\n"
         "05.02.2024;-1,00;99,00\n",
         BalanceProof::broken,
         false,
         false,
         {5},
         "one link is missing"},
        {"01.02.2024;-5,00;1,00\n02.02.2024;10,00;2,00\n03.02.2024;-1,00;9,00\n",
         BalanceProof::none,
         false,
         false,
         {},
         "no chain at all"},
        {"01.02.2024;-5,00;95,00\n", BalanceProof::none, false, false, {}, "one booking is no chain"},
        {"01.02.2024;-5,00;95,00\n02.02.2024;10,00;\n03.02.2024;-1,00;94,00\n",
         BalanceProof::certified,
         false,
         false,
         {},
         "a booking without a balance is stepped over"},
    };
    for (const Case& c : cases) {
        const BalanceCheck result = check("Datum;Betrag;Saldo\n" + std::string(c.rows));
        EXPECT_EQ(result.proof, c.proof) << c.why;
        EXPECT_EQ(result.newestFirst, c.newestFirst) << c.why;
        EXPECT_EQ(result.signsFromBalance, c.signsFromBalance) << c.why;
        EXPECT_EQ(result.breaks, c.breaks) << c.why;
    }
}

TEST(BalanceCheck, OpeningAndClosingBalanceProveTheSum) {
    const BalanceCheck above = check("Anfangssaldo;100,00\nDatum;Betrag;Text\n01.02.2024;-5,00;a\n02.02.2024;10,00;b\n"
                                     "Endsaldo;105,00\n",
                                     1, false);
    EXPECT_EQ(above.proof, BalanceProof::certified);
    EXPECT_FALSE(above.runningColumn);

    const BalanceCheck below = check("Datum;Betrag;Text\n01.02.2024;-5,00;a\n\nx;100,00;H\ny;95,00;H\n", 0, false);
    EXPECT_EQ(below.proof, BalanceProof::certified);
}

TEST(BalanceCheck, DebitBalanceCountsNegative) {
    const BalanceCheck result =
        check("Datum;Betrag;Text\n01.02.2024;150,00;a\n\nAnfangssaldo;100,00;S\nEndsaldo;50,00;H\n", 0, false);
    EXPECT_EQ(result.proof, BalanceProof::certified);
}

TEST(BalanceCheck, NamedBalancesTurnTheSignsOfACardStatement) {
    const BalanceCheck result =
        check("Alter Saldo;-100,00\nDatum;Betrag;Text\n01.02.2024;200,00;a\n02.02.2024;50,00;b\nNeuer Saldo;-350,00\n",
              1, false);
    EXPECT_EQ(result.proof, BalanceProof::certified);
    EXPECT_TRUE(result.signsInverted);
}

TEST(BalanceCheck, BalancesThatDoNotFitProveNothing) {
    const BalanceCheck result =
        check("Anfangssaldo;100,00\nDatum;Betrag;Text\n01.02.2024;-5,00;a\nEndsaldo;1,00\n", 1, false);
    EXPECT_EQ(result.proof, BalanceProof::none);
    EXPECT_EQ(result.steps, 0);
}

/// Which of several columns is the amount; the table has no header.
struct SearchCase {
    std::string_view rows;
    bool found;
    int amount;
    int debit;
    int credit;
    int balance;
    const char* why;
};

TEST(AmountByBalance, ColumnThatMovesAnotherIsTheAmount) {
    const SearchCase kCases[] = {
        {"01.02.2024;-5,00;95,00\n02.02.2024;10,00;105,00\n", true, 1, -1, -1, 2, "amount and balance"},
        {"01.02.2024;95,00;-5,00\n02.02.2024;105,00;10,00\n", true, 2, -1, -1, 1, "balance and amount"},
        {"01.02.2024;100,00;95,00;-5,00\n02.02.2024;95,00;105,00;10,00\n", true, 3, -1, -1, 2,
         "balances before and behind"},
        {"01.02.2024;5,00;;95,00\n02.02.2024;;10,00;105,00\n03.02.2024;1,00;;104,00\n", true, -1, 1, 2, 3,
         "debit, credit, balance"},
        {"01.02.2024;;5,00;95,00\n02.02.2024;10,00;;105,00\n03.02.2024;;1,00;104,00\n", true, -1, 2, 1, 3,
         "credit, debit, balance"},
        {"01.02.2024;5,00;95,00\n02.02.2024;10,00;105,00\n03.02.2024;1,00;104,00\n04.02.2024;4,00;100,00\n", true, 1,
         -1, -1, 2, "sizes without signs"},
        {"01.02.2024;-5,00;7,00\n02.02.2024;10,00;8,00\n", false, 1, -1, -1, -1, "nothing follows anything"},
        {"01.02.2024;0,00;0,00\n02.02.2024;0,00;0,00\n", false, 1, -1, -1, -1, "nothing moves"},
        {"01.02.2024;-5,00;95,00\n", false, 1, -1, -1, -1, "a single booking"},
    };
    for (const SearchCase& c : kCases) {
        const Cells cells(c.rows);
        TablePlan plan;
        plan.region.end = cells.table().size();
        plan.roles.date = 0;
        plan.roles.amount = 1;
        ColumnChoice choice;
        std::vector<std::size_t> all;
        for (std::size_t i = 0; i < cells.table().size(); ++i)
            all.push_back(i);
        choice.profiles = ColumnProfiles::make(cells.table(), all, cells.table().record(0).cellCount);
        EXPECT_EQ(AmountByBalance::settle(cells.table(), choice, plan), c.found) << c.why;
        EXPECT_EQ(plan.roles.amount, c.amount) << c.why;
        EXPECT_EQ(plan.roles.debit, c.debit) << c.why;
        EXPECT_EQ(plan.roles.credit, c.credit) << c.why;
        EXPECT_EQ(plan.roles.balance, c.balance) << c.why;
    }
}

} // namespace
