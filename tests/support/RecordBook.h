// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "datamodel/DataManager.h"
#include "datamodel/DataModel.h"
#include "datamodel/TableNode.h"

/// A record of the file imports as a test writes it down. Texts are host bytes.
struct BookRow {
    static constexpr std::array<const char*, 5> kTexts = {"Empfaenger", "Verwendungszweck", "Buchungstext", "Kategorie",
                                                          "Unterkategorie"};

    DMDate day; ///< zero: none
    bool hasAmount = true;
    double amount = 0.0;
    std::array<std::string, kTexts.size()> texts; ///< in the order of kTexts

    BookRow() = default;
    BookRow(const DMDate& on, double value, std::array<std::string, kTexts.size()> words)
        : day(on), amount(value), texts(std::move(words)) {}
};

/// Writes records into a model and reads them back.
namespace RecordBook {

inline FieldNode& field(RecordNode& row, const char* name) { return row.fields()[row.spec().fieldIndex(name).value()]; }

inline void set(RecordNode& row, const char* name, const DataType& value) {
    field(row, name).setValue(value, NDX(), 0);
}

inline DataType text(const std::string& bytes) {
    DataType value;
    value = bytes.c_str();
    return value;
}

inline DataType day(const DMDate& date) {
    DataType value;
    value = date;
    return value;
}

inline TableNode& table(DataManager& model, const char* name) {
    RecordNode& root = model.model().root();
    return root.table(root.spec().tableIndex(name).value());
}

/// Appends the record as one of session `session`, with the next "UniqueID".
inline RecordNode& add(DataManager& model, const BookRow& book, int session = 1) {
    TableNode& records = table(model, "DataSets");
    RecordNode& row = *records.append();
    set(row, "Datum", day(book.day));
    if (book.hasAmount)
        set(row, "Betrag", DataType::makeCurrency(book.amount));
    for (std::size_t i = 0; i < BookRow::kTexts.size(); ++i)
        set(row, BookRow::kTexts[i], text(book.texts[i]));
    set(row, "ImportID", DataType::makeInteger(session));
    set(row, "UniqueID", DataType::makeInteger(records.getNodeCount()));
    return row;
}

inline RecordNode& addSession(DataManager& model, int number, const char* file) {
    RecordNode& row = *table(model, "Importsessions").append();
    set(row, "ImportID", DataType::makeInteger(number));
    set(row, "ImportFileName", text(file));
    return row;
}

/// What two records must share to be the same record.
inline BookRow read(RecordNode& row) {
    BookRow book;
    book.day = field(row, "Datum").getValue().getDate();
    book.hasAmount = field(row, "Betrag").kind() == DataType::eCurrency;
    book.amount = field(row, "Betrag").getValue().getCurrency();
    for (std::size_t i = 0; i < BookRow::kTexts.size(); ++i)
        book.texts[i] = field(row, BookRow::kTexts[i]).text();
    return book;
}

} // namespace RecordBook
