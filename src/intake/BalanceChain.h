// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "intake/Day.h"
#include "intake/Money.h"

/// How amounts and balances follow one another: balance before plus amount is
/// the balance after.
struct BalanceChain {
    struct Link {
        Money amount;
        Money balance; ///< behind the booking
        int line = 0;  ///< from 1
    };

    bool newestFirst = false; ///< the direction of time that fits better
    int steps = 0;
    int fitting = 0;
    int fittingSizes = 0;    ///< steps whose amount fits but for its sign
    std::vector<int> breaks; ///< lines of the links that do not fit

    bool holds() const { return steps > 0 && fitting == steps; }

    /// `newestFirst` where the days of the bookings tell; otherwise the better of both.
    static BalanceChain follow(const std::vector<Link>& links, std::optional<bool> newestFirst = std::nullopt);
    /// What days in the order of the file tell; nothing where they go up and down, or not at all.
    static std::optional<bool> orderOf(const std::vector<Day>& days);
};
