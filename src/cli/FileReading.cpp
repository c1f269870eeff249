// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileReading.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "cli/FileChecksum.h"
#include "cli/FileLines.h"
#include "cli/PreparedPlan.h"
#include "cli/QifRecordLines.h"
#include "cli/SystemText.h"
#include "cli/VerbatimPlan.h"
#include "datamodel/DataManager.h"
#include "datamodel/HostText.h"

namespace {

constexpr std::size_t kMostExcerpt = 4094;

ReadingPlan planOf(InputFile& input, const ReadingOptions& options) {
    try {
        return options.verbatim ? VerbatimPlan::of(input, options) : PreparedPlan::of(input, options);
    } catch (const std::system_error& error) {
        ReadingPlan plan;
        plan.traits = &FormatTable::of(options.format.value_or(FormatTable::ofFileName(input.argument())));
        plan.messages.push_back(
            Message::of(Problem::tempUnusable, {ScratchFolder::parent(), systemText(error.code().value())}));
        return plan;
    }
}

} // namespace

FileReading::FileReading(const std::string& argument, ReadingOptions options)
    : m_options(std::move(options)), m_input(argument), m_plan(planOf(m_input, m_options)) {}

std::string FileReading::delimiterText() const {
    return delimiter() == '\t' ? "tab" : HostText::toUtf8({&m_plan.request.delimiter, 1});
}

const ColumnAssignment* FileReading::columns() const {
    if (!traits().takesColumns())
        return traits().layout;
    return m_plan.request.columns ? &*m_plan.request.columns : nullptr;
}

bool FileReading::isRefused() const {
    if (intake() != nullptr && intake()->undecided)
        return true;
    // Errors of single lines were found by the intake, and cost those records alone.
    return std::any_of(messages().begin(), messages().end(),
                       [](const Message& message) { return message.isError() && !message.line; });
}

std::size_t FileReading::refusedBefore() const {
    return intake() != nullptr ? static_cast<std::size_t>(intake()->prepared.refused) : 0;
}

RunOutcome FileReading::simulate(LibraryRun& run) const {
    const DataManager scratch;
    return run.run(m_plan.request, scratch.root());
}

RunOutcome FileReading::import(LibraryRun& run, Node* target, const std::string& info) const {
    RunRequest request = m_plan.request;
    request.simulate = false;
    request.info = info;
    return run.run(request, target);
}

std::string FileReading::checksum() const { return FileChecksum::of(m_input.originalPath()); }

std::vector<std::size_t> FileReading::linesOfRecords(std::size_t records) const {
    std::vector<std::size_t> lines;
    if (traits().recordPerLine) {
        lines.reserve(records);
        for (std::size_t record = 1; record <= records; ++record)
            lines.push_back(census().readLine(record + (hasHeader() ? 1 : 0)));
    } else if (intake() != nullptr) {
        lines = QifRecordLines::of(m_input.path());
    }
    return lines.size() == records ? lines : std::vector<std::size_t>();
}

std::vector<std::string> FileReading::lines(const std::vector<std::size_t>& numbers) const {
    return FileLines::read(m_input.path(), numbers, kMostExcerpt);
}
