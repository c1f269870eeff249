// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "cli/FileReading.h"
#include "cli/FileReport.h"
#include "cli/ImportedRecords.h"
#include "report/FileChapter.h"
#include "store/StoreError.h"

/// What the page about an import says of a file.
namespace FileChapters {

/// `failure` is what the store said that ended the import; null where it did not.
FileChapter of(const FileReading& reading, const FileReport& report, const ImportedRecords& records,
               const StoreError* failure);

/// What every chapter begins with: the file's name (the shell's bytes), size, checksum.
FileChapter begin(const std::string& name, const std::string& format, std::string_view bytes);
LineTally tallyOf(const LineCounts& lines);
/// From what a report counts; what is not kept was taken back.
RecordTally tallyOf(const RecordCounts& counts, bool committed);
void enterFailure(const StoreError* failure, FileChapter& chapter);

} // namespace FileChapters
