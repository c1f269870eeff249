// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "datamodel/RowSource.h"
#include "store/StoredTable.h"

class StoreTree;

/// The rows of one table, or of one account's bookings, loaded on demand. Rows
/// in sequence cost a step each; any other row a search by its id.
class StoredRows final : public RowSource {
public:
    /// Counts and checks the rows without reading them. `tree` and `table` must
    /// outlive the source. Throws StoreError.
    StoredRows(StoreTree& tree, StoredTable& table, std::int64_t owner);

    unsigned count() const { return m_count; }
    /// Keeps the reason of a failure in the tree.
    bool load(unsigned row, RecordNode& record) override;

private:
    void read(unsigned row, RecordNode& record);
    std::int64_t idOf(unsigned row);
    [[noreturn]] void failCount() const;

    StoreTree* m_tree;
    StoredTable* m_table;
    std::int64_t m_owner;
    unsigned m_count = 0;
    std::int64_t m_firstId = 0;
    bool m_hasGaps = false;
    std::vector<std::int64_t> m_ids; // only with gaps, once a row was asked for
    unsigned m_lastRow = 0;
};
