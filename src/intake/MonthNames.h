// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Months and weekdays as words: German, English, French, Italian, Spanish and Dutch.
namespace MonthNames {

/// 1 to 12 for a name or an abbreviation of three letters or more; 0 for any
/// other word, and for one that begins two months ("jui").
int month(std::string_view word);
bool isWeekday(std::string_view word);

} // namespace MonthNames
