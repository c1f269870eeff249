// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace Windows1252 {

/// The byte of a character, where it has one. The five bytes that the code page
/// leaves open stand for the control characters of the same number.
std::optional<char> byteOf(char32_t character);
/// The character of a byte.
char32_t characterOf(char byte);

} // namespace Windows1252
