// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "framework/datamodel_api/DmApi.h"

/// Conversions between the host's texts and UTF-8.
///
/// The host's texts are single bytes, read as Windows-1252, which agrees with
/// Latin-1 wherever that has printable characters. The five bytes that
/// Windows-1252 leaves open stand for the control characters of the same
/// number, so that every byte string has one UTF-8 form and comes back as it was.
namespace HostText {

DM_API std::string toUtf8(std::string_view hostText);
DM_API void appendUtf8(std::string& out, std::string_view hostText);
/// Empty when `utf8` is no valid UTF-8 or has a character without a byte.
DM_API std::optional<std::string> fromUtf8(std::string_view utf8);

/// The same for file names, which are Latin-1 proper.
DM_API std::string latin1ToUtf8(std::string_view latin1);
DM_API std::optional<std::string> utf8ToLatin1(std::string_view utf8);

} // namespace HostText
