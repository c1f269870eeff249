// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Program.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

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

constexpr std::uintmax_t kMuch = 1 << 20;

bool isMuch(const std::vector<std::string>& files) {
    return std::any_of(files.begin(), files.end(), [](const std::string& file) {
        std::error_code error;
        const std::uintmax_t size = std::filesystem::file_size(file, error);
        return !error && size > kMuch;
    });
}

ExitStatus runChecked(int count, const char* const* arguments, std::optional<Console>& console,
                      const std::function<void()>& expectMuch) {
    const CommandLine line = CommandLine::parse(count, arguments);
    console.emplace(line.options);
    LeftScratch::removeAll();
    if (expectMuch && isMuch(line.options.operands))
        expectMuch();
    if (line.command != nullptr)
        return run(line, *console);
    console->write(line.answer);
    return ExitStatus::done;
}

} // namespace

ExitStatus Program::run(int count, const char* const* arguments, const std::function<void()>& expectMuch) {
    std::optional<Console> console; // as the command line wants it; a plain one as long as that is not known
    const auto speaker = [&console]() -> Console& { return console ? *console : console.emplace(Options()); };
    ExitStatus status = ExitStatus::refused;
    try {
        status = runChecked(count, arguments, console, expectMuch);
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
