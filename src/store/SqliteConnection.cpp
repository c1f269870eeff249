// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/SqliteConnection.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>
#include <utility>

#include "store/LockHolder.h"
#include "store/SqliteStatement.h"
#include "store/StoreError.h"

namespace {

struct ResultMeaning {
    int resultCode; // primary
    StoreErrorCode code;
};

constexpr ResultMeaning kResults[] = {
    {SQLITE_BUSY, StoreErrorCode::busy},          {SQLITE_LOCKED, StoreErrorCode::busy},
    {SQLITE_READONLY, StoreErrorCode::readOnly},  {SQLITE_PERM, StoreErrorCode::noPermission},
    {SQLITE_AUTH, StoreErrorCode::noPermission},  {SQLITE_FULL, StoreErrorCode::full},
    {SQLITE_CORRUPT, StoreErrorCode::damaged},    {SQLITE_NOTADB, StoreErrorCode::damaged},
    {SQLITE_ERROR, StoreErrorCode::damaged}, // a table or column that the version promises is not there
    {SQLITE_CONSTRAINT, StoreErrorCode::damaged}, {SQLITE_MISMATCH, StoreErrorCode::damaged},
};

// Where SQLite only knows that a call failed, what the system said decides.
struct SystemMeaning {
    int resultCode;
    int error;
    StoreErrorCode code;
};

constexpr SystemMeaning kSystemErrors[] = {
    {SQLITE_IOERR, ENOSPC, StoreErrorCode::full},
    {SQLITE_IOERR, EDQUOT, StoreErrorCode::full},
    {SQLITE_IOERR, EFBIG, StoreErrorCode::full},
    {SQLITE_CANTOPEN, ENOSPC, StoreErrorCode::full},
    {SQLITE_CANTOPEN, EDQUOT, StoreErrorCode::full},
    {SQLITE_CANTOPEN, EROFS, StoreErrorCode::readOnly},
    {SQLITE_CANTOPEN, EACCES, StoreErrorCode::noPermission},
    {SQLITE_CANTOPEN, EPERM, StoreErrorCode::noPermission},
    {SQLITE_CANTOPEN, ENOENT, StoreErrorCode::missing},
};

StoreErrorCode meaningOf(int resultCode, int systemError) {
    if (resultCode == SQLITE_READONLY_DBMOVED) // the path leads elsewhere or nowhere by now
        return StoreErrorCode::missing;
    const int primary = resultCode & 0xFF;
    for (const ResultMeaning& meaning : kResults) {
        if (meaning.resultCode == primary)
            return meaning.code;
    }
    for (const SystemMeaning& meaning : kSystemErrors) {
        if (meaning.resultCode == primary && meaning.error == systemError)
            return meaning.code;
    }
    return StoreErrorCode::io;
}

} // namespace

SqliteConnection::SqliteConnection(StorePath path, std::chrono::milliseconds patience)
    : m_path(std::move(path)), m_wait(patience) {
    // The path is absolute, and SQLite takes it as it is: neither ":memory:" nor
    // "file:..." nor "?" and "%" have a meaning in it.
    const std::string& name = m_path.real.native();
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(name.c_str(), &handle,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    m_handle.reset(handle);
    if (handle == nullptr)
        throw std::bad_alloc();
    if (result != SQLITE_OK)
        fail(result);
    sqlite3_busy_handler(handle, &BusyWait::tryAgain, &m_wait);
    // A store may come from anywhere: nothing in it is run. Its triggers are for
    // other programs; ours keeps the row counts itself.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
}

void SqliteConnection::execute(const char* sql) {
    const int result = sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        fail(result);
}

std::int64_t SqliteConnection::number(const char* sql) {
    SqliteStatement statement(*this, sql);
    return statement.step() ? statement.integer(0) : 0;
}

std::size_t SqliteConnection::longestPath() {
    sqlite3_initialize();
    const sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
    // The path is kept with a zero byte, and that of the journal beside it.
    return system != nullptr ? static_cast<std::size_t>(system->mxPathname) - std::strlen("-journal") - 1 : 0;
}

bool SqliteConnection::isReadOnly() const { return sqlite3_db_readonly(handle(), "main") == 1; }

bool SqliteConnection::hasMoved() const {
    int moved = 0;
    sqlite3_file_control(handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

sqlite3_file& SqliteConnection::file() const {
    sqlite3_file* file = nullptr;
    sqlite3_file_control(handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (file == nullptr || file->pMethods == nullptr)
        fail(SQLITE_CANTOPEN);
    return *file;
}

std::int64_t SqliteConnection::fileSize() const {
    sqlite3_int64 size = 0;
    const int result = file().pMethods->xFileSize(&file(), &size);
    if (result != SQLITE_OK)
        fail(result);
    return size;
}

std::string SqliteConnection::head(std::size_t size) const {
    std::string bytes(std::min(size, static_cast<std::size_t>(fileSize())), '\0');
    const int result =
        bytes.empty() ? SQLITE_OK : file().pMethods->xRead(&file(), bytes.data(), static_cast<int>(bytes.size()), 0);
    if (result != SQLITE_OK && result != SQLITE_IOERR_SHORT_READ)
        fail(result);
    return bytes;
}

bool SqliteConnection::hasWholePages() {
    const std::int64_t pageSize = number("PRAGMA page_size");
    return pageSize > 0 && fileSize() % pageSize == 0;
}

void SqliteConnection::fail(int resultCode) const {
    // SQLite does not keep the system's reason when a COMMIT fails.
    const int lastError = errno;
    const int kept = sqlite3_system_errno(handle());
    const int systemError = kept != 0 ? kept : lastError;
    if (resultCode == SQLITE_NOMEM)
        throw std::bad_alloc();
    const StoreErrorCode code = meaningOf(resultCode, systemError);
    std::string detail = sqlite3_errstr(resultCode);
    if (code == StoreErrorCode::busy)
        detail = LockHolder::describe(m_path.real);
    else if (code == StoreErrorCode::io && systemError != 0)
        detail += std::string(", ") + std::strerror(systemError);
    else if (code == StoreErrorCode::damaged)
        detail = sqlite3_errmsg(handle());
    throw StoreError(code, m_path.given, detail);
}

void SqliteConnection::failDamaged(const std::string& detail) const {
    throw StoreError(StoreErrorCode::damaged, m_path.given, detail);
}
