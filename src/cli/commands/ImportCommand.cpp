// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/FileChapters.h"
#include "cli/FileImport.h"
#include "cli/FileReport.h"
#include "cli/FileReports.h"
#include "cli/ImportReport.h"
#include "cli/ReadingOptions.h"
#include "cli/StoreAtPath.h"
#include "cli/UsageError.h"
#include "datamodel/HostText.h"

namespace {

const char* const kOptions[] = {"--store",        "--columns",      "--delimiter", "--header",        "--no-header",
                                "--encoding",     "--date-order",   "--decimal",   "--format",        "--profile",
                                "--save-profile", "--verbatim",     "--info",      "--allow-undated", "--again",
                                "--new-only",     "--keep-partial", "--report"};

ImportWishes wishesOf(const Options& options) {
    const std::optional<std::string> info = HostText::fromUtf8(options.info.value_or(""));
    if (!info)
        throw UsageError("--info: „" + *options.info +
                         "“ enthält Zeichen, die sich nicht ablegen lassen; möglich sind die westeuropäischen.");
    return {*info,         options.allowUndated, options.keepPartial,
            options.again, options.newOnly,      options.report.has_value()};
}

/// Where what becomes of the files goes.
struct Telling {
    FileReports reports;
    ImportReport page;
};

void importFile(const std::string& file, const ReadingOptions& options, const ImportWishes& wishes, StoreAtPath& store,
                Telling& telling, const Console& console) {
    const FileReading reading(file, options);
    FileImport import(reading, wishes);
    const auto tell = [&](const StoreError* failure) {
        const FileReport& outcome = import.report();
        telling.reports.add(
            file, [&] { return FileReportText::json(outcome); }, FileReportText::summary(outcome), outcome.messages);
        if (telling.page.isWanted())
            telling.page.add(FileChapters::of(reading, outcome, import.records(), failure));
    };
    try {
        import.run(store, console);
    } catch (const StoreError& error) {
        tell(&error);
        throw;
    }
    tell(nullptr);
}

ExitStatus run(const Options& options, Console& console) {
    const ReadingOptions reading = ReadingOptions::from(options);
    const ImportWishes wishes = wishesOf(options);
    checkFiles(options.operands);
    StoreAtPath store(options.store);
    Telling telling{FileReports(console), ImportReport(options, store.path())};
    return telling.reports.collect(
        [&] {
            for (const std::string& file : options.operands)
                importFile(file, reading, wishes, store, telling, console);
        },
        &telling.page);
}

} // namespace

const Command kImportCommand = {"import", "Import in einen Bestand", {"DATEI", true, true}, kOptions, run};
