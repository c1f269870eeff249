// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

/// The bytes of a file; throws where it cannot be read.
inline std::string fileContent(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot be read: " + path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// A row of texts on one line: "a" | "b"
template <typename Texts>
std::string quotedLine(const Texts& texts) {
    std::string line;
    for (const std::string& text : texts)
        line += (line.empty() ? "\"" : " | \"") + text + "\"";
    return line + "\n";
}

/// The description of a format, whose examples and tables tests hold against
/// the code. UTF-8, as it stands in the file.
class FormatDocument {
public:
    explicit FormatDocument(const std::string& path) : m_path(path), m_text(fileContent(path)) {}

    /// The fenced block of that language; throws unless there is one.
    std::string block(const std::string& language) const {
        const std::string fence = "\n```" + language + "\n";
        const auto begin = m_text.find(fence);
        const auto end = m_text.find("\n```\n", begin + fence.size() - 1);
        if (begin == std::string::npos || end == std::string::npos)
            throw std::runtime_error("no block " + language + " in " + m_path);
        return m_text.substr(begin + fence.size(), end + 1 - begin - fence.size());
    }

    using Row = std::vector<std::string>;

    /// The first table behind a heading without its head; code marks are taken
    /// off. Throws unless there is one.
    std::vector<Row> table(const std::string& heading) const {
        auto at = m_text.find("\n## " + heading + "\n");
        at = at == std::string::npos ? at : m_text.find("\n|---", at);
        if (at == std::string::npos)
            throw std::runtime_error("no table " + heading + " in " + m_path);
        std::vector<Row> rows;
        for (at = m_text.find('\n', at + 1) + 1; m_text.compare(at, 2, "| ") == 0; at = m_text.find('\n', at) + 1)
            rows.push_back(cells(m_text.substr(at, m_text.find('\n', at) - at)));
        return rows;
    }

private:
    static Row cells(const std::string& line) {
        Row row;
        for (std::size_t at = 1; at < line.size();) {
            const std::size_t bar = line.find('|', at);
            row.push_back(plain(line.substr(at, bar - at)));
            at = bar + 1;
        }
        return row;
    }

    static std::string plain(const std::string& cell) {
        const auto first = cell.find_first_not_of(" `");
        return first == std::string::npos ? "" : cell.substr(first, cell.find_last_not_of(" `") + 1 - first);
    }

    std::string m_path;
    std::string m_text;
};
