// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/InputFile.h"
#include "cli/ReadingOptions.h"
#include "cli/ReadingPlan.h"

namespace PreparedPlan {

/// The file inspected, and made ready for the library where it would not read
/// it right as it is. Throws std::system_error when there is no place for
/// temporary files.
ReadingPlan of(InputFile& input, const ReadingOptions& options);

} // namespace PreparedPlan
