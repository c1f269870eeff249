// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

#include "datamodel/ModelTesting.h"

namespace {

using ModelTesting::date;
using ModelTesting::display;
using ModelTesting::zeroDate;

struct AmountCase {
    double amount;
    const char* grouped;
    const char* plain;
    const char* why;
};

constexpr double kInfinity = std::numeric_limits<double>::infinity();

constexpr AmountCase kAmounts[] = {
    {1234.56, "1.234,56", "1234,56", "one group"},
    {-20, "-20,00", "-20,00", "two decimals, always"},
    {0, "0,00", "0,00", "zero"},
    {-0.0, "0,00", "0,00", "negative zero has no sign"},
    {-0.004, "0,00", "0,00", "what rounds to zero has no sign"},
    {0.004, "0,00", "0,00", "rounds down"},
    {-0.006, "-0,01", "-0,01", "the sign stays with a digit left"},
    {0.01, "0,01", "0,01", "smallest unit"},
    {-0.5, "-0,50", "-0,50", "below one"},
    {1.05, "1,05", "1,05", "zero behind the mark"},
    {0.125, "0,12", "0,12", "a tie that doubles hold exactly goes to even"},
    {0.375, "0,38", "0,38", "the same, upwards"},
    {1.005, "1,00", "1,00", "the double lies below the tie"},
    {999, "999,00", "999,00", "no group yet"},
    {999.995, "1.000,00", "1000,00", "rounding makes a group (the double lies above the tie)"},
    {1000, "1.000,00", "1000,00", "first group"},
    {-999999.99, "-999.999,99", "-999999,99", "no dot behind the sign"},
    {1000000, "1.000.000,00", "1000000,00", "two groups"},
    {9999999999999.99, "9.999.999.999.999,99", "9999999999999,99", "upper bound"},
    {-9999999999999.99, "-9.999.999.999.999,99", "-9999999999999,99", "lower bound"},
    {1e15, "1.000.000.000.000.000,00", "1000000000000000,00", "never an exponent"},
    {kInfinity, "inf", "inf", "no number"},
    {-kInfinity, "-inf", "-inf", "no number"},
    {std::numeric_limits<double>::quiet_NaN(), "nan", "nan", "no number"},
};

void expectAmounts() {
    for (const AmountCase& c : kAmounts) {
        const DataType value = DataType::makeCurrency(c.amount);
        EXPECT_EQ(value.asString(true, 2), c.grouped) << c.why;
        EXPECT_EQ(value.asString(false, 2), c.plain) << c.why;
    }
}

TEST(DisplayText, AmountsHaveCommaAndGroups) { expectAmounts(); }

TEST(DisplayText, IsTheSameUnderACommaDecimalLocale) {
    const ModelTesting::CommaDecimalLocale guard;
    expectAmounts();
    EXPECT_EQ(display(DataType::makeInteger(1234567)), "1234567");
    EXPECT_EQ(display(date(1, 2, 1234)), "01.02.1234");
}

/// Two decimals by the C library, which rounds what the double really holds.
std::string byPrintf(double amount) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.2f", amount);
    std::string result = text.data();
    std::replace(result.begin(), result.end(), '.', ',');
    return result == "-0,00" ? "0,00" : result;
}

TEST(DisplayText, AmountsAreRoundedAsTheDoubleLies) {
    std::mt19937_64 random(20261122);
    for (int round = 0; round < 200000; ++round) {
        const auto cents = static_cast<double>(random() >> (14 + random() % 50)); // from 0 to beyond all bounds
        const double steps = round % 3 == 0 ? 0.0 : static_cast<double>(random() % 9) - 4.0;
        double amount = cents / (round % 2 == 0 ? 100.0 : 800.0);
        for (double step = 0; step < std::abs(steps); ++step)
            amount = std::nextafter(amount, steps < 0 ? 0.0 : kInfinity);
        ASSERT_EQ(DataType::makeCurrency(-amount).asString(false, 2), byPrintf(-amount)) << "round " << round;
    }
}

TEST(DisplayText, DecimalsAreAsManyAsAskedFor) {
    const DataType value = DataType::makeCurrency(-1234.5678);
    EXPECT_EQ(value.asString(true, 0), "-1.235");
    EXPECT_EQ(value.asString(true, 1), "-1.234,6");
    EXPECT_EQ(value.asString(true, 4), "-1.234,5678");
    EXPECT_EQ(DataType::makeCurrency(-0.4).asString(true, 0), "0");
    EXPECT_EQ(DataType::makeCurrency(0.5).asString(true, USHRT_MAX).size(), 2U + USHRT_MAX);
}

TEST(DisplayText, TheLargestDoubleIsWrittenOut) {
    const DataType value = DataType::makeCurrency(-std::numeric_limits<double>::max());
    const std::string plain = value.asString(false, 2);
    EXPECT_EQ(plain.size(), 1U + 309 + 3);
    EXPECT_EQ(plain.substr(0, 18), "-17976931348623157");
    EXPECT_EQ(value.asString(true, 2).size(), plain.size() + 102);
    EXPECT_EQ(value.asString(true, USHRT_MAX).size(), 1U + 309 + 102 + 1 + USHRT_MAX);
}

TEST(DisplayText, TheSmallestDoubleIsZero) {
    EXPECT_EQ(display(DataType::makeCurrency(std::numeric_limits<double>::denorm_min())), "0,00");
    EXPECT_EQ(display(DataType::makeCurrency(-std::numeric_limits<double>::denorm_min())), "0,00");
}

TEST(DisplayText, DatesHaveDayMonthAndFourDigitsOfYear) {
    EXPECT_EQ(display(date(31, 12, 2004)), "31.12.2004");
    EXPECT_EQ(display(date(1, 2, 98)), "01.02.0098");
    EXPECT_EQ(display(date(9, 9, 9999)), "09.09.9999");
    EXPECT_EQ(display(zeroDate()), "");
}

TEST(DisplayText, OtherKindsAreWrittenPlainly) {
    EXPECT_EQ(display(DataType()), "");
    EXPECT_EQ(display(DataType::makeBoolean(true)), "Ja");
    EXPECT_EQ(display(DataType::makeBoolean(false)), "Nein");
    EXPECT_EQ(display(DataType::makeInteger(0)), "0");
    EXPECT_EQ(display(DataType::makeInteger(1000000)), "1000000");
    EXPECT_EQ(display(DataType::makeInteger(INT_MIN)), "-2147483648");
    EXPECT_EQ(display(DataType::makeInteger(INT_MAX)), "2147483647");
    EXPECT_EQ(display(ModelTesting::text("M\xFCller")), "M\xFCller");
}

} // namespace
