// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/SqliteStatement.h"

#include "store/SqliteConnection.h"

SqliteStatement::SqliteStatement(SqliteConnection& connection, std::string_view sql) : m_connection(&connection) {
    sqlite3_stmt* statement = nullptr;
    const int result =
        sqlite3_prepare_v2(connection.handle(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
    m_statement.reset(statement);
    if (result != SQLITE_OK)
        connection.fail(result);
}

void SqliteStatement::bind(int parameter, std::string_view utf8) {
    // A null address would bind NULL; an empty text is a text.
    const char* bytes = utf8.data() != nullptr ? utf8.data() : "";
    const int result = sqlite3_bind_text(handle(), parameter, bytes, static_cast<int>(utf8.size()), SQLITE_STATIC);
    if (result != SQLITE_OK)
        m_connection->fail(result);
}

bool SqliteStatement::step() {
    const int result = sqlite3_step(handle());
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE) {
        // Reset first, so that the failed statement does not keep a lock alive.
        sqlite3_reset(handle());
        m_connection->fail(result);
    }
    return false;
}

void SqliteStatement::reset() { sqlite3_reset(handle()); }

void SqliteStatement::run() {
    while (step()) {
    }
    reset();
}

std::string_view SqliteStatement::text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(handle(), column));
    return bytes != nullptr ? std::string_view(bytes, static_cast<std::size_t>(sqlite3_column_bytes(handle(), column)))
                            : std::string_view();
}
