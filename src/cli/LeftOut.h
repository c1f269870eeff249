// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/FileReading.h"
#include "cli/FileReport.h"
#include "cli/SourceLines.h"
#include "report/FileChapter.h"

namespace LeftOut {

/// What was said, for a page: texts printable.
Finding findingOf(const Message& message);

/// Whether it says that a record was left out since the store has it.
bool isKnownRecord(const Message& message);

/// Enters into `chapter` every line that became no record, with its reason, and
/// all that was said beside that. Of a file of which nothing was taken these are
/// only the lines of which something was said.
void enter(const FileReading& reading, const FileReport& report, const SourceLines& lines, FileChapter& chapter);

} // namespace LeftOut
