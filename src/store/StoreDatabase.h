// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>

#include "store/SqliteConnection.h"
#include "store/StoreAccess.h"
#include "store/StoreMigrations.h"

/// The database file of a store: recognised, at the newest schema version, and
/// with a transaction around everything that is read and written.
class StoreDatabase {
public:
    /// Opens the file, creates it where it may, and begins the first transaction.
    /// `migrations` must outlive the object.
    StoreDatabase(const std::filesystem::path& path, StoreAccess access, std::chrono::milliseconds patience,
                  std::span<const StoreMigration> migrations = StoreMigrations::all());
    /// Gives up what was not committed; a file that was made here and is still
    /// empty goes away again.
    ~StoreDatabase();
    StoreDatabase(const StoreDatabase&) = delete;
    StoreDatabase& operator=(const StoreDatabase&) = delete;

    SqliteConnection& connection() const { return *m_connection; }
    StoreAccess access() const { return m_access; }
    /// False only for an empty file that was opened for reading.
    bool hasTables() const { return m_hasTables; }

    /// Makes sure that a transaction is open: for writing with the write lock,
    /// for reading with one state of the file for as long as it lasts.
    void begin();
    void commit();
    void rollback() noexcept;

    /// Whether another program has written since the state that was last accepted.
    bool isStale() const { return m_stale; }
    void acceptState() { m_stale = false; }

private:
    void open(const std::filesystem::path& path, std::chrono::milliseconds patience);
    void refuseForeign() const;
    void beginReading();
    void settleVersion();
    void migrate(std::int64_t from);
    bool canBeWritten() const;
    void discardIfEmpty() noexcept;
    int newestVersion() const { return m_migrations.back().version; }

    StoreAccess m_access;
    std::span<const StoreMigration> m_migrations;
    std::unique_ptr<SqliteConnection> m_connection;
    std::optional<std::int64_t> m_dataVersion;
    bool m_created = false;
    bool m_hasTables = false;
    bool m_stale = false;
};
