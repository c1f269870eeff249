// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "cli/Options.h"
#include "export/ExportFormats.h"

/// What is to be written out, and how.
struct ExportChoice {
    const ExportFormat* format = nullptr;
    std::optional<int> session;
    DMDate since; ///< zero: from the beginning
    DMDate until; ///< included; zero: to the end
    /// Bank code and number of the account whose bookings are wanted, "/" between them; host bytes.
    std::optional<std::string> account;

    /// Throws UsageError.
    static ExportChoice from(const Options& options);

    /// Whether the record is among those that were asked for. One without a day is in no period.
    bool takes(const ExportRecord& record) const;
};
