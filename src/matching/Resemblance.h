// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// How a booking that is to be imported stands to those that a store has.
struct Resemblance {
    enum class Mark { fresh, known, doubtful };
    /// Why, where it is not fresh.
    enum class Reason {
        none,
        sameNumber,   ///< known: the bank's number, day and amount
        sameContent,  ///< known: day, amount, payee and purpose
        numberReused, ///< doubtful: the bank's number, but another day or amount
        renumbered,   ///< doubtful: the content, but another number of the bank's
        otherText,    ///< doubtful: day and amount, and texts that are alike
        otherDay,     ///< doubtful: amount, payee and a purpose that is alike, some days off
    };

    Mark mark = Mark::fresh;
    Reason reason = Reason::none;
    std::size_t stored = 0; ///< which of the store's bookings, from 0; only where it is not fresh
    int daysLater = 0;      ///< for `otherDay`: how much later than the stored one; negative when earlier
};
