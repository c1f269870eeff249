// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// What the lines of a file are. Every line is in exactly one bucket.
struct LineTally {
    std::size_t read = 0; ///< the sum of the others
    std::size_t records = 0;
    std::size_t header = 0;
    std::size_t preamble = 0;
    std::size_t footer = 0;
    std::size_t blank = 0;
    std::size_t ignored = 0;
};
