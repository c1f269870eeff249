// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/XmlText.h"

#include <cstddef>

namespace {

// clang-tidy 14 does not see literals use it.
// NOLINTNEXTLINE(misc-unused-using-decls)
using std::string_view_literals::operator""sv;

/// How a document with wide characters starts: with a byte-order mark, or with "<".
struct WideStart {
    std::string_view bytes;
    std::size_t width; ///< bytes of a character
    std::size_t low;   ///< which of them holds the ASCII code
    bool isMark;
};

constexpr WideStart kWideStarts[] = {
    {"\xFF\xFE\0\0"sv, 4, 0, true}, // before its own beginning, the mark of UTF-16
    {"\0\0\xFE\xFF"sv, 4, 3, true}, {"<\0\0\0"sv, 4, 0, false}, {"\0\0\0<"sv, 4, 3, false}, {"\xFF\xFE"sv, 2, 0, true},
    {"\xFE\xFF"sv, 2, 1, true},     {"<\0"sv, 2, 0, false},     {"\0<"sv, 2, 1, false},
};

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr char kNotAscii = '\x80';

std::string narrowed(std::string_view bytes, const WideStart& start) {
    std::string text;
    text.reserve(bytes.size() / start.width);
    for (std::size_t at = start.isMark ? start.width : 0; at + start.width <= bytes.size(); at += start.width) {
        bool ascii = static_cast<unsigned char>(bytes[at + start.low]) < 0x80;
        for (std::size_t i = 0; i < start.width; ++i)
            ascii = ascii && (i == start.low || bytes[at + i] == '\0');
        text += ascii ? bytes[at + start.low] : kNotAscii;
    }
    return text;
}

} // namespace

XmlText::XmlText(std::string_view bytes) : m_view(bytes) {
    for (const WideStart& start : kWideStarts) {
        if (!bytes.starts_with(start.bytes))
            continue;
        m_narrowed = narrowed(bytes, start);
        m_view = m_narrowed;
        return;
    }
    if (bytes.starts_with(kUtf8Mark))
        m_view.remove_prefix(kUtf8Mark.size());
}
