// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <bit>
#include <cmath>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "differential/Generator.h"
#include "differential/PlainAmount.h"
#include "dmwrite/ImportIntoDMHelper.h"

namespace {

/// The library's conversions, without an import around them.
class Conversions : public ImportIntoDMHelper {};

class AmountsByChance {
public:
    std::string next() {
        switch (m_chance.below(8)) {
        case 0:
            return m_chance.text("0123456789.,- ", 16);
        case 1:
            return m_chance.text(".,-0", 8);
        case 2:
            return m_chance.bytes(12);
        case 3: // as long as it takes to be too large, too small or hard to round
            return sign() + m_chance.digits(400) + mark() + m_chance.digits(400);
        case 4:
            return sign() + std::string(m_chance.below(340), '0') + mark() + std::string(m_chance.below(340), '0') +
                   m_chance.digits(20);
        default:
            return sign() + grouped() + (m_chance.onceIn(4) ? "" : mark() + m_chance.digits(3)) +
                   std::string(m_chance.oneOf({"", "", "", "-", " EUR", " S"}));
        }
    }

private:
    std::string mark() { return std::string(1, m_chance.oneOf(",.")); }
    std::string sign() { return std::string(m_chance.oneOf({"", "", "-", "+", "- ", "--", "EUR "})); }
    std::string grouped() {
        std::string text = m_chance.digits(3);
        const std::string group = std::string(m_chance.oneOf({",", ".", " ", "'", ""}));
        for (std::size_t i = m_chance.below(5); i > 0; --i)
            text += group + std::to_string(100 + m_chance.below(900));
        return text;
    }

    Generator m_chance{20260402};
};

TEST(AmountDifferential, AmountsAreReadByTheRules) {
    const Conversions conversions;
    AmountsByChance amounts;
    const int count = Generator::count(150000);
    int zeros = 0;
    int infinities = 0;
    int negatives = 0;
    for (int i = 0; i < count; ++i) {
        const std::string text = amounts.next();
        const double expected = plainAmount(text);
        const double read = conversions.scanCurrency(text.c_str());
        ASSERT_EQ(std::bit_cast<std::uint64_t>(expected), std::bit_cast<std::uint64_t>(read))
            << testing::PrintToString(text) << " is " << expected << ", not " << read;
        zeros += expected == 0.0 ? 1 : 0;
        infinities += std::isinf(expected) ? 1 : 0;
        negatives += expected < 0.0 ? 1 : 0;
    }
    EXPECT_LT(zeros, count / 2);
    EXPECT_GT(infinities, count / 1000);
    EXPECT_GT(negatives, count / 20);
}

} // namespace
