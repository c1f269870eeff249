// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "architecture/SourceTree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

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

} // namespace

namespace SourceTree {

const std::vector<SourceFile>& files() {
    static const std::vector<SourceFile> all = readFiles();
    return all;
}

bool isHeader(const std::string& path) { return path.size() > 2 && path.compare(path.size() - 2, 2, ".h") == 0; }

std::vector<Include> includesOf(const SourceFile& file) {
    static const std::regex directive(R"re(^\s*#\s*include\b\s*(?:"([^"]*)"|<([^>]*)>)?.*)re");
    std::vector<Include> includes;
    int number = 0;
    for (const std::string& line : file.lines) {
        ++number;
        std::smatch match;
        if (std::regex_match(line, match, directive))
            includes.push_back({number, match[1].matched ? match[1].str() : match[2].str(), match[1].matched});
    }
    return includes;
}

} // namespace SourceTree
