// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "intake/ColumnLexicon.h"
#include "intake/InspectionOptions.h"

namespace DelimiterChoice {

/// The character that makes most sense of the lines: split there, they show
/// bookings under known names, or in the columns that `options` name. Where
/// nothing makes sense, the one that splits most lines into equally many fields.
char choose(std::span<const std::string_view> lines, const InspectionOptions& options, const ColumnLexicon& lexicon);

} // namespace DelimiterChoice
