// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "intake/ColumnLexicon.h"
#include "intake/RecordTable.h"

/// A table inside a file: a header, perhaps, and the records below it.
struct TableRegion {
    std::optional<std::size_t> header; ///< record of the column names
    bool namesKnown = false;           ///< the header is recognised by its names
    std::size_t begin = 0;             ///< first record below the header
    std::size_t end = 0;               ///< one behind the last
    std::vector<std::size_t> repeatedHeaders;
};

namespace TableFinder {

/// Finds the tables by their headers, wherever they stand; without one, the
/// table is what begins with the first record that looks like a booking.
/// `header` set says whether there is one at all.
std::vector<TableRegion> find(const RecordTable& table, const ColumnLexicon& lexicon,
                              std::optional<bool> header = std::nullopt);

/// Whether a record holds a date and, in another field, an amount.
bool looksLikeBooking(const RecordTable& table, std::size_t record);

} // namespace TableFinder
