// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <optional>
#include <ostream>
#include <string_view>

#include <gtest/gtest.h>

#include "intake/Money.h"

/// Shown by failing expectations.
static void PrintTo(const Money& money, std::ostream* out) { *out << money.text(); }

namespace {

struct Case {
    std::string_view text; ///< Windows-1252
    char mark;
    std::optional<Money> value;
    const char* why;
};

TEST(AmountCells, CellIsReadUnderADecimalMark) {
    const Case kCases[] = {
        {"1234,56", ',', Money{123456, 2}, "comma"},
        {"1.234,56", ',', Money{123456, 2}, "comma, grouped"},
        {"1.234.567,89", ',', Money{123456789, 2}, "comma, grouped twice"},
        {"1234.56", '.', Money{123456, 2}, "point"},
        {"1,234.56", '.', Money{123456, 2}, "point, grouped"},
        {"1,234,567", '.', Money{1234567, 0}, "grouped, no decimals"},
        {"1'234.50", '.', Money{123450, 2}, "Swiss groups"},
        {"1\x92"
         "234.50",
         '.', Money{123450, 2}, "Swiss groups of typographers"},
        {"1 234,50", ',', Money{123450, 2}, "French groups"},
        {"1\xA0"
         "234,50",
         ',', Money{123450, 2}, "French groups that do not break"},
        {"1.000", ',', Money{1000, 0}, "a thousand"},
        {"1000", '.', Money{1000, 0}, "no mark at all"},
        {"12,5", ',', Money{125, 1}, "one decimal"},
        {",50", ',', Money{50, 2}, "nothing before the mark"},
        {"0,00", ',', Money{0, 2}, "zero"},
        {"-12,50", ',', Money{-1250, 2}, "minus ahead"},
        {"- 12,50", ',', Money{-1250, 2}, "minus and a blank"},
        {"12,50-", ',', Money{-1250, 2}, "minus behind"},
        {"12,50 -", ',', Money{-1250, 2}, "a blank and minus"},
        {"\x96"
         "12,50",
         ',', Money{-1250, 2}, "a dash for minus"},
        {"+12,50", ',', Money{1250, 2}, "plus ahead"},
        {"12,50+", ',', Money{1250, 2}, "plus behind"},
        {"(12,50)", ',', Money{-1250, 2}, "brackets"},
        {"($12.50)", '.', Money{-1250, 2}, "brackets and a currency"},
        {"12,50 S", ',', Money{-1250, 2}, "Soll"},
        {"12,50 H", ',', Money{1250, 2}, "Haben"},
        {"12,50S", ',', Money{-1250, 2}, "Soll without a blank"},
        {"12.50 DR", '.', Money{-1250, 2}, "debit"},
        {"12.50 CR", '.', Money{1250, 2}, "credit"},
        {"12.50 D", '.', Money{-1250, 2}, "debit in one letter"},
        {"12.50 C", '.', Money{1250, 2}, "credit in one letter"},
        {"12,50 EUR", ',', Money{1250, 2}, "a currency behind"},
        {"EUR 12,50", ',', Money{1250, 2}, "a currency ahead"},
        {"\x80"
         "12,50",
         ',', Money{1250, 2}, "the euro sign ahead"},
        {"-12,50 \x80", ',', Money{-1250, 2}, "sign ahead, currency behind"},
        {"-\xA3"
         "12.50",
         '.', Money{-1250, 2}, "sign and pound"},
        {"- $25.00", '.', Money{-2500, 2}, "sign, blank, dollar"},
        {"12,50- EUR", ',', Money{-1250, 2}, "minus between number and currency"},
        {"12,50 EUR S", ',', Money{-1250, 2}, "currency and Soll"},
        {"CHF 1'000.00-", '.', Money{-100000, 2}, "all of it"},
        {"0.12345678", '.', Money{12345678, 8}, "many decimals"},
        {"12345678901234567", ',', Money{12345678901234567, 0}, "seventeen digits"},

        {"xxx1.000", ',', std::nullopt, "letters that are no currency"},
        {"1.23.4", ',', std::nullopt, "uneven groups"},
        {"1,23,4", '.', std::nullopt, "uneven groups"},
        {"1.234.56", ',', std::nullopt, "a last group of two"},
        {"1.2345", ',', std::nullopt, "a group of four"},
        {"1234.567", ',', std::nullopt, "a first group of four"},
        {"0.375", ',', std::nullopt, "nobody groups a zero"},
        {"1.234 567", ',', std::nullopt, "two kinds of groups"},
        {"1,5", '.', std::nullopt, "the other mark as decimal mark"},
        {"1,50,00", ',', std::nullopt, "two decimal marks"},
        {"1,234.50", ',', std::nullopt, "English groups under a comma"},
        {"--12,50", ',', std::nullopt, "two signs"},
        {"-12,50-", ',', std::nullopt, "a sign on either side"},
        {"(-12,50)", ',', std::nullopt, "brackets and a sign"},
        {"12,50 %", ',', std::nullopt, "a share"},
        {"12,50 St\xFC"
         "ck",
         ',', std::nullopt, "a quantity"},
        {"EUR", ',', std::nullopt, "a currency alone"},
        {"S", ',', std::nullopt, "a mark alone"},
        {"-", ',', std::nullopt, "a sign alone"},
        {"", ',', std::nullopt, "nothing"},
        {"()", ',', std::nullopt, "empty brackets"},
        {"31.12.2024", ',', std::nullopt, "a date"},
        {"123456789012345678", ',', std::nullopt, "eighteen digits"},
        {"0,1234567891", ',', std::nullopt, "ten decimals"},
        {"1 EUROPA", ',', std::nullopt, "a word that begins with a currency"},
    };
    for (const Case& c : kCases) {
        const auto cell = AmountCells::read(c.text, c.mark);
        EXPECT_EQ(cell ? std::optional(cell->value()) : std::nullopt, c.value) << c.text << ": " << c.why;
    }
}

TEST(AmountCells, WritingIsRemembered) {
    EXPECT_TRUE(AmountCells::read("12,50", ',')->marked);
    EXPECT_FALSE(AmountCells::read("1.250", ',')->marked);
    EXPECT_TRUE(AmountCells::read("12,50 EUR", ',')->currency);
    EXPECT_FALSE(AmountCells::read("12,50", ',')->currency);
    EXPECT_EQ(AmountCells::read("12,50", ',')->sign, AmountCell::Sign::none);
    EXPECT_EQ(AmountCells::read("+12,50", ',')->sign, AmountCell::Sign::plus);
}

TEST(AmountCells, ThreeDecimalsCouldBeAThousand) {
    for (const std::string_view text : {"1,234", "12,345", "123,456", "-1,000"})
        EXPECT_TRUE(AmountCells::read(text, ',')->thousand) << text;
    for (const std::string_view text : {"0,375", "1234,567", "1,23", "1,2345", "1.234", "1.234,567"})
        EXPECT_FALSE(AmountCells::read(text, ',')->thousand) << text;
}

TEST(Money, IsCountedExactly) {
    const Money tenCents{10, 2};
    Money sum;
    for (int i = 0; i < 3; ++i)
        sum = sum + tenCents;
    EXPECT_EQ(sum, (Money{3, 1}));
    EXPECT_EQ((Money{15, 1}), (Money{150, 2}));
    EXPECT_EQ((Money{150, 2}) - (Money{2, 0}), (Money{-5, 1}));
    EXPECT_EQ((Money{-5, 1}).magnitude(), (Money{5, 1}));
    EXPECT_TRUE((Money{-1, 2}).isNegative());
    EXPECT_TRUE((Money{0, 2}).isZero());
    EXPECT_FALSE((Money{1, 9}).isZero());
}

TEST(Money, TextIsWhatTheLibraryReadsRight) {
    struct Row {
        Money money;
        std::string_view text;
    };
    const Row kRows[] = {
        {{123450, 2}, "1234,50"}, {{-5, 0}, "-5"},      {{125, 1}, "12,50"},   {{-1, 2}, "-0,01"},
        {{0, 2}, "0,00"},         {{1234, 3}, "1,234"}, {{12500, 3}, "12,50"}, {{12345678, 8}, "0,12345678"},
        {{-100, 4}, "-0,01"},     {{1000, 0}, "1000"},  {{7, 3}, "0,007"},
    };
    for (const Row& row : kRows)
        EXPECT_EQ(row.money.text(), row.text);
}

} // namespace
