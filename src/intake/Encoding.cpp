// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "intake/Encoding.h"

#include <algorithm>
#include <array>

namespace {

struct Row {
    Encoding encoding;
    std::string_view name;
};

// The first row of an encoding is its name, further ones are spellings people use.
constexpr std::array<Row, 13> kRows = {{
    {Encoding::ascii, "ascii"},
    {Encoding::utf8, "utf-8"},
    {Encoding::utf8, "utf8"},
    {Encoding::utf16le, "utf-16"},
    {Encoding::utf16le, "utf16"},
    {Encoding::utf16le, "utf-16le"},
    {Encoding::utf16be, "utf-16be"},
    {Encoding::latin1, "latin1"},
    {Encoding::latin1, "latin-1"},
    {Encoding::latin1, "iso-8859-1"},
    {Encoding::windows1252, "cp1252"},
    {Encoding::windows1252, "windows-1252"},
    {Encoding::windows1252, "ansi"},
}};

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool equalsNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return lower(x) == lower(y); });
}

} // namespace

namespace EncodingNames {

std::string_view name(Encoding encoding) {
    const auto* row = std::find_if(kRows.begin(), kRows.end(), [&](const Row& r) { return r.encoding == encoding; });
    return row->name;
}

std::optional<Encoding> parse(std::string_view name) {
    for (const Row& row : kRows) {
        if (equalsNoCase(row.name, name))
            return row.encoding;
    }
    return std::nullopt;
}

} // namespace EncodingNames
