// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program, which libFuzzer and the replay take for a find, unless the
/// rule holds.
inline void require(bool holds, const char* rule) {
    if (holds)
        return;
    std::fprintf(stderr, "violated: %s\n", rule);
    std::abort();
}
