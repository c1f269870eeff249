// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/StoreAtPath.h"

#include "cli/UsageError.h"
#include "cli/UserFolder.h"

namespace {

constexpr const char* kBelowDataDirectory = "dmimport/bestand.db";

std::filesystem::path defaultStore() {
    const std::filesystem::path data = UserFolder::data();
    if (data.empty())
        throw UsageError(
            "Es ist nicht bekannt, wo Ihre Daten liegen (HOME fehlt); nennen Sie den Bestand mit --store DATEI.");
    return data / kBelowDataDirectory;
}

} // namespace

StoreAtPath::StoreAtPath(const std::optional<std::string>& option)
    : m_path(option ? std::filesystem::path(*option) : defaultStore()), m_isDefault(!option) {
    if (m_path.empty())
        throw UsageError("--store: Der Name fehlt; schreiben Sie etwa --store bestand.db.");
}

StoreAtPath::~StoreAtPath() {
    if (m_store)
        m_store->leaveModel();
}

Store& StoreAtPath::forReading() {
    if (!m_store)
        m_store.emplace(Store::open(m_path, Store::Access::readOnly));
    return *m_store;
}

Store& StoreAtPath::forExisting() {
    if (!m_store)
        static_cast<void>(Store::open(m_path, Store::Access::readOnly)); // says so where there is none
    return forWriting();
}

Store& StoreAtPath::forWriting() {
    if (!m_store) {
        if (m_isDefault)
            UserFolder::make(m_path.parent_path());
        m_store.emplace(Store::open(m_path, Store::Access::readWrite));
    }
    return *m_store;
}
