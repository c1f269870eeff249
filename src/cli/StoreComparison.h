// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cli/RecordMark.h"
#include "datamodel/RecordNode.h"
#include "store/Store.h"

/// Compares records that an import has made with those that a store's file has;
/// only those of the same days are read.
namespace StoreComparison {

/// A mark per record, in order. Throws StoreError.
std::vector<RecordMark> ofRecords(Store& store, const std::vector<RecordNode*>& made);

/// The same for bookings of one account, a row of the store's tree.
std::vector<RecordMark> ofBookings(Store& store, const RecordNode& account, const std::vector<RecordNode*>& made);

} // namespace StoreComparison
