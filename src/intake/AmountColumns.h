// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "intake/ColumnChooser.h"
#include "intake/ColumnSurvey.h"

namespace AmountColumns {

/// Chooses amount or debit and credit, the column that tells the sign, balance
/// and currency; what could be the amount as well is left in `choice`.
void choose(ColumnSurvey& survey, ColumnChoice& choice);

} // namespace AmountColumns
