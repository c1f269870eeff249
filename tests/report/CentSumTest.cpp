// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/CentSum.h"

#include <initializer_list>

#include <gtest/gtest.h>

namespace {

CentSum sumOf(std::initializer_list<std::int64_t> amounts) {
    CentSum sum;
    for (const std::int64_t cents : amounts)
        sum.add(cents);
    return sum;
}

struct Case {
    std::initializer_list<std::int64_t> amounts;
    const char* text;
};

const Case kCases[] = {
    {{}, "0,00"},
    {{5}, "0,05"},
    {{-5}, "-0,05"},
    {{123456}, "1.234,56"},
    {{-123456, 123456}, "0,00"},
    {{-150, 100}, "-0,50"},
    {{150, -200}, "-0,50"},
    {{-150, 200}, "0,50"},
    {{99, 1}, "1,00"},
    {{-99, -1}, "-1,00"},
    {{10, 20}, "0,30"},
    {{999999999999999, 1}, "10.000.000.000.000,00"},
};

TEST(CentSum, AddsWithoutACrumb) {
    for (const Case& c : kCases)
        EXPECT_EQ(sumOf(c.amounts).text(), c.text);
}

TEST(CentSum, OrderDoesNotMatter) {
    EXPECT_EQ(sumOf({-150, 200, 7}), sumOf({7, 200, -150}));
    EXPECT_EQ(sumOf({-150, 50}) + sumOf({100}), CentSum());
    EXPECT_TRUE((sumOf({-150, 50}) + sumOf({100})).isZero());
}

TEST(CentSum, HoldsAFullTableOfTheLargestAmounts) {
    CentSum sum;
    CentSum debts;
    for (int i = 0; i < 65535; ++i) {
        sum.add(999999999999999);
        debts.add(-999999999999999);
    }
    EXPECT_EQ(sum.text(), "655.349.999.999.999.344,65");
    EXPECT_EQ(debts.text(), "-655.349.999.999.999.344,65");
    EXPECT_EQ(sum.drawable(), std::nullopt) << "64 bits of hundredths would not do";
    EXPECT_TRUE((sum + debts).isZero());
    EXPECT_EQ(sum.inUnits(), 655349999999999344.0);
}

TEST(CentSum, InUnitsIsTheNearestDouble) {
    EXPECT_EQ(sumOf({2015}).inUnits(), 20.15);
    EXPECT_EQ(sumOf({-5}).inUnits(), -0.05);
    EXPECT_EQ(sumOf({999999999999999}).inUnits(), 9999999999999.99);
}

TEST(CentSum, IsDrawnInHundredths) { EXPECT_EQ(sumOf({-150, 20}).drawable(), -130); }

} // namespace
