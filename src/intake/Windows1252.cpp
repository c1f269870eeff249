// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Windows1252.h"

#include <array>
#include <cstddef>

namespace {

// Bytes 0x80 to 0x9F; everything else is as in Latin-1.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr unsigned kFirstHigh = 0x80;

} // namespace

namespace Windows1252 {

std::optional<char> byteOf(char32_t character) {
    if (character < kFirstHigh || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(static_cast<unsigned char>(character));
    for (std::size_t i = 0; i < kHigh.size(); ++i) {
        if (kHigh[i] == character)
            return static_cast<char>(static_cast<unsigned char>(kFirstHigh + i));
    }
    return std::nullopt;
}

char32_t characterOf(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code >= kFirstHigh && code < kFirstHigh + kHigh.size() ? kHigh[code - kFirstHigh] : code;
}

} // namespace Windows1252
