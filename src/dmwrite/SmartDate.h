// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "framework/datamodel_api/DMDate.h"
#include "framework/ImportModuleApi.h"

class Node;

/// Reads a date of three numbers and learns from the dates it sees whether the
/// day or the month comes first.
///
/// What it learns is class-wide and serves the whole import: one import at a
/// time in a process. Whoever starts an import resets `sm_order`; the
/// home-banking path does not, so an order learned there or before stays.
class IMPORT_MODULE_API SmartDate {
public:
    /// Also switches the QIF syntax off, for every object: a reader that wants
    /// it switches it on after making its own date.
    SmartDate();

    void clear();

    /// Reads digits between the separators "-", ".", "/" and "'"; every other
    /// byte is skipped and does not end a number. A null or empty text yields
    /// false and changes nothing. The object is not cleared first: once
    /// invalid, it stays so.
    bool parse(const char* text);

    /// Takes the number at `index` (0 first, 1 second, 2 year; others are
    /// ignored), learning the order or widening the year.
    void setNumber(int index, const std::string& digits);

    bool isValid() const;
    /// The zero date when not valid.
    DMDate getDate() const;
    /// First and second number and year as "%02d.%02d.%04d", in the file's own
    /// order: a month-first date prints its month first.
    std::string asString() const;

    static unsigned short getCenturyWindowStart() { return sm_CenturyWindowStart; }
    /// Takes the century window from the schema of `node`; null changes nothing.
    static void setupCenturyStart(Node* node);

    /// 0 not known yet (read day first), 1 day first, 2 month first.
    static int sm_order;
    /// An apostrophe before a two-digit year means the 2000s.
    static bool m_useQIFSyntax;
    /// Two-digit years up to and including this one lie in the 2000s.
    static unsigned short sm_CenturyWindowStart;

private:
    void takeNumber(int index, int number, std::size_t digits);
    void learnOrder(int number, int orderItProves);
    int widenYear(int year) const;

    bool m_apostropheYear = false; ///< QIF syntax, and an apostrophe was the second separator
    int m_first = 0;
    int m_second = 0;
    int m_year = 0;
    bool m_valid = true;
};
