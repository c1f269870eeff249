// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/LeftScratch.h"

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "cli/Descriptor.h"
#include "cli/ScratchFolder.h"

namespace {

constexpr std::size_t kAddedByMkdtemp = 6;

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

bool isOurName(const char* name) {
    return std::strncmp(name, LeftScratch::kPrefix, std::strlen(LeftScratch::kPrefix)) == 0 &&
           std::strlen(name) == std::strlen(LeftScratch::kPrefix) + kAddedByMkdtemp;
}

/// Never a link: who may write to the parent could have put one there.
int openFolder(int parent, const char* name) {
    return ::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

bool isOursAlone(int folder) {
    struct stat status {};
    return ::fstat(folder, &status) == 0 && status.st_uid == ::geteuid() && (status.st_mode & 077U) == 0;
}

void empty(int folder) {
    const int copy = ::fcntl(folder, F_DUPFD_CLOEXEC, 0);
    const Folder entries(copy >= 0 ? ::fdopendir(copy) : nullptr);
    if (entries == nullptr)
        return;
    while (const dirent* entry = ::readdir(entries.get())) // "." and ".." are no files, and stay
        ::unlinkat(folder, entry->d_name, 0);
}

void removeIfLeft(int parent, const char* name) {
    const Descriptor folder(openFolder(parent, name));
    if (!folder.isOpen() || !isOursAlone(folder.number()) || ::flock(folder.number(), LOCK_EX | LOCK_NB) != 0)
        return;
    empty(folder.number());
    ::unlinkat(parent, name, AT_REMOVEDIR);
}

} // namespace

namespace LeftScratch {

void removeAll() {
    const Folder parent(::opendir(ScratchFolder::parent().c_str()));
    if (parent == nullptr)
        return;
    std::vector<std::string> names; // first, since the folder changes under the reader
    while (const dirent* entry = ::readdir(parent.get())) {
        if (isOurName(entry->d_name))
            names.emplace_back(entry->d_name);
    }
    for (const std::string& name : names)
        removeIfLeft(::dirfd(parent.get()), name.c_str());
}

int hold(const char* folder) {
    const int number = openFolder(AT_FDCWD, folder);
    struct stat held {};
    struct stat named {};
    // Waits for somebody who is about to remove it, and then it is gone.
    if (number >= 0 && ::flock(number, LOCK_EX) == 0 && ::fstat(number, &held) == 0 && ::lstat(folder, &named) == 0 &&
        held.st_ino == named.st_ino && held.st_dev == named.st_dev)
        return number;
    if (number >= 0)
        ::close(number);
    return -1;
}

} // namespace LeftScratch
