// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <string>

#include "datamodel/TableNode.h"
#include "store/SqliteConnection.h"
#include "store/TableLayout.h"

/// Rows of the model that statements read like a table of the file, so that
/// one statement enters them all: a third of what SQLite takes for a row is the
/// beginning and the end of a statement.
class NewRows {
public:
    /// Makes the table known to the connection. Both must outlive it.
    NewRows(SqliteConnection& connection, const TableLayout& layout);
    ~NewRows();
    NewRows(const NewRows&) = delete;
    NewRows& operator=(const NewRows&) = delete;

    /// What statements read from. With brackets, so that a table of the file that has the name is not meant.
    std::string source() const { return m_name + "()"; }
    /// From now on the table has the rows of `table` from number `first` on.
    /// They must be in memory, and stay as they are while a statement reads.
    void show(const TableNode& table, unsigned first, std::int64_t owner);

private:
    class Cursor;
    struct Table;
    struct Calls; // what SQLite calls

    SqliteConnection* m_connection;
    const TableLayout* m_layout;
    std::string m_name;
    const TableNode* m_table = nullptr;
    unsigned m_first = 0;
    std::int64_t m_owner = 0;
};
