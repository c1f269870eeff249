// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "csv/DelimiterFinder.h"
#include "differential/Generator.h"
#include "differential/PlainLines.h"

namespace {

/// Files whose lines are mostly of one pattern, which is what makes a delimiter.
class FilesByChance {
public:
    std::vector<std::string> next() {
        const std::string_view alphabet = m_chance.oneOf({"a;,", "ab;,|\t#/:\\", "a !~\x7F\xFC", "a;\" ", "aZ0'\x01"});
        const std::string pattern = m_chance.onceIn(8) ? m_chance.bytes(8) : m_chance.text(alphabet, 8);
        const std::size_t changed = 2 + m_chance.below(12);
        std::vector<std::string> lines;
        for (std::size_t count = m_chance.below(8); count > 0; --count) {
            std::string line = pattern;
            if (m_chance.onceIn(changed))
                line = m_chance.text(alphabet, 8);
            else
                swapTwo(line);
            lines.push_back(line);
        }
        return lines;
    }

private:
    /// The same characters in another order are the same to the finder.
    void swapTwo(std::string& line) {
        if (!line.empty())
            std::swap(line[m_chance.below(line.size())], line[m_chance.below(line.size())]);
    }

    Generator m_chance{20260404};
};

TEST(DelimiterDifferential, DelimitersAreFoundByTheRules) {
    FilesByChance files;
    const int count = Generator::count(150000);
    int found = 0;
    for (int i = 0; i < count; ++i) {
        const std::vector<std::string> lines = files.next();
        DelimiterFinder finder;
        for (const std::string& line : lines)
            finder.scanLine(line.c_str());
        finder.endScan();
        const char expected = PlainLines::bestDelimiter(lines);
        ASSERT_EQ(static_cast<int>(expected), static_cast<int>(finder.getBestDelimiter()))
            << testing::PrintToString(lines);
        found += expected != '\0' ? 1 : 0;
    }
    EXPECT_GT(found, count / 5);
    EXPECT_GT(count - found, count / 10);
}

} // namespace
