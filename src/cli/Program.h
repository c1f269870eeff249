// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitStatus.h"

/// The program, from the command line to the exit status.
namespace Program {

ExitStatus run(int count, const char* const* arguments);

} // namespace Program
