// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// Waits for a file that another program holds. SQLite's own way of waiting looks
/// ever more seldom, up to ten times a second, and a program that
/// imports file after file lets go for a millisecond only: of eight at once most gave up. This one keeps looking every
/// few milliseconds, each process in a rhythm of its own.
class BusyWait {
public:
    explicit BusyWait(std::chrono::milliseconds patience) : m_patience(patience) {}

    /// For sqlite3_busy_handler, with this object as context: sleeps a little and
    /// says whether to try once more. `tries` counts from 0 for each wait.
    static int tryAgain(void* self, int tries);

private:
    std::chrono::milliseconds m_patience;
    std::chrono::steady_clock::time_point m_giveUp;
};
