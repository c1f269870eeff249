// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/DMStringFunctions.h"

#include <gtest/gtest.h>

namespace {

struct StripCase {
    const char* text;
    const char* leading;
    const char* trailing;
    const char* both;
    const char* why;
};

constexpr StripCase kStrips[] = {
    {"", "", "", "", "nothing to strip"},
    {"  a b  ", "a b  ", "  a b", "a b", "blanks inside stay"},
    {"a", "a", "a", "a", "nothing at the ends"},
    {"   ", "", "", "", "nothing else"},
    {" ", "", "", "", "one blank"},
    {"\t a", "\t a", "\t a", "\t a", "another character guards the blank"},
    {"a ", "a ", "a", "a", "at the end only"},
    {" a", "a", " a", "a", "at the start only"},
};

TEST(DMStringFunctions, StripsTheEndsThatTheTypeNames) {
    for (const StripCase& c : kStrips) {
        EXPECT_EQ(DMStringFunctions::strip(c.text, DMStringFunctions::eStripLeading, ' '), c.leading) << c.why;
        EXPECT_EQ(DMStringFunctions::strip(c.text, DMStringFunctions::eStripTrailing, ' '), c.trailing) << c.why;
        EXPECT_EQ(DMStringFunctions::strip(c.text, DMStringFunctions::eStripBoth, ' '), c.both) << c.why;
    }
}

TEST(DMStringFunctions, StripsNothingButTheCharacterGiven) {
    EXPECT_EQ(DMStringFunctions::strip("\"\"x\"", DMStringFunctions::eStripBoth, '"'), "x");
    EXPECT_EQ(DMStringFunctions::strip(" x ", DMStringFunctions::eStripBoth, 'x'), " x ");
    EXPECT_EQ(DMStringFunctions::strip("\xE4x\xE4", DMStringFunctions::eStripBoth, '\xE4'), "x");
}

TEST(DMStringFunctions, StripTypeTwoMeansBothEnds) {
    EXPECT_EQ(DMStringFunctions::strip("--x--", static_cast<DMStringFunctions::StripType>(2), '-'), "x");
}

} // namespace
