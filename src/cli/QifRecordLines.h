// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace QifRecordLines {

/// The first line, from 1, of each record of a QIF file that was prepared for
/// the library: whatever it holds beside section headers. Throws std::system_error.
std::vector<std::size_t> of(const std::string& path);

} // namespace QifRecordLines
