// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <variant>

#include "cli/Options.h"

/// One option of the command line: how it is written and where its value goes.
struct OptionSpec {
    using Flag = bool Options::*;
    using Value = std::optional<std::string> Options::*;

    const char* name;      ///< with both dashes
    const char* valueName; ///< for the help; null for a flag
    std::variant<Flag, Value> target;
    const char* help;
    const char* example; ///< how it is written right, for who wrote it wrong

    bool isFlag() const { return std::holds_alternative<Flag>(target); }
};

namespace OptionTable {

/// All options of all commands, in the order of the help.
std::span<const OptionSpec> all();
/// Not null; the name must be one of the table.
const OptionSpec& byName(const char* name);

} // namespace OptionTable
