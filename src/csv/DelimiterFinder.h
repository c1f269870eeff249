// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include "framework/ImportModuleApi.h"

/// Learns from the lines of a file which character separates its columns: the
/// one that occurs equally often on every line. Serves one file.
class IMPORT_MODULE_API DelimiterFinder {
public:
    DelimiterFinder();

    void clear();
    /// A null or empty line counts for nothing.
    void scanLine(const char* line);
    /// Judges a last line that has no partner. Call once, after the last line.
    void endScan();
    /// 0 when no character qualifies.
    char getBestDelimiter() const;

private:
    void countAll(const char* line);
    void countLeft(const char* line);
    void disqualify();

    /// Codes 1 to 126 are counted; Latin-1 letters never separate columns.
    static constexpr int kCodes = 127;

    int m_lineCount = 0;
    int m_firstLineCount[kCodes]; ///< occurrences in the first line; 0 once disqualified
    int m_balance[kCodes];        ///< occurrences, added on even lines (from 0) and taken off on odd ones
    int m_sign = 0;               ///< of the line scanned last; 0 before the first

    // Few characters hold out for more than a handful of lines. Then those alone are counted.
    static constexpr int kFew = 8;
    static constexpr int kMany = -1;
    char m_left[kFew];       ///< those in the running that still qualify
    int m_leftCount = kMany; ///< how many; kMany as long as each character is counted
};
