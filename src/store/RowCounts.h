// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "store/SqliteConnection.h"
#include "store/SqliteStatement.h"
#include "store/TableLayout.h"

/// The table "Zeilenzahlen": how many rows each table has, and each account
/// bookings, so that nobody counts 60,000 rows to append ten.
class RowCounts {
public:
    explicit RowCounts(SqliteConnection& connection);

    /// `owner` is ignored where the table has none; its key is 0 then.
    std::int64_t get(const TableLayout& table, std::int64_t owner);
    void set(const TableLayout& table, std::int64_t owner, std::int64_t count);
    void remove(const TableLayout& table, std::int64_t owner);

private:
    SqliteStatement m_get;
    SqliteStatement m_set;
    SqliteStatement m_remove;
};
