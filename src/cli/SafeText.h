// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Keeps what comes from files and file names from steering a terminal.
namespace SafeText {

/// `text` (UTF-8, or bytes that are none) with every control character, every
/// character that turns the writing direction, and every byte that is no UTF-8
/// replaced by a visible form: "␛" for the escape character, "\u202e", "\xff".
std::string printable(std::string_view text);
void appendPrintable(std::string& out, std::string_view text);

/// Whether a character may reach a terminal as it is.
bool isHarmless(char32_t code);

} // namespace SafeText
