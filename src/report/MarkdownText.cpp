// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "report/MarkdownText.h"

namespace {

// What means something wherever it stands. Brackets of elements and the sign of entities are written as entities,
// which those programs understand too that know no backslash before them.
constexpr std::string_view kMarks = "\\`*_[]|~$";
// What does so as the first one of a line,
constexpr std::string_view kFirstMarks = "#=:";
// and what does if a blank or nothing else follows.
constexpr std::string_view kListMarks = "-+";

std::string_view entityOf(char character) {
    switch (character) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    default:
        return {};
    }
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool endsWord(std::string_view text, std::size_t at) { return at >= text.size() || text[at] == ' '; }

/// The character that would make a heading, a list or a rule of the line; the
/// end where there is none.
std::size_t markOfLine(std::string_view text) {
    if (text.empty() || kFirstMarks.find(text.front()) != std::string_view::npos)
        return 0;
    if (kListMarks.find(text.front()) != std::string_view::npos)
        return endsWord(text, 1) || text.find_first_not_of("- ") == std::string_view::npos ? 0 : text.size();
    std::size_t at = 0;
    while (at < text.size() && isDigit(text[at]))
        ++at;
    const bool isNumber = at != 0 && at < text.size() && (text[at] == '.' || text[at] == ')');
    return isNumber && endsWord(text, at + 1) ? at : text.size();
}

} // namespace

std::string MarkdownText::escaped(std::string_view text) {
    std::string out;
    const std::size_t first = text.find_first_not_of(' ');
    text.remove_prefix(first == std::string_view::npos ? text.size() : first); // four of them would begin a block
    const std::size_t mark = markOfLine(text);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view entity = entityOf(text[i]);
        if (!entity.empty()) {
            out += entity;
            continue;
        }
        if (i == mark || kMarks.find(text[i]) != std::string_view::npos)
            out += '\\';
        out += text[i];
    }
    return out;
}
