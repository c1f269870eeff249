// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

/// One step from the schema version before to `version`. The SQL is what was
/// released and never changes again; a later change is a further step.
struct StoreMigration {
    int version;
    const char* sql;
};

namespace StoreMigrations {

/// Marks a database file as ours (SQLite's application_id).
constexpr std::int32_t kApplicationId = 0x444D4231; // "DMB1"

/// All steps, in order, from version 1 on without gaps.
std::span<const StoreMigration> all();

} // namespace StoreMigrations
