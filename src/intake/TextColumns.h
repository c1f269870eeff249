// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "intake/ColumnRoles.h"
#include "intake/ColumnSurvey.h"

namespace TextColumns {

/// Chooses the other side, the purpose, the posting text, category and status
/// from the columns that are left.
void choose(ColumnSurvey& survey, ColumnRoles& roles);

} // namespace TextColumns
