// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace FileChecksum {

/// SHA-256 of the file's bytes, 64 hexadecimal digits. Throws std::system_error.
std::string of(const std::string& path);
/// The same of bytes.
std::string ofBytes(std::string_view bytes);

} // namespace FileChecksum
