// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

/// Numbers and days as a German page writes them; UTF-8.
namespace GermanText {

/// `65.535`
std::string grouped(std::uint64_t number);
/// `1 Datensatz`, `65.535 Datensätze`
std::string counted(std::size_t count, const char* one, const char* many);
/// `31.12.2004`
std::string date(std::chrono::year_month_day day);
/// `Dezember 2004`
std::string month(std::chrono::year_month month);

} // namespace GermanText
