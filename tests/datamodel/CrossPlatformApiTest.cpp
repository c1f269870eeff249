// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "framework/datamodel_api/CrossPlatformApi.h"

#include <gtest/gtest.h>

namespace {

struct CompareCase {
    const char* a;
    const char* b;
    bool equal;
    const char* why;
};

constexpr CompareCase kComparisons[] = {
    {"qif", "QIF", true, "case of ASCII letters does not count"},
    {"AZaz", "azAZ", true, "first and last letter of either case"},
    {"", "", true, "empty texts"},
    {nullptr, "", true, "null is the empty text"},
    {nullptr, nullptr, true, "both null"},
    {nullptr, "a", false, "null against a text"},
    {"csv", "csvx", false, "one is the start of the other"},
    {"csvx", "csv", false, "the other way round"},
    {"csv", "ssx", false, "different letters"},
    {"@[", "`{", false, "the neighbours of the letters are not folded"},
    {"\xC4", "\xE4", false, "umlauts are not ASCII"},
    {"\xE4", "\xE4", true, "the same byte above ASCII"},
};

TEST(CrossPlatformApi, ComparesWithoutTheCaseOfAsciiLetters) {
    for (const CompareCase& c : kComparisons)
        EXPECT_EQ(CrossPlatformApi::strCmpNoCase(c.a, c.b) == 0, c.equal) << c.why;
}

TEST(CrossPlatformApi, ComparisonOrdersTexts) {
    EXPECT_LT(CrossPlatformApi::strCmpNoCase("A", "b"), 0);
    EXPECT_GT(CrossPlatformApi::strCmpNoCase("b", "A"), 0);
    EXPECT_LT(CrossPlatformApi::strCmpNoCase("csv", "csvx"), 0);
    EXPECT_GT(CrossPlatformApi::strCmpNoCase("\xFF", "a"), 0) << "bytes are unsigned";
}

TEST(CrossPlatformApi, PathsBecomeUtf8) {
    EXPECT_EQ(CrossPlatformApi::fileSystemEncoding(""), "");
    EXPECT_EQ(CrossPlatformApi::fileSystemEncoding("/tmp/Umsatz.csv"), "/tmp/Umsatz.csv");
    EXPECT_EQ(CrossPlatformApi::fileSystemEncoding("M\xFCller \x80\xBF\xC0\xFF"),
              "M\xC3\xBCller \xC2\x80\xC2\xBF\xC3\x80\xC3\xBF");
}

TEST(CrossPlatformApi, EveryByteOfAPathKeepsItsNumberAsCharacter) {
    for (unsigned byte = 0; byte < 256; ++byte) {
        const std::string utf8 = CrossPlatformApi::fileSystemEncoding(std::string(1, static_cast<char>(byte)));
        if (byte < 0x80) {
            EXPECT_EQ(utf8, std::string(1, static_cast<char>(byte)));
            continue;
        }
        ASSERT_EQ(utf8.size(), 2U) << byte;
        EXPECT_EQ((static_cast<unsigned char>(utf8[0]) & 0x1FU) << 6 | (static_cast<unsigned char>(utf8[1]) & 0x3FU),
                  byte);
    }
}

} // namespace
