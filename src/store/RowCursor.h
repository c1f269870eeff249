// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "store/SqliteConnection.h"
#include "store/SqliteStatement.h"
#include "store/TableLayout.h"

/// The place in a table up to which its rows have been read. One for all who read the
/// table: whoever goes on where he stopped steps to the next row, and who finds
/// somebody else at the cursor seeks anew.
class RowCursor {
public:
    RowCursor(SqliteConnection& connection, const TableLayout& layout) : m_connection(&connection), m_layout(&layout) {}

    /// Places the cursor before the first row of `owner` whose id is at least `id`.
    void seek(const void* reader, std::int64_t owner, std::int64_t id);
    /// Whether `reader` was the last to seek, and nothing came between.
    bool isAt(const void* reader) const { return m_reader == reader; }
    /// The next row, or null at the end.
    const SqliteStatement* next();
    void stop();

private:
    SqliteConnection* m_connection;
    const TableLayout* m_layout;
    std::optional<SqliteStatement> m_select;
    const void* m_reader = nullptr;
};
