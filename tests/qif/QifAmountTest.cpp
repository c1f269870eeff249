// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "qif/ImportModuleQIF.h"

namespace {

TEST(QifAmount, IsTheNumberAtTheStartWithoutCommas) {
    const struct {
        const char* text;
        double amount;
        const char* left;
        const char* why;
    } cases[] = {
        {"1,234.56", 1234.56, "1234.56", "commas group"},
        {"12,50", 1250.0, "1250", "a comma is never a decimal mark"},
        {"-1,234,567.89", -1234567.89, "-1234567.89", "every comma goes"},
        {"+7.5", 7.5, "+7.5", "a sign ahead"},
        {"  12", 12.0, "  12", "blanks ahead"},
        {"12.5 EUR", 12.5, "12.5 EUR", "what does not belong to the number ends it"},
        {"1.2.3", 1.2, "1.2.3", "so does a second mark"},
        {"12-", 12.0, "12-", "a sign behind is not read"},
        {"1e3", 1000.0, "1e3", "an exponent is read"},
        {".5", 0.5, ".5", "no digit ahead of the mark"},
        {"5.", 5.0, "5.", "no digit behind it"},
        {"EUR 5", 0.0, "EUR 5", "no number at the start"},
        {"--5", 0.0, "--5", "two signs are no number"},
        {",", 0.0, "", "a comma alone"},
        {"", 0.0, "", "nothing"},
    };
    for (const auto& c : cases) {
        std::string text = c.text;
        EXPECT_DOUBLE_EQ(ImportModuleQIF::qifCurrencytoDouble(text), c.amount) << c.why;
        EXPECT_EQ(text, c.left) << c.why;
    }
}

TEST(QifAmount, OfAnyLengthIsSafe) {
    std::string text = std::string(5000, '9') + "," + std::string(5000, '9');
    EXPECT_TRUE(std::isinf(ImportModuleQIF::qifCurrencytoDouble(text)));
    EXPECT_EQ(text.size(), 10000U);
}

} // namespace
