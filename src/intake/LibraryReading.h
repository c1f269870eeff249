// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "intake/Day.h"
#include "intake/Money.h"
#include "intake/RecordTable.h"

/// Dry runs: how the import library reads a cell that is handed over as it is.
namespace LibraryReading {

/// Longest line that it reads, in bytes.
extern const int kMaxLineLength;
/// Columns of a line that it reads.
extern const int kMaxColumns;

/// Whether it splits `line` as it was split into `record`, and reads all of it.
bool splitsLine(const RecordTable::Record& record, std::string_view line);
/// Whether it passes over the line.
bool skipsLine(std::string_view line);
/// What it makes of a line of a QIF file: blanks go from both ends, then tabs from what
/// are the ends then, and nothing else.
std::string_view strippedLine(std::string_view line);

/// `amount` is what `cell` means, under whatever decimal mark the file has.
bool readsAmount(std::string_view cell, const Money& amount);
/// In a file whose dates it reads day first.
bool readsDate(std::string_view cell, const Day& day, int centuryWindow);

} // namespace LibraryReading
