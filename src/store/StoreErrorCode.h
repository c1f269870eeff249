// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// Why a store cannot be used. Each has a stable text code, a German text and a
/// hint in the table of StoreErrorTexts.cpp.
enum class StoreErrorCode {
    missing,      ///< there is no such file (or a link leads to none)
    noDirectory,  ///< nor a directory in which it could be made
    isDirectory,  ///< the path names a directory
    pathTooLong,  ///< longer than SQLite takes
    notAStore,    ///< a file of another kind, or no file at all
    newerVersion, ///< written by a later release
    olderVersion, ///< needs a migration, which its permissions forbid
    busy,         ///< another program holds it longer than the patience allows
    changed,      ///< another program wrote between two of our transactions
    readOnly,     ///< neither file nor directory may be written, or opened for reading only
    noPermission, ///< may not even be read
    full,         ///< disk, quota or file size limit
    damaged,      ///< the database is corrupt
    badValue,     ///< a cell holds what the model cannot
    tooManyRows,  ///< a table is longer than the model's tables
    io,           ///< any other failure of the system
};
