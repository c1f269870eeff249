// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/TextWidth.h"

#include <gmock/gmock.h>

namespace {

TEST(TextWidth, CountsColumnsAndNotBytes) {
    EXPECT_EQ(TextWidth::of(""), 0U);
    EXPECT_EQ(TextWidth::of("Größe €"), 7U);
    EXPECT_EQ(TextWidth::of("日本"), 4U) << "two columns each";
    EXPECT_EQ(TextWidth::of("a\u0308"), 1U) << "a mark takes none";
    EXPECT_EQ(TextWidth::of("\U0001F600"), 2U);
    EXPECT_EQ(TextWidth::of("␛…"), 2U);
}

TEST(TextWidth, CutTextsEndInAnEllipsis) {
    EXPECT_EQ(TextWidth::fitted("Müller", 6), "Müller");
    EXPECT_EQ(TextWidth::fitted("Müller", 5), "Müll…");
    EXPECT_EQ(TextWidth::fitted("Müller", 1), "…");
    EXPECT_EQ(TextWidth::fitted("Müller", 0), "");
    EXPECT_EQ(TextWidth::fitted("日本語", 4), "日…") << "half a character does not fit";
    EXPECT_EQ(TextWidth::fitted("日本語", 5), "日本…");
}

} // namespace
