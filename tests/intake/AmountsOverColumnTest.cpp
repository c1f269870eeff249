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

std::string tableOf(std::initializer_list<std::string_view> amounts) {
    std::string text = "Datum;Empfänger;Betrag\n";
    int day = 13;
    for (const std::string_view amount : amounts) {
        text += std::to_string(day) + ".02.2024;P" + std::to_string(day) + ";\"" + std::string(amount) + "\"\n";
        ++day;
    }
    return text;
}

TEST(AmountsOverColumn, FormsOfAnAmount) {
    // Each means -1234.50 and 7.00.
    constexpr std::string_view kForms[][2] = {
        {"-1.234,50", "7,00"},       {"-1234,50", "7,00"},          {"-1234,5", "7"},
        {"-1,234.50", "7.00"},       {"-1234.50", "7.00"},          {"-1'234.50", "7.00"},
        {"-1 234,50", "7,00"},       {"-1\u00A0234,50", "7,00"},    {"1.234,50-", "7,00"},
        {"1.234,50-", "7,00+"},      {"-1.234,50 EUR", "7,00 EUR"}, {"EUR -1,234.50", "EUR 7.00"},
        {"-1.234,50 €", "7,00 €"},   {"-€1,234.50", "€7.00"},       {"-$1,234.50", "$7.00"},
        {"$(1,234.50)", "$7.00"},    {"(1,234.50)", "7.00"},        {"CHF -1'234.50", "CHF 7.00"},
        {"1.234,50 S", "7,00 H"},    {"1,234.50 DR", "7.00 CR"},    {"-1234,5000", "7,0000"},
        {"- 1.234,50", "+ 7,00"},    {"-1 234,50 zł", "7,00 zł"},   {"-1234,50 kr", "7,00 kr"},
        {"\u22121.234,50", "+7,00"},
    };
    for (const auto& form : kForms) {
        const FileReading file(tableOf({form[0], form[1]}));
        EXPECT_THAT(file.bookings(), ElementsAre("13.02.2024 -1.234,50 P13 | ", "14.02.2024 7,00 P14 | ")) << form[0];
    }
}

TEST(AmountsOverColumn, MarkIsDecidedForTheWholeColumn) {
    EXPECT_THAT(FileReading(tableOf({"-1.000", "12,50"})).datesAndAmounts(),
                ElementsAre("13.02.2024 -1.000,00", "14.02.2024 12,50"));
    EXPECT_THAT(FileReading(tableOf({"-1,000", "12.50"})).datesAndAmounts(),
                ElementsAre("13.02.2024 -1.000,00", "14.02.2024 12,50"));
    EXPECT_THAT(FileReading(tableOf({"-1500,000", "12,500"})).datesAndAmounts(),
                ElementsAre("13.02.2024 -1.500,00", "14.02.2024 12,50"))
        << "three decimals throughout";
}

TEST(AmountsOverColumn, UndecidableMarkIsNotGuessed) {
    for (const auto& amounts : {tableOf({"-1.250", "12.500"}), tableOf({"-1,5", "2.5"})}) {
        const FileReading file(amounts);
        EXPECT_EQ(file.undecided(), "decimal-mark-ambiguous") << amounts;
        EXPECT_NE(file.intake().undecided->text.find("--decimal"), std::string::npos);
        EXPECT_THAT(file.records(), IsEmpty());
    }
}

TEST(AmountsOverColumn, UserDecidesTheMark) {
    InspectionOptions options;
    options.decimalMark = '.';
    EXPECT_THAT(FileReading(tableOf({"-1.250", "12.500"}), Import::eFormatCSV, options).datesAndAmounts(),
                ElementsAre("13.02.2024 -1,25", "14.02.2024 12,50"));
}

TEST(AmountsOverColumn, AmountThatDoesNotFitTheOthersIsRefused) {
    const FileReading file(tableOf({"-1,50", "2,50", "1.23.4", "3,50"}));
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -1,50", "14.02.2024 2,50", "16.02.2024 3,50"));
    EXPECT_THAT(file.messages(), ElementsAre("bad-amount@4"));
    EXPECT_EQ(file.refused(), 1);
}

TEST(AmountsOverColumn, MissingAmountIsRefused) {
    const FileReading file(tableOf({"-1,50", "", "3,50"}));
    EXPECT_THAT(file.messages(), ElementsAre("amount-missing@3"));
    EXPECT_EQ(file.refused(), 1);
}

TEST(AmountsOverColumn, TwoCurrenciesAreTakenAsTheyAreAndReported) {
    const FileReading file("Datum;Text;Betrag;Währung\n13.02.2024;a;-1,50;EUR\n14.02.2024;b;-2,50;USD\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 -1,50", "14.02.2024 -2,50"));
    EXPECT_THAT(file.messages(), ElementsAre("mixed-currencies@3"));
}

TEST(AmountsOverColumn, NetMovesAPaymentServicesAccount) {
    const FileReading file("Datum;Name;Brutto;Entgelt;Netto\n"
                           "13.02.2024;a;50,00;-1,60;48,40\n"
                           "14.02.2024;b;-20,00;0,00;-20,00\n");
    EXPECT_THAT(file.datesAndAmounts(), ElementsAre("13.02.2024 48,40", "14.02.2024 -20,00"));
}

TEST(AmountsOverColumn, TwoThatCouldBeItAreNotGuessed) {
    const FileReading file("Datum;Text;Betrag;Betrag\n13.02.2024;a;-1,50;-1,20\n14.02.2024;b;-2,50;-2,10\n");
    EXPECT_EQ(file.undecided(), "amount-column-ambiguous");
}

} // namespace
