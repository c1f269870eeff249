// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/Command.h"

/// The command line, read.
struct CommandLine {
    const Command* command = nullptr;
    Options options;
    std::string answer; ///< the help or the version, where that was asked for; there is no command then

    /// `arguments` as main gets them. Throws UsageError.
    static CommandLine parse(int count, const char* const* arguments);
};
