// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Utf8.h"

#include <gmock/gmock.h>

namespace {

struct Utf8Case {
    std::string_view text;
    char32_t code;
    std::size_t length;
    bool valid;
    const char* why;
};

constexpr Utf8Case kCases[] = {
    {"a", U'a', 1, true, "ASCII"},
    {"ä", 0xE4, 2, true, "two bytes"},
    {"€x", 0x20AC, 3, true, "three bytes"},
    {"\xF0\x9F\x98\x80", 0x1F600, 4, true, "four bytes"},
    {"\xC0\x80", 0xC0, 1, false, "a form that is too long"},
    {"\xE0\x80\x80", 0xE0, 1, false, "too long again"},
    {"\xED\xA0\x80", 0xED, 1, false, "half a surrogate pair"},
    {"\xF4\x90\x80\x80", 0xF4, 1, false, "behind the last character"},
    {"\xC3", 0xC3, 1, false, "cut off"},
    {"\xC3(", 0xC3, 1, false, "no continuation"},
    {"\x80", 0x80, 1, false, "a continuation without a start"},
    {"\xFF", 0xFF, 1, false, "never a start"},
};

TEST(Utf8, FirstCharacterOfAText) {
    for (const Utf8Case& example : kCases) {
        SCOPED_TRACE(example.why);
        const Utf8::Character character = Utf8::first(example.text);
        EXPECT_EQ(character.code, example.code);
        EXPECT_EQ(character.length, example.length);
        EXPECT_EQ(character.valid, example.valid);
    }
}

TEST(Utf8, AppendIsTheReverse) {
    for (const char32_t code : {U'a', U'\x7F', U'ä', U'\x7FF', U'€', U'\xFFFD', U'\x10000', U'\x10FFFF'}) {
        std::string text;
        Utf8::append(text, code);
        EXPECT_EQ(Utf8::first(text).code, code);
        EXPECT_EQ(Utf8::first(text).length, text.size());
        EXPECT_TRUE(Utf8::isValid(text));
    }
}

TEST(Utf8, ValidTexts) {
    EXPECT_TRUE(Utf8::isValid(""));
    EXPECT_TRUE(Utf8::isValid("Größe €"));
    EXPECT_FALSE(Utf8::isValid("Gr\xF6\xDF"
                               "e"));
}

TEST(Utf8, ShortenedTextCountsItsEllipsis) {
    EXPECT_EQ(Utf8::shortened("äöü", 3), "äöü");
    EXPECT_EQ(Utf8::shortened("äöüß", 3), "äö…");
    EXPECT_EQ(Utf8::shortened("", 3), "");
}

} // namespace
