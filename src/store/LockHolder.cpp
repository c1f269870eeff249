// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/LockHolder.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <optional>
#include <string_view>

namespace {

// The bytes that SQLite locks, which are part of its file format: one that
// announces a writer, one that reserves the file for it, and those of the readers.
constexpr unsigned long long kFirstLockByte = 0x40000000;
constexpr unsigned long long kLastLockByte = kFirstLockByte + 1 + 510;

struct Lock {
    bool write = false;
    long process = 0;
    unsigned deviceMajor = 0;
    unsigned deviceMinor = 0;
    unsigned long long inode = 0;
    unsigned long long firstByte = 0;
};

/// A line of /proc/locks such as
/// "1: POSIX  ADVISORY  WRITE 4711 fe:00:1095 1073741825 1073741825".
/// The lines of those who wait for a lock have an arrow before the kind and are none.
std::optional<Lock> parse(const std::string& line) {
    Lock lock;
    char access[8] = "";
    const int read = std::sscanf(line.c_str(), "%*d: POSIX %*s %7s %ld %x:%x:%llu %llu", access, &lock.process,
                                 &lock.deviceMajor, &lock.deviceMinor, &lock.inode, &lock.firstByte);
    if (read != 6 || lock.firstByte < kFirstLockByte || lock.firstByte > kLastLockByte)
        return std::nullopt;
    lock.write = std::string_view(access) == "WRITE";
    return lock;
}

/// How well a lock explains that the file is busy; 0: not at all. Some file
/// systems report another device than the file's, so that it only adds weight.
int weight(const Lock& lock, const struct stat& file) {
    if (lock.inode != file.st_ino || lock.process <= 0)
        return 0;
    const bool sameDevice = lock.deviceMajor == major(file.st_dev) && lock.deviceMinor == minor(file.st_dev);
    return 1 + (lock.write ? 1 : 0) + (lock.process != getpid() ? 2 : 0) + (sameDevice ? 4 : 0);
}

std::string programName(long process) {
    std::ifstream input("/proc/" + std::to_string(process) + "/comm");
    std::string name;
    std::getline(input, name);
    return name;
}

} // namespace

std::string LockHolder::describe(const std::filesystem::path& file) {
    struct stat status = {};
    long process = 0;
    int best = 0;
    std::ifstream locks("/proc/locks");
    if (stat(file.c_str(), &status) == 0) {
        for (std::string line; std::getline(locks, line);) {
            const std::optional<Lock> lock = parse(line);
            if (lock && weight(*lock, status) > best) {
                best = weight(*lock, status);
                process = lock->process;
            }
        }
    }
    if (process == 0)
        return "einem anderen Programm";
    const std::string number = "(Prozess " + std::to_string(process) + ")";
    if (process == getpid())
        return "diesem Programm selbst " + number;
    const std::string name = programName(process);
    return (name.empty() ? "einem anderen Programm" : name) + " " + number;
}
