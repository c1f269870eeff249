// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/SqliteRuntime.h"

#include <sqlite3.h>

void SqliteRuntime::serveOneThread() {
    // Both refuse only where SQLite runs already, or knows no other way.
    sqlite3_config(SQLITE_CONFIG_SINGLETHREAD);
    sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
}
