// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "store/StorePath.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "store/StoreError.h"

namespace {

[[noreturn]] void fail(const StorePath& path, int error) {
    switch (error) {
    case EACCES:
        throw StoreError(StoreErrorCode::noPermission, path.given);
    case ENAMETOOLONG:
        throw StoreError(StoreErrorCode::pathTooLong, path.given);
    default:
        throw StoreError(StoreErrorCode::io, path.given, std::strerror(error));
    }
}

bool allows(const std::filesystem::path& path, int mode) {
    return faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS) == 0;
}

std::filesystem::path directoryOf(const std::filesystem::path& path) {
    return path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
}

std::filesystem::path resolve(const StorePath& path, const std::filesystem::path& existing) {
    std::error_code error;
    std::filesystem::path real = std::filesystem::canonical(existing, error);
    if (error)
        fail(path, error.value());
    return real;
}

void locateExisting(StorePath& path, const struct stat& status, StoreAccess access) {
    if (S_ISDIR(status.st_mode))
        throw StoreError(StoreErrorCode::isDirectory, path.given);
    if (!S_ISREG(status.st_mode))
        throw StoreError(StoreErrorCode::notAStore, path.given);
    path.exists = true;
    path.real = resolve(path, path.given);
    if (!allows(path.real, R_OK))
        throw StoreError(StoreErrorCode::noPermission, path.given);
    // The directory takes the journal.
    if (access == StoreAccess::readWrite && (!allows(path.real, W_OK) || !allows(directoryOf(path.real), W_OK | X_OK)))
        throw StoreError(StoreErrorCode::readOnly, path.given);
}

void locateNew(StorePath& path) {
    struct stat status = {};
    if (lstat(path.given.c_str(), &status) == 0) // a link that leads nowhere: its target may be a disk not there now
        throw StoreError(StoreErrorCode::missing, path.given);
    const std::filesystem::path directory = directoryOf(path.given);
    if (!path.given.has_filename() || stat(directory.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
        throw StoreError(StoreErrorCode::noDirectory, path.given);
    if (!allows(directory, W_OK | X_OK))
        throw StoreError(StoreErrorCode::readOnly, path.given);
    path.real = resolve(path, directory) / path.given.filename();
}

} // namespace

StorePath StorePath::locate(const std::filesystem::path& given, StoreAccess access) {
    StorePath path;
    path.given = given;
    struct stat status = {};
    if (stat(given.c_str(), &status) == 0)
        locateExisting(path, status, access);
    else if (errno != ENOENT && errno != ENOTDIR)
        fail(path, errno);
    else if (access == StoreAccess::readOnly)
        throw StoreError(StoreErrorCode::missing, given);
    else
        locateNew(path);
    return path;
}

bool StorePath::create() const {
    const int file = open(real.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file >= 0) {
        close(file);
        return true;
    }
    if (errno == EEXIST)
        return false;
    if (errno == ENOSPC || errno == EDQUOT)
        throw StoreError(StoreErrorCode::full, given);
    if (errno == EROFS || errno == EPERM)
        throw StoreError(StoreErrorCode::readOnly, given);
    fail(*this, errno);
}
