// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "intake/DelimitedInspector.h"
#include "intake/InspectionOptions.h"
#include "intake/PhysicalLines.h"
#include "intake/PreparedFile.h"

namespace DelimitedPreparation {

/// The file as the library reads it right: what must change is changed, all
/// else stays as it is. `physical` are the lines that `file` was inspected from.
PreparedFile prepare(const DelimitedFile& file, const PhysicalLines& physical, const InspectionOptions& options);

} // namespace DelimitedPreparation
