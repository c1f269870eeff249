// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/SafeText.h"

#include <gmock/gmock.h>

namespace {

using namespace std::string_literals;

struct SafeCase {
    std::string text;
    const char* shown;
    const char* why;
};

const SafeCase kCases[] = {
    {"Größe 5 €", "Größe 5 €", "nothing to hide"},
    {"\033[31m", "␛[31m", "an escape sequence"},
    {"a\r\n\tb", "a␍␊␉b", "line ends and tabs"},
    {"\0"s, "␀", "a zero byte"},
    {"\x7F", "␡", "delete"},
    {"\u009B31m", "\\u009b31m", "a control sequence of eight bits"},
    {"\u0090\u009D", "\\u0090\\u009d", "device control and operating-system command"},
    {"a\u202Egpj.exe", "a\\u202egpj.exe", "right to left override"},
    {"\u2066x\u2069", "\\u2066x\\u2069", "isolates"},
    {"\u200E\u200F\u061C", "\\u200e\\u200f\\u061c", "direction marks"},
    {"\u2028\u2029", "\\u2028\\u2029", "line and paragraph separator"},
    {"\uFEFFx", "\\ufeffx", "a byte order mark"},
    {"\xFF\xC3", "\\xff\\xc3", "bytes that are no UTF-8"},
    {"\U000E0041", "\\ue0041", "an invisible tag"},
    {"日本 \U0001F600", "日本 \U0001F600", "other scripts"},
};

TEST(SafeText, WhatCouldSteerATerminalBecomesVisible) {
    for (const SafeCase& example : kCases)
        EXPECT_EQ(SafeText::printable(example.text), example.shown) << example.why;
}

TEST(SafeText, NoControlCharacterIsHarmless) {
    for (char32_t code = 0; code < 0x20; ++code)
        EXPECT_FALSE(SafeText::isHarmless(code)) << static_cast<unsigned>(code);
    for (char32_t code = 0x7F; code < 0xA0; ++code)
        EXPECT_FALSE(SafeText::isHarmless(code)) << static_cast<unsigned>(code);
    EXPECT_TRUE(SafeText::isHarmless(0x20));
    EXPECT_TRUE(SafeText::isHarmless(0xA0));
}

} // namespace
