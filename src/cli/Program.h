// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "cli/ExitStatus.h"

/// The program, from the command line to the exit status.
namespace Program {

/// `expectMuch` is called, if at all, before files are read that fill memory: what is worth its cost then can be
/// done there.
ExitStatus run(int count, const char* const* arguments, const std::function<void()>& expectMuch = {});

} // namespace Program
