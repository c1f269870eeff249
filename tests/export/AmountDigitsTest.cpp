// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/AmountDigits.h"

#include <limits>

#include <gtest/gtest.h>

namespace {

std::string digits(double amount, char mark = ',', int least = 2) {
    std::string text;
    AmountDigits::append(text, amount, mark, least);
    return text;
}

TEST(AmountDigits, TwoDecimalsAtLeastAndNoMoreThanNeeded) {
    EXPECT_EQ(digits(-1650.0), "-1650,00");
    EXPECT_EQ(digits(2500.1), "2500,10");
    EXPECT_EQ(digits(0.125), "0,125");
    EXPECT_EQ(digits(0.1 + 0.2), "0,30000000000000004");
    EXPECT_EQ(digits(9999999999999.99), "9999999999999,99");
    EXPECT_EQ(digits(-12.5, '.', 1), "-12.5");
    EXPECT_EQ(digits(7.0, '.', 0), "7");
}

TEST(AmountDigits, NeverAnExponent) {
    EXPECT_EQ(digits(1e13), "10000000000000,00");
    EXPECT_EQ(digits(1e-7), "0,0000001");
    const std::string smallest = digits(std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(smallest.size(), 326U);
    EXPECT_EQ(smallest.back(), '5');
}

TEST(AmountDigits, SignOfZeroIsKept) {
    EXPECT_EQ(digits(0.0), "0,00");
    EXPECT_EQ(digits(-0.0), "-0,00");
}

} // namespace
