// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/QifRecordLines.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "cli/FileLines.h"

namespace {

constexpr std::string_view kCategories = "!Type:Cat";

/// Follows the lines of a file.
class Reader {
public:
    void read(std::string_view line) {
        ++m_number;
        const std::string_view content = line.substr(std::min(line.find_first_not_of(" \t"), line.size()));
        if (content.empty())
            return;
        if (content.front() == '!')
            m_isCategory = content.starts_with(kCategories);
        else if (content.front() == '^')
            end();
        else
            readField(content.front());
    }

    std::vector<std::size_t> takeFirstLines() { return std::move(m_firstLines); }

private:
    void readField(char letter) {
        if (m_first == 0)
            m_first = m_number;
        m_hasBudget = m_hasBudget || letter == 'B';
    }

    void end() {
        if (m_first != 0 && (m_hasBudget || !m_isCategory)) // a category without a budget makes no record
            m_firstLines.push_back(m_first);
        m_first = 0;
        m_hasBudget = false;
    }

    std::size_t m_number = 0;
    std::size_t m_first = 0; // of the record that is being read; 0 between two
    bool m_isCategory = false;
    bool m_hasBudget = false;
    std::vector<std::size_t> m_firstLines;
};

} // namespace

std::vector<std::size_t> QifRecordLines::of(const std::string& path) {
    Reader reader;
    std::string line;
    FileLines::scan(path, [&](std::string_view piece, bool last) {
        line += piece;
        if (!last)
            return;
        reader.read(line);
        line.clear();
    });
    return reader.takeFirstLines();
}
