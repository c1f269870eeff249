// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// File names and program names as they can be shown to a person: they may hold
/// any byte, and must neither spoil a UTF-8 text nor steer a terminal.
namespace PrintableText {

/// `bytes` as UTF-8 (bytes that are none are read as Latin-1), with a question
/// mark for each control character.
std::string of(std::string_view bytes);

} // namespace PrintableText
