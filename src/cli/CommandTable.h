// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "cli/Command.h"

namespace CommandTable {

/// All commands, in the order of the help.
std::span<const Command* const> all();

} // namespace CommandTable
