// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "intake/ColumnChooser.h"
#include "intake/ColumnSurvey.h"

namespace DateColumns {

/// Chooses the day of booking, and where it has no year the column that does.
void choose(ColumnSurvey& survey, ColumnChoice& choice);

} // namespace DateColumns
