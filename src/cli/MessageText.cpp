// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/MessageText.h"

#include <cstddef>
#include <map>
#include <set>

#include "cli/Color.h"
#include "cli/SafeText.h"
#include "cli/TextWidth.h"

namespace {

constexpr std::size_t kMostExcerpt = 160; // columns
constexpr std::size_t kMostInFull = 20;   // messages of one file
constexpr const char* kIndent = "    ";

using MessageIterator = std::vector<Message>::const_iterator;

std::string label(Severity severity, bool color) {
    switch (severity) {
    case Severity::error:
        return colored("Fehler:", Color::red, color);
    case Severity::warning:
        return colored("Achtung:", Color::yellow, color);
    case Severity::note:
        break;
    }
    return "Hinweis:";
}

bool continues(const Message& first, const Message& last, const Message& next) {
    return first.code == next.code && first.text == next.text && last.line && next.line && *next.line == *last.line + 1;
}

/// Where the message is: "name", "name:7" or "name:7-12".
std::string place(std::string_view file, const Message& first, const Message& last) {
    std::string text = SafeText::printable(file);
    if (first.line)
        text += ":" + std::to_string(*first.line);
    if (first.line && last.line && *last.line != *first.line)
        text += "-" + std::to_string(*last.line);
    return text;
}

/// The line, and below it a mark under the bytes that are meant.
std::string excerpt(const Message& message, bool color) {
    const std::string line = SafeText::printable(message.excerpt);
    std::string text = kIndent + TextWidth::fitted(line, kMostExcerpt) + "\n";
    const std::string_view bytes = message.excerpt;
    const std::size_t before = TextWidth::of(SafeText::printable(bytes.substr(0, message.markFirst)));
    const std::size_t marked = TextWidth::of(SafeText::printable(bytes.substr(message.markFirst, message.markLength)));
    if (marked != 0 && before + marked < kMostExcerpt)
        text += kIndent + std::string(before, ' ') + colored(std::string(marked, '^'), Color::red, color) + "\n";
    return text;
}

/// A hint is given once for all messages of its code.
void appendHint(std::string& text, const Message& message, std::set<std::string>& hinted) {
    if (!message.hint.empty() && hinted.insert(message.code).second)
        text += "  Hinweis: " + message.hint + "\n";
}

/// "7-12, 14": ascending numbers.
std::string ranges(const std::vector<std::size_t>& numbers) {
    std::string text;
    for (std::size_t first = 0; first < numbers.size();) {
        std::size_t last = first;
        while (last + 1 < numbers.size() && numbers[last + 1] <= numbers[last] + 1)
            ++last;
        text.append(text.empty() ? "" : ", ").append(std::to_string(numbers[first]));
        if (last != first)
            text.append("-").append(std::to_string(numbers[last]));
        first = last + 1;
    }
    return text;
}

/// Those that are too many to be told one by one: their lines, by code.
std::string remainder(std::string_view file, MessageIterator at, MessageIterator end, std::set<std::string>& hinted,
                      bool color) {
    struct Group {
        const Message* first = nullptr;
        std::vector<std::size_t> lines;
    };
    std::map<std::string, Group> groups;
    for (; at != end; ++at) {
        Group& group = groups[at->code];
        if (group.first == nullptr)
            group.first = &*at;
        group.lines.push_back(at->line.value_or(0));
    }
    std::string text;
    for (const auto& [code, group] : groups) {
        text += SafeText::printable(file) + ": " + label(group.first->severity, color) + " ebenso die Zeilen " +
                ranges(group.lines) + " [" + code + "]\n";
        appendHint(text, *group.first, hinted);
    }
    return text;
}

} // namespace

namespace MessageText {

std::string render(std::string_view file, const std::vector<Message>& messages, bool color) {
    std::string text;
    std::set<std::string> hinted;
    std::size_t told = 0;
    for (auto at = messages.begin(); at != messages.end();) {
        if (at->line && ++told > kMostInFull)
            return text + remainder(file, at, messages.end(), hinted, color);
        auto end = at + 1;
        while (end != messages.end() && continues(*at, *(end - 1), *end))
            ++end;
        text += place(file, *at, *(end - 1)) + ": " + label(at->severity, color) + " " + SafeText::printable(at->text) +
                " [" + at->code + "]\n";
        if (!at->excerpt.empty() && end == at + 1)
            text += excerpt(*at, color);
        appendHint(text, *at, hinted);
        at = end;
    }
    return text;
}

std::string renderError(std::string_view text, std::string_view code, bool color) {
    return label(Severity::error, color) + " " + SafeText::printable(text) + " [" + std::string(code) + "]\n";
}

} // namespace MessageText
