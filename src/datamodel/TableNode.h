// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "datamodel/RecordSpec.h"
#include "datamodel/RowSlot.h"
#include "datamodel/RowSource.h"
#include "framework/datamodel_api/NodeTable.h"

class ModelContext;
class RecordNode;

/// A table of records. Rows that a store holds are loaded when first asked for.
/// Access by number and appending take constant time.
class DM_API TableNode final : public NodeTable {
public:
    static constexpr unsigned kMaxRows = 65535;

    TableNode(const RecordSpec& rowSpec, ModelContext& context);
    ~TableNode();

    void prepareUpdate() override;
    unsigned short getNodeCount() const override;
    DMSchemaContext* getSchemaContext() const override;
    DataType getValue() const override;
    bool setValue(const DataType& value, const NDX& where, int flags) override;

    const RecordSpec& rowSpec() const { return *m_rowSpec; }

    /// Row from 1, loaded if need be; null where there is none or it cannot be read.
    RecordNode* row(unsigned number);
    /// Row from 1 if it is in memory; null otherwise.
    RecordNode* rowIfLoaded(unsigned number) const;
    /// Null when the table is full.
    RecordNode* append();
    /// False when `record` is no row of this table.
    bool remove(RecordNode* record);
    /// Removes the loaded rows of which `isUnwanted` holds, all in one pass, and
    /// returns how many they were.
    unsigned removeLoaded(const std::function<bool(RecordNode&)>& isUnwanted);

    /// Gives an empty table `count` rows that `source` loads on demand. Throws
    /// std::invalid_argument when the table is not empty, `source` is null or
    /// `count` above `kMaxRows`.
    void attach(std::shared_ptr<RowSource> source, unsigned count);

    /// The first rows, as many as the store already has; what follows is new.
    unsigned storedRowCount() const { return m_storedRows; }
    /// Store ids of rows removed since the table was last marked as stored.
    const std::vector<std::int64_t>& removedStoreIds() const { return m_removed; }
    /// The store now holds the table as it is, rows included. Tables nested in
    /// the rows keep count for themselves.
    void markStored();

private:
    RecordNode* load(unsigned number);

    const RecordSpec* m_rowSpec;
    ModelContext* m_context;
    std::vector<RowSlot> m_rows;
    std::shared_ptr<RowSource> m_source;
    unsigned m_storedRows = 0;
    std::vector<std::int64_t> m_removed;
};
