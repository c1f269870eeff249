// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "cli/FormatTable.h"
#include "cli/Message.h"
#include "cli/Options.h"
#include "framework/ColumnAssignment.h"
#include "framework/E_SupportedImportFormats.h"
#include "intake/InspectionOptions.h"

/// How a file is to be read, as far as the person said it.
struct ReadingOptions {
    std::optional<Import::E_SupportedImportFormats> format;
    std::optional<ColumnAssignment> columns;
    std::optional<char> delimiter; ///< a byte, Latin-1
    std::optional<bool> header;
    std::optional<Encoding> encoding;
    std::optional<DateOrder> dateOrder;
    std::optional<char> decimalMark;
    bool unassigned = false;
    bool verbatim = false;
    bool allowUndated = false;
    std::optional<std::string> profile;
    std::optional<std::string> saveProfile;
    Options given; ///< as it was written

    /// Throws UsageError.
    static ReadingOptions from(const Options& options);

    /// What is not said here, as `others` say it.
    ReadingOptions completedBy(const ReadingOptions& others) const;

    /// What of it narrows the inspection of a file.
    InspectionOptions forInspection() const;
    /// Tells of what has no effect in that format.
    void noteUseless(const FormatTraits& traits, std::vector<Message>& messages) const;
};
