// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "differential/PlainLines.h"

#include <cstddef>
#include <map>

namespace {

constexpr std::size_t kAnyWidthLimit = 49;

/// One field from `at` on, as it stands; `at` goes to its end, which is a
/// delimiter outside quotes or the end of the line.
std::string fieldFrom(const std::string& line, std::size_t& at, char delimiter, bool& inside) {
    std::string field;
    for (; at < line.size(); ++at) {
        if (line[at] == '"')
            inside = !inside;
        else if (line[at] == delimiter && !inside)
            break;
        field += line[at];
    }
    return field;
}

std::string unquoted(const std::string& field) {
    std::string text;
    bool quoteMet = false;
    bool keepNext = false;
    if (field.find('"') == std::string::npos)
        return field;
    for (const char c : field) {
        if (keepNext) {
            text += c;
            keepNext = false;
        } else if (c == '"') {
            keepNext = quoteMet; // of the first quote nothing more is known than that the text begins
            quoteMet = true;
        } else if (quoteMet) {
            text += c;
        }
    }
    return text;
}

std::string widthError(std::size_t expected, std::size_t found) {
    return "Erwartete Werte:" + std::to_string(expected) + "    Vorhandene Werte " + std::to_string(found);
}

std::vector<std::string> splitWhole(const std::string& line, char delimiter) {
    std::vector<std::string> fields;
    bool inside = false;
    for (std::size_t at = 0;; ++at) {
        fields.push_back(unquoted(fieldFrom(line, at, delimiter, inside)));
        if (at >= line.size())
            return fields;
    }
}

bool isLetterOrDigit(int code) {
    return (code >= '0' && code <= '9') || (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
}

} // namespace

PlainLines::Split PlainLines::splitAnyWidth(const std::string& line, char delimiter) {
    Split split{splitWhole(line, delimiter), {}};
    if (split.fields.size() > kAnyWidthLimit)
        split.fields.resize(kAnyWidthLimit);
    return split;
}

PlainLines::Split PlainLines::splitFixedWidth(const std::string& line, char delimiter, int width) {
    const auto limit = static_cast<std::size_t>(width);
    const std::vector<std::string> fields = splitWhole(line, delimiter);
    if (fields.size() == limit)
        return {fields, {}};
    // Of more fields than fit only the first that is too many is counted.
    return {{}, widthError(limit, fields.size() > limit ? limit + 1 : fields.size())};
}

char PlainLines::bestDelimiter(const std::vector<std::string>& lines) {
    std::map<int, int> first; // how often a code stands in the first line, 0 once it is out
    std::map<int, int> balance;
    int count = 0;
    for (const std::string& line : lines) {
        if (line.empty())
            continue;
        const int sign = count % 2 == 0 ? 1 : -1;
        for (const char c : line) {
            const int code = static_cast<unsigned char>(c);
            if (code < 1 || code > 126)
                continue;
            balance[code] += sign;
            if (count == 0)
                ++first[code];
        }
        if (sign < 0) {
            for (auto& [code, times] : first)
                times = balance[code] != 0 ? 0 : times;
        }
        ++count;
    }
    if (count == 0)
        return '\0';
    if (count % 2 == 1) {
        for (auto& [code, times] : first)
            times = balance[code] != times ? 0 : times;
    }
    const auto timesOf = [&](int code) { return first.count(code) != 0 ? first[code] : 0; };
    char best = '\0';
    int most = 0;
    const auto consider = [&](int code) {
        if (timesOf(code) > most) {
            most = timesOf(code);
            best = static_cast<char>(code);
        }
    };
    for (const char candidate : {',', ';', '|', '\t', '#', '/', ':', '\\'})
        consider(candidate);
    if (best != '\0')
        return best;
    for (int code = 0; code <= 126; ++code) {
        if (!isLetterOrDigit(code))
            consider(code);
    }
    return best;
}
