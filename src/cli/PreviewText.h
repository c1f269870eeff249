// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "cli/Console.h"
#include "cli/FileReading.h"
#include "cli/LibraryRun.h"

/// A simulated import, shown.
namespace PreviewText {

/// `limit` rows at most.
void writeJson(Console& console, const FileReading& reading, const LibraryRun& run, const RunOutcome& outcome,
               const std::vector<Message>& messages, std::size_t limit);
void writeTable(Console& console, const FileReading& reading, const LibraryRun& run, std::size_t limit);

} // namespace PreviewText
