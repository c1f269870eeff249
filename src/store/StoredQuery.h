// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "store/StoredDays.h"
#include "store/StoreTree.h"

/// Reads rows as they lie in the file, past the tree: of 65,000 stored rows those
/// that an import may repeat are few. All functions show the rows in order and throw StoreError.
namespace StoredQuery {

/// The columns of a table that a question about days is about.
struct DayColumns {
    const char* date;
    const char* number; ///< null where the table has no number of the bank's
};

void byDays(StoreTree& tree, const TableLayout& layout, std::int64_t owner, const DayColumns& columns,
            const StoredDays& days, const RowVisitor& use);

/// The rows of a table of the root whose column `column` is `text` (host bytes).
void byText(StoreTree& tree, const TableLayout& layout, const char* column, std::string_view text,
            const RowVisitor& use);

} // namespace StoredQuery
