// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// What became of the records of a file. Each is in exactly one of the rows
/// but `undated`, which counts some of the imported ones.
struct RecordTally {
    std::size_t found = 0; ///< the sum of imported, refused, known, takenBack and unread
    std::size_t imported = 0;
    std::size_t refused = 0;
    std::size_t known = 0;     ///< left out since the store has them already
    std::size_t takenBack = 0; ///< read, and not kept when the import failed
    std::size_t unread = 0;    ///< behind the place where the import ended
    std::size_t undated = 0;
};
