// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/commands/Commands.h"
#include "cli/Console.h"
#include "cli/FileImport.h"
#include "cli/FileReport.h"
#include "cli/JsonRows.h"
#include "cli/ReadingOptions.h"
#include "cli/StoreAtPath.h"
#include "cli/StoreErrorJson.h"
#include "cli/UsageError.h"
#include "datamodel/HostText.h"

namespace {

const char* const kOptions[] = {"--store",  "--columns",  "--delimiter", "--header",        "--no-header",
                                "--format", "--verbatim", "--info",      "--allow-undated", "--keep-partial"};

ImportWishes wishesOf(const Options& options) {
    const std::optional<std::string> info = HostText::fromUtf8(options.info.value_or(""));
    if (!info)
        throw UsageError("--info: „" + *options.info +
                         "“ enthält Zeichen, die sich nicht ablegen lassen; möglich sind die westeuropäischen.");
    return {*info, options.allowUndated, options.keepPartial};
}

void checkFiles(const std::vector<std::string>& files) {
    if (std::count(files.begin(), files.end(), "-") > 1)
        throw UsageError("„-“ steht zweimal da; die Standardeingabe lässt sich nur einmal lesen.");
}

/// Tells what became of the files, each as soon as that is known.
class Reports {
public:
    explicit Reports(Console& console) : m_console(console) {}

    void add(const FileReport& report) {
        m_clean = m_clean && report.isClean();
        if (m_console.json())
            m_files.push_back(FileReportText::json(report));
        else
            m_console.summary(FileReportText::summary(report));
        m_console.report(report.file, report.messages);
    }
    void end(const Json& error) {
        if (!m_console.json())
            return;
        Json document = {{"files", m_files}};
        if (!error.is_null())
            document["error"] = error;
        m_console.write(JsonText::of(document) + "\n");
    }
    ExitStatus status() const { return m_clean ? ExitStatus::done : ExitStatus::refused; }

private:
    Console& m_console;
    Json m_files = Json::array();
    bool m_clean = true;
};

void importFile(const std::string& file, const ReadingOptions& options, const ImportWishes& wishes, StoreAtPath& store,
                Reports& reports, const Console& console) {
    const FileReading reading(file, options);
    FileImport import(reading, wishes);
    try {
        import.run(store, console);
    } catch (const StoreError&) {
        reports.add(import.report());
        throw;
    }
    reports.add(import.report());
}

ExitStatus run(const Options& options, Console& console) {
    const ReadingOptions reading = ReadingOptions::from(options);
    const ImportWishes wishes = wishesOf(options);
    checkFiles(options.operands);
    StoreAtPath store(options.store);
    Reports reports(console);
    try {
        for (const std::string& file : options.operands)
            importFile(file, reading, wishes, store, reports, console);
    } catch (const StoreError& error) {
        reports.end(StoreErrorJson::of(error));
        console.report(error);
        return ExitStatus::store;
    }
    reports.end(nullptr);
    return reports.status();
}

} // namespace

const Command kImportCommand = {"import", "Import in einen Bestand", {"DATEI", true, true}, kOptions, run};
