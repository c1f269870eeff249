// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HostText1252.h"

#include <gmock/gmock.h>

namespace {

struct TextCase {
    const char* text;
    const char* host;
    const char* why;
};

constexpr TextCase kCases[] = {
    {"umsatz.csv", "umsatz.csv", "ASCII"},
    {"Größe €",
     "Gr\xF6\xDF"
     "e \x80",
     "letters of the code page"},
    {"ĀāČčĐłŃőŘšŤůŹżſ", "AaCcDlNoR\x9ATuZzs", "letters lose their marks"},
    {"ĲŉŒ", "??\x8C", "two letters in one have no place, unless the code page has them"},
    {"a\u0308O\u0308e\u0301",
     "\xE4\xD6"
     "e",
     "marks join their letters, or go"},
    {"\u0308x", "x", "a mark alone"},
    {"日\U0001F600", "??", "other scripts"},
    {"\xFF\xC3", "??", "no UTF-8"},
};

TEST(HostText1252, WhatHasNoPlaceIsTransliterated) {
    for (const TextCase& example : kCases)
        EXPECT_EQ(HostText1252::transliterated(example.text), example.host) << example.why;
}

} // namespace
