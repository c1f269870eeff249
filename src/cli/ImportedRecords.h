// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "cli/HomeBankingRows.h"
#include "cli/NewRecords.h"
#include "report/RecordDigest.h"

/// What the page about an import tells of its records. Taken before the store
/// commits or rolls back, since rows of the model may die then.
struct ImportedRecords {
    RecordDigest digest;
    std::optional<std::chrono::year_month_day> day; ///< that the store keeps for the import, UTC
    std::string account;                            ///< printable UTF-8; of home-banking bookings only

    static ImportedRecords of(const NewRecords& added);
    static ImportedRecords ofBookings(const HomeBankingRows::Bookings& bookings);
};
