// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/Options.h"
#include "cli/ReadingOptions.h"
#include "intake/Intake.h"

/// How files of one layout are read, kept under a name: a text file of lines
/// `key = value`, whose keys are options of the command line without their
/// dashes, and the names of the columns by which such a file is known again.
struct Profile {
    std::string name;                ///< UTF-8
    std::vector<std::string> header; ///< names of the columns, UTF-8; none for files without a header
    Options options;                 ///< what the profile fixes, as one would write it

    /// What was found in a file and what the person fixed for it.
    static Profile of(const std::string& name, const IntakeResult& result, const Options& given);
    /// Throws UsageError, which names the line.
    static Profile parse(const std::string& name, std::string_view text);

    std::string text() const;
    /// Throws UsageError where a value is none.
    ReadingOptions readingOptions() const { return ReadingOptions::from(options); }
};
