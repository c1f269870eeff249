// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoreTree.h"

#include <memory>
#include <string>

#include "datamodel/FinanceSchema.h"
#include "datamodel/TableNode.h"
#include "store/RecordReader.h"
#include "store/StoredRows.h"

namespace {

constexpr std::int64_t kRootId = 1;

} // namespace

StoreTree::StoreTree(StoreDatabase& database)
    : m_database(&database), m_schema(makeFinanceSchema()), m_layout(m_schema), m_root(database.connection(), m_layout),
      m_counts(database.connection()) {}

void StoreTree::loadRoot(RecordNode& root) {
    RowCursor& cursor = m_root.cursor();
    cursor.seek(this, 0, kRootId);
    const SqliteStatement* row = cursor.next();
    if (row == nullptr || row->integer(0) != kRootId)
        m_database->connection().failDamaged("Tabelle Bestand ist leer");
    RecordReader::read(*row, m_layout, m_database->connection(), root);
    cursor.stop();
    attachTables(m_root, root);
    root.markStored();
}

void StoreTree::attachTables(StoredTable& table, RecordNode& record) {
    for (std::size_t i = 0; i < table.layout().nested().size(); ++i) {
        auto rows = std::make_shared<StoredRows>(*this, table.nested(i), record.storeId());
        if (rows->count() != 0)
            record.table(i).attach(rows, rows->count());
    }
}

void StoreTree::setReadError(const StoreError& error) {
    if (!m_readError)
        m_readError = error;
}
