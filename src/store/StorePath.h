// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "store/StoreAccess.h"

/// Where a store lies: as it was named, and the file behind links, which is
/// what is opened, since the journal lies beside it.
struct StorePath {
    std::filesystem::path given;
    std::filesystem::path real;
    bool exists = false;

    /// Looks without opening anything, so that a FIFO cannot hang and a device
    /// is left alone. Throws StoreError for every path that cannot be a store
    /// for that access.
    static StorePath locate(const std::filesystem::path& given, StoreAccess access);

    /// Creates the empty file for the user alone; false when somebody else just did.
    bool create() const;
};
