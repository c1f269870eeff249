// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "differential/Generator.h"
#include "differential/PlainDate.h"
#include "support/SmartDateFixture.h"

namespace {

class DatesByChance {
public:
    std::string next() {
        switch (m_chance.below(8)) {
        case 0:
            return m_chance.text("0123456789./-' ,x", 14);
        case 1:
            return m_chance.bytes(12);
        case 2: // the ends of every range
            return number({"0", "1", "12", "13", "28", "29", "30", "31", "32"}) + separator() +
                   number({"0", "1", "2", "02", "4", "12", "13", "31"}) + separator() +
                   number({"0", "00", "000", "0000", "1", "30", "31", "99", "100", "1900", "2000", "9999", "10000"});
        case 3: // beyond an int
            return number({"2147483647", "2147483648", "4294967297", "99999999999999999999"}) + separator() + "1" +
                   separator() + number({"2004", "2147483648", "04"});
        default:
            return blanks() + std::to_string(m_chance.below(32)) + separator() + blanks() +
                   std::to_string(m_chance.below(m_chance.onceIn(3) ? 32 : 13)) + separator() + blanks() + year() +
                   (m_chance.onceIn(10) ? separator() + m_chance.digits(4) : std::string());
        }
    }

    Generator& chance() { return m_chance; }

private:
    std::string number(std::initializer_list<std::string_view> choices) { return std::string(m_chance.oneOf(choices)); }
    std::string separator() { return std::string(1, m_chance.onceIn(20) ? ' ' : m_chance.oneOf("..//-'")); }
    std::string blanks() { return m_chance.onceIn(8) ? " " : ""; }
    std::string year() {
        switch (m_chance.below(4)) {
        case 0:
            return std::to_string(1990 + m_chance.below(40));
        case 1:
            return std::to_string(m_chance.below(11000));
        default:
            return m_chance.digits(m_chance.onceIn(6) ? 3 : 2);
        }
    }

    Generator m_chance{20260401};
};

class DateDifferential : public SmartDateFixture {
protected:
    static std::string dateOf(const SmartDate& date) {
        const DMDate read = date.getDate();
        return std::to_string(read.day()) + ' ' + std::to_string(read.month()) + ' ' + std::to_string(read.year());
    }
};

TEST_F(DateDifferential, DatesAreReadByTheRules) {
    DatesByChance dates;
    Generator& chance = dates.chance();
    const int count = Generator::count(150000);
    int valid = 0;
    std::array<int, 3> learned{};
    for (int i = 0; i < count;) {
        PlainDate::Shared shared;
        shared.order = chance.onceIn(3) ? static_cast<int>(chance.below(4)) : 0;
        shared.window = chance.onceIn(4) ? static_cast<int>(chance.below(120)) : 30;
        SmartDate::sm_order = shared.order;
        SmartDate::sm_CenturyWindowStart = static_cast<unsigned short>(shared.window);
        SmartDate fast;
        PlainDate plain(shared);
        shared.qif = SmartDate::m_useQIFSyntax = chance.onceIn(2);
        std::string before;
        for (std::size_t length = 1 + chance.below(8); length > 0; --length, ++i) {
            const std::string text = dates.next();
            before += '\n' + text;
            ASSERT_EQ(plain.parse(text), fast.parse(text.c_str())) << before;
            ASSERT_EQ(plain.isValid(), fast.isValid()) << before;
            ASSERT_EQ(plain.date(), dateOf(fast)) << before;
            ASSERT_EQ(plain.asString(), fast.asString()) << before;
            ASSERT_EQ(shared.order, SmartDate::sm_order) << before;
            valid += plain.isValid() ? 1 : 0;
            if (!chance.onceIn(8)) { // an object used again without that keeps what it had
                plain.clear();
                fast.clear();
            }
        }
        if (shared.order < 3)
            ++learned[static_cast<std::size_t>(shared.order)];
    }
    EXPECT_GT(valid, count / 10);
    for (const int files : learned)
        EXPECT_GT(files, count / 100) << "no order comes up too seldom";
}

} // namespace
