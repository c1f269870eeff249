// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string_view>

class SqliteConnection;

/// A prepared statement. Parameters count from 1, columns from 0, as in SQLite.
class SqliteStatement {
public:
    /// `connection` must outlive the statement.
    SqliteStatement(SqliteConnection& connection, std::string_view sql);

    void bindNull(int parameter) { sqlite3_bind_null(handle(), parameter); }
    void bind(int parameter, std::int64_t number) { sqlite3_bind_int64(handle(), parameter, number); }
    void bind(int parameter, double number) { sqlite3_bind_double(handle(), parameter, number); }
    /// Does not copy: `utf8` must live until the statement is reset.
    void bind(int parameter, std::string_view utf8);

    /// True when there is a row; its columns are valid until the next step or reset.
    bool step();
    void reset();
    /// Steps to the end and resets.
    void run();

    int type(int column) const { return sqlite3_column_type(handle(), column); }
    std::int64_t integer(int column) const { return sqlite3_column_int64(handle(), column); }
    double real(int column) const { return sqlite3_column_double(handle(), column); }
    std::string_view text(int column) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };

    sqlite3_stmt* handle() const { return m_statement.get(); }

    SqliteConnection* m_connection;
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};
