// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/TrialModel.h"

#include <cstddef>

#include "cli/ModelTables.h"
#include "datamodel/DataModel.h"

namespace {

constexpr const char* kTrialAccounts = "HomeBankingImport";
constexpr const char* kTrialRecords = "DataSets"; // of the root, and of an account
constexpr const char* kTrialSessions = "Importsessions";
constexpr const char* kTrialLists = "Buchungslisten";

RecordNode& root(DataManager& manager) { return manager.model().root(); }

void copyFields(const RecordNode& from, RecordNode& to) {
    for (std::size_t field = 0; field < from.fields().size(); ++field)
        to.fields()[field].restore(from.fields()[field].getValue());
}

/// As an import would have written them, so that the store notices.
void setFields(const RecordNode& from, RecordNode& to) {
    for (std::size_t field = 0; field < from.fields().size(); ++field) {
        if (from.fields()[field].kind() != DataType::eEmpty)
            to.fields()[field].setValue(from.fields()[field].getValue(), NDX(), 0);
    }
}

void appendRows(TableNode& from, TableNode& to) {
    for (unsigned row = 1; row <= from.getNodeCount(); ++row)
        copyFields(*from.row(row), *to.append());
}

} // namespace

TrialModel::TrialModel(DataManager& store) {
    copyFields(root(store), root(m_model));
    TableNode& accounts = ModelTables::table(root(store), kTrialAccounts);
    for (unsigned row = 1; row <= accounts.getNodeCount(); ++row) {
        RecordNode& copy = *ModelTables::table(root(m_model), kTrialAccounts).append();
        if (const RecordNode* account = accounts.row(row)) // else it cannot be read, and the store tells
            copyFields(*account, copy);
    }
}

void TrialModel::moveInto(DataManager& store) {
    setFields(root(m_model), root(store));
    for (const char* table : {kTrialRecords, kTrialSessions, kTrialLists})
        appendRows(ModelTables::table(root(m_model), table), ModelTables::table(root(store), table));
    TableNode& accounts = ModelTables::table(root(m_model), kTrialAccounts);
    for (unsigned row = 1; row <= accounts.getNodeCount(); ++row) {
        RecordNode& made = *accounts.row(row);
        TableNode& bookings = ModelTables::table(made, kTrialRecords);
        if (bookings.getNodeCount() == 0)
            continue;
        RecordNode& account = *ModelTables::table(root(store), kTrialAccounts).row(row);
        setFields(made, account);
        appendRows(bookings, ModelTables::table(account, kTrialRecords));
    }
}
