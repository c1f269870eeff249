// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The rules of splitting and of delimiter detection once more, written as they
/// are told and without a thought for speed.
namespace SlowCsv {

std::vector<std::string> split(const std::string& line, char delimiter);

/// The best delimiter of a whole file; 0 when none qualifies.
char bestDelimiter(const std::vector<std::string>& lines);

} // namespace SlowCsv
