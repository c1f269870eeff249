// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/FileReading.h"
#include "report/FileChapter.h"

namespace ReadingFacts {

/// Enters into `chapter` how the file is read and why, and the balances that were found in it.
void enter(const FileReading& reading, FileChapter& chapter);

} // namespace ReadingFacts
