// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qif/QifFieldTables.h"
#include "qif/QifHeaderTable.h"
#include "support/FormatDocument.h"
#include "support/TextImport.h"
#include "support/Utf8.h"

// The description of the format says what the code does.
namespace {

const FormatDocument& document() {
    static const FormatDocument read(IMPORT_MODULE_DOCS "/formats/qif.md");
    return read;
}

class QifDocument : public SmartDateFixture {};

TEST_F(QifDocument, ListsTheHeadersInTheOrderOfTheTable) {
    std::vector<FormatDocument::Row> rows;
    for (const QifHeaderTable::Row& row : QifHeaderTable::kRows)
        rows.push_back({row.header, utf8FromLatin1(row.label), std::to_string(row.type)});
    EXPECT_EQ(document().table("Sections"), rows);
}

/// The letters of a table with whether they are ignored.
using Letters = std::vector<std::pair<std::string, bool>>;

Letters documentedLetters(const std::string& heading) {
    Letters letters;
    for (const FormatDocument::Row& row : document().table(heading))
        letters.emplace_back(row.at(0), row.at(2) == "ignored");
    return letters;
}

template <typename Rows>
Letters lettersOf(const Rows& rows) {
    Letters letters;
    for (const QifFieldTables::Row& row : rows)
        letters.emplace_back(std::string(1, row.letter), row.action == QifFieldTables::Action::ignore);
    return letters;
}

TEST_F(QifDocument, ListsTheLettersOfATransaction) {
    EXPECT_EQ(documentedLetters("Fields of a transaction"), lettersOf(QifFieldTables::kTransactionFields));
}

TEST_F(QifDocument, ListsTheLettersOfACategory) {
    EXPECT_EQ(documentedLetters("Fields of a category"), lettersOf(QifFieldTables::kCategoryFields));
}

TEST_F(QifDocument, ShowsWhatTheWorkedExampleYields) {
    const TextImportResult run =
        runFrontDoor(latin1FromUtf8(document().block("qif")), "a.qif", FinanceModel().root(), /*simulate=*/true);
    EXPECT_EQ(run.errorText, "");
    std::string rows;
    for (const auto& row : run.preview.rows)
        rows += utf8FromLatin1(quotedLine(row));
    EXPECT_EQ(rows, document().block("text"));
}

TEST_F(QifDocument, SampleFileImportsWhole) {
    const FinanceModel model;
    const TextImportResult run =
        runFrontDoor(fileContent(IMPORT_MODULE_DATA "/haushaltsbuch.qif"), "haushaltsbuch.qif", model.root());
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.errorText, "");
    EXPECT_EQ(run.importedCount, 11);
    const std::vector<ImportedRecord> records = importedRecords(model);
    EXPECT_EQ(std::count_if(records.begin(), records.end(), [](const auto& record) { return record.date.empty(); }), 2)
        << "the two categories with a budget";
    EXPECT_EQ(records.back(), (ImportedRecord{.category = "Andere Einnahmen/Ausgaben",
                                              .purpose = "Urlaub",
                                              .amount = "400,00",
                                              .subcategory = "Reisen",
                                              .postingText = "Summe aus:400,00"}));
}

} // namespace
