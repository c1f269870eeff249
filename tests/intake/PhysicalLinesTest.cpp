// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/PhysicalLines.h"

namespace {

struct Case {
    std::string_view text;
    std::vector<std::string_view> lines;
    LineEnds ends;
    bool endsWithNewline;
    const char* why;
};

TEST(PhysicalLines, TextIsCutAsAPersonCounts) {
    const std::vector<Case> cases = {
        {"", {}, LineEnds::none, false, "no line at all"},
        {"a", {"a"}, LineEnds::none, false, "one line without an end"},
        {"a\n", {"a"}, LineEnds::lf, true, "no empty line behind the last end"},
        {"a\nb", {"a", "b"}, LineEnds::lf, false, "the last line may lack its end"},
        {"\n", {""}, LineEnds::lf, true, "one empty line"},
        {"a\n\n", {"a", ""}, LineEnds::lf, true, "an empty line counts"},
        {"a\r\nb\r\n", {"a", "b"}, LineEnds::crlf, true, "two characters are one end"},
        {"a\rb\r", {"a", "b"}, LineEnds::cr, true, "carriage returns alone"},
        {"a\rb", {"a", "b"}, LineEnds::cr, false, "carriage returns, last line open"},
        {"a\r\nb\nc\n", {"a", "b", "c"}, LineEnds::mixed, true, "both"},
        {"a\rb\nc\n", {"a\rb", "c"}, LineEnds::lf, true, "beside line feeds a return is text"},
        {"a\r\r\nb\r\n", {"a\r", "b"}, LineEnds::crlf, true, "only the last return belongs to the end"},
        {"a\r\nb", {"a", "b"}, LineEnds::crlf, false, "the last line has no end to judge by"},
    };
    for (const Case& c : cases) {
        const PhysicalLines split = LineSplitting::split(c.text);
        EXPECT_EQ(split.lines, c.lines) << c.why;
        EXPECT_EQ(split.ends, c.ends) << c.why;
        EXPECT_EQ(split.endsWithNewline, c.endsWithNewline) << c.why;
    }
}

TEST(PhysicalLines, EndsHaveTheNamesOfTheReports) {
    EXPECT_EQ(LineSplitting::name(LineEnds::none), "none");
    EXPECT_EQ(LineSplitting::name(LineEnds::lf), "lf");
    EXPECT_EQ(LineSplitting::name(LineEnds::crlf), "crlf");
    EXPECT_EQ(LineSplitting::name(LineEnds::cr), "cr");
    EXPECT_EQ(LineSplitting::name(LineEnds::mixed), "mixed");
}

} // namespace
