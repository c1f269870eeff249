// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/RowCounts.h"

RowCounts::RowCounts(SqliteConnection& connection)
    : m_get(connection, "SELECT Anzahl FROM Zeilenzahlen WHERE Tabelle = ? AND KontoID = ?"),
      m_set(connection, "INSERT OR REPLACE INTO Zeilenzahlen (Tabelle, KontoID, Anzahl) VALUES (?, ?, ?)"),
      m_remove(connection, "DELETE FROM Zeilenzahlen WHERE Tabelle = ? AND KontoID = ?") {}

namespace {

std::int64_t key(const TableLayout& table, std::int64_t owner) { return table.hasOwner() ? owner : 0; }

} // namespace

std::int64_t RowCounts::get(const TableLayout& table, std::int64_t owner) {
    m_get.bind(1, std::string_view(table.name()));
    m_get.bind(2, key(table, owner));
    const std::int64_t count = m_get.step() ? m_get.integer(0) : 0;
    m_get.reset();
    return count;
}

void RowCounts::set(const TableLayout& table, std::int64_t owner, std::int64_t count) {
    m_set.bind(1, std::string_view(table.name()));
    m_set.bind(2, key(table, owner));
    m_set.bind(3, count);
    m_set.run();
}

void RowCounts::remove(const TableLayout& table, std::int64_t owner) {
    m_remove.bind(1, std::string_view(table.name()));
    m_remove.bind(2, key(table, owner));
    m_remove.run();
}
