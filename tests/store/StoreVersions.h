// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "store/StoreMigrations.h"

/// Schema versions as SQLite prints them.
namespace StoreVersions {

inline std::string ours() { return std::to_string(StoreMigrations::all().back().version); }
/// That of a later release with one more step.
inline std::string next() { return std::to_string(StoreMigrations::all().back().version + 1); }

} // namespace StoreVersions
