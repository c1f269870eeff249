// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "datamodel/DataManager.h"
#include "datamodel/RecordNode.h"
#include "store/Store.h"

/// Which lists of bookings were imported: what the sessions are to the file imports.
namespace BookingListBook {

struct Facts {
    std::string fileName; ///< host bytes
    std::string checksum;
    std::size_t bookings; ///< that were imported
    std::size_t known;    ///< that were left out because the store has them
};

/// A list as it is told of.
struct List {
    std::string day;      ///< dd.mm.yyyy
    std::string fileName; ///< UTF-8
};

/// The last imported list in the store's file with that checksum.
std::optional<List> find(Store& store, const std::string& checksum);

/// Notes a list whose bookings went to `account`, which knows the day.
void keep(DataManager& model, RecordNode& account, const Facts& facts);

} // namespace BookingListBook
