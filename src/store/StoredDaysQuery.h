// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "store/StoredDays.h"
#include "store/StoreTree.h"

/// Reads the rows of some days as they lie in the file, past the tree: of 65,000
/// stored rows those that an import may repeat are few.
namespace StoredDaysQuery {

/// The columns of the table that the question is about.
struct Columns {
    const char* date;
    const char* number; ///< null where the table has no number of the bank's
};

/// Rows in order. Throws StoreError.
void visit(StoreTree& tree, const TableLayout& layout, std::int64_t owner, const Columns& columns,
           const StoredDays& days, const RowVisitor& use);

} // namespace StoredDaysQuery
