// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/stripQuotes.h"

#include <gtest/gtest.h>

namespace {

struct QuoteCase {
    const char* text;
    const char* stripped;
    const char* why;
};

constexpr QuoteCase kQuoteCases[] = {
    {"\"abc\"", "abc", "quotes at both ends"},
    {"abc\"", "abc\"", "a quote at the end alone"},
    {"\"abc", "\"abc", "a quote at the start alone"},
    {"abc", "abc", "no quotes"},
    {"", "", "an empty text"},
    {"\"\"", "", "nothing between quotes"},
    {"\"", "", "a single quote is both ends at once"},
    {"\"\"\"", "\"", "a quote between quotes"},
    {"\"a\"\"b\"", "a\"\"b", "doubled quotes stay"},
    {"\"a\"b\"", "a\"b", "quotes inside stay"},
    {" \"a\"", " \"a\"", "a blank before the quote"},
    {"a", "a", "one character"},
    {"\"\xFC\"", "\xFC", "a byte of Latin-1"},
};

TEST(StripQuotes, TakesOffAPairOfQuotesAroundTheText) {
    for (const QuoteCase& c : kQuoteCases)
        EXPECT_EQ(stripQuotes(c.text), c.stripped) << c.text << " - " << c.why;
}

} // namespace
