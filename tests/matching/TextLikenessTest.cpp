// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "matching/TextLikeness.h"

#include <gtest/gtest.h>

namespace {

TEST(TextLikeness, IsTheShareOfCommonPairs) {
    EXPECT_EQ(TextLikeness::of("abc", "abc"), 1.0);
    EXPECT_EQ(TextLikeness::of("", ""), 1.0);
    EXPECT_EQ(TextLikeness::of("abc", ""), 0.0);
    EXPECT_EQ(TextLikeness::of("abc", "xyz"), 0.0);
    EXPECT_DOUBLE_EQ(TextLikeness::of("abc", "abd"), 0.5);      // "ab" of "ab bc" and "ab bd"
    EXPECT_DOUBLE_EQ(TextLikeness::of("aaa", "aa"), 2.0 / 3.0); // a pair counts as often as both have it
}

struct LikenessCase {
    const char* a;
    const char* b;
    bool likely;
    const char* why;
};

constexpr LikenessCase kLikenessCases[] = {
    {"stadtwerke", "", true, "one says nothing"},
    {"stadtwerkemusterstadtgmbh", "stadtwerke", true, "cut off"},
    {"rechnung4711", "eref+123rechnung4711", true, "with something before it"},
    {"rechnung4711vom01.06.", "rechnung4711vom02.06.", true, "a sign differs"},
    {"miete", "strom", false, "another thing"},
    {"ab", "xaby", false, "too short to say that one lies in the other"},
};

TEST(TextLikeness, AcceptsOtherWordingsOnly) {
    for (const LikenessCase& row : kLikenessCases) {
        EXPECT_EQ(TextLikeness::isLikely(row.a, row.b), row.likely) << row.why;
        EXPECT_EQ(TextLikeness::isLikely(row.b, row.a), row.likely) << row.why << ", turned round";
    }
}

} // namespace
