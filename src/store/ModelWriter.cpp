// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/ModelWriter.h"

#include "datamodel/RecordNode.h"

void ModelWriter::write(RecordNode& root) {
    m_written.clear();
    m_tree->root().stopReading();
    if (root.isChanged())
        m_tree->root().update(root, root.storeId());
    writeTables(m_tree->root(), root, root.storeId());
}

void ModelWriter::writeTables(StoredTable& parent, RecordNode& record, std::int64_t recordId) {
    for (std::size_t i = 0; i < parent.layout().nested().size(); ++i) {
        if (TableNode* table = record.tableIfMade(i))
            writeTable(parent.nested(i), *table, recordId);
    }
}

void ModelWriter::writeTable(StoredTable& stored, TableNode& table, std::int64_t owner) {
    for (const std::int64_t id : table.removedStoreIds())
        removeRow(stored, id);

    const unsigned count = table.getNodeCount();
    const unsigned firstNew = table.storedRowCount() + 1;
    const std::int64_t firstNewId = firstNew <= count ? stored.insert(table, firstNew, owner) : 0;
    const bool hasTables = !stored.layout().nested().empty();
    for (unsigned number = 1; number < firstNew; ++number) {
        const RecordNode* record = table.rowIfLoaded(number);
        if (record != nullptr && record->isChanged())
            stored.update(*record, record->storeId());
    }
    for (unsigned number = 1; hasTables && number <= count; ++number) {
        RecordNode* record = table.rowIfLoaded(number);
        if (record != nullptr)
            writeTables(stored, *record, number < firstNew ? record->storeId() : firstNewId + (number - firstNew));
    }
    if (firstNewId != 0 || !table.removedStoreIds().empty())
        m_tree->counts().set(stored.layout(), owner, count);
    m_written.push_back({&table, firstNewId});
}

void ModelWriter::removeRow(StoredTable& stored, std::int64_t id) {
    for (std::size_t i = 0; i < stored.layout().nested().size(); ++i) {
        StoredTable& nested = stored.nested(i);
        for (const std::int64_t nestedId : nested.ids(id))
            removeRow(nested, nestedId);
        m_tree->counts().remove(nested.layout(), id);
    }
    stored.remove(id);
}

void ModelWriter::markStored(RecordNode& root) {
    root.markStored();
    for (const Written& written : m_written) {
        TableNode& table = *written.table;
        std::int64_t id = written.firstNewId;
        for (unsigned number = table.storedRowCount() + 1; number <= table.getNodeCount(); ++number)
            table.rowIfLoaded(number)->setStoreId(id++);
        table.markStored();
    }
}
