// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "framework/datamodel_api/DMDate.h"

/// Dates as the store writes them: ISO text, and "0000-00-00" for the zero
/// date, which is not the same as no value (NULL).
namespace StoreDate {

constexpr int kLength = 10;

/// Writes `kLength` characters.
void write(char* out, const DMDate& date);
/// Empty when `text` is neither an existing day nor the zero date.
std::optional<DMDate> read(std::string_view text);

} // namespace StoreDate
