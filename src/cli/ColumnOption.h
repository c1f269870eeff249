// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "framework/ColumnAssignment.h"

/// The value of --columns: `0=Datum,3=Betrag`.
namespace ColumnOption {

/// Columns count from 0; the library reads the first 49. Throws UsageError for
/// anything that cannot be meant, above all for what the library would ignore
/// without a word: a column or a field named twice.
ColumnAssignment parse(std::string_view text);

/// The field of that name in the data model.
std::optional<Import::E_ColumnIndex> fieldIndex(std::string_view name);
/// The data model's name of a field.
const char* fieldName(Import::E_ColumnIndex column);

} // namespace ColumnOption
