// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// SQLite's settings for the whole process.
namespace SqliteRuntime {

/// For a program whose only use of SQLite is the store, in one thread: no locks
/// between threads and no book of the memory in use. To be called before the
/// first store is opened; without effect afterwards. Libraries leave it to the program.
void serveOneThread();

} // namespace SqliteRuntime
