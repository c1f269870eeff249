// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/SqliteConnection.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>
#include <optional>
#include <utility>

#include "store/LockHolder.h"
#include "store/SqliteStatement.h"
#include "store/StoreError.h"

namespace {

struct ResultMeaning {
    int resultCode;
    StoreErrorCode code;
};

constexpr ResultMeaning kPrimaryResults[] = {
    {SQLITE_BUSY, StoreErrorCode::busy},          {SQLITE_LOCKED, StoreErrorCode::busy},
    {SQLITE_READONLY, StoreErrorCode::readOnly},  {SQLITE_PERM, StoreErrorCode::noPermission},
    {SQLITE_AUTH, StoreErrorCode::noPermission},  {SQLITE_FULL, StoreErrorCode::full},
    {SQLITE_CORRUPT, StoreErrorCode::damaged},    {SQLITE_NOTADB, StoreErrorCode::damaged},
    {SQLITE_ERROR, StoreErrorCode::damaged}, // a table or column that the version promises is not there
    {SQLITE_CONSTRAINT, StoreErrorCode::damaged}, {SQLITE_MISMATCH, StoreErrorCode::damaged},
    {SQLITE_IOERR, StoreErrorCode::io},           {SQLITE_CANTOPEN, StoreErrorCode::io},
};

struct SystemMeaning {
    int error;
    StoreErrorCode code;
};

// What the system said decides where SQLite only knows that a call failed.
constexpr SystemMeaning kSystemErrors[] = {
    {ENOSPC, StoreErrorCode::full},        {EDQUOT, StoreErrorCode::full},    {EFBIG, StoreErrorCode::full},
    {EROFS, StoreErrorCode::readOnly},     {ENOENT, StoreErrorCode::missing}, {EACCES, StoreErrorCode::noPermission},
    {EPERM, StoreErrorCode::noPermission},
};

StoreErrorCode meaningOf(int resultCode, int systemError) {
    const auto* primary = std::find_if(std::begin(kPrimaryResults), std::end(kPrimaryResults),
                                       [resultCode](auto entry) { return entry.resultCode == (resultCode & 0xFF); });
    const StoreErrorCode code = primary != std::end(kPrimaryResults) ? primary->code : StoreErrorCode::io;
    if (code != StoreErrorCode::io)
        return code;
    const auto* system = std::find_if(std::begin(kSystemErrors), std::end(kSystemErrors),
                                      [systemError](auto entry) { return entry.error == systemError; });
    return system != std::end(kSystemErrors) ? system->code : code;
}

} // namespace

SqliteConnection::SqliteConnection(StorePath path, std::chrono::milliseconds patience) : m_path(std::move(path)) {
    // Absolute paths only, which SQLite takes as they are: neither ":memory:"
    // nor "file:..." nor "?" and "%" have a meaning in them.
    const std::string& name = m_path.real.native();
    const sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
    if (system != nullptr && name.size() + std::strlen("-journal") >= static_cast<std::size_t>(system->mxPathname))
        throw StoreError(StoreErrorCode::pathTooLong, m_path.given);
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(name.c_str(), &handle,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    m_handle.reset(handle);
    if (handle == nullptr)
        throw std::bad_alloc();
    if (result != SQLITE_OK)
        fail(result);
    sqlite3_busy_timeout(handle, static_cast<int>(std::clamp<std::int64_t>(patience.count(), 0, 1'000'000)));
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

bool SqliteConnection::isReadOnly() const { return sqlite3_db_readonly(handle(), "main") == 1; }

bool SqliteConnection::hasMoved() const {
    int moved = 0;
    sqlite3_file_control(handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

std::string SqliteConnection::head(std::size_t size) const {
    // Through SQLite's own descriptor: closing one of ours would give up the
    // locks that this process has on the file.
    sqlite3_file* file = nullptr;
    sqlite3_int64 available = 0;
    sqlite3_file_control(handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    int result =
        file != nullptr && file->pMethods != nullptr ? file->pMethods->xFileSize(file, &available) : SQLITE_IOERR;
    std::string bytes(std::min(size, static_cast<std::size_t>(available)), '\0');
    if (result == SQLITE_OK && !bytes.empty())
        result = file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()), 0);
    if (result != SQLITE_OK && result != SQLITE_IOERR_SHORT_READ)
        fail(result);
    return bytes;
}

void SqliteConnection::fail(int resultCode) const {
    if (resultCode == SQLITE_NOMEM)
        throw std::bad_alloc();
    const int systemError = sqlite3_system_errno(handle());
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
