// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/FaultyVfs.h"

#include <sqlite3.h>

#include <cerrno>
#include <new>
#include <stdexcept>
#include <utility>

namespace {

struct State {
    FaultyVfs::Decide decide;
    sqlite3_vfs* system = nullptr;
    sqlite3_vfs vfs = {};
    int count = 0;
};

State* g_state = nullptr;

int decide(const char* kind, const char* path) {
    const int result = g_state->decide({++g_state->count, kind, path != nullptr ? path : ""});
    errno = result == SQLITE_OK ? errno : EIO; // what the system says of a disk that fails
    return result;
}

/// SQLite's file object with the system's right behind it.
struct File {
    sqlite3_file base;
    const char* path;

    sqlite3_file* system() { return reinterpret_cast<sqlite3_file*>(this + 1); }
    static File* of(sqlite3_file* file) { return reinterpret_cast<File*>(file); }
};

template <typename Method, typename... Arguments>
int forward(sqlite3_file* file, Method method, Arguments... arguments) {
    sqlite3_file* system = File::of(file)->system();
    return (system->pMethods->*method)(system, arguments...);
}

int closeFile(sqlite3_file* file) { return forward(file, &sqlite3_io_methods::xClose); }
int readFile(sqlite3_file* file, void* out, int size, sqlite3_int64 offset) {
    return forward(file, &sqlite3_io_methods::xRead, out, size, offset);
}
int writeFile(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 offset) {
    const int result = decide("write", File::of(file)->path);
    return result != SQLITE_OK ? result : forward(file, &sqlite3_io_methods::xWrite, bytes, size, offset);
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    const int result = decide("truncate", File::of(file)->path);
    return result != SQLITE_OK ? result : forward(file, &sqlite3_io_methods::xTruncate, size);
}
int syncFile(sqlite3_file* file, int flags) {
    const int result = decide("sync", File::of(file)->path);
    return result != SQLITE_OK ? result : forward(file, &sqlite3_io_methods::xSync, flags);
}
int fileSize(sqlite3_file* file, sqlite3_int64* size) { return forward(file, &sqlite3_io_methods::xFileSize, size); }
int lockFile(sqlite3_file* file, int level) { return forward(file, &sqlite3_io_methods::xLock, level); }
int unlockFile(sqlite3_file* file, int level) { return forward(file, &sqlite3_io_methods::xUnlock, level); }
int checkLock(sqlite3_file* file, int* held) { return forward(file, &sqlite3_io_methods::xCheckReservedLock, held); }
int control(sqlite3_file* file, int operation, void* argument) {
    return forward(file, &sqlite3_io_methods::xFileControl, operation, argument);
}
int sectorSize(sqlite3_file* file) { return forward(file, &sqlite3_io_methods::xSectorSize); }
int characteristics(sqlite3_file* file) { return forward(file, &sqlite3_io_methods::xDeviceCharacteristics); }

const sqlite3_io_methods kMethods = {
    1,
    closeFile,
    readFile,
    writeFile,
    truncateFile,
    syncFile,
    fileSize,
    lockFile,
    unlockFile,
    checkLock,
    control,
    sectorSize,
    characteristics,
    // Version 1: no shared memory, no mapping.
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
};

int openFile(sqlite3_vfs*, const char* path, sqlite3_file* file, int flags, int* outFlags) {
    auto* ours = new (file) File{{nullptr}, path};
    const int result = g_state->system->xOpen(g_state->system, path, ours->system(), flags, outFlags);
    if (ours->system()->pMethods != nullptr)
        ours->base.pMethods = &kMethods;
    return result;
}

int deleteFile(sqlite3_vfs*, const char* path, int syncDirectory) {
    const int result = decide("delete", path);
    return result != SQLITE_OK ? result : g_state->system->xDelete(g_state->system, path, syncDirectory);
}

} // namespace

FaultyVfs::FaultyVfs(Decide decide) {
    if (g_state != nullptr)
        throw std::logic_error("one FaultyVfs at a time");
    sqlite3_initialize();
    g_state = new State;
    g_state->decide = std::move(decide);
    g_state->system = sqlite3_vfs_find(nullptr);
    g_state->vfs = *g_state->system;
    g_state->vfs.zName = "faulty";
    g_state->vfs.pNext = nullptr;
    g_state->vfs.szOsFile += static_cast<int>(sizeof(File));
    g_state->vfs.xOpen = openFile;
    g_state->vfs.xDelete = deleteFile;
    sqlite3_vfs_register(&g_state->vfs, 1);
}

FaultyVfs::~FaultyVfs() {
    sqlite3_vfs_unregister(&g_state->vfs);
    sqlite3_vfs_register(g_state->system, 1);
    delete g_state;
    g_state = nullptr;
}

int FaultyVfs::operationCount() const { return g_state->count; }
