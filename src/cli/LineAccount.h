// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/FileReading.h"
#include "cli/FileReport.h"

namespace LineAccount {

/// Which of the file's lines are what, after an import that ended as `report`
/// says. Every line is in exactly one bucket.
LineCounts of(const FileReading& reading, const FileReport& report);

} // namespace LineAccount
