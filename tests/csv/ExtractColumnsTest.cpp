// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "csv/SplittingModule.h"
#include "csv/UnknownRowInfo.h"

namespace {

using Fields = std::vector<std::string>;
using Module = SplittingModule<UnknownRowInfo>;
using ::testing::Each;
using ::testing::ElementsAreArray;
using ::testing::IsNull;

struct LineCase {
    const char* line;
    Fields fields;
    const char* why;
};

const LineCase kLineCases[] = {
    {"", {""}, "an empty line is one empty field"},
    {"a", {"a"}, "no delimiter"},
    {"a;b;c", {"a", "b", "c"}, "three fields"},
    {"a;", {"a", ""}, "a delimiter at the end begins a field"},
    {";a", {"", "a"}, "a delimiter at the start ends one"},
    {";", {"", ""}, "nothing but a delimiter"},
    {"a;;b", {"a", "", "b"}, "an empty field between"},
    {" a ; b ", {" a ", " b "}, "blanks belong to the field"},
    {"a,b\tc|d", {"a,b\tc|d"}, "other separators are content"},
    {"M\xFCller;\xE4\xF6\xDF", {"M\xFCller", "\xE4\xF6\xDF"}, "bytes of Latin-1 pass through"},
    {"a;b\r", {"a", "b\r"}, "a carriage return belongs to the last field"},

    {"\"a\"", {"a"}, "quotes around a field go"},
    {"\"a\";\"b\"", {"a", "b"}, "a delimiter behind a closing quote separates"},
    {"\"a;b\";c", {"a;b", "c"}, "a delimiter inside quotes is content"},
    {"\"\"", {""}, "nothing inside quotes"},
    {"\"\";x", {"", "x"}, "nothing inside quotes, then a field"},
    {"\"a\"\"b\"", {"a\"b"}, "a doubled quote is one quote"},
    {"\"\"\"\"", {"\""}, "a doubled quote alone"},
    {"\"a\"\"\";b", {"a\"", "b"}, "a doubled quote before the closing one"},
    {"x\"ab\"c", {"abc"}, "what stands before the first quote goes"},
    {"\"ab\"c", {"abc"}, "what stands behind a closing quote stays"},
    {"\"a\"b\"c\"", {"abc"}, "quotes in the middle disappear"},
    {"\"a\" ;b", {"a ", "b"}, "a blank behind the closing quote stays"},
    {" \"a\";b", {"a", "b"}, "a blank before the opening quote goes"},
    {"a;x\"b;c\"d;e", {"a", "b;cd", "e"}, "text on both sides of quotes"},
    {"\"b\"\r", {"b\r"}, "a carriage return behind a closing quote stays"},

    {"\"a;b;c", {"a;b;c"}, "an open quote swallows the rest of the line"},
    {"a;\"b;c", {"a", "b;c"}, "an open quote in a later field"},
    {"a\"b;c", {"b;c"}, "an open quote inside a field"},
    {"\"", {""}, "a quote alone"},
    {"a\"", {""}, "a quote at the end drops the text before it"},
    {"a\";b", {";b"}, "an odd quote at a field's end opens"},
    {"\"\"\"", {"\""}, "an odd trailing quote: the second keeps the third"},
    {"\"a\"\"", {"a\""}, "an odd trailing quote behind a text"},
    {"\"a\"\";b", {"a\";b"}, "a doubled quote that leaves the field open"},
};

TEST(ExtractColumns, SplitsAndUnquotesALine) {
    for (const LineCase& c : kLineCases) {
        Module module;
        module.m_delimiter = ';';
        EXPECT_THAT(module.split(c.line), ElementsAreArray(c.fields)) << c.line << " - " << c.why;
        EXPECT_EQ(module.m_errorMsg, "") << c.line;
    }
}

TEST(ExtractColumns, UsesACommaUnlessTold) {
    Module module;

    EXPECT_THAT(module.split("a,b;c"), ElementsAreArray({"a", "b;c"}));
}

TEST(ExtractColumns, KeepsAQuotedDecimalCommaInOneColumn) {
    Module module;

    EXPECT_THAT(module.split("\"1,5\""), ElementsAreArray({"1,5"}));
}

TEST(ExtractColumns, TakesAnyByteAsDelimiter) {
    struct {
        char delimiter;
        const char* line;
    } const cases[] = {{'|', "a|b"},
                       {'\t', "a\tb"},
                       {' ', "a b"},
                       {'a', "aab"},
                       {'\xA7', "a\xA7"
                                "b"}};
    for (const auto& c : cases) {
        Module module;
        module.m_delimiter = c.delimiter;
        const Fields fields = module.split(c.line);
        ASSERT_FALSE(fields.empty());
        EXPECT_EQ(fields.size(), c.delimiter == 'a' ? 3U : 2U) << "delimiter " << static_cast<int>(c.delimiter);
        EXPECT_EQ(fields.back(), "b") << "delimiter " << static_cast<int>(c.delimiter);
    }
}

// The end of the line is looked for first: such a delimiter must not lead beyond it.
TEST(ExtractColumns, AZeroByteAsDelimiterSeparatesNothing) {
    Module module;
    module.m_delimiter = '\0';

    EXPECT_THAT(module.split("a;\"b;\"c"), ElementsAreArray({"b;c"}));
    EXPECT_THAT(module.split(""), ElementsAreArray({""}));
}

TEST(ExtractColumns, AQuoteAsDelimiterSeparatesNothing) {
    Module module;
    module.m_delimiter = '"';

    EXPECT_THAT(module.split("a\"b\"c"), ElementsAreArray({"bc"}));
}

TEST(ExtractColumns, ALineEndsAtItsFirstZeroByte) {
    Module module;
    module.m_delimiter = ';';

    EXPECT_THAT(module.split(std::string("a;\"b\0c;d", 8)), ElementsAreArray({"a", "b"}));
}

TEST(ExtractColumns, AQuoteLeftOpenDoesNotReachIntoTheNextLine) {
    Module module;
    module.m_delimiter = ';';
    module.split("\"a;b");

    EXPECT_THAT(module.split("c;d"), ElementsAreArray({"c", "d"}));
}

TEST(ExtractColumns, PointsIntoTheLine) {
    Module module;
    std::string line = "a,\"b\"";
    module.extractColumns(line.data());

    EXPECT_EQ(module.m_row.m_columns[0], line.data());
    EXPECT_EQ(module.m_row.m_columns[1], line.data() + 3);
}

TEST(ExtractColumns, ForgetsTheFieldsOfTheLineBefore) {
    Module module;
    module.split("a,b,c");
    module.split("d");

    EXPECT_THAT(std::vector<char*>(module.m_row.m_columns + 1, std::end(module.m_row.m_columns)), Each(IsNull()));
}

/// "0;1;2;..." with that many fields.
std::string numbered(int fields) {
    std::string line = "0";
    for (int i = 1; i < fields; ++i)
        line += ";" + std::to_string(i);
    return line;
}

TEST(ExtractColumns, ReadsFortyNineFieldsOfALineOfAnyWidth) {
    struct {
        int fields;
        int read;
    } const cases[] = {{48, 48}, {49, 49}, {50, 49}, {51, 49}, {60, 49}, {1000, 49}};
    for (const auto& c : cases) {
        Module module;
        module.m_delimiter = ';';
        const Fields fields = module.split(numbered(c.fields));
        ASSERT_EQ(static_cast<int>(fields.size()), c.read) << c.fields;
        EXPECT_EQ(fields.back(), std::to_string(c.read - 1)) << c.fields;
        EXPECT_EQ(module.m_row.m_columns[49], nullptr) << c.fields;
        EXPECT_EQ(module.m_errorMsg, "") << c.fields;
    }
}

TEST(ExtractColumns, IgnoresWhatFollowsTheFortyNinthField) {
    Module module;
    module.m_delimiter = ';';

    EXPECT_EQ(module.split(numbered(49) + ";").size(), 49U);
    EXPECT_EQ(module.split(numbered(49) + ";\"a;b").back(), "48");
}

TEST(ExtractColumns, UnquotesTheFortyNinthField) {
    Module module;
    module.m_delimiter = ';';
    const Fields fields = module.split(numbered(48) + ";\"x;y\";z");

    ASSERT_EQ(fields.size(), 49U);
    EXPECT_EQ(fields.back(), "x;y");
}

} // namespace
