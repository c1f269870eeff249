// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// One imported record as a page tells of it. Texts are printable UTF-8.
struct ReportedRecord {
    std::size_t line = 0; ///< of the file, from 1; 0 where it is not known
    std::optional<std::chrono::year_month_day> day;
    std::int64_t cents = 0; ///< rounded to them
    bool isRounded = false; ///< the amount has more decimals
    std::string payee;
    std::string purpose;
    std::string category;
};
