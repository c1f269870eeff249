// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace TimeOfDay {

/// Whether `rest`, what stands behind a date, is nothing or a time of day:
/// "T10:11:12.5Z", " 10:11", " um 10.11 Uhr", ", 1:02 PM EST". "01.02.2024",
/// the end of a period, is none.
bool isTimeOrNothing(std::string_view rest);

} // namespace TimeOfDay
