// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/TextWidth.h"

#include <algorithm>
#include <iterator>

#include "cli/Utf8.h"

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

/// Marks that are drawn onto the character before them.
constexpr Range kNoWidth[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x064B, 0x065F}, {0x1AB0, 0x1AFF},   {0x1DC0, 0x1DFF},
    {0x200B, 0x200D}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xE0100, 0xE01EF},
};

/// Characters of double width: East Asian scripts and pictures.
constexpr Range kDoubleWidth[] = {
    {0x1100, 0x115F}, {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},   {0x4E00, 0x9FFF},
    {0xA000, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
    {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD},
};

template <std::size_t N>
bool isIn(const Range (&ranges)[N], char32_t code) {
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [code](Range range) { return code >= range.first && code <= range.last; });
}

std::size_t widthOf(char32_t code) {
    if (code < 0x0300)
        return 1;
    if (isIn(kNoWidth, code))
        return 0;
    return isIn(kDoubleWidth, code) ? 2 : 1;
}

} // namespace

namespace TextWidth {

std::size_t of(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const Utf8::Character character = Utf8::first(text);
        width += widthOf(character.code);
        text.remove_prefix(character.length);
    }
    return width;
}

std::string fitted(std::string_view text, std::size_t width) {
    if (of(text) <= width)
        return std::string(text);
    if (width == 0)
        return {};
    std::size_t taken = 0;
    std::size_t end = 0;
    for (;;) {
        const Utf8::Character character = Utf8::first(text.substr(end));
        taken += widthOf(character.code);
        if (taken > width - 1) // the last column is the ellipsis's
            return std::string(text.substr(0, end)) + "…";
        end += character.length;
    }
}

} // namespace TextWidth
