// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/FileReading.h"
#include "cli/LibraryFailure.h"
#include "cli/PreviewText.h"
#include "cli/RowLimit.h"

namespace {

const char* const kOptions[] = {"--columns",      "--unassigned", "--delimiter", "--header", "--no-header",
                                "--encoding",     "--date-order", "--decimal",   "--format", "--profile",
                                "--save-profile", "--verbatim",   "--limit"};

ExitStatus run(const Options& options, Console& console) {
    const std::size_t limit = rowLimit(options.limit);
    const FileReading reading(options.operands.front(), ReadingOptions::from(options));
    std::vector<Message> messages = reading.messages();
    LibraryRun run;
    RunOutcome outcome;
    if (reading.mayBeAsked())
        outcome = reading.simulate(run);
    if (outcome.result == 0 && !reading.isUnreadable() && reading.mayBeAsked())
        messages.push_back(LibraryFailure::message(reading, outcome));

    if (console.json())
        PreviewText::writeJson(console, reading, run, outcome, messages, limit);
    else if (outcome.result != 0)
        PreviewText::writeTable(console, reading, run, limit);
    console.report(reading.argument(), messages);
    const bool clean =
        std::none_of(messages.begin(), messages.end(), [](const Message& message) { return message.isError(); });
    return clean ? ExitStatus::done : ExitStatus::refused;
}

} // namespace

const Command kPreviewCommand = {"preview", "simulierter Import, als Tabelle", {"DATEI", true, false}, kOptions, run};
