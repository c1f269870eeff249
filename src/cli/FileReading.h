// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/FileCensus.h"
#include "cli/FormatTable.h"
#include "cli/InputFile.h"
#include "cli/LibraryRun.h"
#include "cli/Message.h"
#include "cli/ReadingOptions.h"

/// One file and how it will be read: looked at, its lines counted, its
/// delimiter found. Lives for one import or preview of the file.
class FileReading {
public:
    FileReading(const std::string& argument, const ReadingOptions& options);

    const std::string& argument() const { return m_input.argument(); }
    const FormatTraits& traits() const { return *m_traits; }
    const FileCensus& census() const { return m_census; }
    /// Whether the first line with content is no record.
    bool hasHeader() const { return m_request.header || m_traits->firstLineAlwaysHeader; }
    char delimiter() const { return m_request.delimiter; }
    /// UTF-8; "tab" for the tab.
    std::string delimiterText() const;
    /// What is to be said of the delimiter when the file turns out to be
    /// unreadable with it; nothing where the person named it.
    std::optional<Message> doubtOfDelimiter() const;
    /// Where its columns lie, as far as that is known; else null.
    const ColumnAssignment* columns() const;
    bool isVerbatim() const { return m_options.verbatim; }
    /// That no line has the column of that pair.
    Message columnOutside(const ColumnAssignment::Pair& pair) const;

    /// What is to be said before the library is called. An error among it means
    /// that the file is not to be imported.
    const std::vector<Message>& messages() const { return m_messages; }
    bool isRefused() const;
    /// Whether it cannot even be opened. The library may be called nevertheless,
    /// for its own words, if `mayBeAsked` says so.
    bool isUnreadable() const { return m_input.problem().has_value(); }
    bool mayBeAsked() const { return m_mayBeAsked; }

    RunOutcome simulate(LibraryRun& run) const;
    RunOutcome import(LibraryRun& run, Node* target, const std::string& info) const;
    /// The bytes of the lines of those ascending numbers.
    std::vector<std::string> lines(const std::vector<std::size_t>& numbers) const;

private:
    void examine();
    void examineLines();
    void noteUselessOptions();
    void prepareRequest();
    void findDelimiter();

    ReadingOptions m_options;
    InputFile m_input;
    const FormatTraits* m_traits;
    FileCensus m_census;
    RunRequest m_request;
    std::vector<Message> m_messages;
    bool m_mayBeAsked = false;
    std::optional<Problem> m_delimiterDoubt;
};
