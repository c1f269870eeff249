// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/InputFile.h"
#include "cli/ReadingOptions.h"
#include "cli/ReadingPlan.h"

/// One file and how it will be read. Lives for one import or preview of the file.
class FileReading {
public:
    FileReading(const std::string& argument, ReadingOptions options);

    const std::string& argument() const { return m_input.argument(); }
    /// Where the person's own bytes lie.
    const std::string& originalPath() const { return m_input.originalPath(); }
    const ReadingOptions& options() const { return m_options; }
    const FormatTraits& traits() const { return *m_plan.traits; }
    const FileCensus& census() const { return m_plan.census; }
    /// What was found in the file; null where it is read as it is.
    const IntakeResult* intake() const { return m_plan.intake ? &*m_plan.intake : nullptr; }
    /// The name of the profile by which it is read.
    const std::optional<std::string>& profile() const { return m_plan.profile; }
    /// Whether the first line with content is no record.
    bool hasHeader() const { return m_plan.request.header || traits().firstLineAlwaysHeader; }
    char delimiter() const { return m_plan.request.delimiter; }
    /// UTF-8; "tab" for the tab.
    std::string delimiterText() const;
    /// Where its columns lie, as far as that is known; else null.
    const ColumnAssignment* columns() const;

    /// What is to be said before the library is called. An error of the file as
    /// a whole among it means that the file is not to be imported.
    const std::vector<Message>& messages() const { return m_plan.messages; }
    bool isRefused() const;
    /// Whether it cannot even be opened. The library may be called nevertheless,
    /// for its own words, if `mayBeAsked` says so.
    bool isUnreadable() const { return m_input.problem().has_value(); }
    bool mayBeAsked() const { return m_plan.mayBeAsked; }
    /// Whether records without a date are in order: QIF budgets and categories have none, and what our own export
    /// writes without one had none before.
    bool mayBeUndated() const { return !traits().recordPerLine || (intake() != nullptr && intake()->ownExport); }
    /// Records that the library does not get, since it would refuse or misread them.
    std::size_t refusedBefore() const;

    RunOutcome simulate(LibraryRun& run) const;
    RunOutcome import(LibraryRun& run, Node* target, const std::string& info) const;
    /// Of the file itself; see FileChecksum. Throws std::system_error.
    std::string checksum() const;
    /// The line of each record that the library makes, in order, as far as the format tells; else empty.
    std::vector<std::size_t> linesOfRecords(std::size_t records) const;
    /// The bytes of the lines of those ascending numbers, as the library reads them.
    std::vector<std::string> lines(const std::vector<std::size_t>& numbers) const;

private:
    ReadingOptions m_options;
    InputFile m_input;
    ReadingPlan m_plan;
};
