// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Texts as they are compared: banks change blanks, line breaks and case from one
/// export of a booking to the next.
namespace TextFolding {

/// Appends `text`, Windows-1252, in small letters and without blanks of any kind.
void append(std::string& out, std::string_view text);

std::string of(std::string_view text);

} // namespace TextFolding
