// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "datamodel/RecordNode.h"
#include "datamodel/RecordSpec.h"
#include "store/RowCounts.h"
#include "store/StoreDatabase.h"
#include "store/StoredTable.h"
#include "store/StoreError.h"
#include "store/TableLayout.h"

/// The model's tree as it lies in the file: "Bestand" with the tables below it.
class StoreTree {
public:
    /// `database`, which has its tables, must outlive the tree.
    explicit StoreTree(StoreDatabase& database);

    StoreDatabase& database() { return *m_database; }
    StoredTable& root() { return m_root; }
    RowCounts& counts() { return m_counts; }

    /// Fills the root of a fresh model, whose tables then load their rows on demand.
    void loadRoot(RecordNode& root);
    /// Gives the tables nested in `record`, which is in the file, their rows.
    void attachTables(StoredTable& table, RecordNode& record);

    /// Why a row could not be loaded, the first time that it happened.
    const std::optional<StoreError>& readError() const { return m_readError; }
    void setReadError(const StoreError& error);
    void clearReadError() { m_readError.reset(); }

private:
    StoreDatabase* m_database;
    RecordSpec m_schema; // of the tree's own, so that it outlives every model
    TableLayout m_layout;
    StoredTable m_root;
    RowCounts m_counts;
    std::optional<StoreError> m_readError;
};
