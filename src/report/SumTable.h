// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "report/PageTable.h"
#include "report/RecordDigest.h"

/// Sums of the records, each row with what came in, what went out and both
/// together; the last row is the sum of those above.
namespace SumTable {

/// Above this many months years are told instead.
inline constexpr std::size_t kMostMonths = 120;
/// The categories of the largest amounts; the others share a row.
inline constexpr std::size_t kMostCategories = 200;

PageTable byMonth(const RecordDigest& digest);
PageTable byCategory(const RecordDigest& digest);

} // namespace SumTable
