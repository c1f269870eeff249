// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The project's sources as text.
namespace SourceTree {

struct SourceFile {
    std::string path; ///< relative to src/, with "/" between folders
    std::vector<std::string> lines;
};

struct Include {
    int line; ///< from 1
    std::string name;
    bool quoted; ///< "name", not <name>
};

/// Every header and source below src/, ordered by path.
const std::vector<SourceFile>& files();

bool isHeader(const std::string& path);

/// The include directives of a file, in order. One whose name is spelt by a
/// macro has an empty name.
std::vector<Include> includesOf(const SourceFile& file);

} // namespace SourceTree
