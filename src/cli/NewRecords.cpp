// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/NewRecords.h"

#include "cli/ModelTables.h"
#include "datamodel/DataModel.h"

namespace {

TableNode& dataSets(DataManager& model) { return ModelTables::table(model.model().root(), "DataSets"); }

TableNode& sessions(DataManager& model) { return ModelTables::table(model.model().root(), "Importsessions"); }

} // namespace

NewRecords::NewRecords(DataManager& model)
    : m_model(model), m_recordsBefore(dataSets(model).getNodeCount()),
      m_sessionsBefore(sessions(model).getNodeCount()) {}

std::vector<std::size_t> NewRecords::undated() const {
    TableNode& table = dataSets(m_model);
    const std::size_t dateField = *table.rowSpec().fieldIndex("Datum");
    std::vector<std::size_t> found;
    for (unsigned row = m_recordsBefore + 1; row <= table.getNodeCount(); ++row) {
        if (table.row(row)->fields()[dateField].getValue().getDate().isZero())
            found.push_back(row - m_recordsBefore);
    }
    return found;
}

std::size_t NewRecords::count() const { return dataSets(m_model).getNodeCount() - m_recordsBefore; }

std::vector<RecordNode*> NewRecords::rows() const {
    TableNode& table = dataSets(m_model);
    std::vector<RecordNode*> rows;
    for (unsigned row = m_recordsBefore + 1; row <= table.getNodeCount(); ++row)
        rows.push_back(table.row(row));
    return rows;
}

void NewRecords::remove(const std::vector<const RecordNode*>& rows) const {
    auto next = rows.begin();
    dataSets(m_model).removeLoaded([&](const RecordNode& row) {
        const bool found = next != rows.end() && *next == &row;
        next += found ? 1 : 0;
        return found;
    });
}

RecordNode* NewRecords::session() const {
    TableNode& table = sessions(m_model);
    return hasSession() ? table.row(table.getNodeCount()) : nullptr;
}

bool NewRecords::hasSession() const { return sessions(m_model).getNodeCount() > m_sessionsBefore; }

int NewRecords::sessionId() const {
    if (!hasSession())
        return 0;
    TableNode& table = sessions(m_model);
    return ModelTables::field(*table.row(table.getNodeCount()), "ImportID").getValue().getInt();
}

void NewRecords::setFileName(const std::string& name) const {
    if (!hasSession())
        return;
    TableNode& table = sessions(m_model);
    FieldNode& field = ModelTables::field(*table.row(table.getNodeCount()), "ImportFileName");
    DataType value;
    value = name.c_str();
    if (field.text() != name)
        field.setValue(value, NDX(), 0);
}
