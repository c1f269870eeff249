// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "cli/Progress.h"
#include "datamodel/DataModel.h"
#include "datamodel/ModelObserver.h"

/// Sees which rows a home-banking document makes in a model, and which values the
/// model refused. (The library does not ask a full table for a row.) Watches from its construction to its end.
class HomeBankingWatch : public ModelObserver {
public:
    HomeBankingWatch(DataModel& model, Progress& progress);
    ~HomeBankingWatch() override;
    HomeBankingWatch(const HomeBankingWatch&) = delete;
    HomeBankingWatch& operator=(const HomeBankingWatch&) = delete;

    std::size_t rows() const { return m_rows; }
    /// The field of the last row, a booking, whose value was refused.
    const std::optional<std::string>& refusedField() const { return m_field; }
    /// A field beside those that an element feeds.
    const std::optional<std::string>& refusedBookkeeping() const { return m_bookkeeping; }
    /// Where the rows came; null without a row.
    const TableNode* table() const { return m_table; }

    void rowAppended(const TableNode& table, const RecordNode& row) override;
    void valueRefused(const RecordNode& record, const FieldSpec& field, const DataType& value) override;

private:
    DataModel& m_model;
    Progress& m_progress;
    const TableNode* m_table = nullptr;
    std::size_t m_rows = 0;
    std::optional<std::string> m_field;
    std::optional<std::string> m_bookkeeping;
};
