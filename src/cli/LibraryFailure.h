// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/FileReading.h"
#include "cli/LibraryRun.h"
#include "cli/Message.h"

/// Why the library gave up on a file, from what the program itself knows of the
/// file; the library's own words are shown, never searched.
namespace LibraryFailure {

Message message(const FileReading& reading, const RunOutcome& outcome);

} // namespace LibraryFailure
