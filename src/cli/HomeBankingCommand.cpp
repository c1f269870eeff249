// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HomeBankingCommand.h"

#include "cli/FileReports.h"
#include "cli/HomeBankingImport.h"
#include "store/StoreError.h"

ExitStatus importHomeBanking(const HomeBankingDocument& document, const Options& options, Console& console) {
    checkFiles(options.operands);
    StoreAtPath store(options.store);
    FileReports reports(console);
    const auto importFile = [&](const std::string& name) {
        XmlDocumentFile file(name);
        HomeBankingImport import(file, document, {options.keepPartial, options.again, options.newOnly});
        const auto report = [&] {
            const HomeBankingReport& outcome = import.report();
            reports.add(
                outcome.file, [&] { return outcome.json(document); }, outcome.summary(document), outcome.messages);
        };
        try {
            import.run(store, console);
        } catch (const StoreError&) {
            report();
            throw;
        }
        report();
    };
    return reports.collect([&] {
        for (const std::string& name : options.operands)
            importFile(name);
    });
}
