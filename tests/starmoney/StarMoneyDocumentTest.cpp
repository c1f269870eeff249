// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "csv/ImportModuleStarMoney.h"
#include "csv/ImportModuleStarMoney2.h"
#include "starmoney/StarMoneyLine.h"
#include "support/FormatDocument.h"
#include "support/TextImport.h"
#include "support/Utf8.h"

// The description of the format says what the code does.
namespace {

const FormatDocument& document() {
    static const FormatDocument read(IMPORT_MODULE_DOCS "/formats/star-money.md");
    return read;
}

std::string shown(const TextImportResult& run) {
    std::string rows;
    for (const auto& row : run.preview.rows)
        rows += utf8FromLatin1(quotedLine(row));
    return rows;
}

/// The text of a record's field, by the field's name.
std::string imported(const FinanceModel& model, const std::string& field) { return model.text("DataSets/1/" + field); }

class StarMoneyDocument : public SmartDateFixture {};

TEST_F(StarMoneyDocument, ShowsWhatTheWorkedExampleYieldsThroughEitherModule) {
    const std::string text = latin1FromUtf8(document().block("ssx"));
    const FinanceModel model;
    EXPECT_EQ(shown(runFrontDoor(text, "a.ssx", model.root(), /*simulate=*/true)), document().block("text"));
    ImportModuleStarMoney2 byName;
    EXPECT_EQ(shown(runModule(byName, text, model.root(), /*simulate=*/true)), document().block("text"));
}

TEST_F(StarMoneyDocument, SaysWhereEachColumnOfTheFixedLayoutGoes) {
    std::vector<std::string> texts(21);
    int documented = 0;
    for (const FormatDocument::Row& row : document().table("The fixed layout")) {
        const std::string field = row.at(1).substr(0, row.at(1).find_first_of(" ,"));
        const int first = std::stoi(row.at(0));
        const std::size_t to = row.at(0).find(" to ");
        const int last = to == std::string::npos ? first : std::stoi(row.at(0).substr(to + 4));
        for (int column = first; column <= last; ++column, ++documented) {
            EXPECT_EQ(column, documented);
            // One column alone is filled; a field that it feeds shows it.
            texts.assign(21, "");
            texts[static_cast<std::size_t>(column)] = field == "Datum" ? "31.12.2004" : "7";
            const FinanceModel model;
            const TextImportResult run = runFrontDoor(starMoneyHeader() + joined(texts), "a.ssx", model.root());
            EXPECT_EQ(run.importedCount, 1);
            for (const char* name :
                 {"Datum", "Empfaenger", "Verwendungszweck", "Buchungstext", "Kategorie", "Unterkategorie"})
                EXPECT_EQ(imported(model, name).empty(), name != field) << column << ": " << name;
            EXPECT_EQ(imported(model, "Betrag"), field == "Betrag" ? "7,00" : "0,00") << column;
        }
    }
    EXPECT_EQ(documented, 21);
}

TEST_F(StarMoneyDocument, SaysWhichNamesAreKnown) {
    const auto rows = document().table("Columns by name");
    EXPECT_EQ(rows.size(), 10U);
    for (const FormatDocument::Row& row : rows) {
        const std::string& field = row.at(1);
        const FinanceModel model;
        ImportModuleStarMoney2 module;
        const std::string text = row.at(0) + "\n" + (field == "Datum" ? "31.12.2004" : "7") + "\n";
        EXPECT_EQ(runModule(module, text, model.root()).importedCount, 1);
        for (const char* name :
             {"Datum", "Betrag", "Empfaenger", "Verwendungszweck", "Buchungstext", "Kategorie", "Unterkategorie"})
            EXPECT_EQ(imported(model, name).empty(), name != field) << row.at(0) << ": " << name;
    }
}

TEST_F(StarMoneyDocument, SampleFileImportsWhole) {
    const FinanceModel model;
    const TextImportResult run =
        runFrontDoor(fileContent(IMPORT_MODULE_DATA "/girokonto.ssx"), "girokonto.ssx", model.root());
    EXPECT_EQ(run.result, 1);
    EXPECT_EQ(run.errorText, "");
    EXPECT_EQ(run.importedCount, 6);
    const auto records = importedRecords(model);
    for (const ImportedRecord& record : records)
        EXPECT_NE(record.date, "") << record.payee;
    EXPECT_EQ(records.at(4).payee, "Gasthaus \"Zur Br\xFC"
                                   "cke\"");
    EXPECT_EQ(records.at(3).purpose, "Strom | Z\xE4hler 12345");
}

} // namespace
