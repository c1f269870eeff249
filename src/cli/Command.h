// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "cli/ExitStatus.h"
#include "cli/Options.h"

class Console;

/// What a command takes beside options.
struct OperandSpec {
    const char* name; ///< for the help; null when the command takes none
    bool required;
    bool several;
};

/// One command of the program. Each is defined in a file of its own and entered
/// in CommandTable.cpp.
struct Command {
    const char* name;
    const char* summary; ///< German, one line
    OperandSpec operand;
    std::span<const char* const> options; ///< beside those that all commands take
    /// Throws UsageError and StoreError; tells everything else itself.
    ExitStatus (*run)(const Options& options, Console& console);
};
