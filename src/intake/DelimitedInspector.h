// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "intake/BookingRow.h"
#include "intake/ColumnLexicon.h"
#include "intake/ImportPlan.h"
#include "intake/InspectionOptions.h"
#include "intake/RecordTable.h"

/// A delimited file, split, the plan for reading it, and what it reads.
struct DelimitedFile {
    RecordTable table;
    ImportPlan plan;
    /// For each table of the plan its records, those of its region, in order.
    std::vector<std::vector<BookingRow>> rows;
};

namespace DelimitedInspector {

/// Finds delimiter, tables, columns, date order, decimal mark and signs.
/// `lines` are host bytes and must outlive the result.
DelimitedFile inspect(std::span<const std::string_view> lines, const InspectionOptions& options,
                      const ColumnLexicon& lexicon = ColumnLexicon::builtIn());

} // namespace DelimitedInspector
