// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "store/StoreDate.h"

namespace {

std::string written(const DMDate& date) {
    std::string text(StoreDate::kLength, ' ');
    StoreDate::write(text.data(), date);
    return text;
}

} // namespace

TEST(StoreDate, DatesAreIsoTextBothWays) {
    struct Case {
        DMDate date;
        const char* text;
    };
    const Case cases[] = {
        {DMDate(31, 12, 2004), "2004-12-31"}, {DMDate(1, 2, 3), "0003-02-01"}, {DMDate(29, 2, 2000), "2000-02-29"},
        {DMDate(31, 12, 9999), "9999-12-31"}, {DMDate(), "0000-00-00"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.text, written(c.date));
        EXPECT_EQ(c.date, StoreDate::read(c.text)) << c.text;
    }
}

TEST(StoreDate, OtherTextsAreNoDates) {
    for (const char* text : {"", "2004-12-3", "2004-12-311", "2004-02-30", "1900-02-29", "0000-01-01", "2004-13-01",
                             "2004-00-01", "2004-01-00", "2004-1a-01", "20o4-01-01", "2004-01-0x", "2004/01/01",
                             "2004-01/01", "31.12.2004", " 2004-1-01"})
        EXPECT_FALSE(StoreDate::read(text)) << text;
}
