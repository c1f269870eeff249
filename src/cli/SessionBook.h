// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/NewRecords.h"
#include "store/Store.h"

/// What an import keeps beside what the library writes: where each record
/// comes from, and what the session brought.
namespace SessionBook {

/// Facts of an import that only its program knows.
struct Facts {
    std::string checksum;    ///< of the file
    std::size_t refused = 0; ///< records
    std::size_t known = 0;   ///< records that were left out because the store has them
};

/// A session as it is told of.
struct Session {
    int number;
    std::string day;      ///< dd.mm.yyyy
    std::string fileName; ///< UTF-8
};

/// The last session in the store's file with that checksum of its file that was not undone.
std::optional<Session> find(Store& store, const std::string& checksum);

/// Notes the line of each new record; `lines` are theirs, in order, or empty
/// where they are not known.
void keepLines(const NewRecords& added, const std::vector<std::size_t>& lines);

/// Notes facts, number, sum and period of the new records with their session.
void keepSession(const NewRecords& added, const Facts& facts);

} // namespace SessionBook
