// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "intake/Day.h"

namespace DatesInText {

/// The days that a line above a table names, among other words: "Zeitraum:
/// 01.12.2023 - 31.01.2024". Only what can be no other day counts: a year of
/// four digits, and points or the year ahead.
std::vector<Day> find(std::span<const std::string_view> cells, int centuryWindow);

} // namespace DatesInText
