// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "framework/ImportRecordSet.h"
#include "support/FinanceModel.h"

/// What a test expects of one imported record: its fields in display form,
/// Latin-1. What is not named is empty.
struct ImportedRecord {
    std::string category{};
    std::string purpose{};
    std::string date{};
    std::string amount{};
    std::string payee{};
    std::string subcategory{};
    std::string postingText{};

    bool operator==(const ImportedRecord&) const = default;
};

/// Shown by failing expectations.
inline void PrintTo(const ImportedRecord& record, std::ostream* out) {
    *out << "{category \"" << record.category << "\", purpose \"" << record.purpose << "\", date \"" << record.date
         << "\", amount \"" << record.amount << "\", payee \"" << record.payee << "\", subcategory \""
         << record.subcategory << "\", postingText \"" << record.postingText << "\"}";
}

/// The records of the model's "DataSets", in the order of their rows.
inline std::vector<ImportedRecord> importedRecords(const FinanceModel& model) {
    std::vector<ImportedRecord> records;
    for (int row = 1; row <= model.rows("DataSets"); ++row) {
        const auto text = [&](const char* field) {
            return model.text("DataSets/" + std::to_string(row) + "/" + field);
        };
        records.push_back({text("Kategorie"), text("Verwendungszweck"), text("Datum"), text("Betrag"),
                           text("Empfaenger"), text("Unterkategorie"), text("Buchungstext")});
    }
    return records;
}

/// A preview as a test compares it: as wide as its widest row.
struct PreviewTable {
    std::vector<std::string> header{}; ///< empty where the preview has none
    std::vector<std::vector<std::string>> rows{};
};

inline PreviewTable previewTable(const ImportRecordSet& preview) {
    PreviewTable table;
    for (int column = 0; preview.hasHeader() && column < preview.getColumnCount(); ++column)
        table.header.push_back(preview.getColumnHeader(column));
    for (int row = 0; row < preview.getRowCount(); ++row) {
        table.rows.emplace_back();
        for (int column = 0; column < preview.getColumnCount(); ++column)
            table.rows.back().push_back(preview.getString(row, column));
    }
    return table;
}
