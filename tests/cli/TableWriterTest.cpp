// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/TableWriter.h"

#include <gmock/gmock.h>

namespace {

using Kind = TableColumn::Kind;

std::string written(const Options& options, const std::vector<TableColumn>& columns,
                    const std::vector<std::vector<std::string>>& rows) {
    testing::internal::CaptureStdout();
    {
        Console console(options);
        TableWriter table(console, columns);
        for (const auto& row : rows)
            table.measure(row);
        table.begin();
        for (const auto& row : rows)
            table.write(row);
        console.finish();
    }
    return testing::internal::GetCapturedStdout();
}

TEST(TableWriter, ColumnsAreAlignedByTheirKind) {
    EXPECT_EQ(written({}, {{"Datum", Kind::fixed}, {"Betrag", Kind::amount}, {"Wer", Kind::text}, {"Nr", Kind::number}},
                      {{"01.02.2004", "-1,00", "Müller", "7"}, {"", "12.345,00", "日本", "10"}}),
              "Datum          Betrag  Wer     Nr\n"
              "01.02.2004      -1,00  Müller   7\n"
              "            12.345,00  日本    10\n");
}

TEST(TableWriter, LinesEndWithTheirLastLetter) {
    EXPECT_EQ(written({}, {{"a", Kind::text}, {"b", Kind::text}}, {{"x", ""}, {"yyy", "z"}}), "a    b\nx\nyyy  z\n");
}

TEST(TableWriter, ColorsAreBoldHeadingsAndRedDebts) {
    Options options;
    options.color = "always";
    EXPECT_EQ(written(options, {{"Betrag", Kind::amount}, {"Text", Kind::text}}, {{"-1", "-1"}, {"1", ""}}),
              "\033[1mBetrag  Text\033[0m\n"
              "    \033[31m-1\033[0m  -1\n"
              "     1\n");
}

} // namespace
