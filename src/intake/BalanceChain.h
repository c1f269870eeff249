// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "intake/Money.h"

/// How amounts and balances follow one another: balance before plus amount is
/// the balance after.
struct BalanceChain {
    struct Link {
        Money amount;
        Money balance; ///< behind the booking
        int line;      ///< from 1
    };

    bool newestFirst = false; ///< the direction of time that fits better
    int steps = 0;
    int fitting = 0;
    int fittingSizes = 0;    ///< steps whose amount fits but for its sign
    std::vector<int> breaks; ///< lines of the links that do not fit

    bool holds() const { return steps > 0 && fitting == steps; }

    static BalanceChain follow(const std::vector<Link>& links);
};
