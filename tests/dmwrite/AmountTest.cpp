// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "dmwrite/Importer.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

double scan(const std::string& text) { return Importer().scanCurrency(text.c_str()); }

struct Case {
    const char* text;
    double want;
    const char* why;
};

void expectAmounts(const Case* begin, const Case* end) {
    for (const Case* c = begin; c != end; ++c)
        EXPECT_EQ(scan(c->text), c->want) << '"' << c->text << "\": " << c->why;
}

TEST(AmountTest, DecimalMarkIsGuessedTextByText) {
    const Case cases[] = {
        {"1.234,56 EUR", 1234.56, "comma with two digits behind"},
        {"1,234.56", 1234.56, "dot with two digits behind"},
        {"1234,5", 1234.5, "undecided, a comma"},
        {"1234.5", 1234.5, "undecided, only a dot"},
        {"1.234", 1.234, "undecided, only a dot: three digits behind a single mark are decimals"},
        {"1,234", 1.234, "undecided, a comma"},
        {"1,234.5", 1.2345, "undecided, both: the comma is decimal, the dot is dropped"},
        {"1.234,5", 1234.5, "undecided, both, the other way round"},
        {"1.234.567,89", 1234567.89, "two dots, comma with two digits behind"},
        {"1,234,567.89", 1234567.89, "two commas, dot with two digits behind"},
        {"0,5", 0.5, "undecided, a comma"},
        {"12,50-", 12.5, "a trailing minus is lost"},
        {"-5", -5.0, "leading minus"},
        {"EUR", 0.0, "nothing is left"},
        {"", 0.0, "nothing is there"},
    };
    expectAmounts(std::begin(cases), std::end(cases));
}

TEST(AmountTest, OnlyTheLastCommaAndTheLastDotDecide) {
    const Case cases[] = {
        {"1,23,456", 1.23, "the last comma has three digits behind; the second one ends the number"},
        {"1.23.456", 1.23, "only dots: the second one ends the number"},
        {"1.234.567", 1.234, "thousands without a decimal mark are misread"},
        {"1,234,567", 1.234, "likewise"},
        {"1,23.456", 1.23456, "both, none with two digits behind: the comma"},
        {"1.23,456", 123.456, "both, none with two digits behind: the comma"},
        {"1,234.567,89", 1.234567, "the last comma; the one before it is a decimal mark, too, and comes first"},
        {"1,2.34", 12.34, "the dot, right of the comma"},
        {"1.2,34", 12.34, "the comma, right of the dot"},
        {"1.234,5-", 1234.5, "the minus counts among the two characters behind the comma"},
        {"1,234.5-", 1234.5, "so here the dot is decimal"},
    };
    expectAmounts(std::begin(cases), std::end(cases));
}

TEST(AmountTest, WhatIsNoPartOfANumberIsDropped) {
    const Case cases[] = {
        {"+5", 5.0, "plus"},
        {"1'234,56", 1234.56, "apostrophe"},
        {"1 234,56", 1234.56, "blank"},
        {"1\xA0"
         "234,56",
         1234.56, "no-break space"},
        {"\xA4 12,50", 12.5, "Latin-1 currency sign"},
        {"EUR -12,50", -12.5, "a word in front leaves the minus leading"},
        {"- 12,50", -12.5, "blank behind the minus"},
        {"1e5", 15.0, "no exponents"},
        {"0x1F", 1.0, "no hexadecimal numbers: 01"},
        {"inf", 0.0, "no words for numbers"},
        {"nan", 0.0, "no words for numbers"},
        {"12,50 (12.03.)", 12.501203, "digits of a remark join in; of the marks in 12,5012.03. none is decisive"},
        {"\t12,50\r", 12.5, "tab and carriage return"},
    };
    expectAmounts(std::begin(cases), std::end(cases));
}

TEST(AmountTest, NumberEndsAtTheFirstCharacterThatDoesNotFit) {
    const Case cases[] = {
        {"-", 0.0, "a minus alone"},
        {"--5", 0.0, "two minus signs"},
        {"5-3", 5.0, "a minus inside"},
        {"12-,50", 12.0, "a minus before the mark"},
        {".", 0.0, "a mark alone"},
        {",", 0.0, "a mark alone"},
        {"..", 0.0, "marks alone"},
        {".,", 0.0, "marks alone"},
        {"-.", 0.0, "minus and mark"},
        {",5", 0.5, "no digit before the mark"},
        {"-,5", -0.5, "nor behind the minus"},
        {"5,", 5.0, "no digit behind the mark"},
        {"5.", 5.0, "no digit behind the mark"},
        {"-0,50", -0.5, "negative below one"},
        {"1,05", 1.05, "zero behind the mark"},
        {"007", 7.0, "leading zeros"},
    };
    expectAmounts(std::begin(cases), std::end(cases));
}

