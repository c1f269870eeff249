// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "architecture/SourceTree.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace {

std::vector<std::string> linesOf(const std::filesystem::path& path) {
    std::ifstream input(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(input, line);)
        lines.push_back(line);
    return lines;
}

std::vector<SourceTree::SourceFile> readFiles() {
    const std::filesystem::path root = IMPORT_MODULE_SOURCE_ROOT;
    std::vector<SourceTree::SourceFile> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::filesystem::path& path = entry.path();
        if (entry.is_regular_file() && (path.extension() == ".h" || path.extension() == ".cpp"))
            files.push_back({path.lexically_relative(root).generic_string(), linesOf(path)});
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
    return files;
}

/// Takes blanks and then `token` off the start of `text`, if they are there.
bool take(std::string_view& text, std::string_view token) {
    const std::size_t at = text.find_first_not_of(" \t");
    if (at == std::string_view::npos || text.substr(at, token.size()) != token)
        return false;
    text.remove_prefix(at + token.size());
    return true;
}

} // namespace

namespace SourceTree {

const std::vector<SourceFile>& files() {
    static const std::vector<SourceFile> all = readFiles();
    return all;
}

bool isHeader(const std::string& path) { return path.size() > 2 && path.compare(path.size() - 2, 2, ".h") == 0; }

std::vector<Include> includesOf(const SourceFile& file) {
    std::vector<Include> includes;
    int number = 0;
    for (const std::string& line : file.lines) {
        ++number;
        std::string_view rest = line;
        if (take(rest, "#") && take(rest, "include")) {
            const bool quoted = take(rest, "\"");
            const bool bracketed = !quoted && take(rest, "<");
            const std::string_view name = rest.substr(0, rest.find(quoted ? '"' : '>'));
            includes.push_back({number, std::string(quoted || bracketed ? name : ""), quoted});
        }
    }
    return includes;
}

} // namespace SourceTree
