// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/Latin1.h"

#include <gtest/gtest.h>

namespace {

TEST(Latin1Test, LiteralIsConvertedToSingleBytes) {
    EXPECT_STREQ("Ungültiger"_latin1, "Ung\xFCltiger");
    EXPECT_STREQ("äöüÄÖÜß"_latin1, "\xE4\xF6\xFC\xC4\xD6\xDC\xDF");
    EXPECT_STREQ("¡¿ÀÿÞ"_latin1, "\xA1\xBF\xC0\xFF\xDE") << "both halves of the upper range";
}

TEST(Latin1Test, AsciiStaysAsItIs) {
    EXPECT_STREQ("Zeile %d: <br>\n"_latin1, "Zeile %d: <br>\n");
    EXPECT_STREQ(""_latin1, "");
}

} // namespace
