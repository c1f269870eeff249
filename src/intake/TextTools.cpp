// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/TextTools.h"

#include <array>

#include "intake/Windows1252.h"

namespace {

// Bytes 0xC0 to 0xFF as ASCII letters; null for the two mathematical signs.
constexpr std::array<const char*, 64> kLetters = {
    "a", "a", "a", "a", "ae", "a", "ae", "c", "e", "e", "e", "e", "i",  "i", "i",  "i",
    "d", "n", "o", "o", "o",  "o", "oe", "",  "o", "u", "u", "u", "ue", "y", "th", "ss",
    "a", "a", "a", "a", "ae", "a", "ae", "c", "e", "e", "e", "e", "i",  "i", "i",  "i",
    "d", "n", "o", "o", "o",  "o", "oe", "",  "o", "u", "u", "u", "ue", "y", "th", "y",
};

} // namespace

namespace TextTools {

std::string fold(std::string_view text) {
    std::string out;
    bool gap = false;
    const auto append = [&](const char* letters) {
        if (gap && !out.empty())
            out += ' ';
        gap = false;
        out += letters;
    };
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        char one[2] = {c, '\0'};
        if (c >= 'A' && c <= 'Z') {
            one[0] = static_cast<char>(c - 'A' + 'a');
            append(one);
        } else if ((c >= 'a' && c <= 'z') || isDigit(c)) {
            append(one);
        } else if (code >= 0xC0 && kLetters[code - 0xC0U][0] != '\0') {
            append(kLetters[code - 0xC0U]);
        } else {
            gap = true;
        }
    }
    return out;
}

std::string utf8Of(char32_t c) {
    const auto tail = [&](unsigned shift) { return static_cast<char>(0x80U | (c >> shift & 0x3FU)); };
    if (c < 0x80)
        return {static_cast<char>(c)};
    if (c < 0x800)
        return {static_cast<char>(0xC0U | c >> 6U), tail(0)};
    if (c < 0x10000)
        return {static_cast<char>(0xE0U | c >> 12U), tail(6), tail(0)};
    return {static_cast<char>(0xF0U | c >> 18U), tail(12), tail(6), tail(0)};
}

std::string toUtf8(std::string_view hostText) {
    std::string out;
    for (const char byte : hostText)
        out += utf8Of(Windows1252::characterOf(byte));
    return out;
}

} // namespace TextTools
