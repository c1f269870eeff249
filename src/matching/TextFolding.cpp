// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "matching/TextFolding.h"

#include <array>
#include <cstddef>

namespace {

constexpr char kNothing = '\0';

constexpr unsigned char small(unsigned char c) {
    if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return static_cast<unsigned char>(c + 0x20);
    switch (c) {
    case 0x8A: // Š
    case 0x8C: // Œ
    case 0x8E: // Ž
        return static_cast<unsigned char>(c + 0x10);
    case 0x9F: // Ÿ
        return 0xFF;
    default:
        return c;
    }
}

constexpr bool isBlank(unsigned char c) { return c <= ' ' || c == 0x7F || c == 0xA0; }

constexpr std::array<char, 256> makeTable() {
    std::array<char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto c = static_cast<unsigned char>(i);
        table[i] = isBlank(c) ? kNothing : static_cast<char>(small(c));
    }
    return table;
}

constexpr std::array<char, 256> kTable = makeTable();

} // namespace

namespace TextFolding {

void append(std::string& out, std::string_view text) {
    const std::size_t before = out.size();
    out.resize(before + text.size());
    char* end = out.data() + before;
    for (const char c : text) {
        *end = kTable[static_cast<unsigned char>(c)];
        end += *end != kNothing ? 1 : 0;
    }
    out.resize(static_cast<std::size_t>(end - out.data()));
}

std::string of(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    append(out, text);
    return out;
}

} // namespace TextFolding
