// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Something about a file that a person must hear. `code` is stable; `text` is
/// German, UTF-8, and says what, where and what to do.
struct IntakeMessage {
    int line = 0; ///< from 1; 0 for the file as a whole
    std::string code;
    std::string text;
    bool refusal = false; ///< a record was not taken because of this
};
