// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/FileChapters.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "cli/FileBytes.h"
#include "cli/FileChecksum.h"
#include "cli/FormatTable.h"
#include "cli/LeftOut.h"
#include "cli/ReadingFacts.h"
#include "cli/SafeText.h"
#include "cli/SourceLines.h"
#include "datamodel/HostText.h"
#include "report/GermanText.h"

namespace {

/// Nothing where they cannot be read, of which there is a message then.
std::optional<std::string> bytesOf(const FileReading& reading) {
    if (reading.isUnreadable())
        return std::nullopt;
    try {
        return FileBytes::read(reading.originalPath());
    } catch (const std::system_error&) {
        return std::nullopt;
    }
}

RecordCounts countsOf(const FileReport& report) {
    if (report.records)
        return *report.records;
    const auto imported = static_cast<std::size_t>(report.importedCount);
    const std::size_t known = report.knownCount.value_or(0);
    return {imported + report.refusedCount + known, imported, report.refusedCount, known};
}

} // namespace

namespace FileChapters {

FileChapter begin(const std::string& name, const std::string& format, std::string_view bytes) {
    FileChapter chapter;
    chapter.name = name == "-" ? "Standardeingabe" : SafeText::printable(name);
    chapter.origin = {{"Format", format},
                      {"Größe", GermanText::counted(bytes.size(), "Byte", "Bytes")},
                      {"Prüfsumme (SHA-256)", FileChecksum::ofBytes(bytes), true}};
    return chapter;
}

LineTally tallyOf(const LineCounts& lines) {
    return {lines.read, lines.records, lines.header, lines.preamble, lines.footer, lines.blank, lines.ignored};
}

RecordTally tallyOf(const RecordCounts& counts, bool committed) {
    RecordTally tally;
    tally.known = counts.known.value_or(0);
    const std::size_t read = counts.imported + counts.refused + tally.known;
    tally.found = std::max(counts.found, read);
    (committed ? tally.imported : tally.takenBack) = counts.imported;
    tally.refused = counts.refused;
    tally.unread = tally.found - read;
    return tally;
}

void enterFailure(const StoreError* failure, FileChapter& chapter) {
    if (failure == nullptr)
        return;
    Finding finding;
    finding.kind = Finding::Kind::error;
    finding.code = failure->codeText();
    finding.text = SafeText::printable(failure->what());
    chapter.findings.push_back(finding);
}

FileChapter of(const FileReading& reading, const FileReport& report, const ImportedRecords& records,
               const StoreError* failure) {
    const std::optional<std::string> bytes = bytesOf(reading);
    FileChapter chapter =
        begin(report.file, HostText::toUtf8(FormatTable::labelOf(reading.traits().format)), bytes.value_or(""));
    if (!bytes)
        chapter.origin.clear(); // nothing is known of it
    chapter.taken = report.committed;
    chapter.balanceFits = report.balanceFits;
    chapter.day = records.day;
    if (report.committed) {
        chapter.session = report.sessionId;
        chapter.digest = records.digest;
    }
    chapter.lines = tallyOf(report.lines);
    chapter.records = tallyOf(countsOf(report), report.committed);
    chapter.records.undated = report.committed ? report.undatedCount : 0;
    ReadingFacts::enter(reading, chapter);
    LeftOut::enter(reading, report, SourceLines(bytes.value_or(""), reading.intake()), chapter);
    enterFailure(failure, chapter);
    return chapter;
}

} // namespace FileChapters
