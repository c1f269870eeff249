// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "export/CsvLayout.h"
#include "export/WrittenText.h"

namespace {

constexpr const char* kHeader = "\xEF\xBB\xBF"
                                "Datum;Betrag;Empfaenger;Verwendungszweck;Buchungstext;Kategorie;Unterkategorie;"
                                "ImportID;UniqueID;Zeile\n";

/// The line of one record.
std::string line(const BookRow& row) {
    DataManager model;
    RecordBook::add(model, row, 3);
    const std::string text = WrittenText("csv", model).text;
    EXPECT_EQ(text.substr(0, std::string(kHeader).size()), kHeader);
    return text.substr(std::string(kHeader).size());
}

std::string lineWith(const std::string& payee) { return line({{}, 0.0, {payee, "", "", "", ""}}); }

TEST(CsvWriter, OneLineARecord) {
    EXPECT_EQ(line({{14, 3, 2024}, -12.5, {"B\xE4\x63ker", "Brot", "Karte", "Essen", "Brot"}}),
              "14.03.2024;-12,50;B\xC3\xA4\x63ker;Brot;Karte;Essen;Brot;3;1;\n");
}

TEST(CsvWriter, WhatIsNotThereIsAnEmptyCell) {
    BookRow nothing;
    nothing.hasAmount = false;
    EXPECT_EQ(line(nothing), ";;;;;;;3;1;\n");
}

TEST(CsvWriter, LineOfTheFileStandsBesideTheRecord) {
    DataManager model;
    RecordNode& row = RecordBook::add(model, {{1, 2, 2024}, 1.0, {}});
    RecordBook::set(row, "Zeile", DataType::makeInteger(17));
    EXPECT_THAT(WrittenText("csv", model).text, testing::EndsWith(";1;1;17\n"));
}

TEST(CsvWriter, TextsAreQuotedWhereTheyCouldBeMisread) {
    EXPECT_EQ(lineWith("a;b"), ";0,00;\"a;b\";;;;;3;1;\n");
    EXPECT_EQ(lineWith("\"a\""), ";0,00;\"\"\"a\"\"\";;;;;3;1;\n");
    EXPECT_EQ(lineWith(" a"), ";0,00;\" a\";;;;;3;1;\n");
    EXPECT_EQ(lineWith("a\nb"), ";0,00;\"a\nb\";;;;;3;1;\n");
    EXPECT_EQ(lineWith("a b, c"), ";0,00;a b, c;;;;;3;1;\n");
}

TEST(CsvWriter, NoTextIsAFormula) {
    EXPECT_EQ(lineWith("=1+1"), ";0,00;'=1+1;;;;;3;1;\n");
    EXPECT_EQ(lineWith("+49"), ";0,00;'+49;;;;;3;1;\n");
    EXPECT_EQ(lineWith("-x"), ";0,00;'-x;;;;;3;1;\n");
    EXPECT_EQ(lineWith("@sum"), ";0,00;'@sum;;;;;3;1;\n");
    EXPECT_EQ(lineWith("\t=1"), ";0,00;\"'\t=1\";;;;;3;1;\n");
    EXPECT_EQ(lineWith("\r=1"), ";0,00;\"'\r=1\";;;;;3;1;\n");
    EXPECT_EQ(lineWith("'=1"), ";0,00;''=1;;;;;3;1;\n") << "one more, so that taking one away undoes it";
    EXPECT_EQ(lineWith("'s Wirtshaus"), ";0,00;'s Wirtshaus;;;;;3;1;\n");
}

TEST(CsvLayout, GuardsAreTakenAwayAgain) {
    for (const std::string text : {"=1", "'=1", "''=1", "'", "''", "'a", "", "a", "\n", "'\n", "+", "'-"}) {
        const std::string cell = (CsvLayout::needsGuard(text) ? "'" : "") + text;
        EXPECT_EQ(CsvLayout::withoutGuard(cell), text);
        EXPECT_EQ(std::string("=+-@\t\r\n").find(cell.empty() ? 'x' : cell.front()), std::string::npos) << text;
    }
}

TEST(CsvWriter, NothingIsLost) {
    DataManager model;
    RecordBook::add(model, {{}, 1e-300, {"a\r\nb", std::string(9000, 'x'), "\x81", "", ""}});
    const WrittenText written("csv", model);
    for (std::size_t loss = 0; loss < static_cast<std::size_t>(Loss::count); ++loss)
        EXPECT_EQ(written.lost(static_cast<Loss>(loss)), 0U) << loss;
}

TEST(CsvWriter, NoRecordsAreAHeader) {
    DataManager model;
    EXPECT_EQ(WrittenText("csv", model).text, kHeader);
}

} // namespace
