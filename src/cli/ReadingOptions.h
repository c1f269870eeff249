// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cli/Options.h"
#include "framework/ColumnAssignment.h"
#include "framework/E_SupportedImportFormats.h"

/// How a file is to be read, as far as the person said it.
struct ReadingOptions {
    std::optional<Import::E_SupportedImportFormats> format;
    std::optional<ColumnAssignment> columns;
    std::optional<char> delimiter; ///< a byte, Latin-1
    bool header = false;
    bool unassigned = false;
    bool verbatim = false;

    /// Throws UsageError.
    static ReadingOptions from(const Options& options);
};
