// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace AsciiText {

/// Whether `text` is the same bytes in UTF-8 and in the host's encoding, as
/// most texts of a bank are.
inline bool isAscii(std::string_view text) {
    unsigned char all = 0;
    for (const char c : text)
        all |= static_cast<unsigned char>(c);
    return all < 0x80;
}

} // namespace AsciiText
