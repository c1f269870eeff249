// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Reading and writing of single UTF-8 characters.
namespace Utf8 {

struct Character {
    char32_t code;      ///< the byte itself where the text is no valid UTF-8
    std::size_t length; ///< bytes it takes
    bool valid;
};

/// The character that `text` (not empty) starts with.
Character first(std::string_view text);
bool isValid(std::string_view text);
void append(std::string& out, char32_t code);

/// At most `count` characters of `text`; a cut is shown by an ellipsis, which
/// counts as one of them.
std::string shortened(std::string_view text, std::size_t count);

} // namespace Utf8
