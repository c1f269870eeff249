// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/BookingsChapter.h"

#include <algorithm>
#include <string>

#include "cli/FileChapters.h"
#include "cli/LeftOut.h"
#include "cli/SafeText.h"
#include "cli/XmlLines.h"

namespace {

/// The bookings behind those that are in the store: their lines and identifiers, in one row each.
void enterUnread(const HomeBankingImport& import, FileChapter& chapter) {
    const XmlList& list = import.list();
    const HomeBankingReport& report = import.report();
    // Behind those that were read, whatever became of them.
    const auto withoutRoom = std::count_if(report.messages.begin(), report.messages.end(), [](const Message& message) {
        return message.code == ProblemTexts::of(Problem::tableFull).code;
    });
    const std::size_t read =
        report.records.imported + report.records.known.value_or(0) + static_cast<std::size_t>(withoutRoom);
    std::size_t line = 1; // counted on from booking to booking
    std::size_t offset = 0;
    for (std::size_t number = read + 1; number <= list.recordCount(); ++number) {
        const std::size_t at = *list.recordOffset(number);
        line += XmlLines::numberOf(import.text().view().substr(offset, at - offset), at - offset) - 1;
        offset = at;
        const std::string id = SafeText::printable(list.childText(number, BookingElements::kId));
        LinesLeftOut row;
        row.first = row.last = line;
        row.reason = "Buchung " + std::to_string(number) +
                     " steht hinter der Stelle, an der die Liste endete, oder "
                     "ist diese Stelle";
        row.text = id.empty() ? "" : "id " + id;
        chapter.leftOut.push_back(row);
    }
}

/// An error of a line costs the bookings from there on; it is shown with the line.
void enterMessages(const std::vector<Message>& messages, FileChapter& chapter) {
    for (const Message& message : messages) {
        const Finding finding = LeftOut::findingOf(message);
        if (message.line && LeftOut::isKnownRecord(message)) {
            chapter.known.push_back({*message.line, *message.line, finding.text, {}, {}});
            continue;
        }
        if (!message.isError() || !message.line) {
            chapter.findings.push_back(finding);
            continue;
        }
        chapter.leftOut.push_back(
            {*message.line, *message.line, finding.text, finding.code, SafeText::printable(message.excerpt)});
        if (!finding.hint.empty())
            chapter.advice.push_back(finding.hint);
    }
}

} // namespace

FileChapter BookingsChapter::of(const XmlDocumentFile& file, const HomeBankingImport& import,
                                const StoreError* failure) {
    const HomeBankingReport& report = import.report();
    FileChapter chapter = FileChapters::begin(report.file, "Buchungsliste (XML)", file.bytes());
    if (file.problem() || file.isTooLarge())
        chapter.origin.clear(); // it was not read
    chapter.taken = report.committed;
    chapter.day = import.records().day;
    if (!import.records().account.empty())
        chapter.origin.push_back({"Konto", import.records().account});
    if (report.committed)
        chapter.digest = import.records().digest;
    chapter.lines = FileChapters::tallyOf(report.lines);
    chapter.records = FileChapters::tallyOf(report.records, report.committed);
    chapter.records.undated = report.committed ? report.undatedCount : 0;
    chapter.reading = {{"Gelesen", "das Dokument, wie es ist; seine Elemente sagen, was sie bedeuten"}};
    enterMessages(report.messages, chapter);
    if (report.committed)
        enterUnread(import, chapter);
    FileChapters::enterFailure(failure, chapter);
    return chapter;
}
