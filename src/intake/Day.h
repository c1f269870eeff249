// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <string>

/// A calendar day.
struct Day {
    int year = 0;
    int month = 0;
    int day = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): clang-tidy 14 takes the zero of the generated comparison for a pointer
    friend auto operator<=>(const Day&, const Day&) = default;
    bool exists() const;
    /// Days since 1 January of year 1, for distances.
    int number() const;
    std::string germanText() const; ///< dd.mm.yyyy
};
