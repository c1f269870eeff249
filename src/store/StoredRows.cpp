// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoredRows.h"

#include <optional>
#include <string>

#include "datamodel/TableNode.h"
#include "store/RecordReader.h"
#include "store/StoreTree.h"

StoredRows::StoredRows(StoreTree& tree, StoredTable& table, std::int64_t owner)
    : m_tree(&tree), m_table(&table), m_owner(owner) {
    const std::int64_t count = tree.counts().get(table.layout(), owner);
    const std::optional<std::int64_t> first = table.firstId(owner);
    const std::optional<std::int64_t> last = table.lastId(owner);
    if (count < 0 || (count == 0) != !first)
        failCount();
    if (count > TableNode::kMaxRows)
        throw StoreError(StoreErrorCode::tooManyRows, tree.database().connection().path().given,
                         table.layout().name() + ", " + std::to_string(count) + " Zeilen");
    if (!first)
        return;
    // Unsigned, since a foreign hand may have chosen the ids.
    const std::uint64_t span = static_cast<std::uint64_t>(*last) - static_cast<std::uint64_t>(*first) + 1;
    if (span < static_cast<std::uint64_t>(count))
        failCount();
    m_count = static_cast<unsigned>(count);
    m_firstId = *first;
    m_hasGaps = span != m_count;
}

bool StoredRows::load(unsigned row, RecordNode& record) {
    try {
        read(row, record);
        return true;
    } catch (const StoreError& error) {
        m_tree->setReadError(error);
        return false;
    }
}

void StoredRows::read(unsigned row, RecordNode& record) {
    StoreDatabase& database = m_tree->database();
    database.begin();
    if (database.isStale())
        throw StoreError(StoreErrorCode::changed, database.connection().path().given);
    const std::int64_t id = idOf(row);
    RowCursor& cursor = m_table->cursor();
    if (!cursor.isAt(this) || row != m_lastRow + 1)
        cursor.seek(this, m_owner, id);
    const SqliteStatement* found = cursor.next();
    if (found == nullptr || found->integer(0) != id)
        failCount();
    m_lastRow = row;
    RecordReader::read(*found, m_table->layout(), database.connection(), record);
    m_tree->attachTables(*m_table, record);
}

std::int64_t StoredRows::idOf(unsigned row) {
    if (!m_hasGaps)
        return m_firstId + row - 1;
    if (m_ids.empty())
        m_ids = m_table->ids(m_owner);
    // Rows appended since lie behind those that are numbered here.
    if (m_ids.size() < m_count)
        failCount();
    return m_ids[row - 1];
}

void StoredRows::failCount() const {
    m_tree->database().connection().failDamaged("Tabelle " + m_table->layout().name() +
                                                " hat nicht so viele Zeilen wie vermerkt");
}
