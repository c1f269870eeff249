// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/Cells.h"

namespace {

struct Case {
    std::string_view line;
    std::vector<std::string> fields;
    bool plain; ///< every reader of quotes sees the same fields
    const char* why;
};

TEST(RecordTable, LineIsCutIntoFields) {
    const std::vector<Case> cases = {
        {"a;b;c", {"a", "b", "c"}, true, "nothing special"},
        {"a;;", {"a", "", ""}, true, "empty fields count"},
        {"", {""}, true, "one empty field"},
        {R"("a";"b")", {"a", "b"}, true, "quotes around fields"},
        {R"("a;b";c)", {"a;b", "c"}, true, "a delimiter inside quotes"},
        {R"("say ""yes""";c)", {"say \"yes\"", "c"}, true, "doubled quotes"},
        {R"("";c)", {"", "c"}, true, "an empty field in quotes"},
        {R"("a" ;c)", {"a", "c"}, false, "a blank behind the closing quote"},
        {R"(c; "a")", {"c", "a"}, false, "a blank before the opening quote"},
        {R"("say "yes" now";c)", {"say \"yes\" now", "c"}, false, "quotes inside that nobody doubled"},
        {R"(say "yes";c)", {"say \"yes\"", "c"}, false, "quotes inside a field without any around it"},
        {R"(Firma";c)", {"Firma", "c"}, false, "a closing quote without an opening one"},
        {R"("Firma;c)", {"Firma", "c"}, false, "an opening quote that is never closed"},
        {R"(="0815";c)", {"0815", "c"}, false, "a spreadsheet's text formula"},
        {R"(5" Rohr;c)", {"5\" Rohr", "c"}, false, "inches"},
        {" a ; b ", {" a ", " b "}, true, "blanks stay"},
    };
    for (const Case& c : cases) {
        const Cells cells(c.line);
        if (c.line.empty()) {
            EXPECT_EQ(cells.table().size(), 0U) << c.why;
            continue;
        }
        ASSERT_EQ(cells.table().size(), 1U) << c.why;
        EXPECT_EQ(cells.record(0), c.fields) << c.why;
        EXPECT_EQ(cells.table().record(0).plain, c.plain) << c.why;
    }
}

TEST(RecordTable, LineBreakInsideQuotesStaysInTheField) {
    const Cells cells("a;\"b\nc\n\nd\";e\nf;g\n");
    ASSERT_EQ(cells.table().size(), 2U);
    EXPECT_EQ(cells.record(0), (std::vector<std::string>{"a", "b\nc\n\nd", "e"}));
    EXPECT_EQ(cells.table().record(0).lineCount, 4);
    EXPECT_FALSE(cells.table().record(0).plain);
    EXPECT_EQ(cells.table().record(1).firstLine, 4);
}

TEST(RecordTable, QuoteThatIsNeverClosedSwallowsNoLines) {
    std::string text = "a;\"b;c\n";
    for (int i = 0; i < 60; ++i)
        text += "d;e;f\n";
    const Cells cells(text);
    EXPECT_EQ(cells.table().size(), 61U);
    EXPECT_EQ(cells.record(0), (std::vector<std::string>{"a", "b", "c"}));
}

TEST(RecordTable, QuoteThatOpensByMistakeEndsBeforeTheNextQuotedField) {
    const Cells cells("01.01.2024;\"Firma;-5,00\n\"02.01.2024\";\"Laden\";\"-6,00\"\n");
    ASSERT_EQ(cells.table().size(), 2U);
    EXPECT_EQ(cells.record(0), (std::vector<std::string>{"01.01.2024", "Firma", "-5,00"}));
    EXPECT_EQ(cells.record(1), (std::vector<std::string>{"02.01.2024", "Laden", "-6,00"}));
}

TEST(RecordTable, OddQuotesStandForThemselvesWithinOneLineOnly) {
    const Cells cells("a;\"say \"yes\nb;c\"\n");
    EXPECT_EQ(cells.table().size(), 2U);
}

TEST(RecordTable, BlankRecordHasNoContent) {
    const Cells cells(";;\n \t \n\"\";\"\"\nx\n");
    ASSERT_EQ(cells.table().size(), 4U);
    EXPECT_TRUE(cells.table().record(0).blank);
    EXPECT_TRUE(cells.table().record(1).blank);
    EXPECT_TRUE(cells.table().record(2).blank);
    EXPECT_FALSE(cells.table().record(3).blank);
}

TEST(RecordTable, CellBehindTheLastFieldIsEmpty) {
    const Cells cells("a;b\n");
    EXPECT_EQ(cells.table().cell(0, 1), "b");
    EXPECT_EQ(cells.table().cell(0, 2), "");
    EXPECT_EQ(cells.table().cell(0, -1), "");
}

TEST(RecordTable, BlankAsDelimiterIsNoPadding) {
    const Cells cells("a  \"b c\" d\n", ' ');
    EXPECT_EQ(cells.record(0), (std::vector<std::string>{"a", "", "b c", "d"}));
}

TEST(RecordTable, OnlySoManyLinesAreRead) {
    const std::vector<std::string_view> lines = {"a", "b", "c"};
    EXPECT_EQ(RecordTable::read(lines, ';', 2).size(), 2U);
}

} // namespace
