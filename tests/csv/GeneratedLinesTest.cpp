// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "csv/DelimiterFinder.h"
#include "csv/SlowCsv.h"
#include "csv/SplittingModule.h"
#include "csv/UnknownRowInfo.h"

// Lines by the thousand, the same in every run, against the slow reading of the
// same rules.
namespace {

using ::testing::ElementsAreArray;

class Generator {
public:
    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(m_random()) % limit; }

    std::string text(std::string_view alphabet, std::size_t longest) {
        std::string text(below(longest + 1), ' ');
        for (char& c : text)
            c = alphabet[below(alphabet.size())];
        return text;
    }

private:
    std::mt19937 m_random{20260101};
};

TEST(GeneratedLines, AreSplitByTheRules) {
    constexpr std::string_view kAlphabet = "ab\"\";;,\t \r\xFC";
    Generator generator;
    std::size_t fields = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::string line = generator.text(kAlphabet, i % 10 == 0 ? 400 : 24);
        for (const char delimiter : {';', ',', '\t', '\xFC'}) {
            SplittingModule<UnknownRowInfo> module;
            module.m_delimiter = delimiter;
            const std::vector<std::string> expected = SlowCsv::split(line, delimiter);
            ASSERT_THAT(module.split(line), ElementsAreArray(expected)) << "line " << i << ": " << line;
            fields += expected.size();
        }
    }
    EXPECT_GT(fields, 200000U); // the lines are worth splitting
}

TEST(GeneratedLines, TellTheirDelimiterByTheRules) {
    constexpr std::string_view kAlphabets[] = {"a;,", "ab;,|\t#/:\\", "a !~\x7F\xFC", "a;\" "};
    Generator generator;
    int found = 0;
    int notFound = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::string_view alphabet = kAlphabets[generator.below(std::size(kAlphabets))];
        std::vector<std::string> lines;
        const std::string base = generator.text(alphabet, 6);
        for (std::size_t count = generator.below(7); count > 0; --count)
            lines.push_back(generator.below(3) == 0 ? generator.text(alphabet, 6) : base); // many lines alike
        DelimiterFinder finder;
        for (const std::string& line : lines)
            finder.scanLine(line.c_str());
        finder.endScan();
        const char expected = SlowCsv::bestDelimiter(lines);
        ASSERT_EQ(static_cast<int>(finder.getBestDelimiter()), static_cast<int>(expected))
            << "file " << i << ": " << ::testing::PrintToString(lines);
        ++(expected != '\0' ? found : notFound);
    }
    EXPECT_GT(found, 2000);
    EXPECT_GT(notFound, 2000);
}

} // namespace
