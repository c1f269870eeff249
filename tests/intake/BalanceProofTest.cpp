// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "intake/FileReading.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(BalanceProof, RunningColumnCertifies) {
    for (const std::string_view text : {"Datum;Text;Betrag;Saldo\n13.02.2024;a;-500,00;500,00\n14.02.2024;b;1500,00;"
                                        "2000,00\n15.02.2024;c;-1,00;1999,00\n",
                                        "Datum;Text;Betrag;Saldo\n15.02.2024;c;-1,00;1999,00\n14.02.2024;b;1500,00;"
                                        "2000,00\n13.02.2024;a;-500,00;500,00\n"}) {
        const FileReading file(text);
        EXPECT_EQ(file.intake().balance, BalanceProof::certified);
        EXPECT_GE(file.intake().confidence, 0.95);
        EXPECT_EQ(file.records().size(), 3U);
        EXPECT_THAT(file.messages(), IsEmpty());
    }
}

TEST(BalanceProof, OpeningAndClosingLinesCertify) {
    const FileReading file("Datum;Text;Betrag\n"
                           ";Anfangssaldo;1.000,00\n"
                           "13.02.2024;a;-500,00\n"
                           "14.02.2024;b;1.500,00\n"
                           ";Endsaldo;2.000,00\n");
    EXPECT_EQ(file.intake().balance, BalanceProof::certified);
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -500,00", "14.02.2024 1.500,00"));
}

TEST(BalanceProof, BalancesInThePreambleCertify) {
    const FileReading file("Alter Kontostand;1.000,00 EUR\n"
                           "Neuer Kontostand;2.000,00 EUR\n"
                           "\n"
                           "Datum;Text;Betrag\n"
                           "13.02.2024;a;-500,00\n"
                           "14.02.2024;b;1.500,00\n");
    EXPECT_EQ(file.intake().balance, BalanceProof::certified);
    EXPECT_EQ(file.lines(), "PPBHRR");
}

TEST(BalanceProof, BreakIsReportedWithItsLine) {
    std::string text = "Datum;Text;Betrag;Saldo\n";
    int balance = 1000;
    for (int day = 1; day <= 28; ++day) {
        balance -= day == 20 ? 7 : 2; // a booking of five is missing
        text += (day < 10 ? "0" : "") + std::to_string(day) + ".02.2024;x;-2,00;" + std::to_string(balance) + ",00\n";
    }
    const FileReading file(text);
    EXPECT_EQ(file.intake().balance, BalanceProof::broken);
    EXPECT_THAT(file.messages(), ElementsAre("balance-break@21"));
    EXPECT_EQ(file.records().size(), 28U);
}

TEST(BalanceProof, SignsComeFromTheBalance) {
    const FileReading file("Datum;Text;Betrag;Saldo\n"
                           "13.02.2024;a;500,00;500,00\n"
                           "14.02.2024;b;1500,00;2000,00\n"
                           "15.02.2024;c;1,00;1999,00\n"
                           "16.02.2024;d;9,00;1990,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("14.02.2024 1.500,00", "15.02.2024 -1,00", "16.02.2024 -9,00"));
    EXPECT_THAT(file.messages(), ElementsAre("sign-unknown@2"));
}

TEST(BalanceProof, ChoosesTheAmountOfAFileWithoutHeader) {
    const FileReading file("13.02.2024;a b c;-500,00;500,00\n14.02.2024;d e f;1500,00;2000,00\n"
                           "15.02.2024;g h i;-1,00;1999,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -500,00", "14.02.2024 1.500,00", "15.02.2024 -1,00"));
    EXPECT_EQ(file.intake().balance, BalanceProof::certified);
}

TEST(BalanceProof, ChoosesTheMarksOfAFileWithoutHeader) {
    const FileReading file("13.02.2024;500,00;Debet;a b c;500,00\n14.02.2024;1500,00;Credit;d e f;2000,00\n"
                           "15.02.2024;1,00;Debet;g h i;1999,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -500,00", "14.02.2024 1.500,00", "15.02.2024 -1,00"));
}

TEST(BalanceProof, DaysTellTheDirectionWhereEqualAmountsFitBoth) {
    const FileReading file("Datum;Text;Betrag;Saldo\n"
                           "02.01.2024;a;33,30;966,70\n04.01.2024;b;33,30;933,40\n05.01.2024;c;33,30;900,10\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("04.01.2024 -33,30", "05.01.2024 -33,30"));
    EXPECT_THAT(file.messages(), ElementsAre("sign-unknown@2"));
}

TEST(BalanceProof, ContradictsSignsThatNothingElseTells) {
    const FileReading file("Datum;Text;Betrag;Saldo\n02.01.2024;a;33,30;966,70\n04.01.2024;b;12,00;954,70\n");
    EXPECT_EQ(file.undecided(), "sign-ambiguous");
}

TEST(BalanceProof, TurnsASignThatIsTheBanks) {
    const FileReading file("Anfangssaldo;1.000,00\nEndsaldo;2.000,00\n"
                           "Datum;Text;Betrag\n13.02.2024;a;500,00\n14.02.2024;b;-1.500,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -500,00", "14.02.2024 1.500,00"));
    EXPECT_EQ(file.intake().balance, BalanceProof::certified);
}

TEST(BalanceProof, DecidesTheMarkOfWholeAmounts) {
    const FileReading file("Datum;Text;Betrag;Saldo\n13.02.2024;a;-100,250;2387,250\n14.02.2024;b;12,500;2399,750\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -100,25", "14.02.2024 12,50"));
}

} // namespace
