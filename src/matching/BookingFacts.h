// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string_view>

/// What tells one booking from another, wherever it comes from. Texts are the
/// host's bytes (Windows-1252) and belong to somebody else.
struct BookingFacts {
    std::optional<std::chrono::sys_days> day; ///< none: undated
    std::optional<double> amount;             ///< currency units; compared exactly
    std::string_view payee;
    std::string_view purpose;
    std::array<std::string_view, 3> details; ///< category, subcategory, kind of booking
    std::string_view number;                 ///< the bank's own; empty where it gives none
};
