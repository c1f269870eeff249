// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/InputFile.h"
#include "cli/ReadingOptions.h"
#include "cli/ReadingPlan.h"

namespace VerbatimPlan {

/// The file as it is, byte for byte. Throws std::system_error when there is no
/// place for temporary files.
ReadingPlan of(InputFile& input, const ReadingOptions& options);

} // namespace VerbatimPlan
