// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "intake/BookingRow.h"
#include "intake/ColumnRoles.h"
#include "intake/RecordTable.h"
#include "intake/TablePlan.h"

/// The fields of the data model that a delimited file feeds, in the order of a
/// line that is written anew.
enum class BookingField { date, amount, payee, purpose, postingText, category, subcategory };

constexpr std::size_t kBookingFieldCount = 7;

/// What one booking puts into each field, and in which column of its line.
namespace BookingFields {

template <typename Value>
using PerField = std::array<Value, kBookingFieldCount>;

/// The data model's names.
constexpr PerField<const char*> kNames = {"Datum",        "Betrag",    "Empfaenger",    "Verwendungszweck",
                                          "Buchungstext", "Kategorie", "Unterkategorie"};

/// The column that carries each field; -1 for none.
PerField<int> carriers(const ColumnRoles& roles);

/// Whether the library reads from the line, as it stands, what the row holds.
bool readsRight(const RecordTable& table, std::size_t record, const BookingRow& row, const TablePlan& plan);

/// The texts of the fields as the library reads them right.
PerField<std::string> of(const RecordTable& table, std::size_t record, const BookingRow& row, const TablePlan& plan);

/// Whether a column's text has gone into another column's field, and would be
/// read a second time if it stayed.
bool isUsedUp(const ColumnRoles& roles, int column);

/// A field in one line, without a zero byte, which would end it.
std::string oneLine(std::string_view text);
/// Adds a text to others, a blank between them.
void appendPart(std::string& text, std::string_view part);

} // namespace BookingFields