TEST(AmountTest, NegativeZeroKeepsItsSign) {
    EXPECT_TRUE(std::signbit(scan("-0,00")));
    EXPECT_FALSE(std::signbit(scan("0,00")));
}

TEST(AmountTest, DigitsWithoutEndMakeAnInfinity) {
    const std::string digits(4000, '9');
    EXPECT_EQ(scan(digits), kInfinity);
    EXPECT_EQ(scan("-" + digits), -kInfinity);
    EXPECT_EQ(scan(digits + ",50"), kInfinity);
    EXPECT_EQ(scan(std::string(400, '0') + digits), kInfinity) << "zeros in front";
    EXPECT_EQ(scan("1" + std::string(308, '0')), 1e308) << "the largest power of ten that is a double";
    EXPECT_EQ(scan("1" + std::string(309, '0')), kInfinity);
}

TEST(AmountTest, ZerosInFrontDoNotMakeANumberLarge) {
    EXPECT_EQ(scan(std::string(4000, '0')), 0.0);
    EXPECT_EQ(scan(std::string(4000, '0') + "12,50"), 12.5);
}

TEST(AmountTest, DigitsBehindTheMarkWithoutEndAreRounded) {
    EXPECT_EQ(scan("0," + std::string(4000, '3')), 1.0 / 3.0);
    EXPECT_EQ(scan("12," + std::string(4000, '0')), 12.0);
    EXPECT_EQ(scan("-12," + std::string(4000, '0') + "1"), -12.0);
}

TEST(AmountTest, AmountBelowEveryDoubleIsZero) {
    const std::string tiny = "0," + std::string(400, '0') + "1";
    EXPECT_EQ(scan(tiny), 0.0);
    EXPECT_FALSE(std::signbit(scan(tiny)));
    EXPECT_EQ(scan("-" + tiny), 0.0);
    EXPECT_EQ(scan("," + std::string(400, '0') + "1"), 0.0) << "no digit before the mark";
    EXPECT_EQ(scan(std::string(400, '0') + "," + std::string(400, '0') + "1"), 0.0) << "only zeros before the mark";
    EXPECT_EQ(scan("0," + std::string(323, '0') + "5"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(scan("0," + std::string(310, '0') + "123456"), 1.23456e-311) << "between the two";
}

/// The rule as it is written down: from the right, counting from 0.
double byTheRule(const std::string& text, locale_t plain) {
    std::string kept;
    for (const char c : text) {
        if (std::string_view("0123456789.,-").find(c) != std::string_view::npos)
            kept += c;
    }
    if (kept.empty())
        return 0.0;
    char decimal = 0;
    bool seenComma = false;
    bool seenDot = false;
    for (std::size_t position = 0; position < kept.size(); ++position) {
        const char c = kept[kept.size() - 1 - position];
        bool* seen = c == ',' ? &seenComma : c == '.' ? &seenDot : nullptr;
        if (seen == nullptr || *seen)
            continue;
        *seen = true;
        if (position == 2 && decimal == 0)
            decimal = c;
    }
    if (decimal == 0)
        decimal = seenDot && !seenComma ? '.' : ',';
    std::string number;
    for (const char c : kept) {
        if (c == decimal)
            number += '.';
        else if (c != '.' && c != ',')
            number += c;
    }
    return ::strtod_l(number.c_str(), nullptr, plain);
}

TEST(AmountTest, EveryShortTextIsReadByTheRule) {
    constexpr std::string_view kAlphabet = "10.,-";
    constexpr std::size_t kLongest = 7;
    const locale_t plain = ::newlocale(LC_ALL_MASK, "C", nullptr);
    ASSERT_NE(plain, nullptr);
    const Importer importer;
    std::string text;
    // Counts through all texts over the alphabet like an odometer.
    for (bool more = true; more;) {
        const double want = byTheRule(text, plain);
        const double got = importer.scanCurrency(text.c_str());
        ASSERT_EQ(got, want) << '"' << text << '"';
        ASSERT_EQ(std::signbit(got), std::signbit(want)) << '"' << text << '"';
        std::size_t at = 0;
        while (at < text.size() && text[at] == kAlphabet.back())
            text[at++] = kAlphabet.front();
        if (at < text.size())
            text[at] = kAlphabet[kAlphabet.find(text[at]) + 1];
        else
            text += kAlphabet.front();
        more = text.size() <= kLongest;
    }
    ::freelocale(plain);
}

TEST(AmountTest, ReadsTheSameWhateverDecimalMarkTheProgramsLocaleHas) {
    // Under the run with a decimal comma (see TestMain.cpp) this is the point of the whole suite.
    EXPECT_EQ(scan("1234.56"), 1234.56);
    EXPECT_EQ(scan("1234,56"), 1234.56);
    const char* mark = std::localeconv()->decimal_point;
    EXPECT_EQ(scan("0" + std::string(mark) + "25"), 0.25) << "locale's mark: " << mark;
}

} // namespace
