// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace FileBytes {

/// The whole file. Throws std::system_error.
std::string read(const std::string& path);

} // namespace FileBytes
