// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/ModelWatch.h"

#include "cli/ModelTables.h"
#include "datamodel/TableNode.h"

ModelWatch::ModelWatch(DataModel& model, Progress& progress)
    : m_model(model), m_progress(progress), m_dataSets(ModelTables::table(model.root(), "DataSets")) {
    m_model.setObserver(this);
}

ModelWatch::~ModelWatch() { m_model.setObserver(nullptr); }

void ModelWatch::rowAppended(const TableNode& table, const RecordNode& /*row*/) {
    if (&table != &m_dataSets)
        return;
    ++m_records;
    m_progress.step();
}

void ModelWatch::rowRefused(const TableNode& table) {
    if (&table != &m_dataSets) {
        m_bookkeeping = "Importsessions";
        return;
    }
    ++m_records;
    m_progress.step();
    refuse({});
}

void ModelWatch::valueRefused(const RecordNode& record, const FieldSpec& field, const DataType& /*value*/) {
    const bool isId = field.name == "ImportID" || field.name == "UniqueID";
    if (&record.spec() != &m_dataSets.rowSpec() || isId)
        m_bookkeeping = field.name;
    else
        refuse(field.name);
}

void ModelWatch::refuse(const std::string& field) {
    if (m_refusals.empty() || m_refusals.back().record != m_records)
        m_refusals.push_back({m_records, field});
}
