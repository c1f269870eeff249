// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

/// Lines of a file that became no record, and why. Texts are printable UTF-8.
struct LinesLeftOut {
    std::size_t first = 0; ///< from 1; 0 where `text` says which
    std::size_t last = 0;
    std::string reason;
    std::string code; ///< of the message that says so; may be empty
    std::string text; ///< what stands there, as far as it can be shown

    /// "7" or "7–9"
    std::string linesText() const {
        const std::string from = first == 0 ? "–" : std::to_string(first);
        return first == last ? from : from + "–" + std::to_string(last);
    }
};
