// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

/// The layout of our own delimited lists: who reads one knows by its header
/// line alone all there is to know about it. UTF-8 with a byte-order mark, line
/// feeds, days as dd.mm.yyyy, amounts with a decimal comma and without groups, no
/// day and no amount as an empty cell. A layout that has been written once never
/// changes; another one gets another header.
namespace CsvLayout {

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
inline constexpr char kDelimiter = ';';
inline constexpr char kDecimalMark = ',';

struct Column {
    const char* name;  ///< in the header
    const char* field; ///< of a record, when it is imported again; null: it goes nowhere
};

inline constexpr std::array<Column, 10> kRecordColumns = {{{"Datum", "Datum"},
                                                           {"Betrag", "Betrag"},
                                                           {"Empfaenger", "Empfaenger"},
                                                           {"Verwendungszweck", "Verwendungszweck"},
                                                           {"Buchungstext", "Buchungstext"},
                                                           {"Kategorie", "Kategorie"},
                                                           {"Unterkategorie", "Unterkategorie"},
                                                           {"ImportID", nullptr},
                                                           {"UniqueID", nullptr},
                                                           {"Zeile", nullptr}}};

inline constexpr std::array<Column, 13> kBookingColumns = {{{"BuchungsDatum", "Datum"},
                                                            {"ValutaDatum", nullptr},
                                                            {"Betrag", "Betrag"},
                                                            {"Empfaenger", "Empfaenger"},
                                                            {"Verwendungszweck", "Verwendungszweck"},
                                                            {"GVCode", "Buchungstext"},
                                                            {"Kategorie", "Kategorie"},
                                                            {"Notiz", nullptr},
                                                            {"Steuerrelevant", nullptr},
                                                            {"BLZ", nullptr},
                                                            {"KtoNummer", nullptr},
                                                            {"BuchungsID", nullptr},
                                                            {"UniqueID", nullptr}}};

/// Stands in front of a text that a spreadsheet would run as a formula.
inline constexpr char kGuard = '\'';

/// Whether such a text needs the guard; one that begins with guards and goes on
/// like a formula does as well, so that taking one guard away undoes it.
inline bool needsGuard(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kGuard);
    return first != std::string_view::npos &&
           std::string_view("=+-@\t\r\n").find(text[first]) != std::string_view::npos;
}

/// The text of a cell that was written with a guard where it needs one.
inline std::string_view withoutGuard(std::string_view cell) {
    return !cell.empty() && cell.front() == kGuard && needsGuard(cell) ? cell.substr(1) : cell;
}

} // namespace CsvLayout
