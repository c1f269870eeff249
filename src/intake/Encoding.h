// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

/// The encodings that an input is read in. `ascii` is what needs no decision;
/// it is reported as UTF-8, of which it is a part.
enum class Encoding { ascii, utf8, utf16le, utf16be, latin1, windows1252 };

namespace EncodingNames {

/// The name as the command line and JSON know it.
std::string_view name(Encoding encoding);
/// Without regard to case; "utf-16" stands for the little-endian form, which a
/// byte-order mark overrules.
std::optional<Encoding> parse(std::string_view name);

} // namespace EncodingNames
