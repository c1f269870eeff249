// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/FileReading.h"
#include "cli/InspectText.h"

namespace {

const char* const kOptions[] = {"--columns",    "--delimiter", "--header", "--no-header", "--encoding",
                                "--date-order", "--decimal",   "--format", "--profile",   "--save-profile"};

ExitStatus run(const Options& options, Console& console) {
    const FileReading reading(options.operands.front(), ReadingOptions::from(options));
    const std::vector<Message>& messages = reading.messages();
    if (const IntakeResult* result = reading.intake()) {
        if (console.json())
            InspectText::writeJson(console, reading.argument(), *result, reading.profile(), messages);
        else
            InspectText::writeTable(console, reading.argument(), *result);
    }
    console.report(reading.argument(), messages);
    const bool clean =
        std::none_of(messages.begin(), messages.end(), [](const Message& message) { return message.isError(); });
    return clean ? ExitStatus::done : ExitStatus::refused;
}

} // namespace

const Command kInspectCommand = {"inspect", "was für eine Datei ist das?", {"DATEI", true, false}, kOptions, run};
