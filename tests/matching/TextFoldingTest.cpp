// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "matching/TextFolding.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    const char* text;
    const char* folded;
    const char* why;
};

constexpr Case kCases[] = {
    {"", "", "nothing"},
    {"Miete Juni", "mietejuni", "blanks and case"},
    {" Miete\tJuni\r\n", "mietejuni", "tabs and line breaks are blanks"},
    {"SVWZ+Rechnung 4711", "svwz+rechnung4711", "signs stay"},
    {"M\xDCLLER & S\xD6HNE", "m\xFCller&s\xF6hne", "umlauts"},
    {"\x8A\x8C\x8E\x9F", "\x9A\x9C\x9E\xFF", "the letters that only Windows-1252 has"},
    {"3 \xD7 4 \xF7 2 \xDF",
     "3\xD7"
     "4\xF7"
     "2\xDF",
     "times, divided by and sharp s are no capitals"},
    {"a\xA0"
     "b\x7F"
     "c",
     "abc", "no-break space and delete"},
};

TEST(TextFolding, LeavesOutWhatBanksChange) {
    for (const Case& row : kCases)
        EXPECT_EQ(TextFolding::of(row.text), row.folded) << row.why;
}

} // namespace
