// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "intake/Day.h"
#include "intake/Money.h"

/// Dry runs: how the import library reads a cell that is handed over as it is.
namespace LibraryReading {

/// Longest line that it reads, in bytes.
extern const int kMaxLineLength;
/// Columns of a line that it reads.
extern const int kMaxColumns;

/// `amount` is what `cell` means, under whatever decimal mark the file has.
bool readsAmount(std::string_view cell, const Money& amount);
/// In a file whose dates it reads day first.
bool readsDate(std::string_view cell, const Day& day, int centuryWindow);

} // namespace LibraryReading
