// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "datamodel/DataManager.h"
#include "datamodel/DataModel.h"
#include "datamodel/RecordNode.h"
#include "datamodel/TableNode.h"
#include "framework/datamodel_api/DMDate.h"

/// Short words for what the tests do with a model. Rows count from 1.
namespace ModelAccess {

inline RecordNode& root(DataManager& model) { return model.model().root(); }

inline TableNode& table(RecordNode& record, const char* name) { return dynamic_cast<TableNode&>(*record.child(name)); }
inline TableNode& table(DataManager& model, const char* name) { return table(root(model), name); }

inline DataType text(const char* bytes) {
    DataType value;
    value = bytes;
    return value;
}
inline DataType text(const std::string& bytes) { return text(bytes.c_str()); }
inline DataType date(unsigned day, unsigned month, unsigned year) {
    DataType value;
    value = DMDate(day, month, year);
    return value;
}
inline DataType noDate() {
    DataType value;
    value = DMDate();
    return value;
}
inline DataType amount(double units) { return DataType::makeCurrency(units); }
inline DataType integer(int number) { return DataType::makeInteger(number); }

/// False when the model refused the value.
inline bool set(RecordNode& record, const char* field, const DataType& value) {
    return record.child(field)->setValue(value, NDX(), 0);
}
inline DataType get(RecordNode& record, const char* field) { return record.child(field)->getValue(); }
inline std::string textOf(RecordNode& record, const char* field) {
    return std::string(dynamic_cast<FieldNode&>(*record.child(field)).text());
}

/// A record of the file imports whose fields all follow from `number`.
inline RecordNode& appendRecord(DataManager& model, int number) {
    RecordNode& record = *table(model, "DataSets").append();
    set(record, "Empfaenger", text("Empf\xE4nger " + std::to_string(number)));
    set(record, "Verwendungszweck", text("Rechnung " + std::to_string(number)));
    set(record, "Datum", date(1 + static_cast<unsigned>(number) % 28, 3, 2004));
    set(record, "Betrag", amount(-number / 100.0));
    set(record, "UniqueID", integer(number));
    return record;
}
inline void appendRecords(DataManager& model, int first, int last) {
    for (int number = first; number <= last; ++number)
        appendRecord(model, number);
}

inline RecordNode& appendAccount(DataManager& model, const char* accountNumber) {
    RecordNode& account = *table(model, "HomeBankingImport").append();
    set(account, "KtoNummer", text(accountNumber));
    return account;
}
inline RecordNode& appendBooking(RecordNode& account, int number) {
    RecordNode& booking = *table(account, "DataSets").append();
    set(booking, "BuchungsID", text("B" + std::to_string(number)));
    set(booking, "Betrag", amount(number));
    set(booking, "Steuerrelevant", DataType::makeBoolean(number % 2 == 1));
    return booking;
}

/// The numbers ("UniqueID") of all records, in order; -1 for a row that cannot be read.
inline std::vector<int> recordNumbers(DataManager& model) {
    std::vector<int> numbers;
    TableNode& records = table(model, "DataSets");
    for (unsigned row = 1; row <= records.getNodeCount(); ++row) {
        RecordNode* record = records.row(row);
        numbers.push_back(record != nullptr ? get(*record, "UniqueID").getInt() : -1);
    }
    return numbers;
}

/// Everything below a record, a line per value with its kind and exact content,
/// so that two trees are equal exactly when their dumps are.
void dump(std::ostream& out, RecordNode& record, const std::string& indent = "");
std::string dump(DataManager& model);

} // namespace ModelAccess
