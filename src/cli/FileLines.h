// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// The physical lines of a file, as bytes; a line may be of any length.
namespace FileLines {

/// Reads the whole file and hands it over in blocks. Throws std::system_error.
void readBlocks(const std::string& path, const std::function<void(std::string_view block)>& sink);

/// Gets each piece of a line in turn, without the line feed. `last` says that
/// the line ends behind the piece.
using Sink = std::function<void(std::string_view piece, bool last)>;

/// Reads the whole file. What follows the last line feed is a line if it is not
/// empty. Throws std::system_error.
void scan(const std::string& path, const Sink& sink);

/// The lines of those numbers, which count from 1 and ascend; each cut to
/// `most` bytes, and empty where the file has no such line.
std::vector<std::string> read(const std::string& path, const std::vector<std::size_t>& numbers, std::size_t most);

} // namespace FileLines
