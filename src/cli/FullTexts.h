// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "cli/NewRecords.h"
#include "intake/Intake.h"

namespace FullTexts {

/// Gives the new records the texts that no line of the prepared file could
/// hold. `lines` are the records' own, in order; `intake` may be null.
void restore(const NewRecords& added, const std::vector<std::size_t>& lines, const IntakeResult* intake);

} // namespace FullTexts
