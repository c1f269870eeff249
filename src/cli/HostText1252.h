// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Texts of the person (the shell's bytes, UTF-8 as a rule) as the data model
/// keeps them, in Windows-1252.
namespace HostText1252 {

/// Letters that the code page lacks lose their mark ("č" -> "c"); what else it
/// lacks, and bytes that are no UTF-8, become "?".
std::string transliterated(std::string_view text);

} // namespace HostText1252
