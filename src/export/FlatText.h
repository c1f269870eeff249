// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Texts for formats of lines: what means something to the format becomes something like it.
namespace FlatText {

struct Rules {
    std::string_view from; ///< characters that the format understands differently
    std::string_view to;   ///< what stands in place of each
    /// Control characters and no-break spaces are blanks as well, and of several blanks one stays.
    bool collapsesBlanks;
};

/// Appends `text` (host bytes) as UTF-8 on one line and without blanks at its
/// ends. Whether it is another one now.
bool append(std::string& out, std::string_view text, const Rules& rules);

} // namespace FlatText
