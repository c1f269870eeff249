// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/HomeBankingCommand.h"

#include "cli/BookingsChapter.h"
#include "cli/FileReports.h"
#include "cli/HomeBankingImport.h"
#include "cli/ImportReport.h"
#include "store/StoreError.h"

ExitStatus importHomeBanking(const HomeBankingDocument& document, const Options& options, Console& console) {
    checkFiles(options.operands);
    StoreAtPath store(options.store);
    FileReports reports(console);
    ImportReport page(options, store.path());
    const auto importFile = [&](const std::string& name) {
        XmlDocumentFile file(name);
        HomeBankingImport import(file, document,
                                 {options.keepPartial, options.again, options.newOnly, page.isWanted()});
        const auto tell = [&](const StoreError* failure) {
            const HomeBankingReport& outcome = import.report();
            reports.add(
                outcome.file, [&] { return outcome.json(document); }, outcome.summary(document), outcome.messages);
            if (page.isWanted())
                page.add(BookingsChapter::of(file, import, failure));
        };
        try {
            import.run(store, console);
        } catch (const StoreError& error) {
            tell(&error);
            throw;
        }
        tell(nullptr);
    };
    return reports.collect(
        [&] {
            for (const std::string& name : options.operands)
                importFile(name);
        },
        &page);
}
