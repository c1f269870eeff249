// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/StoreAtPath.h"

#include <cerrno>
#include <cstdlib>
#include <sys/stat.h>

#include "cli/UsageError.h"

namespace {

constexpr const char* kBelowDataDirectory = "dmimport/bestand.db";

/// A directory that the environment names; a relative one does not count.
std::filesystem::path named(const char* variable) {
    const char* value = std::getenv(variable);
    const std::filesystem::path path = value != nullptr ? value : "";
    return path.is_absolute() ? path : std::filesystem::path();
}

std::filesystem::path defaultStore() {
    if (const std::filesystem::path data = named("XDG_DATA_HOME"); !data.empty())
        return data / kBelowDataDirectory;
    if (const std::filesystem::path home = named("HOME"); !home.empty())
        return home / ".local/share" / kBelowDataDirectory;
    throw UsageError(
        "Es ist nicht bekannt, wo Ihre Daten liegen (HOME fehlt); nennen Sie den Bestand mit --store DATEI.");
}

/// For the user alone. What goes wrong here, opening the store tells.
void makeDirectories(const std::filesystem::path& path) {
    if (path.empty() || ::mkdir(path.c_str(), S_IRWXU) == 0 || errno != ENOENT)
        return;
    makeDirectories(path.parent_path());
    ::mkdir(path.c_str(), S_IRWXU);
}

} // namespace

StoreAtPath::StoreAtPath(const std::optional<std::string>& option)
    : m_path(option ? std::filesystem::path(*option) : defaultStore()), m_isDefault(!option) {
    if (m_path.empty())
        throw UsageError("--store: Der Name fehlt; schreiben Sie etwa --store bestand.db.");
}

Store& StoreAtPath::forReading() {
    if (!m_store)
        m_store.emplace(Store::open(m_path, Store::Access::readOnly));
    return *m_store;
}

Store& StoreAtPath::forWriting() {
    if (!m_store) {
        if (m_isDefault)
            makeDirectories(m_path.parent_path());
        m_store.emplace(Store::open(m_path, Store::Access::readWrite));
    }
    return *m_store;
}
