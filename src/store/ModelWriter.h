// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "datamodel/DataModel.h"
#include "datamodel/TableNode.h"
#include "store/StoreTree.h"

/// Writes what changed in a model since it was last stored.
class ModelWriter {
public:
    explicit ModelWriter(StoreTree& tree) : m_tree(&tree) {}

    /// Writes into the open transaction. The model stays as it is, marks
    /// included, so that nothing is lost when the transaction fails.
    void write(RecordNode& root);
    /// The transaction succeeded: what was written counts as stored.
    void markStored(RecordNode& root);

private:
    struct Written {
        TableNode* table;
        std::int64_t firstNewId; // of the rows behind the stored ones, which follow on each other
    };

    void writeTables(StoredTable& parent, RecordNode& record, std::int64_t recordId);
    void writeTable(StoredTable& stored, TableNode& table, std::int64_t owner);
    void removeRow(StoredTable& stored, std::int64_t id);

    StoreTree* m_tree;
    std::vector<Written> m_written;
};
