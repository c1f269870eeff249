// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "export/FlatText.h"

#include <gtest/gtest.h>

namespace {

std::string flat(std::string_view text, const FlatText::Rules& rules, bool changes = true) {
    std::string out;
    EXPECT_EQ(FlatText::append(out, text, rules), changes) << text;
    return out;
}

constexpr FlatText::Rules kCollapsing = {";|", ",/", true};
constexpr FlatText::Rules kLine = {"\r\n", "  ", false};

TEST(FlatText, CharactersOfTheFormatAreReplaced) {
    EXPECT_EQ(flat("a;b|c", kCollapsing), "a,b/c");
    EXPECT_EQ(flat("a;b|c", kLine, false), "a;b|c");
}

TEST(FlatText, BlanksOfAllKindsBecomeOne) {
    EXPECT_EQ(flat("  a \t\xA0\n b\x1B\x81 ", kCollapsing), "a b");
    EXPECT_EQ(flat("a b", kCollapsing, false), "a b");
    EXPECT_EQ(flat(" \xA0\t", kCollapsing), "");
}

TEST(FlatText, WithoutCollapsingOnlyTheEndsAreTaken) {
    EXPECT_EQ(flat(" a  b\r\nc\t", kLine), "a  b  c");
    EXPECT_EQ(flat("", kLine, false), "");
}

TEST(FlatText, TextsBecomeUtf8) { EXPECT_EQ(flat("\xE4\x80", kLine, false), "\xC3\xA4\xE2\x82\xAC"); }

} // namespace
