// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/FileReport.h"
#include "cli/HomeBankingDocument.h"

/// What became of one home-banking document.
struct HomeBankingReport {
    std::string file;    ///< the shell's bytes
    bool result = false; ///< the library's
    std::size_t undatedCount = 0;
    bool broughtNothingNew() const { return records.imported == 0 && records.known.value_or(0) > 0; }
    std::string errorText; ///< the library's, UTF-8
    bool committed = false;
    std::size_t accounts = 0; ///< that an account list marked as present
    LineCounts lines;
    RecordCounts records;
    std::vector<Message> messages;

    Json json(const HomeBankingDocument& document) const;
    /// One line for a person.
    std::string summary(const HomeBankingDocument& document) const;
};
