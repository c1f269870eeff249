// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "cli/Console.h"
#include "cli/FileReading.h"
#include "cli/LibraryRun.h"
#include "cli/PreviewMarks.h"

/// A simulated import, shown.
namespace PreviewText {

/// `limit` rows at most. `marks` is null where no store was asked.
void writeJson(Console& console, const FileReading& reading, const LibraryRun& run, const RunOutcome& outcome,
               const std::vector<Message>& messages, const PreviewMarks* marks, std::size_t limit);
void writeTable(Console& console, const FileReading& reading, const LibraryRun& run, const PreviewMarks* marks,
                std::size_t limit);

} // namespace PreviewText
