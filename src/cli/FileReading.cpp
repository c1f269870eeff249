// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileReading.h"

#include <algorithm>
#include <system_error>

#include "cli/ColumnOption.h"
#include "cli/FileLines.h"
#include "cli/SystemText.h"
#include "datamodel/DataManager.h"
#include "datamodel/HostText.h"

namespace {

constexpr std::size_t kMostExcerpt = 4094;
constexpr char kNoDelimiter = '\x01';

} // namespace

FileReading::FileReading(const std::string& argument, const ReadingOptions& options)
    : m_options(options), m_input(argument),
      m_traits(&FormatTable::of(options.format.value_or(m_input.formatByName()))) {
    try {
        examine();
    } catch (const std::system_error& error) {
        m_messages.push_back(
            Message::of(Problem::tempUnusable, {ScratchFolder::parent(), systemText(error.code().value())}));
        m_mayBeAsked = false;
    }
}

void FileReading::examine() {
    m_mayBeAsked = m_input.mayBeAsked();
    if (m_input.problem())
        m_messages.push_back(*m_input.problem());
    else
        examineLines();
    noteUselessOptions();
    if (m_mayBeAsked)
        prepareRequest();
}

void FileReading::examineLines() {
    try {
        m_census = FileCensus::of(m_input.path());
    } catch (const std::system_error& error) {
        m_messages.push_back(
            Message::of(Problem::fileUnreadable, {m_input.argument(), systemText(error.code().value())}));
        return;
    }
    if (!m_traits->recordPerLine)
        return;
    const bool verbatim = m_options.verbatim;
    for (const std::size_t line : m_census.withNul())
        m_messages.push_back(Message::of(verbatim ? Problem::nulByteRead : Problem::nulByte, {}, line));
    for (const std::size_t line : m_census.withOpenQuote())
        m_messages.push_back(Message::of(verbatim ? Problem::unbalancedQuoteRead : Problem::unbalancedQuote, {}, line));
}

void FileReading::noteUselessOptions() {
    if (m_traits->takesColumns())
        return;
    if (m_options.columns)
        m_messages.push_back(Message::of(Problem::optionIgnored, {"--columns"}));
    if (m_options.delimiter)
        m_messages.push_back(Message::of(Problem::optionIgnored, {"--delimiter"}));
}

void FileReading::prepareRequest() {
    // The raw columns of a fixed layout are shown by reading it as a plain list.
    const bool asPlainList = m_options.unassigned && m_traits->recordPerLine;
    m_request.fileName = m_input.libraryName(asPlainList ? Import::eFormatCSV : m_traits->format);
    m_request.header = m_options.header || (asPlainList && m_traits->firstLineAlwaysHeader);
    m_request.columns = m_options.columns && m_traits->takesColumns() ? &*m_options.columns : nullptr;
    if (m_traits->delimiter != 0)
        m_request.delimiter = m_traits->delimiter;
    else if (m_options.delimiter)
        m_request.delimiter = *m_options.delimiter;
    else if (m_traits->takesColumns() && !m_options.verbatim && !m_input.problem())
        findDelimiter();
}

void FileReading::findDelimiter() {
    LibraryRun run;
    RunRequest request = m_request;
    request.columns = nullptr;
    request.delimiter = kNoDelimiter;
    const DataManager scratch;
    run.run(request, scratch.root());
    const bool found = run.bestDelimiter() != kNoDelimiter; // what was asked with comes back where nothing was found
    m_delimiterDoubt = found ? Problem::delimiterFound : Problem::delimiterUnknown;
    if (found)
        m_request.delimiter = run.bestDelimiter();
}

std::optional<Message> FileReading::doubtOfDelimiter() const {
    if (!m_delimiterDoubt)
        return std::nullopt;
    return Message::of(*m_delimiterDoubt, {delimiterText()});
}

std::string FileReading::delimiterText() const {
    return m_request.delimiter == '\t' ? "tab" : HostText::toUtf8({&m_request.delimiter, 1});
}

const ColumnAssignment* FileReading::columns() const {
    return m_traits->takesColumns() ? m_request.columns : m_traits->layout;
}

Message FileReading::columnOutside(const ColumnAssignment::Pair& pair) const {
    return Message::of(Problem::columnOutside,
                       {std::to_string(pair.m_inputColumn), ColumnOption::fieldName(pair.m_column), delimiterText()});
}

bool FileReading::isRefused() const {
    return std::any_of(m_messages.begin(), m_messages.end(),
                       [](const Message& message) { return message.texts().severity == Severity::error; });
}

RunOutcome FileReading::simulate(LibraryRun& run) const {
    const DataManager scratch;
    return run.run(m_request, scratch.root());
}

RunOutcome FileReading::import(LibraryRun& run, Node* target, const std::string& info) const {
    RunRequest request = m_request;
    request.simulate = false;
    request.info = info;
    return run.run(request, target);
}

std::vector<std::string> FileReading::lines(const std::vector<std::size_t>& numbers) const {
    return FileLines::read(m_input.path(), numbers, kMostExcerpt);
}
