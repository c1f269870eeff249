// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "store/BusyWait.h"
#include "store/StorePath.h"

/// One connection to a database file. Every failure of SQLite becomes a
/// StoreError here. For one thread at a time.
class SqliteConnection {
public:
    /// Opens the existing file without reading, locking or recovering anything
    /// yet. A reader gets a writable connection where the file allows one,
    /// since it may have to roll back what a killed program left behind.
    SqliteConnection(StorePath path, std::chrono::milliseconds patience);
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;

    sqlite3* handle() const { return m_handle.get(); }
    const StorePath& path() const { return m_path; }

    /// Runs statements that yield no rows.
    void execute(const char* sql);
    /// The integer that `sql` yields.
    std::int64_t number(const char* sql);

    bool isReadOnly() const;
    bool inTransaction() const { return sqlite3_get_autocommit(handle()) == 0; }
    /// Whether the path no longer leads to the file that is open.
    bool hasMoved() const;
    /// The first bytes of the file, fewer when it is shorter. Read past all locks.
    std::string head(std::size_t size) const;
    /// Whether the file ends where a page does. SQLite takes a cut last page
    /// for one that ends in zeros.
    bool hasWholePages();

    /// The longest absolute path that SQLite takes, in bytes.
    static std::size_t longestPath();

    /// Throws what the result code of a failed call means.
    [[noreturn]] void fail(int resultCode) const;
    [[noreturn]] void failDamaged(const std::string& detail) const;

private:
    struct Close {
        void operator()(sqlite3* handle) const { sqlite3_close(handle); }
    };

    // SQLite's own descriptor: closing one of ours would give up the locks that
    // this process has on the file.
    sqlite3_file& file() const;
    std::int64_t fileSize() const;

    StorePath m_path;
    BusyWait m_wait; // before the handle, which refers to it
    std::unique_ptr<sqlite3, Close> m_handle;
};
