// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/XmlLines.h"

#include <algorithm>

namespace {

constexpr std::string_view kBlank = " \t\r";

std::size_t& bucketOf(LineCounts& lines, const XmlList::Range& line, const std::optional<XmlList::Range>& records) {
    if (!records)
        return lines.ignored;
    if (line.end <= records->begin)
        return lines.preamble;
    return line.begin < records->end ? lines.records : lines.footer;
}

} // namespace

namespace XmlLines {

LineCounts count(std::string_view text, const std::optional<XmlList::Range>& records) {
    LineCounts lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const bool isBlank = text.substr(begin, end - begin).find_first_not_of(kBlank) == std::string_view::npos;
        ++lines.read;
        ++(isBlank ? lines.blank : bucketOf(lines, {begin, end}, records));
        begin = end + 1;
    }
    return lines;
}

std::size_t numberOf(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, offset);
    return static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1;
}

std::vector<std::size_t> ofRecords(std::string_view text, const XmlList& list, std::size_t count) {
    std::vector<std::size_t> lines;
    std::size_t counted = 0; // bytes
    std::size_t line = 1;
    for (std::size_t number = 1; number <= count; ++number) {
        const std::optional<std::size_t> offset = list.recordOffset(number);
        if (!offset)
            return {};
        line += numberOf(text.substr(counted), *offset - counted) - 1;
        counted = *offset;
        lines.push_back(line);
    }
    return lines;
}

XmlList::Range around(std::string_view text, std::size_t offset) {
    const std::size_t before = text.substr(0, offset).rfind('\n');
    const std::size_t begin = before != std::string_view::npos ? before + 1 : 0;
    return {begin, std::min(text.find('\n', offset), text.size())};
}

} // namespace XmlLines
