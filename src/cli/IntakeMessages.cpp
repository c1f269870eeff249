// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/IntakeMessages.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "cli/FileLines.h"
#include "cli/Utf8.h"
#include "datamodel/HostText.h"

namespace {

constexpr std::size_t kMostExcerpt = 4094;
constexpr std::size_t kMostExcerpts = 1000; // beyond that nobody reads them

/// What merely says which line is what.
constexpr std::string_view kNotes[] = {"balance-line", "not-a-booking", "record-closed"};

Severity severityOf(const IntakeMessage& message) {
    if (message.refusal)
        return Severity::error;
    const bool isNote = std::find(std::begin(kNotes), std::end(kNotes), message.code) != std::end(kNotes);
    return isNote ? Severity::note : Severity::warning;
}

/// The text without the number of its line, which stands beside it.
std::string textOf(const IntakeMessage& message) {
    const std::string place = "Zeile " + std::to_string(message.line) + ": ";
    return message.text.starts_with(place) ? message.text.substr(place.size()) : message.text;
}

Message messageOf(const IntakeMessage& told, Severity severity) {
    Message message;
    message.code = told.code;
    message.severity = severity;
    message.text = textOf(told);
    if (told.line > 0)
        message.line = static_cast<std::size_t>(told.line);
    return message;
}

/// Whether the bytes of a line of the file can be shown as they are.
bool hasReadableLines(const IntakeResult& result) {
    return result.encoding != Encoding::utf16le && result.encoding != Encoding::utf16be &&
           result.lineEnds != LineEnds::cr;
}

/// Refused records are shown with their lines.
void addExcerpts(std::vector<Message>& messages, const std::string& path) {
    std::vector<Message*> shown;
    std::vector<std::size_t> numbers;
    for (Message& message : messages) {
        if (!message.isError() || !message.line || shown.size() == kMostExcerpts)
            continue;
        if (numbers.empty() || numbers.back() < *message.line) {
            shown.push_back(&message);
            numbers.push_back(*message.line);
        }
    }
    if (numbers.empty())
        return;
    const std::vector<std::string> lines = FileLines::read(path, numbers, kMostExcerpt);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const std::string& line = lines[i];
        const std::string bytes = line.substr(0, line.find_last_not_of('\r') + 1);
        shown[i]->excerpt = Utf8::isValid(bytes) ? bytes : HostText::toUtf8(bytes);
    }
}

} // namespace

std::vector<Message> IntakeMessages::of(const IntakeResult& result, const InputFile& input) {
    std::vector<Message> messages;
    messages.reserve(result.prepared.messages.size() + 1);
    for (const IntakeMessage& told : result.prepared.messages)
        messages.push_back(messageOf(told, severityOf(told)));
    if (hasReadableLines(result))
        addExcerpts(messages, input.path());
    if (result.undecided)
        messages.push_back(messageOf(*result.undecided, Severity::error));
    return messages;
}
