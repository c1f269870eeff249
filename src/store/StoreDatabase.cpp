// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StoreDatabase.h"

#include <fcntl.h>
#include <unistd.h>

#include <string>
#include <utility>

#include "store/StoreError.h"
#include "store/StoreHeader.h"

namespace {

constexpr char kCutOff[] = "die Datei ist abgeschnitten";

} // namespace

StoreDatabase::StoreDatabase(const std::filesystem::path& path, StoreAccess access, std::chrono::milliseconds patience,
                             std::span<const StoreMigration> migrations)
    : m_access(access), m_migrations(migrations) {
    // While we wait for the lock, another program may replace the file, or
    // remove one that it had made in vain. Only with the lock held is it certain
    // that what we opened is what the path leads to.
    constexpr int kAttempts = 3;
    for (int attempt = 1;; ++attempt) {
        try {
            open(path, patience);
            begin();
            if (!m_connection->hasMoved())
                return;
            if (attempt == kAttempts)
                throw StoreError(StoreErrorCode::missing, path);
        } catch (const StoreError&) {
            const bool moved = m_connection != nullptr && m_connection->hasMoved();
            discardIfEmpty();
            if (!moved || attempt == kAttempts)
                throw;
        }
    }
}

StoreDatabase::~StoreDatabase() { discardIfEmpty(); }

void StoreDatabase::open(const std::filesystem::path& path, std::chrono::milliseconds patience) {
    m_connection.reset();
    m_dataVersion.reset();
    StorePath place = StorePath::locate(path, m_access);
    if (place.real.native().size() > SqliteConnection::longestPath())
        throw StoreError(StoreErrorCode::pathTooLong, path);
    m_created = !place.exists && place.create();
    m_connection = std::make_unique<SqliteConnection>(std::move(place), patience);
    refuseForeign();
    if (m_access == StoreAccess::readWrite && m_connection->isReadOnly())
        throw StoreError(StoreErrorCode::readOnly, path);
    // The rollback journal, SQLite's default: no further files that live longer
    // than a transaction, and readable on every file system. With "full" the
    // journal is on the disk before the first byte of the file changes, so that
    // a crash at any point leaves the old state or the new one.
    m_connection->execute("PRAGMA synchronous = FULL");
    // All of a transaction goes to the file at its end: until then readers see
    // the old state undisturbed, and the journal is forced to the disk once.
    m_connection->execute("PRAGMA cache_spill = OFF");
}

void StoreDatabase::refuseForeign() const {
    const StorePath& path = m_connection->path();
    std::filesystem::path journal = path.real;
    journal += "-journal";
    std::error_code ignored;
    const StoreHeader header =
        StoreHeader::judge(m_connection->head(StoreHeader::kSize), std::filesystem::exists(journal, ignored));
    // SQLite calls a file of one byte empty; it is somebody else's all the same.
    const bool isOneByte =
        header.kind == StoreHeader::Kind::empty && std::filesystem::file_size(path.real, ignored) == 1;
    if (header.kind == StoreHeader::Kind::foreign || isOneByte)
        throw StoreError(StoreErrorCode::notAStore, path.given);
    if (header.kind == StoreHeader::Kind::cutOff)
        m_connection->failDamaged(kCutOff);
    if (header.version > newestVersion())
        throw StoreError(StoreErrorCode::newerVersion, path.given,
                         "Stand " + std::to_string(header.version) + ", bekannt ist Stand " +
                             std::to_string(newestVersion()));
}

void StoreDatabase::begin() {
    if (m_connection->inTransaction())
        return;
    try {
        if (m_access == StoreAccess::readWrite)
            m_connection->execute("BEGIN IMMEDIATE");
        else
            beginReading();
        settleVersion();
        const std::int64_t dataVersion = m_connection->number("PRAGMA data_version");
        if (m_dataVersion && *m_dataVersion != dataVersion)
            m_stale = true;
        m_dataVersion = dataVersion;
    } catch (...) {
        rollback();
        throw;
    }
}

void StoreDatabase::beginReading() {
    m_connection->execute("BEGIN");
    m_connection->number("SELECT count(*) FROM sqlite_master"); // takes the lock
}

void StoreDatabase::settleVersion() {
    const std::int64_t version = m_connection->number("PRAGMA user_version");
    const std::int64_t applicationId = m_connection->number("PRAGMA application_id");
    if (applicationId != StoreMigrations::kApplicationId &&
        (applicationId != 0 || m_connection->number("SELECT count(*) FROM sqlite_master") != 0))
        throw StoreError(StoreErrorCode::notAStore, m_connection->path().given);
    if (version > newestVersion())
        refuseForeign();
    if (!m_connection->hasWholePages() && !StoreHeader::usesWriteAheadLog(m_connection->head(StoreHeader::kSize)))
        m_connection->failDamaged(kCutOff);
    const bool isEmpty = applicationId == 0;
    m_hasTables = !isEmpty || m_access == StoreAccess::readWrite;
    if (version == newestVersion() || !m_hasTables)
        return;
    if (m_access == StoreAccess::readWrite) {
        migrate(version);
        return;
    }
    if (!canBeWritten())
        throw StoreError(StoreErrorCode::olderVersion, m_connection->path().given);
    rollback();
    m_connection->execute("BEGIN IMMEDIATE");
    migrate(m_connection->number("PRAGMA user_version"));
    m_connection->execute("COMMIT");
    beginReading();
}

void StoreDatabase::migrate(std::int64_t from) {
    for (const StoreMigration& step : m_migrations) {
        if (step.version > from)
            m_connection->execute(step.sql);
    }
    m_connection->execute(("PRAGMA application_id = " + std::to_string(StoreMigrations::kApplicationId)).c_str());
    m_connection->execute(("PRAGMA user_version = " + std::to_string(newestVersion())).c_str());
}

bool StoreDatabase::canBeWritten() const {
    const std::filesystem::path directory = m_connection->path().real.parent_path();
    return !m_connection->isReadOnly() && faccessat(AT_FDCWD, directory.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

void StoreDatabase::commit() {
    m_connection->execute("COMMIT");
    m_created = false; // the tables at least are in the file now
}

void StoreDatabase::rollback() noexcept {
    if (!m_connection->inTransaction())
        return;
    // Fails only where SQLite has rolled back already.
    sqlite3_exec(m_connection->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void StoreDatabase::discardIfEmpty() noexcept {
    if (m_connection == nullptr)
        return;
    rollback();
    if (!m_created)
        return;
    // With the lock held nobody else can be about to write to the file; who waits
    // for the lock notices afterwards that the file is gone, and makes a new one.
    sqlite3* handle = m_connection->handle();
    sqlite3_busy_timeout(handle, 0);
    if (sqlite3_exec(handle, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return;
    try {
        if (m_connection->head(1).empty() && !m_connection->hasMoved())
            unlink(m_connection->path().real.c_str());
    } catch (const StoreError&) {
        // Whatever it is now, it is not ours to remove.
    }
    rollback();
}
