// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "store/Store.h"

/// The store of a call, opened when it is first needed.
class StoreAtPath {
public:
    /// `option` as written with --store. Throws UsageError where it names none
    /// and the user has no data directory either.
    explicit StoreAtPath(const std::optional<std::string>& option);
    /// The call is over, and the program with it: the model is left to the system.
    ~StoreAtPath();
    StoreAtPath(const StoreAtPath&) = delete;
    StoreAtPath& operator=(const StoreAtPath&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    /// Throws StoreError.
    Store& forReading();
    /// For writing into one that is there. Throws StoreError.
    Store& forExisting();
    /// Creates the user's data directory where the store lies there.
    Store& forWriting();

private:
    std::filesystem::path m_path;
    bool m_isDefault;
    std::optional<Store> m_store;
};
