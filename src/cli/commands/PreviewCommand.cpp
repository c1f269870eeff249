// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/ColumnOption.h"
#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/FileReading.h"
#include "cli/LibraryFailure.h"
#include "cli/PreviewText.h"
#include "cli/RowLimit.h"

namespace {

const char* const kOptions[] = {"--columns",   "--unassigned", "--delimiter", "--header",
                                "--no-header", "--format",     "--verbatim",  "--limit"};

/// Columns that were assigned and that no line has.
void addMissingColumns(std::vector<Message>& messages, const FileReading& reading, const ImportRecordSet& preview) {
    if (reading.isVerbatim() || !reading.traits().takesColumns() || reading.columns() == nullptr ||
        preview.getRowCount() == 0)
        return;
    const ColumnAssignment& columns = *reading.columns();
    for (int i = 0; i < columns.m_count; ++i) {
        if (columns.m_pairs[i].m_inputColumn >= preview.getColumnCount())
            messages.push_back(reading.columnOutside(columns.m_pairs[i]));
    }
}

ExitStatus run(const Options& options, Console& console) {
    const std::size_t limit = rowLimit(options.limit);
    const FileReading reading(options.operands.front(), ReadingOptions::from(options));
    std::vector<Message> messages = reading.messages();
    LibraryRun run;
    RunOutcome outcome;
    if (reading.mayBeAsked())
        outcome = reading.simulate(run);
    if (outcome.result != 0)
        addMissingColumns(messages, reading, run.preview());
    else if (!reading.isUnreadable())
        messages.push_back(LibraryFailure::message(reading, outcome));

    if (console.json())
        PreviewText::writeJson(console, reading, run, outcome, messages, limit);
    else if (outcome.result != 0)
        PreviewText::writeTable(console, reading, run, limit);
    console.report(reading.argument(), messages);
    const bool clean = std::none_of(messages.begin(), messages.end(),
                                    [](const Message& message) { return message.texts().severity == Severity::error; });
    return clean ? ExitStatus::done : ExitStatus::refused;
}

} // namespace

const Command kPreviewCommand = {"preview", "simulierter Import, als Tabelle", {"DATEI", true, false}, kOptions, run};
