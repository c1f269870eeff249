// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/LineAccount.h"

#include <algorithm>

namespace {

/// How the library reads a file that it gets as it is.
LineCounts ofVerbatim(const FileReading& reading, std::size_t handled, bool wasRead) {
    const FileCensus& census = reading.census();
    LineCounts lines;
    lines.read = census.lines();
    lines.blank = census.blankLines();
    if (reading.traits().recordPerLine) {
        lines.records = handled;
        lines.header = wasRead && reading.hasHeader() ? std::min<std::size_t>(census.readLines(), 1) : 0;
    } else if (wasRead) {
        lines.records = census.readLines();
    }
    return lines;
}

std::size_t& bucketOf(LineUse use, LineCounts& lines) {
    switch (use) {
    case LineUse::record:
        return lines.records;
    case LineUse::header:
        return lines.header;
    case LineUse::preamble:
        return lines.preamble;
    case LineUse::footer:
        return lines.footer;
    case LineUse::blank:
        return lines.blank;
    case LineUse::ignored:
        break;
    }
    return lines.ignored;
}

/// What the intake found each line to be.
LineCounts ofPrepared(const IntakeResult& intake, bool recordPerLine, std::size_t handled) {
    LineCounts lines;
    for (const LineUse use : intake.prepared.lines)
        ++bucketOf(use, lines);
    lines.read = intake.prepared.lines.size();
    if (recordPerLine) // those behind a line at which the library stopped were not read
        lines.records = std::min(lines.records, handled);
    return lines;
}

} // namespace

LineCounts LineAccount::of(const FileReading& reading, const FileReport& report) {
    const std::size_t handled =
        static_cast<std::size_t>(report.importedCount) + report.knownCount.value_or(0) + report.refusedCount;
    const bool wasRead = report.result != 0 || handled > 0;
    LineCounts lines = reading.intake() != nullptr
                           ? ofPrepared(*reading.intake(), reading.traits().recordPerLine, handled)
                           : ofVerbatim(reading, handled, wasRead);
    lines.ignored = lines.read - lines.blank - lines.header - lines.preamble - lines.footer - lines.records;
    return lines;
}
