// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>

#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/FileReading.h"
#include "cli/LibraryFailure.h"
#include "cli/PreviewMarks.h"
#include "cli/PreviewText.h"
#include "cli/RowLimit.h"
#include "cli/StoreAtPath.h"
#include "cli/UserFolder.h"

namespace {

const char* const kOptions[] = {"--store",     "--columns",      "--unassigned", "--delimiter", "--header",
                                "--no-header", "--encoding",     "--date-order", "--decimal",   "--format",
                                "--profile",   "--save-profile", "--verbatim",   "--limit"};

/// How the records stand to the store into which they would go: the named one, new or not, else the
/// user's own one if it is there.
std::optional<PreviewMarks> marksOf(const FileReading& reading, const Options& options) {
    if (!options.store && UserFolder::data().empty())
        return std::nullopt;
    StoreAtPath storeAtPath(options.store);
    std::error_code ignored;
    if (std::filesystem::exists(storeAtPath.path(), ignored))
        return PreviewMarks::of(reading, &storeAtPath.forReading());
    return options.store ? std::optional(PreviewMarks::of(reading, nullptr)) : std::nullopt;
}

ExitStatus run(const Options& options, Console& console) {
    const std::size_t limit = rowLimit(options.limit);
    const FileReading reading(options.operands.front(), ReadingOptions::from(options));
    std::vector<Message> messages = reading.messages();
    static auto& run = *new LibraryRun; // the table is left to the system, as the command ends with it
    RunOutcome outcome;
    if (reading.mayBeAsked())
        outcome = reading.simulate(run);
    if (outcome.result == 0 && !reading.isUnreadable() && reading.mayBeAsked())
        messages.push_back(LibraryFailure::message(reading, outcome));

    std::optional<PreviewMarks> marks;
    if (outcome.result != 0 && !reading.isRefused())
        marks = marksOf(reading, options);
    const PreviewMarks* shownMarks = marks ? &*marks : nullptr;

    if (console.json())
        PreviewText::writeJson(console, reading, run, outcome, messages, shownMarks, limit);
    else if (outcome.result != 0)
        PreviewText::writeTable(console, reading, run, shownMarks, limit);
    console.report(reading.argument(), messages);
    const bool clean =
        std::none_of(messages.begin(), messages.end(), [](const Message& message) { return message.isError(); });
    return clean ? ExitStatus::done : ExitStatus::refused;
}

} // namespace

const Command kPreviewCommand = {"preview", "simulierter Import, als Tabelle", {"DATEI", true, false}, kOptions, run};
