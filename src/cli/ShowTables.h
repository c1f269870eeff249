// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "datamodel/RecordNode.h"
#include "datamodel/TableNode.h"

/// One of the views of a store that `show` offers.
struct ShowTable {
    const char* name; ///< on the command line
    const char* jsonKey;
    const char* one; ///< what a row is called, German
    const char* many;
    /// Fields that come first, in this order; those that the schema has beside
    /// them follow.
    std::span<const char* const> firstFields;
    /// The schema of its rows.
    const RecordSpec& (*rowSpec)(RecordNode& root);
    /// Its rows, at most `limit`, as far as they can be read; `total` becomes
    /// how many there are.
    std::vector<struct ShownRow> (*rows)(RecordNode& root, std::size_t limit, std::size_t& total);
    bool hasAccount; ///< whether the account's two numbers stand before the fields
    /// Fields that are in the JSON alone: nobody reads them in a table.
    std::span<const char* const> jsonOnly = {};
};

struct ShownRow {
    RecordNode* record = nullptr;
    RecordNode* account = nullptr; ///< of a booking
};

namespace ShowTables {

std::span<const ShowTable> all();
/// Null for an unknown name.
const ShowTable* byName(std::string_view name);

/// Indexes of the fields of a row, in the order in which they are shown.
std::vector<std::size_t> fieldOrder(const ShowTable& table, const RecordSpec& spec);
/// The same without those that are in the JSON alone.
std::vector<std::size_t> fieldsForPeople(const ShowTable& table, const RecordSpec& spec);

} // namespace ShowTables
