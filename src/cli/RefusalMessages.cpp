// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/RefusalMessages.h"

#include <optional>
#include <string>
#include <string_view>

#include "cli/ColumnOption.h"
#include "cli/CsvCell.h"
#include "cli/Utf8.h"
#include "datamodel/HostText.h"

namespace {

constexpr std::size_t kMostValue = 60; // characters of a cell in a message

struct FieldProblem {
    std::string_view field;
    Problem problem;
};

constexpr FieldProblem kFieldProblems[] = {
    {"Datum", Problem::badDate},
    {"Betrag", Problem::badAmount},
};

std::optional<Problem> problemOf(const std::string& field) {
    for (const FieldProblem& entry : kFieldProblems) {
        if (field == entry.field)
            return entry.problem;
    }
    return std::nullopt;
}

/// Column of the file that feeds a field.
std::optional<int> columnOf(const std::string& field, const ColumnAssignment* columns) {
    for (int i = 0; columns != nullptr && i < columns->m_count; ++i) {
        if (field == ColumnOption::fieldName(columns->m_pairs[i].m_column))
            return columns->m_pairs[i].m_inputColumn;
    }
    return std::nullopt;
}

/// A file's bytes for a person: as UTF-8 where they are that, else as the library reads them.
std::string readable(std::string_view bytes) {
    return Utf8::isValid(bytes) ? std::string(bytes) : HostText::toUtf8(bytes);
}

Message messageOf(const ModelWatch::Refusal& refusal, const FileReading& reading, std::optional<std::size_t> line,
                  const std::string& bytes) {
    if (refusal.field.empty())
        return Message::of(Problem::tableFull, {}, line);
    if (!reading.traits().recordPerLine) // the import writes after reading, and stops here
        return Message::of(Problem::recordRefused, {std::to_string(refusal.record), refusal.field}, line);
    const std::optional<Problem> problem = problemOf(refusal.field);
    const std::optional<int> column = columnOf(refusal.field, reading.columns());
    if (!problem || !column || !line)
        return Message::of(Problem::valueRefused, {refusal.field}, line);

    const CsvCell cell = CsvCell::of(bytes, reading.delimiter(), *column);
    Message message = Message::of(*problem, {Utf8::shortened(readable(cell.text), kMostValue)}, line);
    const std::string before = readable(bytes.substr(0, cell.first));
    const std::string marked = readable(bytes.substr(cell.first, cell.length));
    message.excerpt = before + marked + readable(bytes.substr(cell.first + cell.length));
    message.markFirst = before.size();
    message.markLength = marked.size();
    return message;
}

} // namespace

namespace RefusalMessages {

std::optional<std::size_t> lineOf(std::size_t record, const FileReading& reading) {
    if (!reading.traits().recordPerLine)
        return std::nullopt;
    return reading.census().readLine(record + (reading.hasHeader() ? 1 : 0));
}

std::vector<Message> of(const std::vector<ModelWatch::Refusal>& refusals, const FileReading& reading) {
    std::vector<std::size_t> numbers;
    for (const ModelWatch::Refusal& refusal : refusals) {
        if (const std::optional<std::size_t> line = lineOf(refusal.record, reading); line && !refusal.field.empty())
            numbers.push_back(*line);
    }
    const std::vector<std::string> bytes = numbers.empty() ? std::vector<std::string>() : reading.lines(numbers);

    std::vector<Message> messages;
    std::size_t next = 0;
    for (const ModelWatch::Refusal& refusal : refusals) {
        const std::optional<std::size_t> line = lineOf(refusal.record, reading);
        const bool hasBytes = line && !refusal.field.empty();
        messages.push_back(messageOf(refusal, reading, line, hasBytes ? bytes[next++] : std::string()));
    }
    return messages;
}

} // namespace RefusalMessages
