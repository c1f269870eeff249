// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/LibraryFailure.h"

#include <string>
#include <string_view>

namespace {

/// The library's text, which is made for a page, on one line.
std::string onOneLine(std::string_view text) {
    constexpr std::string_view kBreak = "<br>";
    std::string line;
    while (!text.empty()) {
        const bool isBreak = text.starts_with(kBreak);
        line += isBreak || text.front() == '\n' ? ' ' : text.front();
        text.remove_prefix(isBreak ? kBreak.size() : 1);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

} // namespace

Message LibraryFailure::message(const FileReading& reading, const RunOutcome& outcome) {
    if (const auto& line = reading.census().tooLong())
        return Message::of(Problem::lineTooLong, {std::to_string(line->bytes)}, line->line);
    return Message::of(Problem::importFailed, {onOneLine(outcome.errorText)});
}
