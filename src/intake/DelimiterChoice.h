// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "intake/ColumnLexicon.h"

namespace DelimiterChoice {

/// The character that makes most sense of the lines: split there, they show
/// bookings under known names. `header` set says whether there is a header.
char choose(std::span<const std::string_view> lines, std::optional<bool> header, const ColumnLexicon& lexicon);

} // namespace DelimiterChoice
