// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/// Texts of the library are Latin-1; what a person reads in a diff is UTF-8.
inline std::string utf8FromLatin1(std::string_view latin1) {
    std::string text;
    for (const char c : latin1) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            text += c;
        } else {
            text += static_cast<char>(0xC0U | byte >> 6U);
            text += static_cast<char>(0x80U | (byte & 0x3FU));
        }
    }
    return text;
}

/// Throws where a character has no place in Latin-1.
inline std::string latin1FromUtf8(std::string_view utf8) {
    std::string text;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if (byte < 0x80) {
            text += utf8[i];
        } else if ((byte == 0xC2 || byte == 0xC3) && i + 1 < utf8.size()) {
            const auto next = static_cast<unsigned char>(utf8[++i]);
            text += static_cast<char>((byte & 0x03U) << 6U | (next & 0x3FU));
        } else {
            throw std::invalid_argument("no Latin-1: " + std::string(utf8));
        }
    }
    return text;
}
