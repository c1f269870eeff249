// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/SafeText.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "cli/Utf8.h"

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

/// Beside the ASCII control characters, which have pictures.
constexpr Range kHarmful[] = {
    {0x80, 0x9F},     // control characters of eight bits
    {0x061C, 0x061C}, // Arabic letter mark
    {0x200B, 0x200B}, // zero width space
    {0x200E, 0x200F}, // left-to-right and right-to-left mark
    {0x2028, 0x202E}, // line and paragraph separator, embeddings and overrides
    {0x2060, 0x206F}, // invisible operators, isolates
    {0xFEFF, 0xFEFF}, // byte order mark
    {0xE0000, 0xE0FFF},
};

constexpr char32_t kFirstPicture = 0x2400; // of the control characters from 0
constexpr char32_t kDelete = 0x7F;
constexpr char32_t kPictureOfDelete = 0x2421;

void appendEscaped(std::string& out, const char* format, char32_t code) {
    char text[16];
    std::snprintf(text, sizeof text, format, static_cast<unsigned>(code));
    out += text;
}

} // namespace

namespace SafeText {

bool isHarmless(char32_t code) {
    return code >= 0x20 && code != kDelete && std::none_of(std::begin(kHarmful), std::end(kHarmful), [code](Range r) {
               return code >= r.first && code <= r.last;
           });
}

void appendPrintable(std::string& out, std::string_view text) {
    while (!text.empty()) {
        const Utf8::Character character = Utf8::first(text);
        if (!character.valid)
            appendEscaped(out, "\\x%02x", character.code);
        else if (isHarmless(character.code))
            out.append(text.substr(0, character.length));
        else if (character.code < 0x20)
            Utf8::append(out, kFirstPicture + character.code);
        else if (character.code == kDelete)
            Utf8::append(out, kPictureOfDelete);
        else
            appendEscaped(out, "\\u%04x", character.code);
        text.remove_prefix(character.length);
    }
}

std::string printable(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    appendPrintable(out, text);
    return out;
}

} // namespace SafeText
