// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/Progress.h"
#include "datamodel/DataModel.h"
#include "datamodel/ModelObserver.h"

/// Counts the records that an import makes in a model, and notes which of them
/// the model refused. Watches from its construction to its end.
class ModelWatch : public ModelObserver {
public:
    struct Refusal {
        std::size_t record; ///< from 1, in the order in which the import made or wanted to make them
        std::string field;  ///< whose value was refused; empty when the table is full
    };

    ModelWatch(DataModel& model, Progress& progress);
    ~ModelWatch() override;
    ModelWatch(const ModelWatch&) = delete;
    ModelWatch& operator=(const ModelWatch&) = delete;

    /// In the order of the records, at most one of each.
    const std::vector<Refusal>& refusals() const { return m_refusals; }
    /// What was refused beside the records: a field of the session or of the
    /// counters, an ID, or a whole row.
    const std::optional<std::string>& refusedBookkeeping() const { return m_bookkeeping; }

    void rowAppended(const TableNode& table, const RecordNode& row) override;
    void rowRefused(const TableNode& table) override;
    void valueRefused(const RecordNode& record, const FieldSpec& field, const DataType& value) override;

private:
    void refuse(const std::string& field);

    DataModel& m_model;
    Progress& m_progress;
    const TableNode& m_dataSets;
    std::size_t m_records = 0;
    std::vector<Refusal> m_refusals;
    std::optional<std::string> m_bookkeeping;
};
