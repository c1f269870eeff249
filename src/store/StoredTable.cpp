// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoredTable.h"

StoredTable::StoredTable(SqliteConnection& connection, const TableLayout& layout)
    : m_connection(&connection), m_layout(&layout), m_cursor(connection, layout) {
    for (const TableLayout& nested : layout.nested())
        m_nested.push_back(std::make_unique<StoredTable>(connection, nested));
}

SqliteStatement& StoredTable::prepared(std::optional<SqliteStatement>& statement,
                                       std::string (TableLayout::*sql)() const) {
    if (!statement)
        statement.emplace(*m_connection, (m_layout->*sql)());
    return *statement;
}

std::int64_t StoredTable::insert(const TableNode& table, unsigned first, std::int64_t owner) {
    if (!m_insert) {
        m_newRows.emplace(*m_connection, *m_layout);
        m_insert.emplace(*m_connection, m_layout->insertSql(m_newRows->source()));
    }
    const std::int64_t before = m_connection->number(("SELECT max(id) FROM " + m_layout->name()).c_str());
    m_newRows->show(table, first, owner);
    m_insert->run();
    const int count = static_cast<int>(table.getNodeCount() - first + 1);
    // Behind the largest id of all SQLite draws the next ones.
    if (sqlite3_changes(m_connection->handle()) != count ||
        sqlite3_last_insert_rowid(m_connection->handle()) - count != before)
        m_connection->failDamaged("Tabelle " + m_layout->name() + " nimmt neue Zeilen nicht der Reihe nach an");
    return before + 1;
}

void StoredTable::update(const RecordNode& record, std::int64_t id) {
    SqliteStatement& statement = prepared(m_update, &TableLayout::updateSql);
    m_binder.bind(statement, 1, record);
    statement.bind(static_cast<int>(m_layout->spec().fields().size()) + 1, id);
    runOnOneRow(statement, id);
}

void StoredTable::remove(std::int64_t id) {
    SqliteStatement& statement = prepared(m_remove, &TableLayout::removeSql);
    statement.bind(1, id);
    runOnOneRow(statement, id);
}

void StoredTable::runOnOneRow(SqliteStatement& statement, std::int64_t id) {
    statement.run();
    if (sqlite3_changes(m_connection->handle()) != 1)
        m_connection->failDamaged("Tabelle " + m_layout->name() + " hat keine Zeile mit der id " + std::to_string(id));
}

std::vector<std::int64_t> StoredTable::ids(std::int64_t owner) {
    SqliteStatement statement(*m_connection, m_layout->idsSql());
    bindOwner(statement, owner);
    std::vector<std::int64_t> ids;
    while (statement.step())
        ids.push_back(statement.integer(0));
    return ids;
}

std::optional<std::int64_t> StoredTable::edge(const std::string& sql, std::int64_t owner) {
    SqliteStatement statement(*m_connection, sql);
    bindOwner(statement, owner);
    return statement.step() ? std::optional(statement.integer(0)) : std::nullopt;
}

void StoredTable::bindOwner(SqliteStatement& statement, std::int64_t owner) const {
    if (m_layout->hasOwner())
        statement.bind(1, owner);
}

void StoredTable::stopReading() {
    m_cursor.stop();
    for (const auto& nested : m_nested)
        nested->stopReading();
}
