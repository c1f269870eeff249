// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "datamodel/RecordNode.h"
#include "datamodel/TableNode.h"
#include "store/NewRows.h"
#include "store/RecordBinder.h"
#include "store/RowCursor.h"
#include "store/SqliteConnection.h"
#include "store/SqliteStatement.h"
#include "store/TableLayout.h"

/// A table of the file, with the statements that work on it, each prepared when
/// first needed. An `owner` is ignored where the table has none.
class StoredTable {
public:
    /// Both must outlive the table.
    StoredTable(SqliteConnection& connection, const TableLayout& layout);

    const TableLayout& layout() const { return *m_layout; }
    StoredTable& nested(std::size_t index) { return *m_nested[index]; }
    RowCursor& cursor() { return m_cursor; }

    /// Enters the rows from number `first` on, of which there is at least one, and returns the id
    /// of the first; those of the others follow on it.
    std::int64_t insert(const TableNode& table, unsigned first, std::int64_t owner);
    void update(const RecordNode& record, std::int64_t id);
    void remove(std::int64_t id);

    std::vector<std::int64_t> ids(std::int64_t owner);
    /// Empty when there is no row.
    std::optional<std::int64_t> firstId(std::int64_t owner) { return edge(m_layout->idsSql(), owner); }
    std::optional<std::int64_t> lastId(std::int64_t owner) { return edge(m_layout->idsBackwardsSql(), owner); }

    /// Lets go of what reading holds, here and in all nested tables.
    void stopReading();

private:
    SqliteStatement& prepared(std::optional<SqliteStatement>& statement, std::string (TableLayout::*sql)() const);
    std::optional<std::int64_t> edge(const std::string& sql, std::int64_t owner);
    void bindOwner(SqliteStatement& statement, std::int64_t owner) const;
    void runOnOneRow(SqliteStatement& statement, std::int64_t id);

    SqliteConnection* m_connection;
    const TableLayout* m_layout;
    RowCursor m_cursor;
    RecordBinder m_binder;
    std::optional<NewRows> m_newRows;
    std::optional<SqliteStatement> m_insert; // reads from it
    std::optional<SqliteStatement> m_update;
    std::optional<SqliteStatement> m_remove;
    std::vector<std::unique_ptr<StoredTable>> m_nested;
};
