// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/BalanceSeries.h"

#include <string>

#include <gtest/gtest.h>

#include "intake/Intake.h"

namespace {

struct Case {
    const char* what;
    const char* bytes;
    const char* balances; ///< "day balance" of each
};

const Case kCases[] = {
    {"the last balance of a day, in the order of time",
     "Buchung;Name;Betrag;Saldo\n01.02.2004;A;-10,00;90,00\n01.02.2004;B;-20,00;70,00\n13.02.2004;C;5,50;75,50\n",
     "01.02.2004 70,00, 13.02.2004 75,50"},
    {"newest first",
     "Buchung;Name;Betrag;Saldo\n13.02.2004;C;5,50;75,50\n01.02.2004;B;-20,00;70,00\n01.02.2004;A;-10,00;90,00\n",
     "01.02.2004 70,00, 13.02.2004 75,50"},
    {"a column that does not fit is no balance",
     "Buchung;Name;Betrag;Saldo\n01.02.2004;A;-10,00;90,00\n02.02.2004;B;-20,00;1,00\n13.02.2004;C;5,50;3,00\n", ""},
    {"no column", "Buchung;Name;Betrag\n01.02.2004;A;-10,00\n13.02.2004;C;5,50\n", ""},
    {"two tables are two accounts",
     "Buchung;Name;Betrag;Saldo\n01.02.2004;A;-10,00;90,00\n13.02.2004;C;5,50;95,50\n"
     "Buchung;Betrag;Name;Saldo\n01.02.2004;-1,00;A;9,00\n13.02.2004;5,00;C;14,00\n",
     ""},
};

std::string textOf(const std::vector<BalanceOfDay>& series) {
    std::string text;
    for (const BalanceOfDay& one : series)
        text += (text.empty() ? "" : ", ") + one.day.germanText() + " " + one.balance.text();
    return text;
}

TEST(BalanceSeries, TellsWhatTheFileSaysOfEachDay) {
    for (const Case& c : kCases)
        EXPECT_EQ(textOf(Intake::read(c.bytes, Import::eFormatCSV, {}).balances), c.balances) << c.what;
}

} // namespace
