// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "csv/SlowCsv.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

namespace {

constexpr std::size_t kMostFields = 49;

std::string unquoted(const std::string& field) {
    const std::size_t first = field.find('"');
    if (first == std::string::npos)
        return field;
    std::string rest = field.substr(first + 1);
    std::string text;
    while (!rest.empty()) {
        if (rest.front() == '"')
            rest.erase(0, 1); // dropped; what follows it is kept, even if it is a quote
        if (!rest.empty()) {
            text += rest.front();
            rest.erase(0, 1);
        }
    }
    return text;
}

int occurrences(const std::string& line, char c) { return static_cast<int>(std::count(line.begin(), line.end(), c)); }

/// How often `c` stands in the first line; 0 if the lines rule it out.
int score(const std::vector<std::string>& lines, char c) {
    int balance = 0;
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
        balance += occurrences(lines[i], c) - occurrences(lines[i + 1], c);
        if (balance != 0)
            return 0;
    }
    const int inFirst = occurrences(lines.front(), c);
    const bool lastIsAlone = lines.size() % 2 == 1;
    return lastIsAlone && balance + occurrences(lines.back(), c) != inFirst ? 0 : inFirst;
}

char firstOfMostFrequent(const std::vector<std::string>& lines, const std::string& characters) {
    char best = '\0';
    int bestScore = 0;
    for (const char c : characters) {
        if (score(lines, c) > bestScore) {
            best = c;
            bestScore = score(lines, c);
        }
    }
    return best;
}

} // namespace

namespace SlowCsv {

std::vector<std::string> split(const std::string& line, char delimiter) {
    std::vector<std::string> fields(1);
    bool inside = false;
    for (const char c : line) {
        if (c == '"')
            inside = !inside;
        if (c == delimiter && !inside)
            fields.emplace_back();
        else
            fields.back() += c;
    }
    fields.resize(std::min(fields.size(), kMostFields));
    std::transform(fields.begin(), fields.end(), fields.begin(), unquoted);
    return fields;
}

char bestDelimiter(const std::vector<std::string>& lines) {
    std::vector<std::string> filled;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(filled),
                 [](const auto& line) { return !line.empty(); });
    if (filled.empty())
        return '\0';
    const char best = firstOfMostFrequent(filled, ",;|\t#/:\\");
    if (best != '\0')
        return best;
    std::string others;
    for (int code = 1; code < 127; ++code) {
        if (std::isalnum(code) == 0)
            others += static_cast<char>(code);
    }
    return firstOfMostFrequent(filled, others);
}

} // namespace SlowCsv
