// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace AsciiText {

/// Whether `text` is the same bytes in UTF-8 and in the host's encoding, as
/// most texts of a bank are.
inline bool isAscii(std::string_view text) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::uint64_t all = 0;
    std::size_t at = 0;
    for (; at + sizeof all <= text.size(); at += sizeof all) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + at, sizeof word);
        all |= word;
    }
    for (; at < text.size(); ++at)
        all |= static_cast<unsigned char>(text[at]);
    return (all & kHighBits) == 0;
}

} // namespace AsciiText
