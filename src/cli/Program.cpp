// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Program.h"

#include <exception>
#include <optional>

#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/LeftScratch.h"
#include "cli/StoreErrorJson.h"
#include "cli/UsageError.h"

namespace {

ExitStatus run(const CommandLine& line, Console& console) {
    try {
        return line.command->run(line.options, console);
    } catch (const StoreError& error) {
        if (console.json())
            console.write(JsonText::of({{"error", StoreErrorJson::of(error)}}) + "\n");
        console.report(error);
        return ExitStatus::store;
    }
}

ExitStatus runChecked(int count, const char* const* arguments, std::optional<Console>& console) {
    const CommandLine line = CommandLine::parse(count, arguments);
    console.emplace(line.options);
    LeftScratch::removeAll();
    if (line.command != nullptr)
        return run(line, *console);
    console->write(line.answer);
    return ExitStatus::done;
}

} // namespace

ExitStatus Program::run(int count, const char* const* arguments) {
    std::optional<Console> console; // as the command line wants it; a plain one as long as that is not known
    const auto speaker = [&console]() -> Console& { return console ? *console : console.emplace(Options()); };
    ExitStatus status = ExitStatus::refused;
    try {
        status = runChecked(count, arguments, console);
    } catch (const UsageError& error) {
        speaker().reportUsage(error.what());
        status = ExitStatus::usage;
    } catch (const std::bad_alloc&) {
        speaker().report("dmimport", {Message::of(Problem::unexpected, {"Der Arbeitsspeicher reicht nicht"})});
    } catch (const std::exception& error) {
        speaker().report("dmimport", {Message::of(Problem::unexpected, {error.what()})});
    }
    if (!speaker().finish() && status == ExitStatus::done)
        status = ExitStatus::refused;
    return status;
}
