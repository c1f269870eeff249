// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "csv/SplittingModule.h"
#include "differential/Generator.h"
#include "differential/PlainLines.h"

namespace {

constexpr std::string_view kDelimiters = ";,|\t #a\xFC";

class LinesByChance {
public:
    std::string next(char delimiter) {
        std::string line;
        const std::size_t fields = fieldCount();
        for (std::size_t i = 0; i < fields; ++i) {
            if (i > 0)
                line += delimiter;
            line += field(delimiter);
        }
        return line;
    }
    Generator& chance() { return m_chance; }

private:
    /// The widths that matter: few, those of the fixed layout, those at the limit.
    std::size_t fieldCount() {
        switch (m_chance.below(4)) {
        case 0:
            return 20 + m_chance.below(3);
        case 1:
            return 47 + m_chance.below(6);
        default:
            return 1 + m_chance.below(7);
        }
    }
    std::string field(char delimiter) {
        const std::string plain = m_chance.text("ab 1\r'", 4);
        switch (m_chance.below(12)) {
        case 0:
            return '"' + plain + delimiter + plain + '"';
        case 1:
            return '"' + plain + "\"\"" + plain + '"';
        case 2:
            return m_chance.text("a\"", 5);
        case 3:
            return m_chance.bytes(4);
        case 4:
            return '"' + plain + '"';
        default:
            return plain;
        }
    }

    Generator m_chance{20260403};
};

template <typename Row>
void expectSplit(const PlainLines::Split& expected, const std::string& line, char delimiter) {
    SplittingModule<Row> module;
    module.m_delimiter = delimiter;
    EXPECT_EQ(expected.fields, module.split(line)) << testing::PrintToString(line) << " at " << delimiter;
    const std::string& error = module.m_errorMsg;
    EXPECT_EQ(expected.error.empty(), error.empty()) << error;
    EXPECT_TRUE(error.ends_with(expected.error)) << error;
}

TEST(SplittingDifferential, LinesAreSplitByTheRules) {
    LinesByChance lines;
    const int count = Generator::count(60000);
    int refused = 0;
    for (int i = 0; i < count && !testing::Test::HasFailure(); ++i) {
        const char delimiter = lines.chance().oneOf(kDelimiters);
        const std::string line = lines.next(delimiter);
        expectSplit<UnknownRowInfo>(PlainLines::splitAnyWidth(line, delimiter), line, delimiter);
        const auto fixed = PlainLines::splitFixedWidth(line, delimiter, ImportDataSetStartMoney::kColumns);
        expectSplit<ImportDataSetStartMoney>(fixed, line, delimiter);
        refused += fixed.error.empty() ? 0 : 1;
    }
    EXPECT_LT(refused, count * 99 / 100);
    EXPECT_GT(refused, count / 2);
}

} // namespace
