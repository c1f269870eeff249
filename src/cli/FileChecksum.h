// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace FileChecksum {

/// SHA-256 of the file's bytes, 64 hexadecimal digits. Throws std::system_error.
std::string of(const std::string& path);

} // namespace FileChecksum
