// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/UserFolder.h"

#include <cerrno>
#include <cstdlib>
#include <sys/stat.h>

namespace {

/// A directory that the environment names; a relative one does not count.
std::filesystem::path named(const char* variable) {
    const char* value = std::getenv(variable);
    const std::filesystem::path path = value != nullptr ? value : "";
    return path.is_absolute() ? path : std::filesystem::path();
}

std::filesystem::path folder(const char* variable, const char* belowHome) {
    if (std::filesystem::path path = named(variable); !path.empty())
        return path;
    const std::filesystem::path home = named("HOME");
    return home.empty() ? home : home / belowHome;
}

} // namespace

namespace UserFolder {

std::filesystem::path data() { return folder("XDG_DATA_HOME", ".local/share"); }

std::filesystem::path config() { return folder("XDG_CONFIG_HOME", ".config"); }

void make(const std::filesystem::path& path) {
    if (path.empty() || ::mkdir(path.c_str(), S_IRWXU) == 0 || errno != ENOENT)
        return;
    make(path.parent_path());
    ::mkdir(path.c_str(), S_IRWXU);
}

} // namespace UserFolder
