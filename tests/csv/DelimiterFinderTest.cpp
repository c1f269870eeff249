// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/DelimiterFinder.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

char found(const Lines& lines) {
    DelimiterFinder finder;
    for (const std::string& line : lines)
        finder.scanLine(line.c_str());
    finder.endScan();
    return finder.getBestDelimiter();
}

struct DelimiterCase {
    Lines lines;
    char delimiter;
    const char* why;
};

const DelimiterCase kDelimiterCases[] = {
    {{}, '\0', "no line"},
    {{"a;b;c", "d;e;f", "g;h;i"}, ';', "the same number on every line, the last without a partner"},
    {{"a;b;c", "d;e;f"}, ';', "the same number on both lines"},
    {{"a,b;c", "d;e,f,g"}, ';', "a comma more on the second line"},
    {{"a b,c", "d e", "f g", "h i"}, ' ', "no candidate is even, the blank is"},
    {{"a,b;c;d"}, ';', "one line: its most frequent candidate"},
    {{"x y z-w"}, ' ', "one line without a candidate: its most frequent other character"},
    {{"a,b;c"}, ',', "a tie: the comma is the likelier"},
    {{"a;b,c", "d;e,f"}, ',', "a tie, wherever it stands"},
    {{"a;b;c,d", "a;b;c,d"}, ';', "the more frequent candidate"},
    {{"a b c d,e", "f g h i,j"}, ',', "a rare candidate before a frequent other character"},
    {{"", "a;b", "", "c;d", ""}, ';', "empty lines count for nothing"},

    {{"a,b", "c,d,e", "f,g", "h,i"}, '\0', "uneven once, it never comes back"},
    {{"a;b;c", "d;e", "f;g", "h;i;j"}, '\0', "uneven once, though a later pair makes up for it"},
    {{"a;b", "c;d", "e;f;g", "h;i;j"}, ';', "lines are compared in pairs, not with the first"},
    {{"a;b", "c;d", "e;f;g"}, '\0', "a last line without a partner is compared with the first"},
    {{"a;b", "c;d;e", "f;g"}, '\0', "uneven in the first pair, even with the first line in the end"},
    {{"a;b", "c;d", "e"}, '\0', "a last line without any"},
    {{"a;b", "c"}, '\0', "a second line without any"},
    {{"a b", "c;d e", "f;g h", "i;j k"}, ' ', "what the first line has not is never found"},

    {{"aaa1", "aaa1"}, '\0', "letters and digits never separate"},
    {{"AZaz09", "AZaz09"}, '\0', "nor those at the ends of their ranges"},
    {{"a b\r", "c d\r"}, '\r', "a tie of others: the lowest code, control characters included"},
    {{"a\x01"
      "b",
      "c\x01"
      "d"},
     '\x01',
     "a control character"},
    {{"a~b", "c~d"}, '~', "the last code that is counted"},
    {{"a\x7F"
      "b",
      "c\x7F"
      "d"},
     '\0',
     "the first code that is not"},
    {{"a\x80"
      "b",
      "c\x80"
      "d"},
     '\0',
     "bytes of Latin-1"},
    {{"a\xFF"
      "b",
      "c\xFF"
      "d"},
     '\0',
     "the last byte"},
    {{"\xFC;\xFC", "\xFC;\xFC"}, ';', "between bytes of Latin-1"},
    {{"\"a;b\",c", "d,e"}, ',', "quotes mean nothing here: the quoted semicolon is uneven"},
};

TEST(DelimiterFinder, FindsWhatOccursEquallyOftenOnEveryLine) {
    for (const DelimiterCase& c : kDelimiterCases)
        EXPECT_EQ(static_cast<int>(found(c.lines)), static_cast<int>(c.delimiter)) << c.why;
}

TEST(DelimiterFinder, PrefersTheLikelierCandidateOnATie) {
    constexpr std::string_view kLikeliestFirst = ",;|\t#/:\\";
    for (std::size_t better = 0; better < kLikeliestFirst.size(); ++better) {
        for (std::size_t worse = better + 1; worse < kLikeliestFirst.size(); ++worse) {
            const std::string line = {'a', kLikeliestFirst[worse], 'b', kLikeliestFirst[better], 'c'};
            EXPECT_EQ(found({line, line}), kLikeliestFirst[better]) << line;
        }
    }
}

TEST(DelimiterFinder, TakesAWorseCandidateThatIsMoreFrequent) {
    constexpr std::string_view kLikeliestFirst = ",;|\t#/:\\";
    for (std::size_t i = 1; i < kLikeliestFirst.size(); ++i) {
        const std::string line = {kLikeliestFirst[i], 'a', kLikeliestFirst[i - 1], 'b', kLikeliestFirst[i]};
        EXPECT_EQ(found({line, line}), kLikeliestFirst[i]) << line;
    }
}

TEST(DelimiterFinder, TakesEveryOtherCodeButLettersAndDigits) {
    for (int code = 1; code < 256; ++code) {
        const char c = static_cast<char>(code);
        const bool isLetterOrDigit = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        const bool eligible = code < 127 && !isLetterOrDigit;
        EXPECT_EQ(static_cast<int>(found({{c}, {c}})), eligible ? code : 0) << code;
    }
}

TEST(DelimiterFinder, PrefersTheLowerCodeOnATieOfOthers) { EXPECT_EQ(found({"a!b$c-d", "e-f$g!h"}), '!'); }

TEST(DelimiterFinder, TakesTheMoreFrequentOfOthers) { EXPECT_EQ(found({"a!b-c-d", "e-f-g!h"}), '-'); }

TEST(DelimiterFinder, IgnoresNoLineAtAll) {
    DelimiterFinder finder;
    finder.scanLine(nullptr);
    finder.scanLine("");
    EXPECT_EQ(finder.getBestDelimiter(), '\0');
    finder.endScan();
    EXPECT_EQ(finder.getBestDelimiter(), '\0');

    finder.scanLine("a;b");
    finder.scanLine(nullptr);
    finder.scanLine("");
    finder.scanLine("c;d");
    finder.endScan();
    EXPECT_EQ(finder.getBestDelimiter(), ';');
}

TEST(DelimiterFinder, JudgesALoneLastLineOnlyAtTheEnd) {
    DelimiterFinder finder;
    for (const char* line : {"a;b", "c;d", "e"})
        finder.scanLine(line);
    EXPECT_EQ(finder.getBestDelimiter(), ';');
    finder.endScan();
    EXPECT_EQ(finder.getBestDelimiter(), '\0');
}

TEST(DelimiterFinder, HasNothingLeftToJudgeBehindAPair) {
    DelimiterFinder finder;
    for (const char* line : {"a;b", "c;d", "e;f;g", "h;i;j"})
        finder.scanLine(line);
    finder.endScan();

    EXPECT_EQ(finder.getBestDelimiter(), ';');
}

TEST(DelimiterFinder, StartsAfreshOnceCleared) {
    DelimiterFinder finder;
    finder.scanLine("a,b,c,d");
    finder.clear();
    EXPECT_EQ(finder.getBestDelimiter(), '\0');
    finder.endScan(); // no line, nothing to judge
    finder.scanLine("a;b");
    finder.scanLine("c;d");
    finder.endScan();

    EXPECT_EQ(finder.getBestDelimiter(), ';');
}

} // namespace
