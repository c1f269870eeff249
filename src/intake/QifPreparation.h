// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "intake/InspectionOptions.h"
#include "intake/PhysicalLines.h"
#include "intake/PreparedFile.h"
#include "intake/Reason.h"

/// A QIF file made ready, with what was found on the way.
struct PreparedQif {
    PreparedFile file;
    double confidence = 0.0;
    std::vector<Reason> reasons;
    std::optional<IntakeMessage> undecided; ///< nothing is imported then
    int found = 0;                          ///< records that belong into the books
};

namespace QifPreparation {

/// Sections that hold nothing to import become empty lines, since the library
/// would carry their texts into the next record; dates and amounts that it
/// would misread get a form that it reads right; a last record without its "^"
/// gets one; records that it would refuse, and stop at, are taken out.
PreparedQif prepare(const PhysicalLines& physical, const InspectionOptions& options);

} // namespace QifPreparation
