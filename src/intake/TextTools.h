// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Small helpers on host bytes (Windows-1252).
namespace TextTools {

constexpr char kNoBreakSpace = '\xA0';

inline bool isBlank(char c) { return c == ' ' || c == '\t' || c == kNoBreakSpace || c == '\r' || c == '\n'; }
inline bool isDigit(char c) { return c >= '0' && c <= '9'; }
inline bool isAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

inline std::string_view trim(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// For comparing names: lower case, umlauts and accents as ASCII letters (ä ->
/// ae, é -> e), every run of anything that is neither letter nor digit as one
/// blank, none at the ends.
std::string fold(std::string_view text);

std::string utf8Of(char32_t character);
/// For messages.
std::string toUtf8(std::string_view hostText);

} // namespace TextTools
