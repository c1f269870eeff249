// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileCensus.h"

#include <gmock/gmock.h>

#include "support/TemporaryFile.h"

namespace {

using namespace std::string_literals;

FileCensus census(const std::string& bytes) { return FileCensus::of(TemporaryFile(bytes).path()); }

using Numbers = std::vector<std::size_t>;

TEST(FileCensus, BlankLinesHoldBlanksAndTabsAlone) {
    const FileCensus found = census("a\n\n \t \n\r\n \tb\n");
    EXPECT_EQ(found.lines(), 5U);
    EXPECT_EQ(found.blankLines(), 2U);
    EXPECT_EQ(found.readLines(), 3U) << "a carriage return alone is content";
}

TEST(FileCensus, ReadLinesAreFoundBetweenTheBlankOnes) {
    const FileCensus found = census("\na\n\n\nb\nc\n\n");
    EXPECT_EQ(found.readLine(1), 2U);
    EXPECT_EQ(found.readLine(2), 5U);
    EXPECT_EQ(found.readLine(3), 6U);
    EXPECT_EQ(census("a\nb\n").readLine(2), 2U);
}

TEST(FileCensus, LineThatStartsWithANulByteIsNotReadAndNotBlank) {
    const FileCensus found = census("a\n \0b\nc\n\0"s);
    EXPECT_EQ(found.lines(), 4U);
    EXPECT_EQ(found.blankLines(), 0U);
    EXPECT_EQ(found.readLines(), 2U);
    EXPECT_EQ(found.readLine(2), 3U);
    EXPECT_EQ(found.withNul(), Numbers({2, 4}));
}

TEST(FileCensus, OddNumbersOfQuotesAreNoted) {
    EXPECT_EQ(census("\"a\"\n\"a\nb\"\"\n\"\"\"\n").withOpenQuote(), Numbers({2, 4}));
}

TEST(FileCensus, LongestLineIs4094Bytes) {
    EXPECT_FALSE(census(std::string(4094, 'x') + "\n").tooLong());
    const auto line = census("a\n" + std::string(4094, 'x') + "\r\n" + std::string(9000, 'x')).tooLong();
    ASSERT_TRUE(line);
    EXPECT_EQ(line->line, 2U) << "the first one";
    EXPECT_EQ(line->bytes, 4095U) << "a carriage return counts";
}

TEST(FileCensus, LinesAcrossBlocksAreOneLine) {
    const std::string blanks(65536 - 1, ' ');
    EXPECT_EQ(census(blanks + " \n").blankLines(), 1U);
    EXPECT_EQ(census(blanks + " x\n").blankLines(), 0U);
    EXPECT_EQ(census(blanks + "\" \"\n").withOpenQuote(), Numbers());
    EXPECT_EQ(census(blanks + "\" \n").withOpenQuote(), Numbers({1}));
    EXPECT_EQ(census(blanks + " \0x\n"s).readLines(), 0U);
}

TEST(FileCensus, EmptyFileHasNoLines) {
    EXPECT_EQ(census("").lines(), 0U);
    EXPECT_EQ(census("").readLines(), 0U);
}

TEST(FileCensus, LastLineWithContentIsKnown) {
    const auto last = [](const std::string& bytes) {
        const FileCensus::LastContent content = census(bytes).lastContent();
        return std::to_string(content.line) + (content.line != 0 ? std::string(1, content.first) : "");
    };
    EXPECT_EQ(last(""), "0");
    EXPECT_EQ(last("\n \n"), "0");
    EXPECT_EQ(last("a\n \t^\n\n"), "2^");
    EXPECT_EQ(last("a\nxyz"), "2x");
}

} // namespace
