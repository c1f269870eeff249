// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "intake/ColumnLexicon.h"
#include "intake/ImportPlan.h"
#include "intake/InspectionOptions.h"
#include "intake/RecordTable.h"

/// A delimited file, split, and the plan for reading it.
struct DelimitedFile {
    RecordTable table;
    ImportPlan plan;
};

namespace DelimitedInspector {

/// Finds delimiter, tables, columns, date order, decimal mark and signs.
/// `lines` are host bytes and must outlive the result.
DelimitedFile inspect(std::span<const std::string_view> lines, const InspectionOptions& options,
                      const ColumnLexicon& lexicon = ColumnLexicon::builtIn());

} // namespace DelimitedInspector
