// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <initializer_list>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "qif/ImportModuleQIF.h"
#include "support/FormatDocument.h"
#include "support/TextImport.h"
#include "support/Utf8.h"

// The folder data/ holds files of the kinds that programs write, each beside
// what its import must yield: result, error text and one line per record with
// the columns of the preview. Inputs are Latin-1, expectations UTF-8.
namespace {

constexpr const char* kFiles[] = {
    "cash",         "card",          "investment",       "investment-with-memo",   "category-budgets",
    "account-list", "splits",        "apostrophe-years", "unfinished-last-record", "unknown-sections",
    "german-text",  "rejected-date",
};

std::string contentOf(const std::string& fileName) { return fileContent(QIF_TEST_DATA "/" + fileName); }

std::string onOneLine(const std::string& text) {
    std::string line;
    for (const char c : text)
        line += c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
    return line;
}

/// The outcome in the form of the expectations.
std::string outcome(const TextImportResult& run, int result, const std::string& records) {
    return "result " + std::to_string(result) + "\nerror \"" + onOneLine(utf8FromLatin1(run.errorText)) + "\"\n" +
           records;
}

class QifWorkedFiles : public TextImport<ImportModuleQIF> {};

INSTANTIATE_TEST_SUITE_P(, QifWorkedFiles, testing::Values(ImportWay::module, ImportWay::frontDoor), nameOf);

TEST_P(QifWorkedFiles, YieldTheRecordsWorkedOutForThem) {
    for (const std::string file : kFiles) {
        reset();
        const FinanceModel model;
        const TextImportResult run = import(contentOf(file + ".qif"), model);
        std::string records;
        for (const ImportedRecord& record : importedRecords(model))
            records += utf8FromLatin1(quotedLine(
                std::initializer_list<std::string>{record.category, record.purpose, record.date, record.amount,
                                                   record.payee, record.subcategory, record.postingText}));
        EXPECT_EQ(outcome(run, run.result, records), contentOf(file + ".expected")) << file;
    }
}

TEST_P(QifWorkedFiles, ShowTheSameRecordsInAPreview) {
    for (const std::string file : kFiles) {
        reset();
        const TextImportResult run = preview(contentOf(file + ".qif"));
        std::string records;
        for (const auto& row : run.preview.rows)
            records += utf8FromLatin1(quotedLine(row));
        EXPECT_EQ(outcome(run, run.result == 2 ? 1 : run.result, records), contentOf(file + ".expected")) << file;
    }
}

TEST(QifWorkedFilesFolder, HoldsNoOtherFile) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(QIF_TEST_DATA))
        files += entry.is_regular_file() ? 1 : 0;
    EXPECT_EQ(files, 2 * static_cast<int>(std::size(kFiles)));
}

} // namespace
