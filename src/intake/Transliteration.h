// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Transliteration {

/// What stands for a character that Windows-1252 has not: the closest Latin
/// letters ("ł" -> "l", "Ж" -> "Z"), in host bytes; "?" where there are none.
std::string toHostBytes(char32_t character);

} // namespace Transliteration
