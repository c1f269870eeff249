// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "Texts.h"

std::string utf8FromLatin1(const std::string& latin1) {
    std::string text;
    for (const char c : latin1) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            text += c;
        } else {
            text += static_cast<char>(0xC0 | byte >> 6);
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return text;
}

std::string latin1FromUtf8(const std::string& utf8) {
    std::string text;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        const auto next = static_cast<unsigned char>(i + 1 < utf8.size() ? utf8[i + 1] : '\0');
        if (byte < 0x80)
            text += utf8[i];
        else if ((byte == 0xC2 || byte == 0xC3) && next >= 0x80)
            text += static_cast<char>((byte & 0x03) << 6 | (next & 0x3F));
        else if (byte >= 0xC4)
            text += '?';
    }
    return text;
}
